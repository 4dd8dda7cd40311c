// SPDX-License-Identifier: MIT
#include "ui/lens/LensSlices.h"

#include <algorithm>

#include "ui/text/DisplayText.h"

namespace zelk {

std::vector<BubbleSlice> slicesOf(const LensWalk& walk, const QColor& folded,
                                  const std::function<QImage(const std::string&)>& iconOf) {
    const std::vector<NodeRef> visible = walk.visibleChildren();
    const std::size_t alone = std::min(visible.size(), LensWalk::topCount);
    std::vector<BubbleSlice> slices;
    for (std::size_t at = 0; at < alone; ++at) {
        const FSNode& node = *visible[at];
        BubbleSlice slice;
        slice.id = node.fullPath();
        slice.label = displayText(node.name());
        slice.bytes = node.size;
        slice.color = QColor(124, 92, 255);
        slice.reclaimable = node.reclaimCategory != nullptr;
        slice.drillable = !node.children.empty();
        slice.icon = iconOf(slice.id);
        slice.selected = walk.isSelected(slice.id);
        slices.push_back(std::move(slice));
    }
    if (alone == visible.size()) return slices;
    BubbleSlice rest;
    rest.id = foldedSlice;
    rest.label = QStringLiteral("Other (%1)").arg(visible.size() - alone);
    for (std::size_t at = alone; at < visible.size(); ++at) rest.bytes += visible[at]->size;
    rest.color = folded;
    slices.push_back(std::move(rest));
    return slices;
}

}  // namespace zelk
