// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace zelk {

/// What a module says of itself on its three faces. A text that is empty takes no place.
struct ModuleTexts {
    QString title;
    QString subtitle;
    QString scanLabel;      ///< of the button of the first face; without one there is no button
    QString scanningLabel;  ///< while it works
    QString note;           ///< a quiet line under the first face

    bool operator==(const ModuleTexts&) const = default;
};

}  // namespace zelk
