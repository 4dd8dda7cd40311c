// SPDX-License-Identifier: MIT
// A header with something at its right. (What the header makes elsewhere must not be bound to this file.)
import QtQuick
import Zelk.App
import Zelk.Controls

ModuleHeader {
    symbol: "tray.full"
    tint: "#22c3c9"
    title: "Clutter"
    subtitle: "The largest files, and those that nobody has opened for long."
    trailing: SecondaryButton {
        text: "Look again"
    }
}
