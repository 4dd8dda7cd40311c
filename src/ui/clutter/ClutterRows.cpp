// SPDX-License-Identifier: MIT
#include "ui/clutter/ClutterRows.h"

#include <string_view>
#include <utility>

#include "ui/clutter/AgeText.h"
#include "ui/components/FileTypeLook.h"
#include "ui/components/RowEdits.h"
#include "ui/components/Spoken.h"
#include "ui/text/DisplayText.h"

namespace zelk {

namespace {

std::vector<std::string_view> pathsOf(const std::vector<LargeFile>& files) {
    std::vector<std::string_view> paths;
    paths.reserve(files.size());
    for (const LargeFile& file : files) paths.emplace_back(file.path);
    return paths;
}

QString nameOf(const LargeFile& file) {
    return displayText(std::string_view(file.path).substr(file.path.rfind('/') + 1));
}

/// The path without its last component; that of what lies at the top is "/".
QString folderOf(const LargeFile& file) {
    const std::size_t slash = file.path.rfind('/');
    return displayText(std::string_view(file.path).substr(0, slash == 0 ? 1 : slash));
}

}  // namespace

void ClutterRows::show(std::vector<LargeFile> files, TimePoint now) {
    const RowEdits edits = rowEdits(pathsOf(files_), pathsOf(files));
    const auto at = [](auto& list, std::size_t row) { return list.begin() + static_cast<std::ptrdiff_t>(row); };
    for (const auto& [first, count] : edits.removals) {
        beginRemoveRows({}, static_cast<int>(first), static_cast<int>(first + count) - 1);
        files_.erase(at(files_, first), at(files_, first + count));
        endRemoveRows();
    }
    for (const auto& [first, count] : edits.insertions) {
        beginInsertRows({}, static_cast<int>(first), static_cast<int>(first + count) - 1);
        files_.insert(at(files_, first), at(files, first), at(files, first + count));
        endInsertRows();
    }
    // What stayed may have another size than in the survey before, and all have another age.
    files_ = std::move(files);
    now_ = now;
    if (!files_.empty()) emit dataChanged(index(0), index(rowCount() - 1), {ageRole, sizeRole, spokenRole});
}

void ClutterRows::setTheme(const ZelkTheme& theme) {
    theme_ = &theme;
    if (!files_.empty()) emit dataChanged(index(0), index(rowCount() - 1), {tintRole});
}

std::string ClutterRows::pathAt(int row) const {
    return row < 0 || row >= rowCount() ? std::string() : files_[static_cast<std::size_t>(row)].path;
}

int ClutterRows::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(files_.size());
}

QVariant ClutterRows::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
    const LargeFile& file = files_[static_cast<std::size_t>(index.row())];
    switch (role) {
        case symbolRole:
            return lookOf(file.type, *theme_).symbol;
        case tintRole:
            return lookOf(file.type, *theme_).color;
        case Qt::DisplayRole:
        case nameRole:
            return nameOf(file);
        case folderRole:
            return folderOf(file);
        case ageRole:
            return ageText(file.modified, now_);
        case sizeRole:
            return byteFigure(file.size);
        case spokenRole:
            return Spoken::joined({nameOf(file), folderOf(file), ageText(file.modified, now_), byteFigure(file.size)});
        case actionsRole:
            return QStringLiteral("Actions for %1").arg(nameOf(file));
        default:
            return {};
    }
}

QHash<int, QByteArray> ClutterRows::roleNames() const {
    return {{symbolRole, "symbol"}, {tintRole, "tint"}, {nameRole, "name"},     {folderRole, "folder"},
            {ageRole, "age"},       {sizeRole, "size"}, {spokenRole, "spoken"}, {actionsRole, "actions"}};
}

}  // namespace zelk
