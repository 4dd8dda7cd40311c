// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QString>

#include "reclaim/ReclaimCatalogue.h"

namespace zelk {

/// The colour of a safety grade, the same in both themes.
inline QColor colorOf(ReclaimSafety safety) {
    switch (safety) {
        case ReclaimSafety::safe:
            return {50, 199, 123};
        case ReclaimSafety::regenerates:
            return {245, 166, 35};
        case ReclaimSafety::review:
            return {255, 107, 94};
    }
    return {};
}

/// "safe", "regenerates", "review".
inline QString wordOf(ReclaimSafety safety) {
    const std::string_view word = rawValue(safety);
    return QString::fromLatin1(word.data(), static_cast<qsizetype>(word.size()));
}

}  // namespace zelk
