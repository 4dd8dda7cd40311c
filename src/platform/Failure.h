// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

namespace zelk {

/// What came of something that may fail: absent if it went well, otherwise why it did not, in the system's own words,
/// for a person to read (UTF-8).
using Failure = std::optional<std::string>;

}  // namespace zelk
