// SPDX-License-Identifier: MIT
// A section heading in capitals.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

Label {
    size: 10
    soft: true
    font.weight: Font.DemiBold
    font.letterSpacing: 1.2 * TextScale.factor
    font.capitalization: Font.AllUppercase
    Accessible.role: Accessible.Heading
}
