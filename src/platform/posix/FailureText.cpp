// SPDX-License-Identifier: MIT
#include "platform/posix/FailureText.h"

#include <cstddef>
#include <system_error>

#include "platform/Translation.h"

namespace zelk {
namespace {

constexpr char32_t replacement = 0xFFFD;
constexpr char32_t controlPictures = 0x2400;  // U+2400 + n is the picture of the control character n
constexpr char32_t deletePicture = 0x2421;

unsigned byteAt(std::string_view text, std::size_t at) {
    return at < text.size() ? static_cast<unsigned char>(text[at]) : 0;
}

/// Removes and returns one character, or one byte of invalid UTF-8.
char32_t takeCharacter(std::string_view& text) {
    const unsigned first = byteAt(text, 0);
    const std::size_t length = first < 0x80 ? 1 : first < 0xC2 ? 0 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
    char32_t character = length < 2 ? first : first & (0x7FU >> length);
    bool valid = length > 0 && first < 0xF5;
    for (std::size_t i = 1; i < length; ++i) {
        const unsigned next = byteAt(text, i);
        valid = valid && (next & 0xC0U) == 0x80;
        character = character << 6 | (next & 0x3FU);
    }
    const bool overlong = (length == 3 && character < 0x800) || (length == 4 && character < 0x10000);
    const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
    valid = valid && !overlong && !surrogate && character <= 0x10FFFF;
    text.remove_prefix(valid ? length : 1);
    return valid ? character : replacement;
}

char32_t visible(char32_t character) {
    if (character < 0x20) return controlPictures + character;
    if (character == 0x7F) return deletePicture;
    const bool laterControl = character >= 0x80 && character <= 0x9F;
    const bool breaksLine = character == 0x2028 || character == 0x2029;
    const bool turns = character == 0x061C || character == 0x200E || character == 0x200F ||
                       (character >= 0x202A && character <= 0x202E) || (character >= 0x2066 && character <= 0x2069);
    return laterControl || breaksLine || turns ? replacement : character;
}

void append(std::string& text, char32_t character) {
    const auto tail = [&](int shift) { text += static_cast<char>(0x80 | (character >> shift & 0x3F)); };
    if (character < 0x80) {
        text += static_cast<char>(character);
    } else if (character < 0x800) {
        text += static_cast<char>(0xC0 | character >> 6);
        tail(0);
    } else if (character < 0x10000) {
        text += static_cast<char>(0xE0 | character >> 12);
        tail(6);
        tail(0);
    } else {
        text += static_cast<char>(0xF0 | character >> 18);
        tail(12);
        tail(6);
        tail(0);
    }
}

}  // namespace

std::string readableName(std::string_view bytes) {
    std::string text;
    while (!bytes.empty()) append(text, visible(takeCharacter(bytes)));
    return text;
}

std::string systemText(int error) {
    return std::generic_category().message(error);
}

std::string failureText(std::string_view sentence, std::string_view name, std::string_view reason) {
    return filled(translated("Failure", sentence), {readableName(name), reason});
}

}  // namespace zelk
