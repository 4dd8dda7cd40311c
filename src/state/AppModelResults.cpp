// SPDX-License-Identifier: MIT
// What the last survey found: the figures that screens ask for, and the one way in which it changes afterwards.
#include <algorithm>
#include <iterator>

#include "platform/ByteFormat.h"
#include "state/AppModel.h"
#include "state/ScanTask.h"
#include "state/UserLocale.h"

namespace zelk {

namespace {

/// Items are equal by their path alone, which does not tell whether anything changed.
bool sameInAll(const Reclaimable& a, const Reclaimable& b) {
    return a.id == b.id && a.path == b.path && a.size == b.size && a.categoryID == b.categoryID &&
           a.safety == b.safety && a.method == b.method && a.lastModified == b.lastModified;
}

/// The top of the tree that `node` hangs in. A folder that was removed goes on to name its parent but is no child of
/// it: it is a top of its own.
const FSNode& topOf(const FSNode& node) {
    const FSNode* top = &node;
    while (const FSNode* parent = top->parent()) {
        const auto isTop = [top](const NodeRef& child) { return child == top; };
        if (std::none_of(parent->children.begin(), parent->children.end(), isTop)) break;
        top = parent;
    }
    return *top;
}

/// True if something was removed.
template <class Item>
bool removeAtAndBelow(std::vector<Item>& items, const std::string& path) {
    const std::string below = path + "/";
    return std::erase_if(items, [&](const Item& item) { return item.path == path || item.path.starts_with(below); }) !=
           0;
}

}  // namespace

void AppModel::setReclaimables(std::vector<Reclaimable> items) {
    if (std::equal(items.begin(), items.end(), reclaimables_.begin(), reclaimables_.end(), sameInAll)) return;
    releaseElsewhere(std::exchange(reclaimables_, std::move(items)));
    emit reclaimablesChanged();
}

std::int64_t AppModel::reclaimableBytes() const {
    return totalSize(reclaimables_);
}

std::vector<Reclaimable> AppModel::safeItems() const {
    std::vector<Reclaimable> items;
    std::copy_if(reclaimables_.begin(), reclaimables_.end(), std::back_inserter(items),
                 [](const Reclaimable& item) { return item.safety == ReclaimSafety::safe; });
    return items;
}

std::int64_t AppModel::safeBytes() const {
    std::int64_t bytes = 0;
    for (const Reclaimable& item : reclaimables_)
        if (item.safety == ReclaimSafety::safe) bytes += static_cast<std::int64_t>(item.size);
    return bytes;
}

std::int64_t AppModel::freeBytes() const {
    if (volume_) return volume_->available;
    const std::optional<VolumeInfo> read = platform_.vitals.volume(firstPlace());
    return read ? read->available : 0;
}

std::string AppModel::progressLine() const {
    const QLocale locale = userLocale();
    const std::string items = locale.toString(static_cast<qlonglong>(itemsScanned_)).toStdString();
    return items + " items · " + byteText(bytesScanned_, locale.decimalPoint().toStdString());
}

ReclaimTotals AppModel::reclaimTotals() const {
    return totalsByCategory(reclaimables_);
}

std::vector<std::pair<FileType, TypeTally>> AppModel::sortedTypeTotals() const {
    std::vector<std::pair<FileType, TypeTally>> totals;
    for (const FileType type : allFileTypes)
        if (insights_.typeTotals.contains(type)) totals.emplace_back(type, insights_.typeTotals[type]);
    std::stable_sort(totals.begin(), totals.end(),
                     [](const auto& a, const auto& b) { return a.second.bytes > b.second.bytes; });
    return totals;
}

std::vector<NodeRef> AppModel::topFolders() const {
    if (!root_) return {};
    const FSNode& level = root_->children.size() == 1 ? *root_->children.front() : *root_;
    std::vector<NodeRef> folders = level.children;
    std::stable_sort(folders.begin(), folders.end(),
                     [](const NodeRef& a, const NodeRef& b) { return a->size > b->size; });
    return folders;
}

std::optional<std::int64_t> AppModel::daysUntilFull() const {
    return zelk::daysUntilFull(history_);
}

std::optional<FolderChanges> AppModel::folderChanges() const {
    return zelk::folderChanges(history_);
}

void AppModel::removeFromTree(FSNode& node) {
    FSNode* parent = node.parent();
    if (parent == nullptr) return;
    const FSNode& top = topOf(node);
    if (scanTask_ != nullptr && scanTask_->treeIsRead && root_ == &top) {
        scanTask_->removals.emplace_back(&node);
        return;
    }
    const std::string path = node.fullPath();
    // A screen may still hold a node of a tree that has been replaced, and go on to show that tree. Only one that a
    // cancel withdrew is shown nowhere, and the classifier may be reading it.
    if (&top != &node && !withdrawn_.contains(&top)) {
        NodeRef removed(&node);
        for (FSNode* above = parent;; above = above->parent()) {
            above->size -= node.size;
            if (above == &top) break;
        }
        parent->remove(node);
        releaseElsewhere(std::move(removed));
        if (root_ == &top || (scanTask_ != nullptr && scanTask_->before && scanTask_->before->root == &top))
            emit rootChanged();
    }
    if (removeAtAndBelow(reclaimables_, path)) emit reclaimablesChanged();
    if (removeAtAndBelow(insights_.topFiles, path)) emit insightsChanged();
}

}  // namespace zelk
