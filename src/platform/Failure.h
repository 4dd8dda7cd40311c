// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

namespace zelk {

/// The result of an operation that may fail: absent on success, otherwise the reason in the system's words, as UTF-8
/// for display.
using Failure = std::optional<std::string>;

}  // namespace zelk
