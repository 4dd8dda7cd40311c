// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QCoreApplication>
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

/// The name of a safety grade: "safe", "regenerates" or "review".
inline QString wordOf(ReclaimSafety safety) {
    switch (safety) {
        case ReclaimSafety::safe:
            return QCoreApplication::translate("SafetyLook", "safe");
        case ReclaimSafety::regenerates:
            return QCoreApplication::translate("SafetyLook", "regenerates");
        case ReclaimSafety::review:
            return QCoreApplication::translate("SafetyLook", "review");
    }
    return {};
}

}  // namespace zelk
