// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "scan/FSNode.h"

namespace zelk {

/// The position and selection of the user within a finished tree, independent of any view. Keeps the nodes that it
/// refers to, and their trees, alive, even after another survey: startOver() moves on to the new tree. Main thread.
class LensWalk {
public:
    /// The number of folders with bubbles of their own; all others share one.
    static constexpr std::size_t topCount = 16;

    /// Sets the tree to start from; may be null. A folder that was entered before stays as it is.
    void setRoot(NodeRef root);
    const NodeRef& root() const { return root_; }

    /// The root or, if it has exactly one child, that child: the synthetic top of a single scan root is skipped.
    NodeRef mapRoot() const;
    /// The last folder that was entered, else mapRoot().
    NodeRef currentNode() const;
    /// The children of the current node with a positive size, largest first.
    std::vector<NodeRef> visibleChildren() const;

    bool canGoBack() const { return !stack_.empty(); }
    void enter(NodeRef node) { stack_.push_back(std::move(node)); }
    void back();
    /// Goes up to the nearest folder that is neither at nor below this path, where something was removed.
    void leave(const std::string& path);
    /// Returns to mapRoot() and clears the selection.
    void startOver();

    const std::map<std::string, NodeRef>& selected() const { return selected_; }
    bool isSelected(const std::string& path) const { return selected_.contains(path); }
    void select(NodeRef node);
    void unselect(const std::string& path) { selected_.erase(path); }
    /// Unselects a removed folder and everything below it.
    void unselectAtAndBelow(const std::string& path);
    void clearSelection() { selected_.clear(); }
    std::int64_t selectedBytes() const;

    /// Moves out the trees of earlier surveys that nothing here refers to any more. The caller should release them off
    /// the main thread.
    std::vector<NodeRef> takeLeftTrees();

private:
    NodeRef root_;
    std::vector<NodeRef> earlier_;  // top nodes, so that the trees outlast what refers to them here
    std::vector<NodeRef> stack_;
    std::map<std::string, NodeRef> selected_;
};

}  // namespace zelk
