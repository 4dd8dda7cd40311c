// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "scan/FSNode.h"

namespace zelk {

/// Where a person stands in a finished tree, and what that person ticked on the way: values alone, no screen. It holds
/// on to what it names, with the trees around it, also when another survey has finished: startOver() leaves the old
/// tree. Main thread.
class LensWalk {
public:
    /// The most folders that the map shows by themselves; what comes behind them is one bubble.
    static constexpr std::size_t topCount = 16;

    /// The tree to begin in; none if `root` is. What is below a folder that was entered stays as it was.
    void setRoot(NodeRef root);
    const NodeRef& root() const { return root_; }

    /// The root, or its child where it has exactly one: the level that scan roots share says nothing.
    NodeRef mapRoot() const;
    /// What is shown: the last folder that was entered, or the map's root.
    NodeRef currentNode() const;
    /// Its children that hold bytes, largest first.
    std::vector<NodeRef> visibleChildren() const;

    bool canGoBack() const { return !stack_.empty(); }
    void enter(NodeRef node) { stack_.push_back(std::move(node)); }
    void back();
    /// To the map's root, with nothing ticked.
    void startOver();

    const std::map<std::string, NodeRef>& selected() const { return selected_; }
    bool isSelected(const std::string& path) const { return selected_.contains(path); }
    void select(NodeRef node);
    void unselect(const std::string& path) { selected_.erase(path); }
    /// A folder that has gone, and what was in it.
    void unselectAtAndBelow(const std::string& path);
    void clearSelection() { selected_.clear(); }
    std::int64_t selectedBytes() const;

    /// Trees of earlier surveys that nothing here is in any more. Whoever takes them lets go of them where that holds
    /// up no screen.
    std::vector<NodeRef> takeLeftTrees();

private:
    NodeRef root_;
    std::vector<NodeRef> earlier_;  // tops: a node keeps what is below it, but its path needs what is above
    std::vector<NodeRef> stack_;
    std::map<std::string, NodeRef> selected_;
};

/// The last component of a path, or all of it where that is empty.
std::string_view lastComponent(std::string_view path);

}  // namespace zelk
