// SPDX-License-Identifier: MIT
#include "platform/Utf8.h"

#include <cstddef>
#include <cstdint>

namespace zelk {

namespace {

/// The length of the character that starts with `first`; 0 if none starts with it.
std::size_t lengthOf(std::uint8_t first) {
    if (first < 0x80) return 1;
    if (first < 0xC2) return 0;  // a continuation byte or an overlong form
    if (first < 0xE0) return 2;
    if (first < 0xF0) return 3;
    return first < 0xF5 ? 4 : 0;
}

/// Overlong forms, surrogates and values beyond U+10FFFF show in the second byte.
bool maySecondFollow(std::uint8_t first, std::uint8_t second) {
    if (first == 0xE0) return second >= 0xA0;
    if (first == 0xED) return second < 0xA0;
    if (first == 0xF0) return second >= 0x90;
    if (first == 0xF4) return second < 0x90;
    return true;
}

}  // namespace

bool isUtf8(std::string_view bytes) {
    const auto byteAt = [&](std::size_t at) { return static_cast<std::uint8_t>(bytes[at]); };
    for (std::size_t at = 0; at < bytes.size();) {
        const std::uint8_t first = byteAt(at);
        const std::size_t length = lengthOf(first);
        if (length == 0 || bytes.size() - at < length) return false;
        for (std::size_t more = 1; more < length; ++more)
            if ((byteAt(at + more) & 0xC0) != 0x80) return false;
        if (length > 1 && !maySecondFollow(first, byteAt(at + 1))) return false;
        at += length;
    }
    return true;
}

}  // namespace zelk
