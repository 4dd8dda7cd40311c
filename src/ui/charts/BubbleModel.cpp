// SPDX-License-Identifier: MIT
#include "ui/charts/BubbleModel.h"

#include <utility>

namespace zelk {

BubbleModel::BubbleModel(Actions actions, QObject* parent) : QObject(parent), actions_(std::move(actions)) {}

void BubbleModel::setSlices(std::vector<BubbleSlice> slices) {
    if (slices == slices_) return;
    slices_ = std::move(slices);
    emit slicesChanged();
}

// Copies the slice, since the action may replace slices().
void BubbleModel::tap(const BubbleSlice& slice) const {
    if (actions_.tap) actions_.tap(BubbleSlice(slice));
}

void BubbleModel::tick(const BubbleSlice& slice) const {
    if (actions_.tick)
        actions_.tick(BubbleSlice(slice));
    else
        tap(slice);
}

void BubbleModel::leave() const {
    if (actions_.leave) actions_.leave();
}

}  // namespace zelk

#include "moc_BubbleModel.cpp"
