// SPDX-License-Identifier: MIT
#pragma once

class QPainter;

namespace zelk {

/// Paints the background of the app's mark: a square of `side` with rounded corners, in the accent gradient.
void paintHouseTile(QPainter& painter, double side);

}  // namespace zelk
