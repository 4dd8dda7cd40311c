// SPDX-License-Identifier: MIT
#pragma once

#include <QLocale>
#include <QString>

#include "ui/theme/DisplayText.h"

namespace zelk {

/// A figure on its way from one text to the next, `share` (0 to 1) of it gone. Byte counts run through their units
/// ("900 MB" to "1.2 GB"); other texts run if they differ in one number alone ("12 items" to "40 items"), with the
/// decimals of the longer; all others do not run and read as `to` from the start.
QString figureBetween(const QString& from, const QString& to, double share, const QLocale& locale = userLocale());

}  // namespace zelk
