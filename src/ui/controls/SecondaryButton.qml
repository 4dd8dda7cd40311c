// SPDX-License-Identifier: MIT
import Zelk.Controls

Button {
    kind: Button.Secondary
}
