// SPDX-License-Identifier: MIT
// Writes the JSON output of the measuring programs; the application itself uses Qt for JSON.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace zelk::bench {

bool isUtf8(std::string_view bytes);

/// Percent-encodes all bytes except unreserved characters and '/'.
std::string percentEscaped(std::string_view bytes);

/// Appends values and inserts commas. In an object, keys and values alternate.
class JsonWriter {
public:
    JsonWriter& open(char bracket);  ///< '{' or '['
    JsonWriter& close(char bracket);
    JsonWriter& key(std::string_view name);
    JsonWriter& text(std::string_view utf8);
    JsonWriter& number(std::int64_t value);
    JsonWriter& number(double value);  ///< finite
    JsonWriter& boolean(bool value);
    /// Adds the member "path" as text if it is UTF-8, else percent-encoded, followed by "pathEscaped":true.
    JsonWriter& path(std::string_view bytes);

    const std::string& json() const { return json_; }

private:
    JsonWriter& raw(std::string_view value);

    std::string json_;
    bool comma_ = false;
};

}  // namespace zelk::bench
