// SPDX-License-Identifier: MIT
#include "ui/screens/tools/ToolsScreenModel.h"

#include <array>

#include "state/AppModelFixture.h"

namespace zelk {

namespace {

class ToolsScreen : public AppModelFixture {
protected:
    ToolsScreenModel tools{model()};
};

}  // namespace

TEST_F(ToolsScreen, namesWholeRowForScreenReader) {
    EXPECT_EQ(tools.tools()[1].spoken().toStdString(),
              "Reclaim. Find caches, logs, and developer junk, grouped by safety. clear it to the Trash");
    EXPECT_EQ(tools.tools()[5].spoken().toStdString(), "Health. Live disk, memory, CPU, and battery gauges.");
}

TEST_F(ToolsScreen, pressSelectsScreenOfTheRow) {
    constexpr std::array screens{Screen::survey, Screen::reclaim, Screen::lens,    Screen::clutter, Screen::duplicates,
                                 Screen::health, Screen::apps,    Screen::privacy, Screen::tune,    Screen::system};
    ASSERT_EQ(tools.tools().size(), static_cast<qsizetype>(screens.size()));
    for (int row = 0; row < 10; ++row) {
        tools.press(row);
        EXPECT_EQ(model().selection(), screens[static_cast<std::size_t>(row)]);
        EXPECT_EQ(tools.tools()[row].look(), lookOf(model().selection()));
    }
}

TEST_F(ToolsScreen, ignoresPressOnUnknownRow) {
    model().setSelection(Screen::tools);
    tools.press(-1);
    tools.press(10);
    EXPECT_EQ(model().selection(), Screen::tools);
}

}  // namespace zelk
