// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QImage>
#include <QString>
#include <cstdint>
#include <string>

namespace zelk {

/// A weighted item of a bubble map, identified by `id`.
struct BubbleSlice {
    std::string id;            ///< stable across updates: a path in bytes, or a name chosen by the caller
    QString label;             ///< display text
    std::int64_t bytes = 0;    ///< the weight; not shown unless positive
    QColor color;              ///< if invalid, the bubble has the theme's colour of secondary text
    bool reclaimable = false;  ///< mentioned in the tip
    QImage icon;               ///< icon of a file; may be null
    bool selected = false;     ///< drawn with a white ring

    bool operator==(const BubbleSlice&) const = default;
};

}  // namespace zelk
