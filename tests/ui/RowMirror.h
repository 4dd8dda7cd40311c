// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <QAbstractListModel>
#include <set>
#include <vector>

namespace zelk {

/// Mirrors a list from its signals alone, as a view does. Fails if the rows of the list differ from those that it
/// signalled, even in the middle of a change.
class RowMirror : public QObject {
public:
    /// `identity` are the roles that identify a row and never change.
    RowMirror(QAbstractListModel& list, QList<int> identity) : list_(list), identity_(std::move(identity)) {
        for (int row = 0; row < list_.rowCount(); ++row) rows_.push_back(read(row));
        connect(&list_, &QAbstractItemModel::rowsInserted, this, [this](const QModelIndex&, int first, int last) {
            inserted_ += last - first + 1;
            for (int row = first; row <= last; ++row) rows_.insert(rows_.begin() + row, read(row));
            compareRows();
        });
        connect(&list_, &QAbstractItemModel::rowsAboutToBeRemoved, this, [this] { compareRows(); });
        connect(&list_, &QAbstractItemModel::rowsAboutToBeInserted, this, [this] { compareRows(); });
        connect(&list_, &QAbstractItemModel::rowsRemoved, this, [this](const QModelIndex&, int first, int last) {
            removed_ += last - first + 1;
            rows_.erase(rows_.begin() + first, rows_.begin() + last + 1);
            compareRows();
        });
        connect(&list_, &QAbstractItemModel::dataChanged, this,
                [this](const QModelIndex& first, const QModelIndex& last, const QList<int>& roles) {
                    for (int row = first.row(); row <= last.row(); ++row) reread(row, roles);
                    compareRows();
                });
        connect(&list_, &QAbstractItemModel::modelReset, this, [] { ADD_FAILURE() << "the list was reset"; });
        connect(&list_, &QAbstractItemModel::layoutChanged, this, [] { ADD_FAILURE() << "the layout changed"; });
        connect(&list_, &QAbstractItemModel::rowsMoved, this, [] { ADD_FAILURE() << "a row was moved"; });
    }

    void forget() {
        inserted_ = removed_ = 0;
        changed_.clear();
    }
    int inserted() const { return inserted_; }
    int removed() const { return removed_; }
    const std::set<int>& changed() const { return changed_; }

    /// Expects every mirrored value to equal the current one of the list.
    void expectFresh() {
        ASSERT_EQ(static_cast<int>(rows_.size()), list_.rowCount());
        const QHash<int, QByteArray> names = list_.roleNames();
        for (int row = 0; row < list_.rowCount(); ++row) {
            for (const auto& [role, value] : rows_[static_cast<std::size_t>(row)].asKeyValueRange())
                EXPECT_TRUE(value == list_.data(list_.index(row), role))
                    << names.value(role).toStdString() << " of row " << row << " was "
                    << value.toString().toStdString();
        }
    }

private:
    using Values = QMap<int, QVariant>;

    Values read(int row) const {
        Values values;
        const QHash<int, QByteArray> names = list_.roleNames();
        for (auto role = names.keyBegin(); role != names.keyEnd(); ++role)
            values[*role] = list_.data(list_.index(row), *role);
        return values;
    }
    void reread(int row, const QList<int>& roles) {
        changed_.insert(row);
        Values& values = rows_.at(static_cast<std::size_t>(row));
        const Values now = read(row);
        if (roles.isEmpty()) values = now;
        for (const int role : roles) values[role] = now[role];
    }
    void compareRows() const {
        ASSERT_EQ(static_cast<int>(rows_.size()), list_.rowCount());
        for (int row = 0; row < list_.rowCount(); ++row)
            for (const int role : identity_)
                ASSERT_EQ(rows_[static_cast<std::size_t>(row)][role], list_.data(list_.index(row), role)) << row;
    }

    QAbstractListModel& list_;
    const QList<int> identity_;
    std::vector<Values> rows_;
    int inserted_ = 0;
    int removed_ = 0;
    std::set<int> changed_;
};

}  // namespace zelk
