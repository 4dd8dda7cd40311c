// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/Platform.h"
#include "reclaim/AppEntry.h"

namespace zelk {

/// What became of an application that was to be removed.
struct AppRemoval {
    enum class Outcome {
        gone,
        notAllowed,  ///< nobody agreed, or nobody could be asked
        notStarted,  ///< its tool could not be started
        failed,      ///< its tool or the Trash said no
        stillThere   ///< its tool is done, and it is there
    };

    Outcome outcome = Outcome::gone;
    std::string words = {};                             ///< the reason as it was told; may be empty
    std::optional<TrashedItem> trashed = std::nullopt;  ///< where it went, if that was the Trash and is known
};

/// Removes an application by what its kind asks for: its own tool, an administrator, or the Trash. Never its leftovers,
/// and nothing but it: what the tool would take along makes it fail. On Linux it is gone only if it is no longer where
/// it was, in whatever revision; macOS is believed. What is the user's own is looked for again first. Blocking, for as
/// long as a question for an administrator stays open.
AppRemoval removeApplication(const Platform& platform, const AppEntry& app);

/// Whether an application of Linux is there, be it in another revision. Blocking.
bool isInstalled(const Platform& platform, const AppEntry& app);

/// Moves a leftover to the Trash, if it is still one that may go. Blocking.
TrashResult trashLeftover(const Platform& platform, const std::string& path);

/// What stands against removing it now. For a package this asks what would go with it, what is the user's own is looked
/// for again; the others have the obstacle that they were listed with. Blocking.
AppObstacle obstacleNow(const Platform& platform, const AppEntry& app);

/// What removing it frees now, in bytes. Measures again what is the user's own. Blocking.
std::uint64_t sizeNow(const Platform& platform, const AppEntry& app);

}  // namespace zelk
