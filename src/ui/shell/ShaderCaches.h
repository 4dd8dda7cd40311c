// SPDX-License-Identifier: MIT
// Graphics drivers and Qt keep compiled shaders in files of the user's cache folder, which drivers map into memory. On
// a full volume a page of such a file cannot be written, and the process dies of it with SIGBUS, which no code here can
// catch. So where room is short they are told to keep none: the first frame takes a little longer, and that is all.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace zelk {

/// Bytes. A driver's index is below 2 MB; the rest is for what others write meanwhile.
inline constexpr std::int64_t leastRoomForShaderCaches = 64'000'000;

/// The folders that shader caches are kept in or below, by the environment as it is: the home folder first, which is
/// not made if it does not exist. Before any other thread, since it asks the user database.
std::vector<std::string> shaderCacheFolders();

/// Whether every folder has that much room by `freeBytes`. What cannot be told counts as none.
bool shaderCachesHaveRoom(const std::vector<std::string>& folders,
                          const std::function<std::optional<std::int64_t>(const std::string&)>& freeBytes);

/// Bytes that this user may still write on the volume of `folder`, or of the nearest folder above it that is there. Of
/// a home folder that does not exist none.
std::optional<std::int64_t> roomForCacheIn(const std::string& folder);

/// Tells the drivers and Qt to keep no shaders if room is short. Before the application object, which may load a
/// driver, and before any other thread, since it writes the environment. True if it did so.
bool switchOffShaderCachesWhereRoomIsShort();

}  // namespace zelk
