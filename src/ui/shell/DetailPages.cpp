// SPDX-License-Identifier: MIT
#include "ui/shell/DetailPages.h"

#include <utility>

#include "state/AppModel.h"

namespace zelk {

DetailPages::DetailPages(AppModel& app, std::vector<Page> pages)
    : app_(app), pages_(std::move(pages)), built_(pages_.size()), current_(static_cast<int>(app.selection())) {
    built_[static_cast<std::size_t>(current_)] = true;
    connect(&app, &AppModel::selectionChanged, this, &DetailPages::followSelection);
}

int DetailPages::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(pages_.size());
}

QVariant DetailPages::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
    const auto row = static_cast<std::size_t>(index.row());
    switch (role) {
        case viewRole:
            return pages_[row].view;
        case builtRole:
            return static_cast<bool>(built_[row]);
        case currentRole:
            return index.row() == current_;
        default:
            return {};
    }
}

QHash<int, QByteArray> DetailPages::roleNames() const {
    return {{viewRole, "view"}, {builtRole, "built"}, {currentRole, "current"}};
}

QVariantMap DetailPages::given(int row) const {
    return pages_[static_cast<std::size_t>(row)].given();
}

void DetailPages::followSelection() {
    const int before = std::exchange(current_, static_cast<int>(app_.selection()));
    built_[static_cast<std::size_t>(current_)] = true;
    // The new one is there before the old one goes.
    emit dataChanged(index(current_), index(current_), {builtRole, currentRole});
    emit dataChanged(index(before), index(before), {currentRole});
}

}  // namespace zelk

#include "moc_DetailPages.cpp"
