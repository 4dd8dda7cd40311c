// SPDX-License-Identifier: MIT
#include "ui/screens/help/HelpModel.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <set>

namespace zelk {

TEST(HelpModel, gettingStartedHasGenericSymbolAndNoScreen) {
    const HelpTopic first = helpTopics().front();
    EXPECT_EQ(first.title.toStdString(), "Getting started");
    EXPECT_FALSE(first.screen.has_value());
    EXPECT_EQ(first.symbol().toStdString(), "questionmark.circle");
    EXPECT_EQ(first.tint(), QColor(245, 166, 35));
}

TEST(HelpModel, topicIdsAreUnique) {
    std::set<int> ids;
    for (const HelpTopic& topic : helpTopics()) ids.insert(topic.id);
    EXPECT_EQ(ids.size(), 12U);
}

TEST(HelpModel, showsFirstTopicWithoutSelection) {
    const HelpModel help;
    EXPECT_FALSE(help.selection().has_value());
    EXPECT_EQ(help.current(), 0);
    EXPECT_EQ(help.topic().title.toStdString(), "Getting started");
}

TEST(HelpModel, showsSelectedTopic) {
    HelpModel help;
    QSignalSpy current(&help, &HelpModel::currentChanged);
    help.select(5);
    EXPECT_EQ(help.selection(), 5);
    EXPECT_EQ(help.topic().title.toStdString(), "Lens");
    EXPECT_EQ(current.count(), 1);
}

TEST(HelpModel, selectingTheShownTopicSignalsNothing) {
    HelpModel help;
    QSignalSpy current(&help, &HelpModel::currentChanged);
    help.select(0);
    EXPECT_EQ(help.selection(), 0);
    EXPECT_EQ(current.count(), 0);
}

TEST(HelpModel, ignoresInvalidTopics) {
    HelpModel help;
    help.select(3);
    help.select(-1);
    help.select(12);
    EXPECT_EQ(help.current(), 3);
}

TEST(HelpModel, stepsThroughTopicsAndStopsAtEnds) {
    HelpModel help;
    help.selectPrevious();
    EXPECT_EQ(help.current(), 0);
    help.selectNext();
    EXPECT_EQ(help.current(), 1);
    help.selectLast();
    EXPECT_EQ(help.current(), 11);
    help.selectNext();
    EXPECT_EQ(help.current(), 11);
    help.selectPrevious();
    EXPECT_EQ(help.current(), 10);
    help.selectFirst();
    EXPECT_EQ(help.current(), 0);
}

}  // namespace zelk
