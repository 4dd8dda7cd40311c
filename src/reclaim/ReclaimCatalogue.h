// SPDX-License-Identifier: MIT
// The closed table of everything that Zelk calls reclaimable, and the values that go with it.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/Time.h"

namespace zelk {

/// In order of severity.
enum class ReclaimSafety : std::uint8_t {
    safe,         ///< pure cache: the owning tool repopulates it with no loss
    regenerates,  ///< build output: rebuilt at a cost in time
    review,       ///< may hold something the user chose to keep; never selected by default
};

inline constexpr std::array allReclaimSafeties{ReclaimSafety::safe, ReclaimSafety::regenerates, ReclaimSafety::review};

std::string_view rawValue(ReclaimSafety safety);

/// How an item is removed: by its owning tool, or to the Trash.
struct ReclaimMethod {
    enum class Kind : std::uint8_t { command, trash };

    Kind kind = Kind::trash;
    std::string tool;               ///< absolute path; empty for trash
    std::vector<std::string> args;  ///< the item's path is not among them: the tool finds its own data

    static ReclaimMethod trash() { return {}; }
    static ReclaimMethod command(std::string tool, std::vector<std::string> args);

    bool operator==(const ReclaimMethod&) const = default;
};

/// "Trash", or the tool and its arguments joined by blanks.
std::string methodSummary(const ReclaimMethod& method);

/// What a person calls the tool of a command: its name, or of "/usr/bin/env" the first argument. Empty for trash.
std::string toolOf(const ReclaimMethod& method);

/// A row of the catalogue. Equal and hashed by `id` alone.
struct ReclaimCategory {
    std::string_view id;
    std::string_view displayName;
    ReclaimSafety safety;
    std::string_view note;
    bool stopRecursion;  ///< the descendants of a match are not classified
    bool appScoped;      ///< belongs to an application that may be running

    bool operator==(const ReclaimCategory& other) const { return id == other.id; }
};

/// One matched folder or file on disk. Equal and hashed by `id` alone.
struct Reclaimable {
    std::string id;    ///< the path: one path is one item
    std::string path;  ///< bytes
    std::uint64_t size = 0;
    std::string categoryID;
    ReclaimSafety safety = ReclaimSafety::review;
    ReclaimMethod method;
    TimePoint lastModified = 0;  ///< the date from which its age counts, which may be that of its parent
    std::size_t rootLength = 0;  ///< length of the scan root at the front of `path`; 0 if unknown

    bool operator==(const Reclaimable& other) const { return id == other.id; }
};

/// The twenty-two rows.
std::span<const ReclaimCategory> reclaimCatalogue();

using CategoryIndex = std::unordered_map<std::string_view, const ReclaimCategory*>;

/// Aborts on a duplicate id: a contradictory table must never decide what is removed.
CategoryIndex indexByID(std::span<const ReclaimCategory> rows);

/// The catalogue by id; built on first use.
const CategoryIndex& reclaimCategoryByID();

}  // namespace zelk

template <>
struct std::hash<zelk::ReclaimCategory> {
    std::size_t operator()(const zelk::ReclaimCategory& row) const { return std::hash<std::string_view>{}(row.id); }
};

template <>
struct std::hash<zelk::Reclaimable> {
    std::size_t operator()(const zelk::Reclaimable& item) const { return std::hash<std::string>{}(item.id); }
};
