// SPDX-License-Identifier: MIT
#include "ui/screens/settings/ScanRootList.h"

#include <algorithm>
#include <iterator>

#include "state/AppModel.h"
#include "ui/theme/DisplayText.h"

namespace zelk {

ScanRootList::ScanRootList(AppModel& app) : RowModel({"path", "removeName"}), app_(app), roots_(app.scanRoots()) {
    connect(&app, &AppModel::scanRootsChanged, this, &ScanRootList::follow);
}

QVariant ScanRootList::value(std::size_t row, int role) const {
    const QString path = displayText(roots_[row]);
    switch (role) {
        case Qt::DisplayRole:
        case pathRole:
            return path;
        case removeNameRole:
            return tr("Remove %1").arg(path);
        default:
            return {};
    }
}

/// Keeps the rows of the common prefix and suffix, so that adding or removing a folder affects one row.
void ScanRootList::follow() {
    const std::vector<std::string>& now = app_.scanRoots();
    const bool wasEmpty = empty();
    const auto [oldFrom, newFrom] = std::mismatch(roots_.begin(), roots_.end(), now.begin(), now.end());
    auto oldTo = roots_.end();
    auto newTo = now.end();
    while (oldTo != oldFrom && newTo != newFrom && *std::prev(oldTo) == *std::prev(newTo)) {
        --oldTo;
        --newTo;
    }
    const int first = static_cast<int>(std::distance(roots_.begin(), oldFrom));
    if (oldFrom != oldTo) {
        beginRemoveRows({}, first, static_cast<int>(std::distance(roots_.begin(), oldTo)) - 1);
        roots_.erase(oldFrom, oldTo);
        endRemoveRows();
    }
    if (newFrom != newTo) {
        beginInsertRows({}, first, static_cast<int>(std::distance(now.begin(), newTo)) - 1);
        roots_.insert(roots_.begin() + first, newFrom, newTo);
        endInsertRows();
    }
    if (empty() != wasEmpty) emit emptyChanged();
}

}  // namespace zelk

#include "moc_ScanRootList.cpp"
