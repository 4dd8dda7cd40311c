// SPDX-License-Identifier: MIT
#include "state/TrashMirror.h"

#include <string>
#include <utility>

#include "reclaim/Cleaner.h"

namespace zelk {

namespace {

/// Looks at the scan roots and the folders directly in them only, at the latter first.
const FSNode* findOnTopLevels(const FSNode& top, const std::string& wanted) {
    std::string path;
    const auto isWanted = [&](const FSNode& node) {
        node.fullPath(path);
        return path == wanted;
    };
    for (const FSNode& root : top.children())
        for (const FSNode& folder : root.children())
            if (isWanted(folder)) return &folder;
    for (const FSNode& root : top.children())
        if (isWanted(root)) return &root;
    return nullptr;
}

}  // namespace

TrashMirror::TrashMirror(const Platform& platform, RemovalsModel& removals, MainThreadQueue::Sender mainThread,
                         std::function<void()> changed)
    : platform_(platform), removals_(removals), mainThread_(std::move(mainThread)), changed_(std::move(changed)) {}

void TrashMirror::settle(const FSNode& top) {
    if (const FSNode* trash = findOnTopLevels(top, platform_.trash.location()))
        write(measured(static_cast<std::uint64_t>(trash->size)));
    else
        refresh();
}

void TrashMirror::refresh() {
    // A figure that is on screen is replaced without a spinner.
    if (state_.bytes == 0) {
        State loading = state_;
        loading.loading = true;
        write(loading);
    }
    auto work = [this, mainThread = mainThread_, &files = platform_.files, &trash = platform_.trash] {
        mainThread.post([this, bytes = Cleaner::measureTrash(files, trash)] { write(measured(bytes)); });
    };
    platform_.tasks.run(TaskPriority::utility, std::move(work));
}

void TrashMirror::empty(std::function<void()> emptied) {
    if (state_.emptying) return;
    State emptying = state_;
    emptying.emptying = true;
    write(emptying);
    auto measure = [this, mainThread = mainThread_, &files = platform_.files, &trash = platform_.trash,
                    emptied = std::move(emptied)] {
        mainThread.post([this, bytes = Cleaner::measureTrash(files, trash), emptied] {
            State done = measured(bytes);
            done.emptying = false;
            write(done);
            emptied();
        });
    };
    Cleaner::emptyTrash(platform_, std::move(measure), removals_.begin(1));
}

/// The state with what was measured; absent if the Trash could not be read.
TrashMirror::State TrashMirror::measured(std::optional<std::uint64_t> bytes) const {
    State state = state_;
    if (bytes) state.bytes = static_cast<std::int64_t>(*bytes);
    state.accessible = bytes.has_value();
    state.loading = false;
    return state;
}

void TrashMirror::write(const State& state) {
    if (state == state_) return;
    state_ = state;
    changed_();
}

}  // namespace zelk
