// SPDX-License-Identifier: MIT
// Graphics drivers and Qt cache compiled shaders in files of the user's cache folder, which drivers map into memory. If
// such a page cannot be written because the volume is full, the process dies of SIGBUS, which cannot be handled here.
// So the caches are disabled when space is low, which only slows down the first frame.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace zelk {

/// Bytes. A driver's index takes less than 2 MB; the rest is a margin for what others write meanwhile.
inline constexpr std::int64_t leastRoomForShaderCaches = 64'000'000;

/// The folders that contain shader caches according to the environment, the home folder first. It is not created if
/// missing. Call before other threads start, since it queries the user database.
std::vector<std::string> shaderCacheFolders();

/// Whether every folder has enough space according to `freeBytes`. An unknown size counts as none.
bool shaderCachesHaveRoom(const std::vector<std::string>& folders,
                          const std::function<std::optional<std::int64_t>(const std::string&)>& freeBytes);

/// The bytes that this user may still write on the volume of `folder` or its nearest existing parent. 0 for a home
/// folder that does not exist.
std::optional<std::int64_t> roomForCacheIn(const std::string& folder);

/// Tells the drivers and Qt not to cache shaders if space is low, and returns whether it did. Call before the
/// application object exists, which may load a driver, and before other threads start, since it changes the
/// environment.
bool switchOffShaderCachesWhereRoomIsShort();

}  // namespace zelk
