// SPDX-License-Identifier: MIT
// JSON out of a measuring program, as text; the application itself reads and writes JSON through Qt.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace zelk::bench {

bool isUtf8(std::string_view bytes);

/// Bytes as a file name in a URL has them: all but unreserved characters and '/' as %XX.
std::string percentEscaped(std::string_view bytes);

/// Appends values one behind the other and puts the commas. Keys and values alternate in an object.
class JsonWriter {
public:
    JsonWriter& open(char bracket);  ///< '{' or '['
    JsonWriter& close(char bracket);
    JsonWriter& key(std::string_view name);
    JsonWriter& text(std::string_view utf8);
    JsonWriter& number(std::int64_t value);
    JsonWriter& number(double value);  ///< finite
    JsonWriter& boolean(bool value);
    /// The member "path": the text where the bytes are UTF-8, else percent-escaped with "pathEscaped":true behind it.
    JsonWriter& path(std::string_view bytes);

    const std::string& json() const { return json_; }

private:
    JsonWriter& raw(std::string_view value);

    std::string json_;
    bool comma_ = false;
};

}  // namespace zelk::bench
