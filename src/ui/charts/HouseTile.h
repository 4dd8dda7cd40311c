// SPDX-License-Identifier: MIT
#pragma once

class QPainter;

namespace zelk {

/// What the mark of the house stands on: a square of `side` with soft corners, in the accent gradient.
void paintHouseTile(QPainter& painter, double side);

}  // namespace zelk
