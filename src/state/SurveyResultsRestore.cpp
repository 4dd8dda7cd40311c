// SPDX-License-Identifier: MIT
// Adding restored folders and files to the results again.
#include <algorithm>
#include <utility>

#include "platform/FolderPath.h"
#include "state/SurveyResults.h"

namespace zelk {

namespace {

/// Whether `node` is in the tree below `top`. A removed folder keeps its parent pointer but is no longer a child.
bool isInTree(const FSNode* node, const FSNode* top) {
    while (node != nullptr && node != top && !node->isRemoved()) node = node->parent();
    return node != nullptr && node == top;
}

/// Largest first, and after other files of the same size.
void insertBySize(std::vector<LargeFile>& files, const std::vector<LargeFile>& restored) {
    for (const LargeFile& file : restored) {
        const auto isLarger = [](const LargeFile& a, const LargeFile& b) { return a.size > b.size; };
        files.insert(std::upper_bound(files.begin(), files.end(), file, isLarger), file);
    }
}

struct PlacedReclaimable {
    std::size_t place;
    Reclaimable item;
};

}  // namespace

SurveyResults::Restorer SurveyResults::restorerOf(const NodeRef& node) {
    // A running survey reports the folder or not, depending on how far the walk has come.
    if (surveying_ || !isInTree(node.get(), root_.get())) return nullptr;
    const std::string path = node->fullPath();
    std::vector<LargeFile> files;
    for (const LargeFile& file : insights_.topFiles)
        if (isInFolder(file.path, path)) files.push_back(file);
    std::vector<PlacedReclaimable> items;
    for (std::size_t place = 0; place < reclaimables_.size(); ++place)
        if (isInFolder(reclaimables_[place].path, path)) items.push_back({place, reclaimables_[place]});

    return [this, node, files = std::move(files), items = std::move(items)] {
        // The folder above it may have been removed too, and not restored.
        FSNode* const parent = node->parent();
        if (!node->isRemoved() || !isInTree(parent, root_.get())) return false;
        parent->append(*node);
        for (FSNode* above = parent; above != nullptr; above = above->parent()) above->size += node->size;
        for (const PlacedReclaimable& one : items) {
            const auto place = static_cast<std::ptrdiff_t>(std::min(one.place, reclaimables_.size()));
            reclaimables_.insert(reclaimables_.begin() + place, one.item);
        }
        insertBySize(insights_.topFiles, files);
        Changes changes;
        changes.tree = true;
        changes.reclaimables = !items.empty();
        changes.insights = !files.empty();
        tell(changes);
        return true;
    };
}

SurveyResults::Restorer SurveyResults::restorerOfLargeFile(const std::string& path) {
    if (surveying_) return nullptr;
    std::vector<LargeFile> files;
    for (const LargeFile& file : insights_.topFiles)
        if (file.path == path) files.push_back(file);
    return [this, files = std::move(files)] {
        insertBySize(insights_.topFiles, files);
        Changes changes;
        changes.insights = !files.empty();
        tell(changes);
        return true;
    };
}

}  // namespace zelk
