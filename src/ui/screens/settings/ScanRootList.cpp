// SPDX-License-Identifier: MIT
#include "ui/screens/settings/ScanRootList.h"

#include <string_view>

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

void ScanRootList::follow() {
    const bool wasEmpty = empty();
    edit(roots_, app_.scanRoots(), [](const std::string& root) { return std::string_view(root); });
    if (empty() != wasEmpty) emit emptyChanged();
}

}  // namespace zelk

#include "moc_ScanRootList.cpp"
