// SPDX-License-Identifier: MIT
#include "ui/screens/reclaim/DryRunRows.h"

#include <utility>

#include "ui/controls/AccessibleText.h"
#include "ui/theme/DisplayText.h"

namespace zelk {

DryRunRows::DryRunRows(std::vector<Reclaimable> items, QObject* parent)
    : RowModel({"symbol", "name", "folder", "figure", "method", "spoken"}, parent), items_(std::move(items)) {}

QVariant DryRunRows::value(std::size_t row, int role) const {
    const Reclaimable& item = items_[row];
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
            return AccessibleText::joined({nameText(item.path), size(), method(), folderText(item.path)});
        default:
            return {};
    }
}

}  // namespace zelk

#include "moc_DryRunRows.cpp"
