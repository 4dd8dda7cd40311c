// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QImage>
#include <QString>
#include <cstdint>
#include <string>

namespace zelk {

/// One weighted item of a bubble map. Identity is `id`.
struct BubbleSlice {
    std::string id;          ///< stable from one list to the next; a path in bytes, or a name of the caller's own
    QString label;           ///< display text
    std::int64_t bytes = 0;  ///< the weight; what has none gets no bubble
    QColor color;
    bool reclaimable = false;  ///< said in the tooltip
    QImage icon;               ///< of a file; null if there is none
    bool selected = false;     ///< ringed in white

    bool operator==(const BubbleSlice&) const = default;
};

}  // namespace zelk
