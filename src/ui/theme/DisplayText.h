// SPDX-License-Identifier: MIT
// Converts what system calls take into text for people. Display text never goes back to the system. All of it is
// isolated.
#pragma once

#include <QString>
#include <string_view>

#include "state/Figures.h"
#include "state/Isolation.h"

namespace zelk {

/// Converts a name or path for display: repairs invalid UTF-8 with U+FFFD, and replaces control characters, line breaks
/// and direction overrides by visible marks, so that a name cannot pretend to be another.
QString displayText(std::string_view bytes);

/// Display text of the last component of a path, or of the whole path if that is empty.
QString nameText(std::string_view path);

/// Display text of a path without its last component; "/" for an entry of the root directory.
QString folderText(std::string_view path);

/// What a tool printed: CR, LF or both are a line break, also at the end, a tab is a space, and the rest is display
/// text, each line of its own direction. What follows the first 20,000 bytes is left out, with "…" as the last line:
/// laying out more holds up the window.
QString printedText(std::string_view output);

/// Shortens a path for a single line: below 57 characters unchanged, else "…" and the last 55. Counts grapheme
/// clusters, so that no accent or emoji is cut in two.
QString shortenedPath(const QString& displayed);

}  // namespace zelk
