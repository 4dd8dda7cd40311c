// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <functional>

namespace zelk {

/// Elides the label to at most `room`: whole if it fits, else the longest beginning that fits with "…" appended; empty
/// if not even one character does. Cuts between grapheme clusters, so that no accent or emoji is split. `widthOf`
/// measures a text. `slack` is how much narrower a text may be than a shorter beginning of it, because of ligatures.
/// Even a label of hundreds of characters takes only a dozen measurements of short texts.
QString fittedLabel(const QString& label, double room, double slack,
                    const std::function<double(const QString&)>& widthOf);

}  // namespace zelk
