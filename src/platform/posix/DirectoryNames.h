// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/posix/Descriptor.h"

namespace zelk {

/// The names in `directory`, without "." and "..", unsorted, hidden ones too. Absent, with errno set, if they cannot be
/// read to the end or `directory` is none. Takes the descriptor over and reads from where it stands.
std::optional<std::vector<std::string>> directoryNames(Descriptor directory);

}  // namespace zelk
