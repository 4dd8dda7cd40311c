// SPDX-License-Identifier: MIT
// The states of switches, check boxes, sliders and the like.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

Section {
    id: controls

    required property string longText

    title: "Controls"

    StateRow {
        name: "ToggleSwitch, off"
        longText: controls.longText

        ToggleSwitch {
            text: "Developer"
        }
    }
    StateRow {
        name: "ToggleSwitch, on"
        longText: controls.longText

        ToggleSwitch {
            text: "Developer"
            checked: true
        }
    }
    StateRow {
        name: "CheckBox, off"

        CheckBox {
            text: "Caches"
            on: false
        }
    }
    StateRow {
        name: "CheckBox, on"

        CheckBox {
            text: "Caches"
            on: true
        }
    }
    StateRow {
        name: "StepperField"
        filling: true

        StepperField {
            // The position of the "+" button, as a share of the width.
            property real pointAt: 0.94

            label: "Days"
            from: 0
            to: 365
            value: 30
        }
    }
    StateRow {
        name: "StepperField, at its end, long text"
        all: ["normal"]

        StepperField {
            width: 360 * TextScale.factor
            label: controls.longText
            from: 0
            to: 365
            value: 0
        }
    }
    StateRow {
        name: "SearchField"
        filling: true

        SearchField {
            hint: "Search"
        }
    }
    StateRow {
        name: "SearchField, with a text"
        filling: true

        SearchField {
            hint: "Search"
            text: "sync"
        }
    }
    StateRow {
        name: "SliderField"
        filling: true

        SliderField {
            label: "Days"
            valueText: "60 days"
            from: 0
            to: 180
            value: 60
        }
    }
    StateRow {
        name: "SliderField, at its ends"
        filling: true
        all: ["normal", "focused"]

        SliderField {
            required property int index

            label: "Days"
            valueText: "60 days"
            value: index
        }
    }
    StateRow {
        name: "SegmentedPicker"

        SegmentedPicker {
            label: "Theme"
            options: ["Light", "Dark"]
            current: 1
        }
    }
    StateRow {
        name: "SegmentedPicker, little room, nothing picked"
        all: ["normal"]

        SegmentedPicker {
            width: 220 * TextScale.factor
            label: "Theme"
            options: ["As the desktop has it", "Light", "Dark"]
            current: -1
        }
    }
}
