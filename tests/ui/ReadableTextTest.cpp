// SPDX-License-Identifier: MIT
// Small coloured text can be read wherever it stands, in both themes.
#include "Readable.h"
#include "ViewFixture.h"
#include "ui/theme/FileTypeLook.h"
#include "ui/theme/SafetyLook.h"
#include "ui/theme/ScreenLook.h"

namespace zelk {

namespace {

class ReadableText : public ViewFixture {
protected:
    Theme& theme() { return singleton<Theme>("Theme"); }
    void setDark(bool dark) {
        model().setAppearance(dark ? AppModel::Appearance::dark : AppModel::Appearance::light);
        settle();
    }

    /// Every colour of a role that a text may have in the theme in use.
    std::vector<QColor> tints() {
        const ZelkTheme& current = theme().current();
        std::vector<QColor> all{current.accent, current.alert, current.inkSoft};
        for (const ReclaimSafety safety : {ReclaimSafety::safe, ReclaimSafety::regenerates, ReclaimSafety::review})
            all.push_back(colorOf(safety));
        for (const Screen screen : allScreens) all.push_back(lookOf(screen).color);
        for (const FileType type : allFileTypes) all.emplace_back(lookOf(type, current).color.rgb());
        return all;
    }
    std::vector<QColor> grounds() {
        const ZelkTheme& current = theme().current();
        return {current.ground, current.groundHi, current.surface, current.surfaceHi};
    }
};

}  // namespace

TEST_F(ReadableText, tagsOfEveryTintHaveAContrastOfFourAndAHalf) {
    show(QStringLiteral("import QtQuick\nimport Zelk.Controls\n"
                        "Item { Tag { objectName: 'tag'; text: 'review'; ink: 'red' } }"),
         {200, 100});
    QQuickItem* tag = find("tag");
    ASSERT_NE(tag, nullptr);
    for (const bool dark : {true, false}) {
        setDark(dark);
        for (const QColor& role : tints())
            for (const double opacity : {0.2, 0.22}) {
                tag->setProperty("ink", role);
                tag->setProperty("tint", opacity);
                const QColor fill = tag->property("color").value<QColor>();
                EXPECT_EQ(fill.rgb(), role.rgb()) << "the fill keeps the colour of its role";
                EXPECT_NEAR(fill.alphaF(), opacity, 0.001);
                const QColor word = showing("review")->property("color").value<QColor>();
                for (const QColor& ground : grounds())
                    EXPECT_GE(contrastBetween(word, laidOn(ground, fill)), readableContrast - 0.001)
                        << role.name().toStdString() << " on " << ground.name().toStdString();
            }
    }
}

TEST_F(ReadableText, colouredTextHasAContrastOfFourAndAHalfOnEveryGround) {
    for (const bool dark : {true, false}) {
        theme().show(dark ? ZelkTheme::dark() : ZelkTheme::light());
        for (const QColor& role : tints())
            for (const QColor& ground : grounds())
                EXPECT_GE(contrastBetween(theme().textOn(role, theme().textGround()), ground), readableContrast - 0.001)
                    << role.name().toStdString() << " on " << ground.name().toStdString();
    }
}

TEST_F(ReadableText, aColourThatCanBeReadIsLeftAsItIs) {
    theme().show(ZelkTheme::dark());
    const QColor pink(232, 91, 196);
    EXPECT_EQ(theme().textOn(pink, theme().textGround()), pink);
    theme().show(ZelkTheme::light());
    EXPECT_NE(theme().textOn(pink, theme().textGround()), pink);
    EXPECT_EQ(theme().textOn(theme().inkSoft(), theme().textGround()), theme().inkSoft());
}

TEST_F(ReadableText, theTagFollowsTheTheme) {
    show(QStringLiteral("import QtQuick\nimport Zelk.Controls\n"
                        "Item { Tag { objectName: 'tag'; text: 'review'; ink: '#32c77b' } }"),
         {200, 100});
    setDark(true);
    const QColor inTheDark = showing("review")->property("color").value<QColor>();
    setDark(false);
    const QColor inTheLight = showing("review")->property("color").value<QColor>();
    EXPECT_EQ(inTheDark, QColor(50, 199, 123));
    EXPECT_LT(inTheLight.lightnessF(), inTheDark.lightnessF());
}

TEST_F(ReadableText, whiteIsReadableOnTheButtonThatRemoves) {
    singleton<TextScale>("TextScale").setFactor(2);
    show(QStringLiteral("import QtQuick\nimport Zelk.Controls\n"
                        "Item { Button { kind: Button.Removal; objectName: 'remove'; text: 'Review and Remove' } }"),
         {500, 120});
    QQuickItem* button = find("remove");
    ASSERT_NE(button, nullptr);
    EXPECT_EQ(showing("Review and Remove")->property("color").value<QColor>(), QColor(Qt::white));
    const QImage image = window().grabWindow();
    const QRect whole(QPoint(), button->size().toSize());
    // Without the corners, beside which the window is white.
    const WhiteStrokes strokes = whiteStrokes(image, whole.adjusted(10, 0, -10, 0), 4);
    EXPECT_GT(strokes.pixels, 100);
    EXPECT_EQ(strokes.unreadable, 0);
    EXPECT_GT(image.pixelColor(12, whole.height() / 2).red(), 235) << "the fill around it is not shaded";

    button->setEnabled(false);
    settle();
    EXPECT_FALSE(view().findChild<QQuickItem*>(QStringLiteral("textShadow"))->isVisible()) << "a quiet word needs none";
}

}  // namespace zelk
