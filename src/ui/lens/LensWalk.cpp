// SPDX-License-Identifier: MIT
#include "ui/lens/LensWalk.h"

#include <algorithm>
#include <iterator>

namespace zelk {

NodeRef LensWalk::mapRoot() const {
    const bool single = root_ && root_->children.size() == 1;
    return single ? root_->children.front() : root_;
}

NodeRef LensWalk::currentNode() const {
    return stack_.empty() ? mapRoot() : stack_.back();
}

std::vector<NodeRef> LensWalk::visibleChildren() const {
    const NodeRef current = currentNode();
    if (!current) return {};
    std::vector<NodeRef> children;
    std::copy_if(current->children.begin(), current->children.end(), std::back_inserter(children),
                 [](const NodeRef& child) { return child->size > 0; });
    std::stable_sort(children.begin(), children.end(),
                     [](const NodeRef& a, const NodeRef& b) { return a->size > b->size; });
    return children;
}

void LensWalk::back() {
    if (!stack_.empty()) stack_.pop_back();
}

void LensWalk::startOver() {
    stack_.clear();
    selected_.clear();
}

void LensWalk::select(NodeRef node) {
    std::string path = node->fullPath();
    selected_.insert_or_assign(std::move(path), std::move(node));
}

std::int64_t LensWalk::selectedBytes() const {
    std::int64_t bytes = 0;
    for (const auto& [path, node] : selected_) bytes += node->size;
    return bytes;
}

}  // namespace zelk
