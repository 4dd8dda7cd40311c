// SPDX-License-Identifier: MIT
#include "ui/controls/RowModel.h"

namespace zelk {

RowModel::RowModel(std::initializer_list<const char*> roles, QObject* parent) : QAbstractListModel(parent) {
    int role = Qt::UserRole;
    for (const char* name : roles) roles_.insert(role++, name);
}

int RowModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(size());
}

QVariant RowModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
    return value(static_cast<std::size_t>(index.row()), role);
}

void RowModel::rowsChanged(int first, int last, const QList<int>& roles) {
    if (first <= last) emit dataChanged(index(first), index(last), roles);
}

}  // namespace zelk

#include "moc_RowModel.cpp"
