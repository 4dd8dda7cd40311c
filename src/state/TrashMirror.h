// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "platform/Platform.h"
#include "scan/FSNode.h"
#include "state/MainThreadQueue.h"
#include "state/RemovalsModel.h"

namespace zelk {

/// What the user's Trash holds, as of the last look: taken from the tree of a survey that passed it, measured
/// otherwise. Measurements and emptyings may overlap; the last to end is what this shows.
///
/// Owned by AppModel and used on the main thread only; it measures and empties in background tasks. Errors: a Trash
/// that cannot be read makes accessible() false and keeps the last figure. `changed` is called after each write that
/// changed a value.
class TrashMirror {
public:
    /// The services must outlive this object and its tasks, `removals` this object.
    TrashMirror(const Platform& platform, RemovalsModel& removals, MainThreadQueue::Sender mainThread,
                std::function<void()> changed);

    std::int64_t bytes() const { return state_.bytes; }
    bool accessible() const { return state_.accessible; }
    /// A measurement is running, and there is no figure to show meanwhile.
    bool loading() const { return state_.loading; }
    bool emptying() const { return state_.emptying; }

    /// Takes the figure from the finished tree below `top` if the survey passed the Trash, and measures otherwise.
    void settle(const FSNode& top);
    void refresh();
    /// Removes for good what the Trash holds, then measures what is left and calls `emptied` on the main thread. Does
    /// nothing while an emptying is running.
    void empty(std::function<void()> emptied);

private:
    struct State {
        std::int64_t bytes = 0;
        bool accessible = true;
        bool loading = false;
        bool emptying = false;

        bool operator==(const State&) const = default;
    };

    State measured(std::optional<std::uint64_t> bytes) const;
    void write(const State& state);

    const Platform platform_;
    RemovalsModel& removals_;
    const MainThreadQueue::Sender mainThread_;
    const std::function<void()> changed_;
    State state_;
};

}  // namespace zelk
