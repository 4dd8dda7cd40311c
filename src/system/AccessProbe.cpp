// SPDX-License-Identifier: MIT
#include "system/AccessProbe.h"

#include <cerrno>
#include <optional>

#include "platform/FileManager.h"

namespace zelk {

namespace {

/// The system's database of granted permissions, for all users and for each user.
constexpr const char* databaseBelow = "/Library/Application Support/com.apple.TCC/TCC.db";
constexpr const char* mailBelow = "/Library/Mail";

/// Whether the database below `folder` can be opened; absent if it is missing or fails for another reason.
std::optional<bool> answerOfDatabase(FileManager& files, const std::string& folder) {
    const std::string database = folder + databaseBelow;
    if (!files.exists(database)) return std::nullopt;
    const int error = files.tryOpen(database);
    if (error == 0) return true;
    if (error == EACCES || error == EPERM) return false;
    return std::nullopt;
}

}  // namespace

bool hasFullDiskAccess(FileManager& files, const std::string& home) {
    const std::string above = home == "/" ? "" : home;
    if (const auto answer = answerOfDatabase(files, above)) return *answer;
    if (const auto answer = answerOfDatabase(files, "")) return *answer;
    return !files.exists(above + mailBelow) || files.list(above + mailBelow).has_value();
}

}  // namespace zelk
