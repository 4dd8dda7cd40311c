// SPDX-License-Identifier: MIT
// Shows a tool tip for a control while it is hovered or has visible focus. Creates the popup only then.
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
