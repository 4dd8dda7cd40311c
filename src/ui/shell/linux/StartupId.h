// SPDX-License-Identifier: MIT
// What X11 desktops and the programs that they start tell each other.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zelk {

/// When somebody asked for the start with this id, in milliseconds of the X server: what follows the last "_TIME".
/// Absent if there is no such time.
std::optional<std::uint32_t> timeOfStart(std::string_view startupId);

/// The message that the start with this id is over, in pieces of the size that an X event carries; the last one is
/// filled up with zeros, of which there is at least one.
std::vector<std::string> endOfStartup(std::string_view startupId);

}  // namespace zelk
