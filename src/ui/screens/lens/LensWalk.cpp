// SPDX-License-Identifier: MIT
#include "ui/screens/lens/LensWalk.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <utility>

namespace zelk {

namespace {

const FSNode* topOf(const NodeRef& node) {
    const FSNode* top = node.get();
    while (top->parent() != nullptr) top = top->parent();
    return top;
}

}  // namespace

void LensWalk::setRoot(NodeRef root) {
    if (root == root_) return;
    if (root_) earlier_.push_back(std::move(root_));
    root_ = std::move(root);
}

NodeRef LensWalk::mapRoot() const {
    FSNode* const only = root_ ? root_->onlyChild() : nullptr;
    return only ? NodeRef(only) : root_;
}

NodeRef LensWalk::currentNode() const {
    return stack_.empty() ? mapRoot() : stack_.back();
}

std::vector<NodeRef> LensWalk::visibleChildren() const {
    const NodeRef current = currentNode();
    if (!current) return {};
    // Copies the sizes next to each other, so that sorting tens of thousands does not dereference a node per
    // comparison.
    std::vector<std::pair<std::int64_t, FSNode*>> sizes;
    sizes.reserve(current->children().size());
    for (FSNode& child : current->children())
        if (child.size > 0) sizes.emplace_back(child.size, &child);
    std::stable_sort(sizes.begin(), sizes.end(), [](const auto& a, const auto& b) { return a.first > b.first; });
    std::vector<NodeRef> children;
    children.reserve(sizes.size());
    for (const auto& [size, child] : sizes) children.emplace_back(child);
    return children;
}

void LensWalk::back() {
    if (!stack_.empty()) stack_.pop_back();
}

void LensWalk::leave(const std::string& path) {
    const auto first = std::find_if(stack_.begin(), stack_.end(), [below = path + '/'](const NodeRef& node) {
        return (node->fullPath() + '/').starts_with(below);
    });
    stack_.erase(first, stack_.end());
}

void LensWalk::startOver() {
    stack_.clear();
    selected_.clear();
}

void LensWalk::select(NodeRef node) {
    std::string path = node->fullPath();
    selected_.insert_or_assign(std::move(path), std::move(node));
}

void LensWalk::unselectAtAndBelow(const std::string& path) {
    selected_.erase(path);
    const std::string below = path + '/';
    auto end = selected_.lower_bound(below);
    while (end != selected_.end() && end->first.starts_with(below)) end = selected_.erase(end);
}

std::int64_t LensWalk::selectedBytes() const {
    std::int64_t bytes = 0;
    for (const auto& [path, node] : selected_) bytes += node->size;
    return bytes;
}

std::vector<NodeRef> LensWalk::takeLeftTrees() {
    if (earlier_.empty()) return {};
    std::set<const FSNode*> needed;
    for (const NodeRef& node : stack_) needed.insert(topOf(node));
    for (const auto& [path, node] : selected_) needed.insert(topOf(node));
    const auto left = std::stable_partition(earlier_.begin(), earlier_.end(),
                                            [&](const NodeRef& tree) { return needed.contains(tree.get()); });
    std::vector<NodeRef> trees(std::make_move_iterator(left), std::make_move_iterator(earlier_.end()));
    earlier_.erase(left, earlier_.end());
    return trees;
}

}  // namespace zelk
