// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Time.h"

namespace zelk {

/// A snapshot that the system keeps of a volume. None has a size: the tools do not report one.
struct LocalSnapshot {
    std::string name;               ///< as the system's tool prints it; identifies the snapshot for a person
    std::optional<TimePoint> date;  ///< when it was made; absent if unknown
    bool isOSUpdate = false;        ///< made for an update of the operating system
    bool purgeable = false;         ///< the system may free it; only then deleting is offered
    std::string uuid;               ///< as the tool prints it; "CONFIG/NUMBER" for snapper

    bool operator==(const LocalSnapshot&) const = default;
};

/// Reads what `diskutil apfs listSnapshots` prints, in its order. An entry without a name is skipped.
std::vector<LocalSnapshot> parseSnapshotListing(std::string_view text);

/// The first date stamp "2024-03-07-101502" in the name of a snapshot, or all of the name if it has none.
std::string_view dateStamp(std::string_view name);

/// The point in time of the first date stamp in the name, in the current time zone. Absent without a stamp and for an
/// impossible date. Of a time that a change of the clocks repeats it is the first; one that a change skips is moved on
/// by what was skipped.
std::optional<TimePoint> dateOfName(std::string_view name);

}  // namespace zelk

template <>
struct std::hash<zelk::LocalSnapshot> {
    std::size_t operator()(const zelk::LocalSnapshot& snapshot) const noexcept;
};
