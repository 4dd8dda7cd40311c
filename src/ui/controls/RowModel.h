// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QAbstractListModel>
#include <cstddef>
#include <functional>
#include <initializer_list>
#include <string_view>
#include <utility>
#include <vector>

namespace zelk {

/// `count` rows starting at `first`.
struct RowRange {
    std::size_t first = 0;
    std::size_t count = 0;

    bool operator==(const RowRange&) const = default;
};

/// The smallest set of removals and insertions between two lists, so that a view keeps its position and delegates.
struct RowEdits {
    std::vector<RowRange> removals;    ///< rows of the old list, last range first; apply in this order
    std::vector<RowRange> insertions;  ///< rows of the new list, first range first; apply after the removals
};

/// Computes the edits from `before` to `after`. A key identifies a row and is unique in its list. A row that moves is
/// removed and inserted; as many rows as possible stay.
RowEdits rowEdits(const std::vector<std::string_view>& before, const std::vector<std::string_view>& after);

/// A list model over rows that a derived class holds as values. That class names its roles once and says what a row
/// shows in each: in a table, or by size() and value(), where that depends on more than the row. Main thread.
class RowModel : public QAbstractListModel {
    Q_OBJECT
    QML_ANONYMOUS

public:
    int rowCount(const QModelIndex& parent = {}) const final;
    QVariant data(const QModelIndex& index, int role) const final;
    QHash<int, QByteArray> roleNames() const final { return roles_; }

protected:
    /// A role: its name in QML, and what a row shows in it.
    template <class Row>
    struct RoleOf {
        const char* name;
        std::function<QVariant(const Row&)> value;
    };

    /// `roles` are the roles of the derived class, or their names, numbered in this order from Qt::UserRole. `rows` is
    /// its member.
    explicit RowModel(std::initializer_list<const char*> roles, QObject* parent = nullptr);
    template <class Row>
    RowModel(const std::vector<Row>& rows, std::initializer_list<RoleOf<Row>> roles, QObject* parent = nullptr)
        : QAbstractListModel(parent), size_([&rows] { return rows.size(); }) {
        for (const RoleOf<Row>& role : roles) {
            roles_.insert(Qt::UserRole + static_cast<int>(values_.size()), role.name);
            values_.push_back([&rows, value = role.value](std::size_t row) { return value(rows[row]); });
        }
    }

    virtual std::size_t size() const { return size_(); }
    /// `row` is less than size(). Roles that the derived class does not know give an invalid value.
    virtual QVariant value(std::size_t row, int role) const;

    bool has(int row) const { return row >= 0 && row < rowCount(); }

    /// Tells the views that these roles of a row have new values; all roles if none are named.
    void rowChanged(int row, const QList<int>& roles = {}) { rowsChanged(row, row, roles); }
    /// The same for the rows from `first` to `last`; does nothing if there are none.
    void rowsChanged(int first, int last, const QList<int>& roles = {});
    void allRowsChanged(const QList<int>& roles = {}) { rowsChanged(0, rowCount() - 1, roles); }

    /// Turns `rows` into `next` by removing and inserting as few rows as possible, so that views keep the delegates of
    /// the others. `keyOf` gives the text that identifies a row, as a view that lives as long as the row. Rows that
    /// stay may have new values, which the derived class reports.
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

private:
    QHash<int, QByteArray> roles_;
    std::function<std::size_t()> size_;
    std::vector<std::function<QVariant(std::size_t row)>> values_;  // by role
};

}  // namespace zelk
