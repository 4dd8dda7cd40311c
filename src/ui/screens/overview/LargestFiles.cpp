// SPDX-License-Identifier: MIT
#include "ui/screens/overview/LargestFiles.h"

#include <algorithm>

#include "ui/theme/DisplayText.h"
#include "ui/theme/FileTypeLook.h"

namespace zelk {

void LargestFiles::show(const std::vector<LargeFile>& files) {
    const auto end = files.begin() + static_cast<std::ptrdiff_t>(std::min(files.size(), mostRows));
    edit(files_, std::vector<LargeFile>(files.begin(), end),
         [](const LargeFile& file) { return std::string_view(file.path); });
    if (!files_.empty()) emit dataChanged(index(0), index(rowCount() - 1));
}

void LargestFiles::setTheme(const ZelkTheme& theme) {
    theme_ = &theme;
    if (!files_.empty()) emit dataChanged(index(0), index(rowCount() - 1), {tintRole});
}

int LargestFiles::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(files_.size());
}

QVariant LargestFiles::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
    const LargeFile& file = files_[static_cast<std::size_t>(index.row())];
    switch (role) {
        case symbolRole:
            return lookOf(file.type, *theme_).symbol;
        case tintRole:
            return lookOf(file.type, *theme_).color;
        case Qt::DisplayRole:
        case nameRole:
            return nameText(file.path);
        case pathRole:
            return displayText(file.path);
        case sizeRole:
            return byteFigure(file.size);
        default:
            return {};
    }
}

QHash<int, QByteArray> LargestFiles::roleNames() const {
    return {{symbolRole, "symbol"}, {tintRole, "tint"}, {nameRole, "name"}, {pathRole, "path"}, {sizeRole, "size"}};
}

}  // namespace zelk

#include "moc_LargestFiles.cpp"
