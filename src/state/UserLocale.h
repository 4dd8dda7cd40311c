// SPDX-License-Identifier: MIT
#pragma once

#include <QLocale>

namespace zelk {

/// The user's locale. The plain C locale is nobody's language and reads as American English, with its digit groups.
QLocale userLocale();

}  // namespace zelk
