// SPDX-License-Identifier: MIT
// Helpers for parsing the system's text files and writing escaped names. Pure functions over bytes.
#pragma once

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace zelk {

/// The characters that separate words.
inline constexpr std::string_view blanks = " \t\r\n";

/// `text` without leading and trailing blanks.
inline std::string_view trimmed(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    text.remove_suffix(text.size() - (text.find_last_not_of(blanks) + 1));
    return text;
}

/// Removes everything up to the first `end` from `text` and returns it without the `end`; all of `text` if it has none.
inline std::string_view takeUntil(std::string_view& text, char end) {
    const std::size_t length = std::min(text.find(end), text.size());
    const std::string_view part = text.substr(0, length);
    text.remove_prefix(std::min(length + 1, text.size()));
    return part;
}

/// Removes the first line from `text` and returns it without its line feed.
inline std::string_view takeLine(std::string_view& text) {
    return takeUntil(text, '\n');
}

/// Removes the first word and the blanks before it from `text`; empty if there is no word left.
inline std::string_view takeWord(std::string_view& text) {
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    const std::string_view word = text.substr(0, std::min(text.find_first_of(blanks), text.size()));
    text.remove_prefix(word.size());
    return word;
}

/// The decimal number that `digits` consists of; absent if there is anything else in it or it does not fit.
template <class Number>
std::optional<Number> parseNumber(std::string_view digits) {
    Number value = 0;
    const char* const end = digits.data() + digits.size();
    const auto [stop, error] = std::from_chars(digits.data(), end, value);
    if (error != std::errc{} || stop != end) return std::nullopt;
    return value;
}

/// How a format writes one byte as an escape: `start`, then `count` of the digits `digits`, whose number is the base.
struct EscapeForm {
    std::string_view start;
    std::string_view digits;
    std::size_t count;
};

/// Replaces every escape of this form by its byte. Incomplete escapes, and those above 255, are left as they are.
std::string unescaped(std::string_view text, const EscapeForm& form);

/// Percent-encodes every byte of `path` except ASCII letters, digits and "-_.~/".
std::string percentEncoded(std::string_view path);

}  // namespace zelk
