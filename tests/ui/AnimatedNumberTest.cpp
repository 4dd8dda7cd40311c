// SPDX-License-Identifier: MIT
// The text of a number, its animation, and its accessible name meanwhile.
#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QSignalSpy>
#include <array>
#include <cmath>
#include <limits>

#include "ViewFixture.h"
#include "ui/controls/NumberItem.h"

namespace zelk {

namespace {

constexpr double noNumber = std::numeric_limits<double>::quiet_NaN();
constexpr int longRun = 1'000'000;  // milliseconds: the clock of the test moves it no further than the test does

double widthOf(const QString& text) {
    const std::vector<FigurePiece> pieces = layOutFigure(text, QGuiApplication::font());
    return pieces.empty() ? 0 : pieces.back().x + pieces.back().width;
}

/// An item outside of any window, which counts as visible.
class AnimatedNumber : public testing::Test {
protected:
    /// Jumps to `from` and starts animating to `to`.
    void run(double from, double to, NumberItem::Format format = NumberItem::Bytes) {
        item.setFormat(format);
        item.setDuration(0);
        item.setValue(from);
        item.setDuration(longRun);
        item.setValue(to);
    }
    QVariantAnimation& animation() { return *item.findChild<QVariantAnimation*>(); }
    bool running() { return animation().state() == QAbstractAnimation::Running; }
    /// Advances the animation to this share of its time. At 0.5 it has covered seven eighths of the distance.
    void pass(double share) { animation().setCurrentTime(static_cast<int>(std::lround(share * longRun))); }
    std::string shown() { return item.shown().toStdString(); }
    std::string text() { return item.text().toStdString(); }

    NumberItem item;
};

/// One number in the theme's look, in a window.
class AnimatedNumberWindow : public ViewFixture {
protected:
    void open() {
        singleton<Motion>("Motion").setReduced(false);
        show(QStringLiteral("import QtQuick\nimport Zelk.Controls\n"
                            "Item { AnimatedNumber { objectName: 'number'; value: 5e6 } }"),
             {200, 100});
    }
    NumberItem& number() { return *qobject_cast<NumberItem*>(find("number")); }
    QVariantAnimation& animation() { return *number().findChild<QVariantAnimation*>(); }
};

}  // namespace

TEST(AnimatedNumberText, widthIsIndependentOfDigits) {
    EXPECT_DOUBLE_EQ(widthOf(QStringLiteral("111,111 items")), widthOf(QStringLiteral("888,888 items")));
    EXPECT_GT(widthOf(QStringLiteral("1,111 items")), widthOf(QStringLiteral("111 items")));
    EXPECT_DOUBLE_EQ(widthOf(QString()), 0);
}

TEST(AnimatedNumberText, keepsWordsWhole) {
    const std::vector<FigurePiece> pieces = layOutFigure(QStringLiteral("1.5 GB"), QGuiApplication::font());
    ASSERT_EQ(pieces.size(), 4U);
    EXPECT_EQ(pieces[0].text, QStringLiteral("1"));
    EXPECT_EQ(pieces[1].text, QStringLiteral("."));
    EXPECT_EQ(pieces[2].text, QStringLiteral("5"));
    EXPECT_EQ(pieces[3].text, QStringLiteral(" GB"));
    EXPECT_DOUBLE_EQ(pieces[3].x, pieces[0].width + pieces[1].width + pieces[2].width);
}

TEST(AnimatedNumberText, followsFormatAndLocale) {
    const QLocale american(QLocale::English, QLocale::UnitedStates);
    const QLocale german(QLocale::German, QLocale::Germany);
    struct Expected {
        double value;
        NumberItem::Format format;
        const char* american;
        const char* german;
    };
    const Expected table[] = {
        {0, NumberItem::Bytes, "0 bytes", "0 bytes"},
        {-7, NumberItem::Bytes, "0 bytes", "0 bytes"},
        {1.25e9, NumberItem::Bytes, "1.25 GB", "1,25 GB"},
        {999.5, NumberItem::Bytes, "1 KB", "1 KB"},
        {999'999'999'999'999.0, NumberItem::Bytes, "1 PB", "1 PB"},
        {12'345'678, NumberItem::Count, "12,345,678", "12.345.678"},
        {1233.6, NumberItem::Count, "1,234", "1.234"},
        {-1234, NumberItem::Count, "-1,234", "-1.234"},
        {61.5, NumberItem::Percent, "62%", "62%"},
    };
    for (const Expected& expected : table) {
        EXPECT_EQ(NumberItem::write(expected.value, expected.format, american).toStdString(), expected.american);
        EXPECT_EQ(NumberItem::write(expected.value, expected.format, german).toStdString(), expected.german);
    }
}

TEST(AnimatedNumberText, staysInRangeForHugeNumbers) {
    const QLocale american(QLocale::English, QLocale::UnitedStates);
    EXPECT_EQ(NumberItem::write(1e30, NumberItem::Bytes, american), QStringLiteral("9.22 EB"));
    EXPECT_EQ(NumberItem::write(0x1p63, NumberItem::Count, american), QStringLiteral("9,223,372,036,854,775,807"));
    EXPECT_EQ(NumberItem::write(-1e30, NumberItem::Count, american), QStringLiteral("-9,223,372,036,854,775,808"));
}

TEST_F(AnimatedNumber, implicitSizeIsThatOfText) {
    item.setPixelSize(28);
    item.setValue(12.34e9);
    const double wide = item.implicitWidth();
    EXPECT_GT(wide, 80);
    EXPECT_GE(item.implicitHeight(), 28);
    item.setValue(43.21e9);
    EXPECT_DOUBLE_EQ(item.implicitWidth(), wide);
    item.setPhrase(QStringLiteral("%1 free"));
    EXPECT_GT(item.implicitWidth(), wide);
}

TEST_F(AnimatedNumber, jumpsWithoutDuration) {
    item.setValue(900e6);
    EXPECT_EQ(shown(), "900 MB");
    item.setValue(1.2e9);
    EXPECT_EQ(shown(), "1.2 GB");
    EXPECT_FALSE(running());
}

TEST_F(AnimatedNumber, showsFirstValueAtOnce) {
    item.setDuration(longRun);
    item.setValue(900e6);
    EXPECT_EQ(shown(), "900 MB");
    EXPECT_FALSE(running());
}

TEST_F(AnimatedNumber, animatesAcrossUnits) {
    run(900e6, 1.2e9);
    EXPECT_EQ(shown(), "900 MB");
    pass(0.1);
    EXPECT_EQ(shown(), "981.3 MB");
    pass(0.5);
    EXPECT_EQ(shown(), "1.16 GB");
    pass(1);
    EXPECT_EQ(shown(), "1.2 GB");
    EXPECT_FALSE(running());
}

TEST_F(AnimatedNumber, animatesDownwards) {
    run(2e9, 500e3);
    pass(0.5);
    EXPECT_EQ(shown(), "250.4 MB");
    pass(1);
    EXPECT_EQ(shown(), "500 KB");
}

TEST_F(AnimatedNumber, neverOvershootsOrReverses) {
    run(0, 1000, NumberItem::Count);
    double last = 0;
    for (int step = 1; step <= 100; ++step) {
        pass(step / 100.0);
        const double now = QLocale(QLocale::English, QLocale::UnitedStates).toDouble(item.shown());
        EXPECT_GE(now, last);
        last = now;
    }
    EXPECT_EQ(last, 1000);
}

TEST_F(AnimatedNumber, endsExactlyAtValue) {
    run(7, 9'007'199'254'740'991, NumberItem::Count);
    pass(1);
    EXPECT_EQ(shown(), "9,007,199,254,740,991");
    run(9.2e18, 0x1p63);
    pass(0.5);
    EXPECT_EQ(shown(), "9.22 EB");
}

TEST_F(AnimatedNumber, sameTargetDoesNotRestart) {
    run(0, 1000, NumberItem::Count);
    pass(0.5);
    item.setValue(1000);
    EXPECT_EQ(animation().currentTime(), longRun / 2);
    EXPECT_EQ(shown(), "875");
}

TEST_F(AnimatedNumber, newTargetStartsAtShownNumber) {
    run(0, 1000, NumberItem::Count);
    pass(0.5);
    item.setValue(75);
    EXPECT_EQ(shown(), "875");
    EXPECT_EQ(animation().currentTime(), 0);
    pass(0.5);
    EXPECT_EQ(shown(), "175");
    pass(1);
    EXPECT_EQ(shown(), "75");
}

TEST_F(AnimatedNumber, keepsSurroundingPhrase) {
    item.setPhrase(QStringLiteral("%1 items"));
    run(1200, 2000, NumberItem::Count);
    EXPECT_EQ(shown(), "1,200 items");
    pass(0.5);
    EXPECT_EQ(shown(), "1,900 items");
    item.setPhrase(QStringLiteral("all %1 items"));
    EXPECT_EQ(text(), "all 2,000 items");
    pass(0.75);
    EXPECT_EQ(shown(), "all 1,988 items");
}

TEST_F(AnimatedNumber, showsPhraseAloneWithoutValue) {
    item.setPhrase(QStringLiteral("all of %1"));
    EXPECT_EQ(shown(), "all of %1");
    EXPECT_EQ(text(), "all of %1");
    item.setPhrase(QStringLiteral("3 GB  +2 GB"));
    EXPECT_EQ(shown(), "3 GB  +2 GB");
    item.setPhrase(QString());
    EXPECT_EQ(shown(), "");
}

TEST_F(AnimatedNumber, doesNotAnimateFromOrToNoValue) {
    run(noNumber, 5, NumberItem::Count);
    EXPECT_EQ(shown(), "5");
    item.setPhrase(QStringLiteral("%1 of 9"));
    item.setValue(8);
    item.setValue(noNumber);
    EXPECT_EQ(shown(), "%1 of 9");
    EXPECT_FALSE(running());
    QSignalSpy changes(&item, &NumberItem::valueChanged);
    item.setValue(noNumber);
    EXPECT_TRUE(changes.isEmpty());
}

TEST_F(AnimatedNumber, textIsFinalFromStart) {
    run(900e6, 1e9);
    QSignalSpy changes(&item, &NumberItem::textChanged);
    item.setValue(1.2e9);
    EXPECT_EQ(text(), "1.2 GB");
    pass(0.5);
    EXPECT_NE(shown(), "1.2 GB");
    pass(1);
    EXPECT_EQ(text(), "1.2 GB");
    EXPECT_EQ(changes.size(), 1);
    item.setValue(1.2e9 + 1);
    EXPECT_EQ(changes.size(), 1) << "reads the same";
}

TEST_F(AnimatedNumber, stopsWhenHidden) {
    run(10e3, 90e3);
    EXPECT_EQ(shown(), "10 KB");
    item.setVisible(false);
    EXPECT_EQ(shown(), "90 KB");
    item.setValue(20e3);
    EXPECT_EQ(shown(), "20 KB");
    item.setVisible(true);
    EXPECT_EQ(shown(), "20 KB");
    EXPECT_FALSE(running());
}

TEST_F(AnimatedNumber, clearingDurationEndsAnimation) {
    run(10e3, 90e3);
    pass(0.5);
    item.setDuration(0);
    EXPECT_EQ(shown(), "90 KB");
    EXPECT_FALSE(running());
}

TEST_F(AnimatedNumber, limitsTextChangesToInterval) {
    item.setInterval(longRun);
    run(0, 1000, NumberItem::Count);
    pass(0.5);
    EXPECT_EQ(shown(), "0");
    item.setValue(2000);
    pass(0.5);
    EXPECT_EQ(shown(), "0");
    item.setInterval(0);
    pass(0.75);
    // From 875, where the number was when its target changed, and not from the 0 on screen.
    EXPECT_EQ(shown(), "1,982");
    item.setInterval(longRun);
    pass(1);
    EXPECT_EQ(shown(), "2,000") << "the last text is not late";
}

TEST_F(AnimatedNumberWindow, usesInkAndHalfASecond) {
    open();
    EXPECT_EQ(number().color(), singleton<Theme>("Theme").ink());
    EXPECT_EQ(number().pixelSize(), 13);
    EXPECT_EQ(number().shown(), QStringLiteral("5 MB"));
    EXPECT_EQ(animation().state(), QAbstractAnimation::Stopped) << "nothing changed since it was made";
    number().setValue(9e6);
    EXPECT_EQ(animation().state(), QAbstractAnimation::Running);
    EXPECT_EQ(animation().duration(), 500);
    runUntil([&] { return number().shown() == QStringLiteral("9 MB"); });
}

TEST_F(AnimatedNumberWindow, jumpsWithReducedMotion) {
    open();
    number().setValue(9e6);
    singleton<Motion>("Motion").setReduced(true);
    EXPECT_EQ(number().shown(), QStringLiteral("9 MB"));
    number().setValue(2e6);
    EXPECT_EQ(number().shown(), QStringLiteral("2 MB"));
}

TEST_F(AnimatedNumberWindow, accessibleNameSkipsIntermediateValues) {
    open();
    number().setValue(9e6);
    EXPECT_EQ(nameOf(&number()), "9 MB");
    EXPECT_EQ(number().shown(), QStringLiteral("5 MB"));
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&number())->role(), QAccessible::Paragraph);
}

TEST_F(AnimatedNumberWindow, jumpsBelowHiddenAncestor) {
    open();
    NumberItem& hidden = number();
    hidden.parentItem()->setVisible(false);
    hidden.setValue(9e6);
    EXPECT_EQ(hidden.shown(), QStringLiteral("9 MB"));
}

}  // namespace zelk
