// SPDX-License-Identifier: MIT
#include "cli/JsonWriter.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdio>

#include "platform/Text.h"
#include "platform/Utf8.h"

namespace zelk::cli {

void JsonWriter::separate() {
    if (comma_) output_.write(",");
    comma_ = true;
}

JsonWriter& JsonWriter::value(std::string_view spelled) {
    separate();
    output_.write(spelled);
    return *this;
}

JsonWriter& JsonWriter::open(char bracket) {
    value({&bracket, 1});
    comma_ = false;
    return *this;
}

JsonWriter& JsonWriter::close(char bracket) {
    output_.write({&bracket, 1});
    comma_ = true;
    return *this;
}

JsonWriter& JsonWriter::key(std::string_view name) {
    text(name);
    output_.write(":");
    comma_ = false;
    return *this;
}

JsonWriter& JsonWriter::text(std::string_view bytes) {
    const auto isSpecial = [](char c) {
        const auto byte = static_cast<unsigned char>(c);
        return byte < 0x20 || byte == 0x7F || c == '"' || c == '\\';
    };
    separate();
    output_.write("\"");
    while (true) {
        const auto special = std::find_if(bytes.begin(), bytes.end(), isSpecial);
        const auto plain = static_cast<std::size_t>(special - bytes.begin());
        output_.write(bytes.substr(0, plain));
        if (special == bytes.end()) break;
        std::array<char, 8> escape{'\\', *special, 0};
        if (*special != '"' && *special != '\\')
            std::snprintf(escape.data(), escape.size(), "\\u%04x", static_cast<unsigned>(*special));
        output_.write(escape.data());
        bytes.remove_prefix(plain + 1);
    }
    output_.write("\"");
    return *this;
}

JsonWriter& JsonWriter::number(std::int64_t value) {
    return this->value(std::to_string(value));
}

JsonWriter& JsonWriter::number(double value) {
    std::array<char, 64> text;
    std::snprintf(text.data(), text.size(), "%.17g", value);
    return this->value(text.data());
}

JsonWriter& JsonWriter::boolean(bool value) {
    return this->value(value ? "true" : "false");
}

JsonWriter& JsonWriter::path(std::string_view bytes) {
    key("path");
    if (isUtf8(bytes)) return text(bytes);
    return text(percentEncoded(bytes)).key("pathEscaped").boolean(true);
}

}  // namespace zelk::cli
