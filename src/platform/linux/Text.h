// SPDX-License-Identifier: MIT
// The small steps of reading the system's text files: lines and what stands on them.
#pragma once

#include <algorithm>
#include <string_view>

namespace zelk {

/// What parts words.
inline constexpr std::string_view blanks = " \t\r\n";

/// `text` without the blanks around it.
inline std::string_view trimmed(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    text.remove_suffix(text.size() - (text.find_last_not_of(blanks) + 1));
    return text;
}

/// Takes the first line, without its end, off `text`.
inline std::string_view takeLine(std::string_view& text) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return line;
}

}  // namespace zelk
