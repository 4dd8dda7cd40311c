// SPDX-License-Identifier: MIT
#include "platform/Text.h"

namespace zelk {

namespace {

/// The number that the escape at the start of `text` encodes; absent if there is none.
std::optional<std::size_t> escapedNumber(std::string_view text, const EscapeForm& form) {
    if (!text.starts_with(form.start) || text.size() < form.start.size() + form.count) return std::nullopt;
    std::size_t number = 0;
    for (const char c : text.substr(form.start.size(), form.count)) {
        const std::size_t digit = form.digits.find(c);
        if (digit == std::string_view::npos) return std::nullopt;
        number = number * form.digits.size() + digit;
    }
    return number;
}

bool isUnreserved(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
           std::string_view("-_.~/").find(c) != std::string_view::npos;
}

}  // namespace

std::string unescaped(std::string_view text, const EscapeForm& form) {
    std::string plain;
    while (!text.empty()) {
        const std::optional<std::size_t> number = escapedNumber(text, form);
        const bool isEscape = number && *number <= 0xFF;
        plain += isEscape ? static_cast<char>(*number) : text.front();
        text.remove_prefix(isEscape ? form.start.size() + form.count : 1);
    }
    return plain;
}

std::string percentEncoded(std::string_view path) {
    constexpr std::string_view hex = "0123456789ABCDEF";
    std::string encoded;
    for (const char c : path) {
        if (isUnreserved(c)) {
            encoded += c;
        } else {
            const auto byte = static_cast<unsigned char>(c);
            encoded += {'%', hex[byte >> 4], hex[byte & 15]};
        }
    }
    return encoded;
}

}  // namespace zelk
