// SPDX-License-Identifier: MIT
#include "ui/screens/lens/LensRows.h"

#include <gmock/gmock.h>

#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include "ui/screens/lens/LensWalk.h"

namespace zelk {

namespace {

using testing::ElementsAre;

/// A folder "/home" whose children "a", "b", "c" … (numbered beyond 26) are each 10 bytes smaller than the one before,
/// the last of 10 bytes.
class LensRowsTest : public testing::Test {
protected:
    void fill(int count) {
        for (int at = 0; at < count; ++at) {
            FSNode& node =
                home->append(count <= 26 ? std::string(1, static_cast<char>('a' + at)) : std::to_string(at), 0);
            node.size = count * 10 - at * 10;
        }
        walk.setRoot(top);
        rows.show();
    }
    NodeRef child(std::ptrdiff_t at) { return NodeRef(&*std::next(home->children().begin(), at)); }

    std::string names() {
        std::string all;
        for (int row = 0; row < rows.rowCount(); ++row) all += text(row, LensRows::nameRole);
        return all;
    }
    std::string text(int row, int role) { return rows.index(row).data(role).toString().toStdString(); }
    bool ticked(int row) { return rows.index(row).data(LensRows::tickedRole).toBool(); }

    /// Appends to `edits` one character per signal: '!' reset, '-' removal, '>' move, '=' change.
    void recordEdits() {
        QObject::connect(&rows, &QAbstractItemModel::modelReset, &rows, [this] { edits += '!'; });
        QObject::connect(&rows, &QAbstractItemModel::rowsRemoved, &rows, [this] { edits += '-'; });
        QObject::connect(&rows, &QAbstractItemModel::rowsMoved, &rows, [this] { edits += '>'; });
        QObject::connect(&rows, &QAbstractItemModel::dataChanged, &rows, [this] { edits += '='; });
    }

    NodeRef top = FSNode::make("", 0);
    NodeRef home{&top->append("/home", 0)};
    LensWalk walk;
    int icons = 0;
    LensRows rows{walk, [this](const std::string&) {
                      ++icons;
                      return QImage(4, 4, QImage::Format_ARGB32);
                  }};
    QAbstractItemModelTester tester{&rows, QAbstractItemModelTester::FailureReportingMode::Fatal};
    std::string edits;
};

}  // namespace

TEST_F(LensRowsTest, rowDescribesItsFolder) {
    fill(3);
    child(0)->append("inside", 0);
    EXPECT_EQ(text(0, LensRows::nameRole), "a");
    EXPECT_EQ(text(0, LensRows::sizeRole), "30");
    EXPECT_EQ(text(0, LensRows::spokenRole), "a, 30 bytes, folder");
    EXPECT_EQ(text(0, LensRows::infoRole), "What is a?");
    EXPECT_TRUE(rows.index(0).data(LensRows::drillableRole).toBool());
    EXPECT_FALSE(rows.index(1).data(LensRows::drillableRole).toBool());
    EXPECT_EQ(rows.index(1).data(LensRows::iconRole).value<QImage>().width(), 4);
    EXPECT_FALSE(rows.index(1).data(Qt::DisplayRole).isValid());
}

TEST_F(LensRowsTest, showsInvalidNameRepaired) {
    FSNode& odd = home->append("line\nbreak\xff", 0);
    odd.size = 5;
    fill(1);
    EXPECT_EQ(rows.index(1).data(LensRows::nameRole).toString(), QStringLiteral("line\u240abreak\ufffd"));
    walk.select(NodeRef(&odd));
    EXPECT_TRUE(ticked(1));
}

TEST_F(LensRowsTest, tickChangesOneRow) {
    fill(5);
    QSignalSpy changed(&rows, &QAbstractItemModel::dataChanged);
    recordEdits();
    walk.select(child(2));
    rows.tellTicked(2);
    EXPECT_EQ(edits, "=");
    EXPECT_EQ(changed.front()[0].toModelIndex().row(), 2);
    EXPECT_EQ(changed.front()[1].toModelIndex().row(), 2);
    EXPECT_TRUE(ticked(2));
    EXPECT_EQ(text(2, LensRows::spokenRole), "c, 30 bytes, folder, ticked");
    EXPECT_FALSE(ticked(1));
    rows.tellTicked(-1);
    rows.tellTicked(5);
    EXPECT_EQ(edits, "=");
}

TEST_F(LensRowsTest, tickingAllIsOneChange) {
    fill(5);
    QSignalSpy changed(&rows, &QAbstractItemModel::dataChanged);
    rows.tellAllTicked();
    ASSERT_EQ(changed.size(), 1);
    EXPECT_EQ(changed.front()[0].toModelIndex().row(), 0);
    EXPECT_EQ(changed.front()[1].toModelIndex().row(), 4);
    walk.setRoot(nullptr);
    rows.show();
    rows.tellAllTicked();
    EXPECT_EQ(changed.size(), 1) << "there are no rows";
}

TEST_F(LensRowsTest, removesOnlyRemovedRows) {
    fill(8);
    recordEdits();
    for (const int at : {6, 3, 2}) home->remove(*child(at));
    rows.follow();
    EXPECT_EQ(names(), "abefh");
    EXPECT_EQ(edits, "--") << "adjacent rows are removed at once";
}

TEST_F(LensRowsTest, removesFirstAndLastRow) {
    fill(4);
    recordEdits();
    home->remove(*child(3));
    home->remove(*child(0));
    rows.follow();
    EXPECT_EQ(names(), "bc");
    home->remove(*child(1));
    home->remove(*child(0));
    rows.follow();
    EXPECT_EQ(names(), "");
    EXPECT_EQ(edits, "---");
}

TEST_F(LensRowsTest, movesShrunkFolder) {
    fill(6);
    recordEdits();
    child(1)->size = 25;
    rows.follow();
    EXPECT_EQ(names(), "acdbef");
    EXPECT_EQ(edits, ">=");
    child(0)->size = 5;
    child(2)->size = 15;
    rows.follow();
    EXPECT_EQ(names(), "dbecfa");
    EXPECT_EQ(edits.find('!'), std::string::npos);
}

TEST_F(LensRowsTest, removesEmptiedFolder) {
    fill(3);
    recordEdits();
    child(1)->size = 0;
    rows.follow();
    EXPECT_EQ(names(), "ac");
    EXPECT_EQ(edits, "-");
}

TEST_F(LensRowsTest, signalsNothingWithoutChange) {
    fill(6);
    recordEdits();
    rows.follow();
    EXPECT_EQ(edits, "");
}

TEST_F(LensRowsTest, resetsForAddedFolder) {
    fill(3);
    recordEdits();
    home->append("n", 0).size = 25;
    rows.follow();
    EXPECT_EQ(names(), "anbc");
    EXPECT_EQ(edits.back(), '!');
}

TEST_F(LensRowsTest, sortsGrownFolders) {
    fill(6);
    child(5)->size = 1'000;
    child(3)->size = 900;
    rows.follow();
    EXPECT_EQ(names(), "fdabce");
}

TEST_F(LensRowsTest, resetsForManyChanges) {
    fill(1'000);
    recordEdits();
    for (int at = 0; at < 500; ++at) home->remove(*child(at));
    rows.follow();
    EXPECT_EQ(rows.rowCount(), 500);
    EXPECT_EQ(edits.back(), '!');
    for (int row = 0; row < 500; ++row) EXPECT_EQ(text(row, LensRows::nameRole), std::to_string(2 * row + 1));
}

TEST_F(LensRowsTest, makesIconsOnDemand) {
    fill(50'000);
    EXPECT_EQ(rows.rowCount(), 50'000);
    EXPECT_EQ(icons, 0);
    EXPECT_EQ(text(49'999, LensRows::nameRole), "49999");
    rows.index(7).data(LensRows::iconRole);
    EXPECT_EQ(icons, 1);
}

TEST_F(LensRowsTest, findsRowOfNode) {
    fill(3);
    EXPECT_EQ(rows.rowOf(child(2)), 2);
    EXPECT_EQ(rows.rowOf(top), -1);
    EXPECT_EQ(rows.rowOf(nullptr), -1);
    EXPECT_EQ(rows.node(1), child(1));
    EXPECT_FALSE(rows.node(3));
    EXPECT_FALSE(rows.node(-1));
}

}  // namespace zelk
