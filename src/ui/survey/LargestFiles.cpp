// SPDX-License-Identifier: MIT
#include "ui/survey/LargestFiles.h"

#include <algorithm>

#include "ui/components/FileTypeLook.h"
#include "ui/text/DisplayText.h"

namespace zelk {

void LargestFiles::show(const std::vector<LargeFile>& files) {
    const std::size_t wanted = std::min(files.size(), mostRows);
    // What went first: a file that was taken away leaves the others where they are.
    for (std::size_t row = files_.size(); row-- > 0;) {
        if (std::find(files.begin(), files.begin() + static_cast<std::ptrdiff_t>(wanted), files_[row]) !=
            files.begin() + static_cast<std::ptrdiff_t>(wanted))
            continue;
        beginRemoveRows({}, static_cast<int>(row), static_cast<int>(row));
        files_.erase(files_.begin() + static_cast<std::ptrdiff_t>(row));
        endRemoveRows();
    }
    for (std::size_t row = 0; row < wanted; ++row) {
        if (row < files_.size() && files_[row] == files[row]) continue;
        beginInsertRows({}, static_cast<int>(row), static_cast<int>(row));
        files_.insert(files_.begin() + static_cast<std::ptrdiff_t>(row), files[row]);
        endInsertRows();
    }
    if (files_.size() > wanted) {
        beginRemoveRows({}, static_cast<int>(wanted), static_cast<int>(files_.size()) - 1);
        files_.resize(wanted);
        endRemoveRows();
    }
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
            return displayText(std::string_view(file.path).substr(file.path.rfind('/') + 1));
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
