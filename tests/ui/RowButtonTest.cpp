// SPDX-License-Identifier: MIT
// The button of a row: what the pointer and a screen reader do with it, and how it looks meanwhile.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QSignalSpy>
#include <QTest>

#include "ViewFixture.h"
#include "ui/theme/TextScale.h"
#include "ui/theme/Theme.h"

namespace zelk {
namespace {

class RowButtonTest : public ViewFixture {
protected:
    RowButtonTest() {
        show(QStringLiteral(R"(
            import QtQuick
            import Zelk.Controls
            FocusScope {
                focus: true
                RowButton {
                    objectName: "button"
                    x: 40; y: 40
                    symbol: "ellipsis.circle"
                    text: "Actions"
                }
            })"),
             {200, 120});
    }

    QQuickItem& button() { return *find("button"); }
    QPoint middle() { return button().mapToScene(button().boundingRect().center()).toPoint(); }
    QQuickItem& ground() { return *button().childItems().at(0); }
    QQuickItem& symbol() { return *button().childItems().at(1); }
    Theme& theme() { return singleton<Theme>("Theme"); }
    void pointAt(QPoint point) {
        QTest::mouseMove(&window(), point);
        settle();
    }
};

}  // namespace

TEST_F(RowButtonTest, clicksWhenItIsReleased) {
    const QSignalSpy clicks(&button(), SIGNAL(clicked()));
    QTest::mousePress(&window(), Qt::LeftButton, {}, middle());
    EXPECT_EQ(clicks.count(), 0);
    QTest::mouseRelease(&window(), Qt::LeftButton, {}, middle());
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(RowButtonTest, doesNotClickWhenItIsReleasedElsewhere) {
    const QSignalSpy clicks(&button(), SIGNAL(clicked()));
    QTest::mousePress(&window(), Qt::LeftButton, {}, middle());
    QTest::mouseMove(&window(), {5, 5});
    QTest::mouseRelease(&window(), Qt::LeftButton, {}, {5, 5});
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(RowButtonTest, leavesTheOtherButtonsToItsRow) {
    const QSignalSpy clicks(&button(), SIGNAL(clicked()));
    QTest::mouseClick(&window(), Qt::RightButton, {}, middle());
    QTest::mouseClick(&window(), Qt::MiddleButton, {}, middle());
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(RowButtonTest, isPressedByScreenReaders) {
    const QSignalSpy clicks(&button(), SIGNAL(clicked()));
    QAccessibleInterface* const said = QAccessible::queryAccessibleInterface(&button());
    EXPECT_EQ(said->role(), QAccessible::Button);
    EXPECT_EQ(said->text(QAccessible::Name), QStringLiteral("Actions"));
    EXPECT_FALSE(said->state().focusable);
    said->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(RowButtonTest, takesNoFocus) {
    const QQuickItem* const before = window().activeFocusItem();
    QTest::mouseClick(&window(), Qt::LeftButton, {}, middle());
    EXPECT_EQ(window().activeFocusItem(), before);
    press(Qt::Key_Tab);
    EXPECT_FALSE(button().hasActiveFocus());
}

TEST_F(RowButtonTest, showsThePointerAndThePress) {
    pointAt({5, 5});
    EXPECT_EQ(symbol().property("color").value<QColor>(), theme().current().inkSoft);
    EXPECT_EQ(ground().property("color").value<QColor>().alpha(), 0);
    pointAt(middle());
    EXPECT_EQ(window().cursor().shape(), Qt::PointingHandCursor);
    EXPECT_EQ(symbol().property("color").value<QColor>(), theme().current().ink);
    EXPECT_EQ(ground().property("color").value<QColor>(), theme().hoverWash());
    QTest::mousePress(&window(), Qt::LeftButton, {}, middle());
    EXPECT_EQ(ground().property("color").value<QColor>(), theme().pressWash());
    QTest::mouseRelease(&window(), Qt::LeftButton, {}, middle());
}

TEST_F(RowButtonTest, growsWithTheTextAndTellsHowFarItOverhangs) {
    for (const double factor : {1.0, 1.5}) {
        singleton<TextScale>("TextScale").setFactor(factor);
        settle();
        EXPECT_EQ(button().width(), factor == 1 ? 30 : 46);
        EXPECT_EQ(button().height(), button().width());
        EXPECT_EQ(symbol().width(), 16 * factor);
        EXPECT_EQ(button().property("overhang").toDouble(), symbol().x());
    }
}

}  // namespace zelk
