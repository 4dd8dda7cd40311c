// SPDX-License-Identifier: MIT
#include "ui/shell/SidebarModel.h"

#include <gmock/gmock.h>

#include <QSignalSpy>

#include "state/AppModelFixture.h"
#include "ui/theme/ScreenLook.h"

namespace zelk {

namespace {

using testing::ElementsAre;

class Sidebar : public AppModelFixture {
protected:
    static std::vector<std::string> texts(const SidebarRows& rows, int role) {
        std::vector<std::string> texts;
        for (int row = 0; row < rows.rowCount(); ++row)
            texts.push_back(rows.data(rows.index(row), role).toString().toStdString());
        return texts;
    }
    static std::vector<int> selected(const SidebarRows& rows) {
        std::vector<int> places;
        for (int row = 0; row < rows.rowCount(); ++row)
            if (rows.data(rows.index(row), SidebarRows::selectedRole).toBool()) places.push_back(row);
        return places;
    }

    SidebarModel sidebar{model()};
};

}  // namespace

TEST_F(Sidebar, groupsModulesAndPutsRestAtTheFoot) {
    EXPECT_THAT(texts(*sidebar.modules(), SidebarRows::titleRole),
                ElementsAre("Overview", "Reclaim", "Privacy", "Tune", "Apps", "Clutter", "Duplicates", "Lens", "Health",
                            "System"));
    EXPECT_THAT(texts(*sidebar.modules(), SidebarRows::headingRole),
                ElementsAre("", "Clean", "", "", "Manage", "", "", "Explore", "", ""));
    EXPECT_THAT(texts(*sidebar.foot(), SidebarRows::titleRole), ElementsAre("Tools", "Settings"));
    EXPECT_THAT(texts(*sidebar.foot(), SidebarRows::headingRole), ElementsAre("", ""));
}

TEST_F(Sidebar, rowsHaveSymbolAndColourOfTheirScreen) {
    for (SidebarRows* rows : {sidebar.modules(), sidebar.foot()})
        for (int row = 0; row < rows->rowCount(); ++row) {
            const ScreenLook& look = lookOf(rows->screenAt(row));
            EXPECT_EQ(rows->data(rows->index(row), SidebarRows::symbolRole).toString(), look.symbol);
            EXPECT_EQ(rows->data(rows->index(row), SidebarRows::tintRole).value<QColor>(), look.color);
        }
}

TEST_F(Sidebar, pressSelectsScreenOfTheRow) {
    sidebar.modules()->press(7);
    EXPECT_EQ(model().selection(), Screen::lens);
    sidebar.foot()->press(1);
    EXPECT_EQ(model().selection(), Screen::settings);
}

TEST_F(Sidebar, ignoresPressOnUnknownRow) {
    sidebar.modules()->press(-1);
    sidebar.modules()->press(10);
    EXPECT_EQ(model().selection(), Screen::survey);
}

TEST_F(Sidebar, selectionUpdatesOnlyAffectedRows) {
    EXPECT_THAT(selected(*sidebar.modules()), ElementsAre(0));
    QSignalSpy changes(sidebar.modules(), &SidebarRows::dataChanged);
    model().setSelection(Screen::apps);
    EXPECT_THAT(selected(*sidebar.modules()), ElementsAre(4));
    EXPECT_EQ(changes.count(), 2);
    model().setSelection(Screen::tools);
    EXPECT_THAT(selected(*sidebar.modules()), ElementsAre());
    EXPECT_THAT(selected(*sidebar.foot()), ElementsAre(0));
}

TEST_F(Sidebar, keepsAllRowsWhenCollapsed) {
    const QSignalSpy rowsGone(sidebar.modules(), &SidebarRows::rowsRemoved);
    EXPECT_FALSE(sidebar.collapsed());
    EXPECT_EQ(sidebar.width(), 234);
    sidebar.toggleCollapsed();
    EXPECT_TRUE(sidebar.collapsed());
    EXPECT_EQ(sidebar.width(), 60);
    EXPECT_EQ(rowsGone.count(), 0);
    EXPECT_EQ(sidebar.modules()->rowCount() + sidebar.foot()->rowCount(), 12);
}

TEST_F(Sidebar, developerSwitchSetsAudience) {
    QSignalSpy changes(&sidebar, &SidebarModel::developerChanged);
    EXPECT_FALSE(sidebar.developer());
    sidebar.setDeveloper(true);
    EXPECT_EQ(model().audience(), AppModel::Audience::developer);
    model().setAudience(AppModel::Audience::normal);
    EXPECT_FALSE(sidebar.developer());
    EXPECT_EQ(changes.count(), 2);
}

}  // namespace zelk
