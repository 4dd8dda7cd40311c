// SPDX-License-Identifier: MIT
#include "ui/screens/reclaim/DryRunRows.h"

#include <utility>

#include "ui/controls/Spoken.h"
#include "ui/theme/DisplayText.h"

namespace zelk {

DryRunRows::DryRunRows(std::vector<Reclaimable> items, QObject* parent)
    : QAbstractListModel(parent), items_(std::move(items)) {}

int DryRunRows::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(items_.size());
}

QVariant DryRunRows::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
    const Reclaimable& item = items_[static_cast<std::size_t>(index.row())];
    const auto size = [&] { return byteFigure(static_cast<std::int64_t>(item.size)); };
    const auto method = [&] { return displayText(methodSummary(item.method)); };
    switch (role) {
        case symbolRole:
            return item.method.kind == ReclaimMethod::Kind::command ? QStringLiteral("terminal")
                                                                    : QStringLiteral("trash");
        case Qt::DisplayRole:
        case nameRole:
            return nameText(item.path);
        case folderRole:
            return folderText(item.path);
        case sizeRole:
            return size();
        case methodRole:
            return method();
        case spokenRole:
            return Spoken::joined({nameText(item.path), size(), method(), folderText(item.path)});
        default:
            return {};
    }
}

QHash<int, QByteArray> DryRunRows::roleNames() const {
    return {{symbolRole, "symbol"}, {nameRole, "name"},     {folderRole, "folder"},
            {sizeRole, "figure"},   {methodRole, "method"}, {spokenRole, "spoken"}};
}

}  // namespace zelk

#include "moc_DryRunRows.cpp"
