// SPDX-License-Identifier: MIT
#include "ui/controls/RowModel.h"

#include <gmock/gmock.h>

#include <QSignalSpy>
#include <string>

namespace zelk {

namespace {

class Letters : public RowModel {
public:
    enum Role { letterRole = Qt::UserRole, loudRole };

    Letters() : RowModel({"letter", "loud"}) {}

    void show(std::vector<std::string> letters) {
        edit(letters_, std::move(letters), [](const std::string& letter) { return std::string_view(letter); });
    }

    using RowModel::allRowsChanged;
    using RowModel::has;
    using RowModel::rowChanged;

private:
    std::size_t size() const override { return letters_.size(); }
    QVariant value(std::size_t row, int role) const override {
        const QString letter = QString::fromStdString(letters_[row]);
        if (role == letterRole) return letter;
        return role == loudRole ? letter.toUpper() : QVariant();
    }

    std::vector<std::string> letters_;
};

}  // namespace

TEST(RowModel, numbersRolesInTheirOrder) {
    EXPECT_EQ(Letters().roleNames(),
              (QHash<int, QByteArray>{{Letters::letterRole, "letter"}, {Letters::loudRole, "loud"}}));
}

TEST(RowModel, answersForItsOwnRowsOnly) {
    Letters letters;
    letters.show({"a", "b"});
    EXPECT_EQ(letters.rowCount(), 2);
    EXPECT_EQ(letters.rowCount(letters.index(0)), 0) << "a row has no rows";
    EXPECT_EQ(letters.data(letters.index(1), Letters::loudRole), QStringLiteral("B"));
    EXPECT_FALSE(letters.data(letters.index(1), Letters::loudRole + 1).isValid());
    EXPECT_FALSE(letters.data(letters.index(2), Letters::letterRole).isValid());
    EXPECT_FALSE(letters.data({}, Letters::letterRole).isValid());
    EXPECT_TRUE(letters.has(0) && letters.has(1));
    EXPECT_FALSE(letters.has(-1) || letters.has(2));
}

TEST(RowModel, reportsChangedRows) {
    Letters letters;
    QSignalSpy changed(&letters, &RowModel::dataChanged);
    letters.allRowsChanged();
    EXPECT_TRUE(changed.isEmpty()) << "there are no rows";
    letters.show({"a", "b", "c"});
    letters.rowChanged(1, {Letters::loudRole});
    letters.allRowsChanged({Letters::letterRole});
    ASSERT_EQ(changed.size(), 2);
    EXPECT_EQ(changed[0][0].toModelIndex().row(), 1);
    EXPECT_EQ(changed[0][1].toModelIndex().row(), 1);
    EXPECT_EQ(changed[0][2].value<QList<int>>(), QList<int>{Letters::loudRole});
    EXPECT_EQ(changed[1][0].toModelIndex().row(), 0);
    EXPECT_EQ(changed[1][1].toModelIndex().row(), 2);
    EXPECT_EQ(changed[1][2].value<QList<int>>(), QList<int>{Letters::letterRole});
}

TEST(RowModel, editKeepsRowsThatStay) {
    Letters letters;
    letters.show({"a", "b", "c"});
    const QPersistentModelIndex last = letters.index(2);
    const QSignalSpy reset(&letters, &RowModel::modelReset);
    letters.show({"x", "c", "y"});
    EXPECT_TRUE(reset.isEmpty());
    EXPECT_EQ(last.row(), 1);
    EXPECT_EQ(last.data(Letters::letterRole), QStringLiteral("c"));
    EXPECT_EQ(letters.rowCount(), 3);
}

}  // namespace zelk
