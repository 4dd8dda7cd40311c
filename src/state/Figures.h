// SPDX-License-Identifier: MIT
// Numbers as a person reads them, in the language and with the marks of the user's own.
#pragma once

#include <QLocale>
#include <QString>
#include <cstdint>

#include "state/UserLocale.h"

namespace zelk {

/// Formats bytes with the decimal separator of `locale`. A negative count is shown as 0.
QString byteFigure(std::int64_t bytes, const QLocale& locale = userLocale());

/// Formats the count with the digit grouping of `locale`.
QString groupedFigure(std::int64_t count, const QLocale& locale = userLocale());

/// 62 is "62%".
QString percentFigure(std::int64_t percent, const QLocale& locale = userLocale());

/// The count by which tr() picks the plural form of a text; of a huge one the last digits, which decide alone.
int forPlural(std::int64_t count);

}  // namespace zelk
