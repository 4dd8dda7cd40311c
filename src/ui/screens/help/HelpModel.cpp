// SPDX-License-Identifier: MIT
#include "ui/screens/help/HelpModel.h"

namespace zelk {

void HelpModel::select(int row) {
    if (row < 0 || row >= topics_.size()) return;
    const int before = current();
    selection_ = topics_[row].id;
    if (row != before) emit currentChanged();
}

}  // namespace zelk

#include "moc_HelpModel.cpp"
