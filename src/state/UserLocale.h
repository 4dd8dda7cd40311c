// SPDX-License-Identifier: MIT
#pragma once

#include <QLocale>

namespace zelk {

/// The user's locale. Replaces the C locale by American English, which groups digits.
QLocale userLocale();

}  // namespace zelk
