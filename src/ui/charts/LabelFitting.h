// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <functional>

namespace zelk {

/// The label if it is at most `room` wide, else as many of its first characters as are with "…" behind them; empty if
/// not even one is. A character is what a reader takes for one, so no accent and no emoji is ever cut in two. `widthOf`
/// measures a text. `slack` is by how much a text can be narrower than a shorter beginning of it (letters that join):
/// a label of hundreds of characters costs a dozen measurements of short texts.
QString fittedLabel(const QString& label, double room, double slack,
                    const std::function<double(const QString&)>& widthOf);

}  // namespace zelk
