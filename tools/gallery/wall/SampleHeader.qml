// SPDX-License-Identifier: MIT
// A ModuleHeader with a trailing control. (Not `ComponentBehavior: Bound`: the header could not instantiate the
// component then.)
import QtQuick
import Zelk.App
import Zelk.Controls

ModuleHeader {
    symbol: "tray.full"
    tint: "#22c3c9"
    title: "Clutter"
    subtitle: "The largest files, and those that nobody has opened for long."
    trailing: Button {
        text: "Look again"
    }
}
