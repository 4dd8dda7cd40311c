// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QAbstractListModel>
#include <cstddef>
#include <string_view>
#include <utility>
#include <vector>

#include "ui/controls/RowEdits.h"

namespace zelk {

/// A list whose rows come anew from what is known now, and whose view keeps the delegates of those that stay. Main
/// thread.
class EditedList : public QAbstractListModel {
    Q_OBJECT
    QML_ANONYMOUS

protected:
    using QAbstractListModel::QAbstractListModel;

    /// Makes `rows` into `next` with the fewest rows taken out and put in, and says so to the views. `keyOf` is a view
    /// of the text that a row is known by, and lives as long as the row. What the rows that stay show may be new: the
    /// heir says that.
    template <class Row, class KeyOf>
    void edit(std::vector<Row>& rows, std::vector<Row> next, KeyOf keyOf) {
        const auto keysOf = [&](const std::vector<Row>& list) {
            std::vector<std::string_view> keys;
            keys.reserve(list.size());
            for (const Row& row : list) keys.emplace_back(keyOf(row));
            return keys;
        };
        const RowEdits edits = rowEdits(keysOf(rows), keysOf(next));
        const auto at = [](auto& list, std::size_t row) { return list.begin() + static_cast<std::ptrdiff_t>(row); };
        for (const auto& [first, count] : edits.removals) {
            beginRemoveRows({}, static_cast<int>(first), static_cast<int>(first + count) - 1);
            rows.erase(at(rows, first), at(rows, first + count));
            endRemoveRows();
        }
        for (const auto& [first, count] : edits.insertions) {
            beginInsertRows({}, static_cast<int>(first), static_cast<int>(first + count) - 1);
            rows.insert(at(rows, first), at(next, first), at(next, first + count));
            endInsertRows();
        }
        rows = std::move(next);
    }
};

}  // namespace zelk
