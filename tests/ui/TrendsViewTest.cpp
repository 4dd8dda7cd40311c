// SPDX-License-Identifier: MIT
// The Trends card and the "What changed" sheet: sizes, colours and positions.
#include "ViewFixture.h"
#include "ui/charts/SparklinePicture.h"
#include "ui/screens/overview/TrendsModel.h"

namespace zelk {

namespace {

constexpr std::int64_t gigabyte = 1'000'000'000;

class TrendsWindow : public ViewFixture {
protected:
    ~TrendsWindow() override { close(); }

    /// Surveys twice, ten days apart: one folder grew by 3 GB, one of 2 GB appeared, one of 1 GB vanished, and 40 GB
    /// are free.
    void open() {
        model().setAppearance(AppModel::Appearance::dark);
        machine.vitals.setVolume(home, VolumeInfo{100 * gigabyte, 44 * gigabyte, 44 * gigabyte});
        machine.directories.file(home + "/grown/a", gigabyte);
        machine.directories.file(home + "/left/b", gigabyte);
        survey();
        machine.clock.advance(10 * secondsPerDay);
        machine.vitals.setVolume(home, VolumeInfo{100 * gigabyte, 40 * gigabyte, 40 * gigabyte});
        machine.directories.file(home + "/grown/c", 3 * gigabyte);
        machine.directories.file(home + "/come/d", 2 * gigabyte);
        machine.directories.unreadable(home + "/left");
        survey();
        show(QStringLiteral("import QtQuick\nimport Zelk.App\nItem { id: page; property TrendsModel trends\n"
                            "TrendsCard { objectName: 'card'; width: 700; trends: page.trends } }"),
             {700, 620}, {{QStringLiteral("trends"), QVariant::fromValue(&trends)}});
    }

    QColor colorOf(const char* text) { return showing(text)->property("color").value<QColor>(); }
    double top(const QQuickItem* item) { return item->mapToScene({}).y(); }
    Theme& theme() { return singleton<Theme>("Theme"); }

    TrendsModel trends{model()};
};

}  // namespace

TEST_F(TrendsWindow, cardShowsFiguresCurveAndChangesButton) {
    open();
    EXPECT_EQ(find("card")->property("padding").toDouble(), 18);
    EXPECT_EQ(sizeOf("Trends"), 10);
    const SymbolItem* arrow = symbol("arrow.up.right");
    ASSERT_NE(arrow, nullptr);
    EXPECT_EQ(arrow->size(), 13);
    EXPECT_EQ(arrow->color(), theme().alert());
    EXPECT_EQ(nameOf(symbol("arrow.up.right")), "grew");
    EXPECT_EQ(sizeOf("4 GB"), 20);
    EXPECT_EQ(sizeOf("since your last scan · 2 tracked"), 11);
    EXPECT_EQ(sizeOf("≈ 100 days until full at this rate"), 11);
    EXPECT_EQ(colorOf("≈ 100 days until full at this rate"), theme().inkSoft());
    EXPECT_EQ(sizeOf("What changed since last scan"), 12);

    const SymbolItem* clock = symbol("clock.arrow.circlepath");
    ASSERT_NE(clock, nullptr);
    EXPECT_TRUE(find("changesButton")->isAncestorOf(clock));
    const QQuickItem* curve = nullptr;
    for (QQuickItem* item : seen())
        if (qobject_cast<SparklinePicture*>(item) != nullptr) curve = item;
    ASSERT_NE(curve, nullptr);
    EXPECT_EQ(curve->size(), QSizeF(200, 46));
    EXPECT_LT(top(showing("Trends")), top(showing("4 GB")));
    EXPECT_LT(top(showing("4 GB")), top(showing("≈ 100 days until full at this rate")));
    EXPECT_LT(top(showing("≈ 100 days until full at this rate")), top(find("changesButton")));
}

TEST_F(TrendsWindow, sheetListsFoldersInSections) {
    open();
    click("changesButton");
    EXPECT_EQ(sizeOf("What changed"), 17);
    EXPECT_EQ(sizeOf("since your previous survey"), 11);
    double above = top(showing("since your previous survey"));
    for (const char* name : {"Grew (2)", "me", "grown", "Appeared (1)", "come", "Vanished (1)", "left"}) {
        ASSERT_NE(showing(name), nullptr) << name;
        EXPECT_GT(top(showing(name)), above) << name;
        above = top(showing(name));
    }
    EXPECT_EQ(colorOf("Grew (2)"), QColor(62, 155, 255));
    EXPECT_EQ(colorOf("Appeared (1)"), QColor(50, 199, 123));
    EXPECT_EQ(colorOf("Vanished (1)"), theme().inkSoft());
    EXPECT_EQ(sizeOf("/home/me/grown"), 9);
    EXPECT_GT(top(showing("/home/me/grown")), top(showing("grown")));
    std::vector<QColor> folders;
    for (QQuickItem* item : seen()) {
        const auto* folder = qobject_cast<SymbolItem*>(item);
        if (folder == nullptr || folder->name() != QStringLiteral("folder.fill")) continue;
        EXPECT_EQ(folder->size(), sideBesideText(12));
        folders.push_back(folder->color());
    }
    EXPECT_EQ(folders, (std::vector<QColor>{{62, 155, 255}, {62, 155, 255}, {50, 199, 123}, theme().inkSoft()}));

    model().setAppearance(AppModel::Appearance::light);
    settle();
    EXPECT_EQ(colorOf("Vanished (1)"), theme().textOn(theme().inkSoft(), theme().textGround()));
}

TEST_F(TrendsWindow, sheetReportsNoChanges) {
    open();
    click("changesButton");
    survey();  // finds the folders unchanged
    settle();
    EXPECT_EQ(sizeOf("No notable folder changes since the last survey."), 13);
}

TEST_F(TrendsWindow, theArrowOfTheCardIsBold) {
    open();
    const SymbolItem* arrow = symbol("arrow.up.right");
    ASSERT_NE(arrow, nullptr);
    EXPECT_EQ(arrow->weight(), QFont::Bold);
}

TEST_F(TrendsWindow, arrowOfShrinkagePointsDownInGreen) {
    open();
    machine.directories.unreadable(home + "/grown");
    survey();
    settle();
    const SymbolItem* arrow = symbol("arrow.down.right");
    ASSERT_NE(arrow, nullptr);
    EXPECT_EQ(arrow->color(), QColor(50, 199, 123));
    EXPECT_EQ(nameOf(symbol("arrow.down.right")), "shrank");
}

TEST_F(TrendsWindow, nearForecastIsInTheAlertColourOfTheTheme) {
    open();
    machine.clock.advance(10 * secondsPerDay);
    machine.vitals.setVolume(home, VolumeInfo{100 * gigabyte, gigabyte, gigabyte});
    survey();
    ASSERT_TRUE(trends.alarming());
    for (const auto appearance : {AppModel::Appearance::dark, AppModel::Appearance::light}) {
        model().setAppearance(appearance);
        settle();
        const std::string forecast = trends.forecast().toStdString();
        ASSERT_NE(showing(forecast.c_str()), nullptr) << forecast;
        EXPECT_EQ(colorOf(forecast.c_str()).rgba(), theme().alertText().rgba());
    }
}

}  // namespace zelk
