// SPDX-License-Identifier: MIT
#include "ui/screens/lens/LensRows.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

#include "ui/controls/AccessibleText.h"
#include "ui/screens/lens/LensWalk.h"
#include "ui/theme/DisplayText.h"

namespace zelk {

LensRows::LensRows(const LensWalk& walk, IconOf iconOf)
    : RowModel(rows_, {{"name", [](const Row& row) { return displayText(row.node->name()); }},
                       {"size", [](const Row& row) { return static_cast<qint64>(row.bytes); }},
                       {"icon", [this](const Row& row) { return iconOf_(row.node->fullPath()); }},
                       {"ticked", [this](const Row& row) { return isTicked(row); }},
                       {"drillable", [](const Row& row) { return !row.node->children().empty(); }},
                       {"spoken",
                        [this](const Row& row) {
                            return AccessibleText::joined({displayText(row.node->name()), byteFigure(row.bytes),
                                                           tr("folder"), isTicked(row) ? tr("ticked") : QString()});
                        }},
                       {"info", [](const Row& row) { return tr("What is %1?").arg(displayText(row.node->name())); }}}),
      walk_(walk),
      iconOf_(std::move(iconOf)) {}

bool LensRows::isTicked(const Row& row) const {
    return walk_.isSelected(row.node->fullPath());
}

void LensRows::show() {
    replaceBy(walk_.visibleChildren());
}

void LensRows::follow() {
    const std::vector<NodeRef> nodes = walk_.visibleChildren();
    if (turnInto(nodes))
        tellSizes();
    else
        replaceBy(nodes);
}

void LensRows::replaceBy(const std::vector<NodeRef>& nodes) {
    beginResetModel();
    rows_.clear();
    rows_.reserve(nodes.size());
    for (const NodeRef& node : nodes) rows_.push_back({node, node->size});
    endResetModel();
}

/// Removes rows that are not in `nodes` and moves those that became smaller. Returns false if other changes are needed
/// or there are too many steps; the rows are then in an intermediate state.
bool LensRows::turnInto(const std::vector<NodeRef>& nodes) {
    constexpr int mostSteps = 64;  // with more, a reset is cheaper
    std::unordered_map<const FSNode*, int> places;
    places.reserve(nodes.size());
    for (const NodeRef& node : nodes) places.emplace(node.get(), static_cast<int>(places.size()));

    int steps = 0;
    const auto goes = [&](const Row& row) { return !places.contains(row.node.get()); };
    for (auto end = rows_.end(); steps < mostSteps; ++steps) {
        const auto last = std::find_if(std::reverse_iterator(end), rows_.rend(), goes);
        if (last == rows_.rend()) break;
        const auto first = std::find_if_not(last, rows_.rend(), goes);
        const auto from = static_cast<int>(first.base() - rows_.begin());
        beginRemoveRows({}, from, static_cast<int>(last.base() - rows_.begin()) - 1);
        rows_.erase(first.base(), last.base());
        endRemoveRows();
        end = rows_.begin() + from;
    }
    if (steps == mostSteps || rows_.size() != nodes.size()) return false;

    for (std::size_t at = 0; at < nodes.size();) {
        if (rows_[at].node == nodes[at]) {
            ++at;
            continue;
        }
        const int from = static_cast<int>(at);
        const int to = places.at(rows_[at].node.get());
        if (to < from || ++steps > mostSteps) return false;
        beginMoveRows({}, from, from, {}, to + 1);
        std::rotate(rows_.begin() + from, rows_.begin() + from + 1, rows_.begin() + to + 1);
        endMoveRows();
    }
    return true;
}

void LensRows::tellSizes() {
    for (std::size_t at = 0; at < rows_.size(); ++at) {
        Row& row = rows_[at];
        if (std::exchange(row.bytes, row.node->size) == row.node->size) continue;
        rowChanged(static_cast<int>(at), {sizeRole, spokenRole, drillableRole});
    }
}

void LensRows::tellTicked(int row) {
    if (has(row)) rowChanged(row, {tickedRole, spokenRole});
}

void LensRows::tellAllTicked() {
    allRowsChanged({tickedRole, spokenRole});
}

NodeRef LensRows::node(int row) const {
    return has(row) ? rows_[static_cast<std::size_t>(row)].node : nullptr;
}

int LensRows::rowOf(const NodeRef& node) const {
    const auto found = std::find_if(rows_.begin(), rows_.end(), [&](const Row& row) { return row.node == node; });
    return found == rows_.end() ? -1 : static_cast<int>(found - rows_.begin());
}

}  // namespace zelk

#include "moc_LensRows.cpp"
