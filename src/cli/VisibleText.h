// SPDX-License-Identifier: MIT
// Names, which are bytes, on a terminal or in a text. What is shown never goes back to the system.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zelk::cli {

/// The bytes with everything spelled out that is no valid UTF-8, or would move the cursor, break the line or turn the
/// direction of writing: "\n", "\t", "\x1B" and "\u202E". A name can then neither command a terminal nor pretend to be
/// another. A backslash stays what it is.
std::string visibleText(std::string_view bytes);

/// How many columns visible text takes on a terminal. A character that the locale does not know counts as one.
std::size_t columnsOf(std::string_view visible);

/// The end of visible text that fits into so many columns, with "..." in front if something is missing. Cuts between
/// characters, and never before one that is drawn over the one before it.
std::string endWithin(std::string_view visible, std::size_t columns);

}  // namespace zelk::cli
