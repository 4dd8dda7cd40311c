// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "cli/Output.h"

namespace zelk::cli {

/// Writes JSON value by value and holds nothing back, so that its size does not matter. Inserts commas; in an object
/// keys and values alternate.
class JsonWriter {
public:
    explicit JsonWriter(Output& output) : output_(output) {}

    JsonWriter& open(char bracket);  ///< '{' or '['
    JsonWriter& close(char bracket);
    JsonWriter& key(std::string_view name);
    /// Escapes '"', '\' and control characters. Other bytes pass as they are, so the text must be UTF-8 if the reader
    /// insists on that.
    JsonWriter& text(std::string_view bytes);
    JsonWriter& number(std::int64_t value);
    JsonWriter& number(double value);  ///< finite
    JsonWriter& boolean(bool value);
    /// Adds the member "path" as text if it is UTF-8, else percent-encoded, followed by "pathEscaped":true.
    JsonWriter& path(std::string_view bytes);

private:
    JsonWriter& value(std::string_view spelled);
    void separate();

    Output& output_;
    bool comma_ = false;  ///< a value stands before the next one
};

}  // namespace zelk::cli
