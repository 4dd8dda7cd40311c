// SPDX-License-Identifier: MIT
// What the model itself takes away, without the review that every other cleaning passes.
#include <algorithm>
#include <utility>

#include "reclaim/Cleaner.h"
#include "state/AppModel.h"

namespace zelk {

void AppModel::cleanSafeCaches() {
    std::vector<Reclaimable> items = safeItems();
    if (items.empty()) return;
    Cleaner::cleanAll(std::move(items), false, platform_,
                      [this, sender = calls_.sender()](const auto&) { sender.post([this] { startScan(); }); });
}

void AppModel::trashAndRemove(FSNode& node) {
    const std::optional<ItemPath> item = ItemPath::from(node.fullPath());
    if (!item) return;
    // The node's place is asked for again when it has gone, and by then another survey may have taken this tree's
    // place: its top is what keeps the way to it.
    FSNode* top = &node;
    while (FSNode* parent = top->parent()) top = parent;
    auto work = [this, sender = calls_.sender(), &trash = platform_.trash, item = *item, held = NodeRef(&node),
                 tree = NodeRef(top)]() mutable {
        if (trash.trash(item)) return;
        sender.post([this, held = std::move(held), tree = std::move(tree)]() mutable {
            removeFromTree(*held);
            releaseElsewhere(std::move(held));
            releaseElsewhere(std::move(tree));
        });
    };
    platform_.tasks.run(TaskPriority::userInitiated, std::move(work));
}

}  // namespace zelk
