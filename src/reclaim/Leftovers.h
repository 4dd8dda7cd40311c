// SPDX-License-Identifier: MIT
// What an application keeps outside of itself. Nothing is searched: only places whose name is exactly that of the
// application are ever offered.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/Platform.h"
#include "reclaim/AppEntry.h"

namespace zelk {

struct Leftover {
    std::string url;         ///< the path, in bytes
    std::uint64_t size = 0;  ///< allocated bytes, hidden entries included

    bool operator==(const Leftover&) const = default;
};

/// The places of a bundle below the user's Library, in order: by its identifier, if it has one, and by its name. One
/// that is no name of a single entry counts as absent.
std::vector<std::string> leftoverCandidates(const std::string& home, const std::optional<std::string>& bundleID,
                                            const std::string& name);

/// The places of an application of Linux, in order and each once: below the XDG homes by what its desktop entry and its
/// program are called; of a flatpak or a snap the one folder that its tool gives it. Leaves out a name that another
/// application has too, one of a folder that many share, and what is no single name of three bytes or more.
std::vector<std::string> leftoverCandidates(const std::string& home, const XdgHomes& xdg, const AppEntry& app);

/// The same on either system, of what is there. Blocking; safe from any thread.
class Leftovers {
public:
    /// The services must outlive it.
    explicit Leftovers(const Platform& platform);

    std::vector<std::string> candidates(const AppEntry& app) const;
    /// Whether something that may go is at this path: on Linux the user's own, no link and behind none.
    bool counts(const std::string& path) const;
    /// What goes with the application: on Linux first the user's desktop entries that start it.
    std::vector<Leftover> of(const AppEntry& app) const;
    /// The allocated bytes of all candidates, hidden entries left out.
    std::uint64_t dataSize(const AppEntry& app) const;
    /// Where a removal starts: below this folder no link is followed. Empty on macOS.
    std::string rootOf(const std::string& path) const;

private:
    FileManager& files_;
    std::string home_;
    std::optional<XdgHomes> xdg_;
};

}  // namespace zelk
