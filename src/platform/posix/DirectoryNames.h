// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/posix/Descriptor.h"

namespace zelk {

/// The names in `directory`, including hidden ones, without "." and "..", unsorted. Absent, with errno set, if they
/// cannot be read completely. Takes ownership of the descriptor and reads from its current position.
std::optional<std::vector<std::string>> directoryNames(Descriptor directory);

}  // namespace zelk
