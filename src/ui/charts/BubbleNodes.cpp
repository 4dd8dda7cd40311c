// SPDX-License-Identifier: MIT
#include "ui/charts/BubbleNodes.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "ui/theme/DisplayText.h"

namespace zelk {

namespace {

QString shareText(double share) {
    const double percent = std::max(100 * share, 0.0);
    return percent < 1 ? BubbleNodes::tr("less than 1% of the map")
                       : BubbleNodes::tr("%1% of the map").arg(std::lround(percent));
}

}  // namespace

std::vector<BubbleNode> bubbleNodes(const std::vector<PackedCircle>& circles, const ShownSlices& slices) {
    double all = 0;
    for (const BubbleSlice* slice : slices)
        if (slice != nullptr) all += static_cast<double>(slice->bytes);

    std::vector<BubbleNode> nodes;
    for (std::size_t at = 0; at < circles.size(); ++at) {
        BubbleNode& node = nodes.emplace_back();
        const PackedCircle& circle = circles[at];
        const double radius = std::max(circle.radius, 0.0);
        node.box = {circle.center.x - radius, circle.center.y - radius, 2 * radius, 2 * radius};
        const BubbleSlice* slice = slices[at];
        if (slice == nullptr) continue;
        const double share = all > 0 ? static_cast<double>(slice->bytes) / all : 0;
        node.name = QStringLiteral("%1, %2, %3").arg(slice->label, byteFigure(slice->bytes), shareText(share));
        if (slice->reclaimable) node.note = BubbleNodes::tr("reclaimable");
        node.selected = slice->selected;
    }
    return nodes;
}

void BubbleNodes::show(std::vector<BubbleNode> nodes) {
    const auto before = static_cast<int>(nodes_.size());
    const auto now = static_cast<int>(nodes.size());
    if (now < before) {
        beginRemoveRows({}, now, before - 1);
        nodes_.resize(nodes.size());
        endRemoveRows();
    } else if (now > before) {
        beginInsertRows({}, before, now - 1);
        nodes_.insert(nodes_.end(), nodes.begin() + before, nodes.end());
        endInsertRows();
    }
    for (int row = 0; row < std::min(before, now); ++row) {
        BubbleNode& node = nodes_[static_cast<std::size_t>(row)];
        BubbleNode& next = nodes[static_cast<std::size_t>(row)];
        if (node == next) continue;
        node = std::move(next);
        rowChanged(row, {nameRole, noteRole, boxRole, selectedRole});
    }
}

void BubbleNodes::setCurrent(std::optional<std::size_t> current) {
    if (current == current_) return;
    const auto before = std::exchange(current_, current);
    for (const auto& row : {before, current_}) {
        if (!row || *row >= nodes_.size()) continue;
        rowChanged(static_cast<int>(*row), {currentRole});
    }
}

QVariant BubbleNodes::value(std::size_t row, int role) const {
    const BubbleNode& node = nodes_[row];
    switch (role) {
        case nameRole:
            return node.name;
        case noteRole:
            return node.note;
        case boxRole:
            return node.box;
        case selectedRole:
            return node.selected;
        case currentRole:
            return row == current_;
        default:
            return {};
    }
}

}  // namespace zelk

#include "moc_BubbleNodes.cpp"
