// SPDX-License-Identifier: MIT
#include "ui/screens/overview/ChangesModel.h"

#include <algorithm>

#include "ui/screens/overview/Growth.h"
#include "ui/theme/DisplayText.h"

namespace zelk {

namespace {

/// The last component, or "/" for the root directory.
std::string_view lastComponent(std::string_view path) {
    return path == "/" ? path : path.substr(path.rfind('/') + 1);
}

}  // namespace

void ChangesModel::show(const FolderChanges& changes) {
    beginResetModel();
    rows_.clear();
    add(Kind::grew, changes.grew);
    add(Kind::appeared, changes.appeared);
    add(Kind::gone, changes.gone);
    endResetModel();
    emit emptyChanged();
}

void ChangesModel::add(Kind kind, const std::vector<FolderChange>& changes) {
    for (const FolderChange& change : changes) rows_.push_back({kind, change});
}

void ChangesModel::setTheme(const ZelkTheme& theme) {
    theme_ = &theme;
    allRowsChanged({tintRole});
}

QString ChangesModel::heading(Kind kind) const {
    const auto count = std::count_if(rows_.begin(), rows_.end(), [kind](const Row& row) { return row.kind == kind; });
    switch (kind) {
        case Kind::grew:
            return tr("Grew (%1)").arg(count);
        case Kind::appeared:
            return tr("Appeared (%1)").arg(count);
        case Kind::gone:
            return tr("Vanished (%1)").arg(count);
    }
    return {};
}

bool ChangesModel::isFirst(std::size_t at) const {
    return at == 0 || rows_[at - 1].kind != rows_[at].kind;
}

QColor ChangesModel::color(Kind kind) const {
    switch (kind) {
        case Kind::grew:
            return {62, 155, 255};
        case Kind::appeared:
            return {50, 199, 123};
        case Kind::gone:
            return theme_->inkSoft;
    }
    return {};
}

QString ChangesModel::sizeText(const Row& row) {
    const FolderChange& change = row.change;
    switch (row.kind) {
        case Kind::grew:
            return QStringLiteral("%1  +%2").arg(byteFigure(change.newSize),
                                                 byteFigure(growth(change.oldSize, change.newSize)));
        case Kind::appeared:
            return byteFigure(change.newSize);
        case Kind::gone:
            return byteFigure(change.oldSize);
    }
    return {};
}

QVariant ChangesModel::value(std::size_t at, int role) const {
    const Row& row = rows_[at];
    const std::string_view path = row.change.path;
    switch (role) {
        case headingRole:
            return isFirst(at) ? heading(row.kind) : QString();
        case tintRole:
            return color(row.kind);
        case Qt::DisplayRole:
        case nameRole:
            return displayText(lastComponent(path));
        case pathRole:
            return displayText(path);
        case sizeRole:
            return sizeText(row);
        default:
            return {};
    }
}

}  // namespace zelk

#include "moc_ChangesModel.cpp"
