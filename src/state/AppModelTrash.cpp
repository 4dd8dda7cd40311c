// SPDX-License-Identifier: MIT
// The model's picture of the Trash: read out of the tree where a survey went through it, measured where not.
#include "reclaim/Cleaner.h"
#include "state/AppModel.h"

namespace zelk {

namespace {

/// Only the scan roots and what stands directly in them are looked at: the deeper level first.
const FSNode* findOnTopLevels(const FSNode& top, const std::string& wanted) {
    std::string path;
    const auto isWanted = [&](const NodeRef& node) {
        node->fullPath(path);
        return path == wanted;
    };
    for (const NodeRef& root : top.children)
        for (const NodeRef& folder : root->children)
            if (isWanted(folder)) return folder.get();
    for (const NodeRef& root : top.children)
        if (isWanted(root)) return root.get();
    return nullptr;
}

}  // namespace

void AppModel::settleTrash() {
    const FSNode* trash = findOnTopLevels(*root_, platform_.trash.location());
    if (trash == nullptr) {
        refreshTrash();
        return;
    }
    takeTrashMeasure(static_cast<std::uint64_t>(trash->size));
}

void AppModel::refreshTrash() {
    // With a known figure on screen there is no spinner; it is replaced in silence.
    if (trashBytes_ == 0) assign(trashLoading_, true, &AppModel::trashLoadingChanged);
    auto work = [this, sender = calls_.sender(), &files = platform_.files, &trash = platform_.trash] {
        sender.post([this, bytes = Cleaner::measureTrash(files, trash)] { takeTrashMeasure(bytes); });
    };
    platform_.tasks.run(TaskPriority::utility, std::move(work));
}

void AppModel::emptyTrash() {
    if (emptyingTrash_) return;
    assign(emptyingTrash_, true, &AppModel::emptyingTrashChanged);
    auto told = [this, sender = calls_.sender(), &files = platform_.files, &trash = platform_.trash] {
        sender.post([this, bytes = Cleaner::measureTrash(files, trash)] {
            takeTrashMeasure(bytes);
            assign(emptyingTrash_, false, &AppModel::emptyingTrashChanged);
            if (const auto volume = platform_.vitals.volume(firstPlace())) setVolume(volume);
        });
    };
    Cleaner::emptyTrash(platform_, std::move(told), removals_.begin(1));
}

/// Measures and emptyings run side by side, and the last to end is what is shown.
void AppModel::takeTrashMeasure(std::optional<std::uint64_t> bytes) {
    if (bytes) assign(trashBytes_, static_cast<std::int64_t>(*bytes), &AppModel::trashBytesChanged);
    assign(trashAccessible_, bytes.has_value(), &AppModel::trashAccessibleChanged);
    assign(trashLoading_, false, &AppModel::trashLoadingChanged);
}

}  // namespace zelk
