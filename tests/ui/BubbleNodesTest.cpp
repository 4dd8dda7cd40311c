// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractItemModelTester>

#include "BubbleChartFixture.h"

namespace zelk {

namespace {

using testing::ElementsAre;

class BubbleAccessibility : public BubbleChartFixture {};

}  // namespace

TEST_F(BubbleAccessibility, bubblesAreNodesWithNameSizeAndShare) {
    EXPECT_THAT(nodeNames(), ElementsAre("node_modules, 1.2 GB, 60% of the map", "Caches, 600 MB, 30% of the map",
                                         "Logs, 200 MB, 10% of the map", "crumbs, 1 MB, less than 1% of the map"));
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&chart())->text(QAccessible::Name),
              QStringLiteral("Map of Library"));
    const PackedCircle& there = circle("Caches");
    const QRect box = nodes()[1]->rect().translated(-window().position());
    EXPECT_NEAR(box.center().x(), there.center.x, 2);
    EXPECT_NEAR(box.width(), 2 * there.radius, 2);
}

TEST_F(BubbleAccessibility, pressingANodeTapsItsBubble) {
    nodes()[2]->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_THAT(actions, ElementsAre("tap Logs"));
}

TEST_F(BubbleAccessibility, nodesFollowTheSlices) {
    auto next = slicesWith([](auto& slices) {
        slices[1].selected = true;
        slices[1].reclaimable = true;
        slices[1].label = QStringLiteral("Cached things");
    });
    bubbles.setSlices(next);
    EXPECT_EQ(nodes()[1]->text(QAccessible::Name), QStringLiteral("Cached things, 600 MB, 30% of the map"));
    EXPECT_EQ(nodes()[1]->text(QAccessible::Description), QStringLiteral("reclaimable"));
    EXPECT_TRUE(nodes()[1]->state().selected);
    EXPECT_FALSE(nodes()[0]->state().selected);
    bubbles.setSlices({first[2]});
    EXPECT_THAT(nodeNames(), ElementsAre("Logs, 200 MB, 100% of the map"));
}

TEST_F(BubbleAccessibility, currentBubbleHasFocusedState) {
    const auto focused = [&] {
        std::vector<bool> states;
        for (const QAccessibleInterface* node : nodes()) states.push_back(node->state().focused);
        return states;
    };
    EXPECT_THAT(focused(), ElementsAre(false, false, false, false));
    tabTo();
    EXPECT_THAT(focused(), ElementsAre(true, false, false, false));
    press(Qt::Key_End);
    EXPECT_THAT(focused(), ElementsAre(false, false, false, true));
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&chart())->text(QAccessible::Description),
              QStringLiteral("crumbs, 1 MB, less than 1% of the map"));
}

TEST(BubbleNodes, updatesRowsInPlace) {
    BubbleNodes rows;
    const QAbstractItemModelTester tester(&rows, QAbstractItemModelTester::FailureReportingMode::Fatal);
    int made = 0;
    int changed = 0;
    QObject::connect(&rows, &BubbleNodes::rowsInserted, [&] { ++made; });
    QObject::connect(&rows, &BubbleNodes::dataChanged, [&] { ++changed; });
    std::vector<BubbleNode> nodes(3);
    rows.show(nodes);
    nodes[1].box = {1, 2, 3, 3};
    rows.show(nodes);
    EXPECT_EQ(made, 1);
    EXPECT_EQ(changed, 1);
    nodes.pop_back();
    rows.show(nodes);
    EXPECT_EQ(rows.rowCount(), 2);
}

}  // namespace zelk
