// SPDX-License-Identifier: MIT
// A line of help at a control, shown while the pointer rests on it or the keyboard is there, and only then built.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T

Loader {
    id: tip

    required property string text
    required property T.Control control

    readonly property bool pressing: (tip.control as T.AbstractButton)?.down ?? false
    readonly property bool shown: tip.text !== "" && (tip.control.hovered || tip.control.visualFocus) && !tip.pressing

    function build() {
        if (tip.shown)
            tip.setSource("HelpBubble.qml", {
                control: tip.control,
                text: tip.text
            });
        else
            tip.source = "";
    }

    onShownChanged: tip.build()
    onTextChanged: tip.build()
}
