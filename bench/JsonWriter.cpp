// SPDX-License-Identifier: MIT
#include "JsonWriter.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdio>

namespace zelk::bench {

namespace {

/// The length of the valid UTF-8 sequence at the start of `bytes`; 0 if there is none.
std::size_t sequenceLength(std::string_view bytes) {
    const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(bytes[at]); };
    const unsigned lead = byte(0);
    if (lead < 0x80) return 1;
    const std::size_t length = lead >= 0xC2 && lead < 0xE0   ? 2
                               : lead >= 0xE0 && lead < 0xF0 ? 3
                               : lead >= 0xF0 && lead < 0xF5 ? 4
                                                             : 0;
    if (length == 0 || bytes.size() < length) return 0;
    for (std::size_t at = 1; at < length; ++at)
        if ((byte(at) & 0xC0) != 0x80) return 0;
    // Overlong forms, surrogates and values beyond U+10FFFF show in the second byte.
    if ((lead == 0xE0 && byte(1) < 0xA0) || (lead == 0xED && byte(1) >= 0xA0)) return 0;
    if ((lead == 0xF0 && byte(1) < 0x90) || (lead == 0xF4 && byte(1) >= 0x90)) return 0;
    return length;
}

}  // namespace

bool isUtf8(std::string_view bytes) {
    while (!bytes.empty()) {
        const std::size_t length = sequenceLength(bytes);
        if (length == 0) return false;
        bytes.remove_prefix(length);
    }
    return true;
}

std::string percentEscaped(std::string_view bytes) {
    constexpr std::string_view plain = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789-._~/";
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string escaped;
    for (const char byte : bytes) {
        if (plain.find(byte) != std::string_view::npos) {
            escaped += byte;
            continue;
        }
        const auto value = static_cast<unsigned char>(byte);
        escaped.append({'%', digits[value >> 4], digits[value & 15]});
    }
    return escaped;
}

JsonWriter& JsonWriter::raw(std::string_view value) {
    if (comma_) json_ += ',';
    json_ += value;
    comma_ = true;
    return *this;
}

JsonWriter& JsonWriter::open(char bracket) {
    raw({&bracket, 1});
    comma_ = false;
    return *this;
}

JsonWriter& JsonWriter::close(char bracket) {
    json_ += bracket;
    comma_ = true;
    return *this;
}

JsonWriter& JsonWriter::key(std::string_view name) {
    text(name);
    json_ += ':';
    comma_ = false;
    return *this;
}

JsonWriter& JsonWriter::text(std::string_view utf8) {
    raw("\"");
    const auto isSpecial = [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == '"' || c == '\\'; };
    while (true) {
        const auto special = std::find_if(utf8.begin(), utf8.end(), isSpecial);
        json_.append(utf8.begin(), special);
        if (special == utf8.end()) break;
        if (*special == '"' || *special == '\\') {
            json_.append({'\\', *special});
        } else {
            std::array<char, 8> escape;
            std::snprintf(escape.data(), escape.size(), "\\u%04x", static_cast<unsigned>(*special));
            json_ += escape.data();
        }
        utf8.remove_prefix(static_cast<std::size_t>(special - utf8.begin()) + 1);
    }
    json_ += '"';
    return *this;
}

JsonWriter& JsonWriter::number(std::int64_t value) {
    return raw(std::to_string(value));
}

JsonWriter& JsonWriter::number(double value) {
    std::array<char, 64> text;
    std::snprintf(text.data(), text.size(), "%.17g", value);
    return raw(text.data());
}

JsonWriter& JsonWriter::boolean(bool value) {
    return raw(value ? "true" : "false");
}

JsonWriter& JsonWriter::path(std::string_view bytes) {
    key("path");
    if (isUtf8(bytes)) return text(bytes);
    return text(percentEscaped(bytes)).key("pathEscaped").boolean(true);
}

}  // namespace zelk::bench
