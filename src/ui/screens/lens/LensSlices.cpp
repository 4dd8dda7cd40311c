// SPDX-License-Identifier: MIT
#include "ui/screens/lens/LensSlices.h"

#include <QCoreApplication>

#include <algorithm>

#include "ui/theme/DisplayText.h"

namespace zelk {

std::vector<BubbleSlice> slicesOf(const LensRows& rows, const LensWalk& walk, const QColor& folded,
                                  const std::function<QImage(const std::string&)>& iconOf) {
    const int alone = std::min(rows.rowCount(), static_cast<int>(LensWalk::topCount));
    std::vector<BubbleSlice> slices;
    for (int row = 0; row < alone; ++row) {
        const FSNode& node = *rows.node(row);
        BubbleSlice slice;
        slice.id = node.fullPath();
        slice.label = displayText(node.name());
        slice.bytes = node.size;
        slice.color = QColor(124, 92, 255);
        slice.reclaimable = node.reclaimCategory != nullptr;
        slice.icon = iconOf(slice.id);
        slice.selected = walk.isSelected(slice.id);
        slices.push_back(std::move(slice));
    }
    if (alone == rows.rowCount()) return slices;
    BubbleSlice rest;
    rest.id = foldedSlice;
    rest.label = QCoreApplication::translate("LensSlices", "Other (%1)").arg(rows.rowCount() - alone);
    for (int row = alone; row < rows.rowCount(); ++row) rest.bytes += rows.node(row)->size;
    rest.color = folded;
    slices.push_back(std::move(rest));
    return slices;
}

}  // namespace zelk
