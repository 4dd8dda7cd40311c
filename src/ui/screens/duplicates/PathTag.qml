// SPDX-License-Identifier: MIT
// The tag before the path of a copy, which tells whether it is kept.
import QtQuick
import Zelk.Controls

Tag {
    mute: true
    ink: Theme.inkSoft
    tint: 0.22
    size: 10
}
