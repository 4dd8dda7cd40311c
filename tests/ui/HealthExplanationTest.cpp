// SPDX-License-Identifier: MIT
// The explanation of the health score, and what large texts do to the screen.
#include "HealthViewFixture.h"

namespace zelk {

namespace {

class HealthExplanation : public HealthViewFixture {};

}  // namespace

TEST_F(HealthExplanation, explainsScore) {
    open();
    setGrade(3);
    click("scoreInfo");
    EXPECT_TRUE(screen().showScoreInfo());
    expectTexts({"Mac Health Score",
                 "Zelk estimates your Mac's health from free disk space, memory pressure, CPU load, and battery — and "
                 "watches how it trends over time.",
                 "Excellent", "Good", "Fair", "Requires Attention", "Critical", "Learn more"});
    const auto dots = named("gradeDot");
    ASSERT_EQ(dots.size(), 5U);
    EXPECT_EQ(dots[0]->property("color").value<QColor>(), QColor(91, 200, 250));
    EXPECT_EQ(dots[4]->property("color").value<QColor>(), QColor(255, 90, 77));
    const auto rings = named("currentRing");
    ASSERT_EQ(rings.size(), 1U);
    EXPECT_EQ(rings[0]->parentItem(), dots[3]);
    QColor white(Qt::white);
    white.setAlphaF(0.6F);
    EXPECT_EQ(rings[0]->property("border").value<QObject*>()->property("color").value<QColor>(), white);
    for (std::size_t at = 0; at < dots.size(); ++at) {
        QQuickItem* row = dots[at]->parentItem();
        EXPECT_EQ(readerOf(row)->role(), QAccessible::ListItem);
        EXPECT_EQ(readerOf(row)->state().selected, at == 3) << at;
        for (QQuickItem* child : row->childItems())
            if (child->inherits("QQuickText")) {
                EXPECT_EQ(child->property("font").value<QFont>().weight(), at == 3 ? QFont::DemiBold : QFont::Normal);
            }
    }
    EXPECT_NE(symbol("arrow.right.circle.fill"), nullptr);
    EXPECT_EQ(find("learnMore")->parentItem()->parentItem()->parentItem()->width(), 300);
}

TEST_F(HealthExplanation, escapeClosesExplanationAndGivesFocusBack) {
    open();
    press(Qt::Key_Return);
    ASSERT_NE(find("learnMore"), nullptr);
    press(Qt::Key_Escape);
    EXPECT_EQ(find("learnMore"), nullptr);
    EXPECT_FALSE(screen().showScoreInfo());
    EXPECT_EQ(focusName(), "Mac Health Score");
}

TEST_F(HealthExplanation, buttonOpensAndClosesExplanation) {
    open();
    for (int times = 0; times < 2; ++times) {
        click("scoreInfo");
        EXPECT_NE(find("learnMore"), nullptr);
        click("scoreInfo");
        EXPECT_EQ(find("learnMore"), nullptr);
    }
    click("scoreInfo");
    tour::clickAt(window(), {400, 1300});
    settle();
    EXPECT_EQ(find("learnMore"), nullptr);
    EXPECT_FALSE(screen().showScoreInfo());
}

TEST_F(HealthExplanation, keyboardReachesLearnMore) {
    open();
    press(Qt::Key_Space);
    press(Qt::Key_Tab);
    EXPECT_EQ(focusName(), "Learn more");
    press(Qt::Key_Return);
    EXPECT_EQ(helps, 1);
    EXPECT_FALSE(screen().showScoreInfo());
    EXPECT_EQ(find("learnMore"), nullptr);
    EXPECT_EQ(focusName(), "Mac Health Score");
    press(Qt::Key_Space);
    press(Qt::Key_Tab);
    press(Qt::Key_Tab);
    EXPECT_TRUE(focusName() == "Learn more" || !screen().showScoreInfo()) << "it is not left open behind";
}

TEST_F(HealthExplanation, explanationGoesWithItsScreen) {
    open();
    click("scoreInfo");
    view().setVisible(false);
    settle();
    EXPECT_FALSE(screen().showScoreInfo());
    view().setVisible(true);
    settle();
    EXPECT_EQ(find("learnMore"), nullptr);
}

TEST_F(HealthExplanation, clipsNothingInLargeText) {
    machine.vitals.powerInfo = PowerInfo{true, 100, true, true};
    machine.vitals.deviceInfo.chip =
        "Some Vendor(R) Processor(TM) with a long name and 128 cores @ 3.60GHz, revision 7";
    answer("The caches were dropped, and this is a line that is longer than the window is wide at this size of text.");
    singleton<TextScale>("TextScale").setFactor(1.5);
    open({726, 560});
    screen().flushDNS();
    untilIdle();
    settle();
    find("healthScroll")->setProperty("contentY", 0);  // nothing is below the header
    settle();
    ASSERT_EQ(named("healthOutput").size(), 1U);
    expectNoTextClipped();
    for (int place = 0; place < 5; ++place) {
        setGrade(place);
        expectNoTextClipped();
    }
    find("scoreInfo")->forceActiveFocus();
    press(Qt::Key_Return);
    ASSERT_NE(find("learnMore"), nullptr);
    const QQuickItem* more = find("learnMore");
    EXPECT_LE(more->mapRectToScene(more->boundingRect()).bottom(), 560);
}

}  // namespace zelk
