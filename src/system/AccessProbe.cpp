// SPDX-License-Identifier: MIT
#include "system/AccessProbe.h"

#include <cerrno>
#include <optional>

#include "platform/FileManager.h"

namespace zelk {

namespace {

/// The system's own record of who may what.
constexpr const char* recordBelow = "/Library/Application Support/com.apple.TCC/TCC.db";
constexpr const char* mailBelow = "/Library/Mail";

/// What trying to open the record below `folder` says; absent if it says nothing.
std::optional<bool> answerOfRecord(FileManager& files, const std::string& folder) {
    const std::string record = folder + recordBelow;
    if (!files.exists(record)) return std::nullopt;
    const int error = files.tryOpen(record);
    if (error == 0) return true;
    if (error == EACCES || error == EPERM) return false;
    return std::nullopt;
}

}  // namespace

bool hasFullDiskAccess(FileManager& files, const std::string& home) {
    const std::string above = home == "/" ? "" : home;
    if (const auto answer = answerOfRecord(files, above)) return *answer;
    if (const auto answer = answerOfRecord(files, "")) return *answer;
    return !files.exists(above + mailBelow) || files.list(above + mailBelow).has_value();
}

}  // namespace zelk
