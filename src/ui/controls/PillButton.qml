// SPDX-License-Identifier: MIT
import Zelk.Controls

Button {
    kind: Button.Pill
}
