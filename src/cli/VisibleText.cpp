// SPDX-License-Identifier: MIT
#include "cli/VisibleText.h"

#include <wchar.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <optional>

#include "platform/Utf8.h"

namespace zelk::cli {

namespace {

constexpr std::string_view ellipsis = "...";

struct Character {
    std::string_view bytes;
    std::optional<char32_t> point;  ///< absent for a byte that is no part of a character
};

/// Removes the first character from `rest`, which is not empty.
Character takeCharacter(std::string_view& rest) {
    const auto first = static_cast<unsigned char>(rest.front());
    const std::size_t length = first < 0x80 ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
    Character character{rest.substr(0, length), std::nullopt};
    if (character.bytes.size() == length && isUtf8(character.bytes)) {
        char32_t point = length == 1 ? first : first & (0xFFU >> (length + 1));
        for (const char byte : character.bytes.substr(1))
            point = point << 6 | (static_cast<unsigned char>(byte) & 0x3F);
        character.point = point;
    } else {
        character.bytes = rest.substr(0, 1);
    }
    rest.remove_prefix(character.bytes.size());
    return character;
}

bool turnsDirection(char32_t point) {
    return point == 0x061C || point == 0x200E || point == 0x200F || (point >= 0x202A && point <= 0x202E) ||
           (point >= 0x2066 && point <= 0x2069);
}

bool mustBeSpelled(char32_t point) {
    return point < 0x20 || (point >= 0x7F && point < 0xA0) || point == 0x2028 || point == 0x2029 ||
           turnsDirection(point);
}

std::string spelled(const Character& character) {
    if (character.bytes == "\n") return "\\n";
    if (character.bytes == "\t") return "\\t";
    std::array<char, 16> text{};
    if (character.bytes.size() == 1)
        std::snprintf(text.data(), text.size(), "\\x%02X", static_cast<unsigned char>(character.bytes.front()));
    else
        std::snprintf(text.data(), text.size(), "\\u%04X", static_cast<unsigned>(*character.point));
    return text.data();
}

std::size_t columnsOf(const Character& character) {
    if (!character.point) return 1;
    const int columns = ::wcwidth(static_cast<wchar_t>(*character.point));
    return columns < 0 ? 1 : static_cast<std::size_t>(columns);
}

}  // namespace

std::string visibleText(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    while (!bytes.empty()) {
        const Character character = takeCharacter(bytes);
        if (character.point && !mustBeSpelled(*character.point))
            text += character.bytes;
        else
            text += spelled(character);
    }
    return text;
}

std::size_t columnsOf(std::string_view visible) {
    std::size_t columns = 0;
    while (!visible.empty()) columns += columnsOf(takeCharacter(visible));
    return columns;
}

std::string endWithin(std::string_view visible, std::size_t columns) {
    std::size_t left = columnsOf(visible);
    if (left <= columns) return std::string(visible);
    const std::string_view mark = ellipsis.substr(0, std::min(ellipsis.size(), columns));
    std::string_view end = visible;
    while (!end.empty()) {
        std::string_view behind = end;
        const std::size_t taken = columnsOf(takeCharacter(behind));
        if (left + mark.size() <= columns && taken > 0) break;
        left -= taken;
        end = behind;
    }
    return std::string(mark).append(end);
}

}  // namespace zelk::cli
