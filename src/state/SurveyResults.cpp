// SPDX-License-Identifier: MIT
#include "state/SurveyResults.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "platform/FolderPath.h"
#include "scan/FoldersAt.h"
#include "state/ReleaseElsewhere.h"

namespace zelk {

namespace {

/// Reclaimables compare equal by their path alone; this compares every field.
bool sameInEveryField(const Reclaimable& a, const Reclaimable& b) {
    return a.id == b.id && a.path == b.path && a.size == b.size && a.categoryID == b.categoryID &&
           a.safety == b.safety && a.method == b.method && a.lastModified == b.lastModified;
}

/// True if one of `folders` contains `path`, at any depth.
bool isBelowAny(const std::set<std::string>& folders, const std::string& path) {
    if (folders.empty()) return false;
    for (std::size_t slash = path.rfind('/'); slash != 0 && slash != std::string::npos;
         slash = path.rfind('/', slash - 1))
        if (folders.contains(path.substr(0, slash))) return true;
    return false;
}

/// The top of the tree that contains `node`. A removed folder keeps its parent pointer but is no longer a child: it is
/// the top of its own tree.
const FSNode& topOf(const FSNode& node) {
    const FSNode* top = &node;
    while (top->parent() != nullptr && !top->isRemoved()) top = top->parent();
    return *top;
}

/// True if something was removed.
template <class Item>
bool eraseAtAndBelow(std::vector<Item>& items, const std::string& path) {
    return std::erase_if(items, [&](const Item& item) { return isInFolder(item.path, path); }) != 0;
}

/// True if the value changed.
template <class T>
bool replace(T& field, T value) {
    if (field == value) return false;
    field = std::move(value);
    return true;
}

}  // namespace

SurveyResults::SurveyResults(BackgroundTasks& tasks, std::function<void(Field)> changed)
    : tasks_(tasks), changed_(std::move(changed)) {}

SurveyResults::~SurveyResults() {
    if (before_ && before_->root) releaseElsewhere(tasks_, std::move(before_->root));
    if (root_) releaseElsewhere(tasks_, std::move(root_));
}

std::vector<NodeRef> SurveyResults::trees() const {
    std::vector<NodeRef> trees;
    if (root_) trees.push_back(root_);
    if (before_ && before_->root) trees.push_back(before_->root);
    return trees;
}

void SurveyResults::begin(const std::string& place) {
    surveying_ = true;
    trashedFiles_.clear();
    trashedFolders_.clear();
    Changes changes;
    changes.progress = replace(progress_, Progress{0, 0, place, 0});
    changes.reclaimables = replaceReclaimables({});
    changes.insights = replace(insights_, ScanInsights());
    tell(changes);
}

void SurveyResults::setProgress(Progress progress) {
    Changes changes;
    changes.progress = replace(progress_, std::move(progress));
    tell(changes);
}

void SurveyResults::setInsights(ScanInsights insights) {
    std::erase_if(insights.topFiles, [&](const LargeFile& file) {
        return trashedFiles_.contains(file.path) || isBelowAny(trashedFolders_, file.path);
    });
    Changes changes;
    changes.insights = replace(insights_, std::move(insights));
    tell(changes);
}

void SurveyResults::setTree(NodeRef root, const ScanStats& stats) {
    before_ = {std::exchange(root_, std::move(root)), std::exchange(stats_, stats)};
    withdrawn_.erase(root_.get());
    Changes changes;
    changes.tree = true;
    tell(changes);
}

void SurveyResults::setReclaimables(std::vector<Reclaimable> items) {
    Changes changes;
    changes.reclaimables = replaceReclaimables(std::move(items));
    tell(changes);
}

void SurveyResults::endReading() {
    reading_ = false;
    std::vector<NodeRef> removals = foldersAt(*root_, std::exchange(trashedFolders_, {}));
    std::move(deferred_.begin(), deferred_.end(), std::back_inserter(removals));
    deferred_.clear();
    Changes changes;
    for (const NodeRef& node : removals) takeOut(*node, topOf(*node), changes);
    tell(changes);
}

void SurveyResults::keep() {
    surveying_ = false;
    if (before_ && before_->root) releaseElsewhere(tasks_, std::move(before_->root));
    before_.reset();
    endReading();
}

void SurveyResults::withdraw() {
    surveying_ = false;
    reading_ = false;
    if (!deferred_.empty()) releaseElsewhere(tasks_, std::exchange(deferred_, {}));
    Changes changes;
    if (before_) {
        withdrawn_.insert(root_.get());
        releaseElsewhere(tasks_, std::exchange(root_, std::move(before_->root)));
        stats_ = std::move(before_->stats);
        before_.reset();
        changes.tree = true;
    }
    changes.reclaimables = replaceReclaimables({});
    changes.insights = replace(insights_, ScanInsights());
    tell(changes);
}

void SurveyResults::remove(FSNode& node) {
    if (node.parent() == nullptr) return;
    const FSNode& top = topOf(node);
    if (reading_ && root_ == &top) {
        deferred_.emplace_back(&node);
        return;
    }
    Changes changes;
    takeOut(node, top, changes);
    tell(changes);
}

void SurveyResults::noteTrashedFolder(const std::string& path) {
    if (surveying_) trashedFolders_.insert(path);
}

void SurveyResults::dropLargeFile(const std::string& path) {
    if (surveying_) trashedFiles_.insert(path);
    const auto isIt = [&](const LargeFile& file) { return file.path == path; };
    Changes changes;
    changes.insights = std::erase_if(insights_.topFiles, isIt) != 0;
    tell(changes);
}

bool SurveyResults::replaceReclaimables(std::vector<Reclaimable> items) {
    if (std::equal(items.begin(), items.end(), reclaimables_.begin(), reclaimables_.end(), sameInEveryField))
        return false;
    std::swap(reclaimables_, items);
    if (!items.empty()) releaseElsewhere(tasks_, std::move(items));
    return true;
}

/// `top` is the top of the tree that contains `node`.
void SurveyResults::takeOut(FSNode& node, const FSNode& top, Changes& changes) {
    FSNode* parent = node.parent();
    if (parent == nullptr) return;
    const std::string path = node.fullPath();
    // A screen may hold a node of a tree that has been replaced, and goes on to show that tree, so the node leaves it.
    // A withdrawn tree is shown nowhere, and the classifier may be reading it.
    if (&top != &node && !withdrawn_.contains(&top)) {
        for (FSNode* above = parent;; above = above->parent()) {
            above->size -= node.size;
            if (above == &top) break;
        }
        parent->remove(node);
        if (root_ == &top || (before_ && before_->root == &top)) changes.tree = true;
    }
    changes.reclaimables |= eraseAtAndBelow(reclaimables_, path);
    changes.insights |= eraseAtAndBelow(insights_.topFiles, path);
}

void SurveyResults::tell(const Changes& changes) const {
    if (changes.progress) changed_(Field::progress);
    if (changes.tree) changed_(Field::tree);
    if (changes.reclaimables) changed_(Field::reclaimables);
    if (changes.insights) changed_(Field::insights);
}

}  // namespace zelk
