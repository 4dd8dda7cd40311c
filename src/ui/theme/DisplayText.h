// SPDX-License-Identifier: MIT
// The border between what the system calls take and what a person reads. Display text never goes back to the system.
#pragma once

#include <QLocale>
#include <QString>
#include <cstdint>
#include <string_view>

#include "state/UserLocale.h"

namespace zelk {

/// Names and paths for the screen: invalid UTF-8 is repaired with U+FFFD, and characters that would break a line, ring
/// a bell or turn the direction of what follows become visible marks, so that a name cannot pretend to be another.
QString displayText(std::string_view bytes);

/// The last component of a path, for the screen.
QString nameText(std::string_view path);

/// The path without its last component, for the screen: that of what lies at the top is "/".
QString folderText(std::string_view path);

/// The byte format with the decimal separator of `locale`; a count below 0 is 0.
QString byteFigure(std::int64_t bytes, const QLocale& locale = userLocale());

/// The count in the digit groups of `locale`.
QString groupedFigure(std::int64_t count, const QLocale& locale = userLocale());

/// A path for a single short line: fewer than 57 characters whole, a longer one as "…" and its last 55. A character is
/// what a reader takes for one, so no accent and no emoji is ever cut in two.
QString shortenedPath(const QString& path);

}  // namespace zelk
