// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace zelk {

/// The texts of ModuleScaffold. Empty ones take no space.
struct ModuleTexts {
    QString title;
    QString subtitle;
    QString scanLabel;      ///< of the button on the start page; without it there is no button
    QString scanningLabel;  ///< shown while it scans
    QString note;           ///< a line of secondary text on the start page

    bool operator==(const ModuleTexts&) const = default;
};

}  // namespace zelk
