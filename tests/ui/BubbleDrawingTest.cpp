// SPDX-License-Identifier: MIT
#include "ui/charts/BubbleDrawing.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>

#include "Painted.h"
#include "Readable.h"
#include "ui/theme/ZelkTheme.h"

namespace zelk {

namespace {

using Lines = std::vector<std::string>;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

template <class... Values>
std::string format(const char* pattern, Values... values) {
    char text[400];
    std::snprintf(text, sizeof text, pattern, values...);
    return text;
}

BubbleSlice sliceOf(const char* id, const char* label = "Ab") {
    BubbleSlice slice;
    slice.id = id;
    slice.label = QString::fromUtf8(label);
    slice.bytes = 5'000'000'000;
    slice.color = QColor(100, 150, 200);
    return slice;
}

QImage icon() {
    QImage image(8, 8, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::blue);
    return image;
}

BubbleSlice withIcon(BubbleSlice slice) {
    slice.icon = icon();
    return slice;
}

PackedCircle circleOf(const char* id, double radius) {
    return {id, {100, 100}, radius};
}

/// Lists the icon and the texts of one bubble with their geometry. The font is monospaced: a UTF-16 unit is as wide as
/// the font size.
Lines contents(const BubbleSlice& slice, double radius, double textScale = 1) {
    const BubbleFace face = bubbleFace(
        circleOf("a", radius), slice, textScale,
        [](const QString& text, BubbleFont, double size) { return static_cast<double>(text.size()) * size; });
    Lines lines;
    const QRectF& rect = face.icon;
    if (!rect.isNull()) lines.push_back(format("image %g %g %g x %g", rect.x(), rect.y(), rect.width(), rect.height()));
    for (const BubbleText& line : {face.label, face.bytes})
        if (!line.text.isEmpty())
            lines.push_back(format("text (%g %g) ", line.middle.x(), line.middle.y()) + line.text.toStdString() +
                            format(", %g", line.size));
    return lines;
}

QImage drawn(const std::vector<PackedCircle>& circles, const std::vector<BubbleSlice>& slices,
             const std::optional<std::string>& hoveredID = {}, const BubbleLook& look = {}) {
    return painted({400, 200}, [&](QPainter& painter) {
        BubbleTexts texts;
        drawBubbles(painter, circles, slicesOf(circles, slices), hoveredID, look, texts);
    });
}

/// Draws one bubble without a label, centred at (100, 100).
QImage bareBubble(double radius, const std::optional<std::string>& hoveredID = {}, bool selected = false,
                  bool dark = true) {
    BubbleSlice slice = sliceOf("a", "");
    slice.selected = selected;
    return drawn({circleOf("a", radius)}, {slice}, hoveredID, {dark, 1});
}

/// Counts the nearly white pixels in a square of 16 pixels around `middle`.
int whitePixels(const QImage& image, QPoint middle) {
    int count = 0;
    for (int y = middle.y() - 8; y < middle.y() + 8; ++y)
        for (int x = middle.x() - 8; x < middle.x() + 8; ++x) count += image.pixelColor(x, y).red() > 235 ? 1 : 0;
    return count;
}

}  // namespace

TEST(BubbleDrawing, shadesFromUpperLeft) {
    const QImage bubble = bareBubble(40);
    EXPECT_TRUE(alike(bubble.pixelColor(120, 125), QColor(88, 123, 157))) << "0.83 of the way along the gradient";
    EXPECT_TRUE(alike(bubble.pixelColor(76, 92), QColor(145, 175, 206), 6));
    EXPECT_GT(bubble.pixelColor(100, 75).red(), bubble.pixelColor(100, 67).red() + 8) << "the highlight";
    EXPECT_GT(bubble.pixelColor(139, 100).red(), bubble.pixelColor(136, 100).red()) << "the hairline";
    EXPECT_GT(bubble.pixelColor(140, 100).red(), 120) << "the rim";
    EXPECT_NEAR(bubble.pixelColor(141, 100).alphaF(), 0.6, 0.06) << "the rim, antialiased over the shadow";
    EXPECT_EQ(bubble.pixelColor(144, 100).red(), 0) << "only the shadow";
}

TEST(BubbleDrawing, castsShadowDownwardsStrongerInDarkTheme) {
    const QImage dark = bareBubble(40);
    const QImage light = bareBubble(40, {}, false, false);
    EXPECT_EQ(dark.pixelColor(100, 143).red(), 0);
    EXPECT_GT(dark.pixelColor(100, 143).alpha(), light.pixelColor(100, 143).alpha() + 15);
    EXPECT_GT(light.pixelColor(100, 143).alpha(), 5);
    EXPECT_NEAR(dark.pixelColor(100, 143).alphaF(), 0.23, 0.04) << "offset by 3.2, blurred over 6.4";
    EXPECT_GT(dark.pixelColor(100, 143).alpha(), dark.pixelColor(100, 56).alpha() + 15);
    EXPECT_EQ(dark.pixelColor(100, 160).alpha(), 0);
    EXPECT_GT(bareBubble(10).pixelColor(100, 113).alpha(), 3) << "a small bubble still has a shadow";
}

TEST(BubbleDrawing, highlightsFromRadius16) {
    EXPECT_GT(bareBubble(16).pixelColor(100, 92).red(), bareBubble(15.99).pixelColor(100, 92).red() + 8);
}

TEST(BubbleDrawing, labelsFromRadius20WithFontUpTo15) {
    EXPECT_THAT(contents(sliceOf("a"), 19.99), IsEmpty());
    EXPECT_THAT(contents(sliceOf("a"), 20), ElementsAre("text (100 100) Ab, 9"));
    EXPECT_THAT(contents(sliceOf("a"), 25), ElementsAre("text (100 100) Ab, 10"));
    EXPECT_THAT(contents(sliceOf("a"), 49.99), ElementsAre("text (100 100) Ab, 15"));
}

TEST(BubbleDrawing, showsSizeFromRadius50) {
    EXPECT_THAT(contents(sliceOf("a"), 50), ElementsAre("text (100 92) Ab, 15", "text (100 126) 5 GB, 10"));
    EXPECT_THAT(contents(sliceOf("a"), 100), ElementsAre("text (100 92) Ab, 15", "text (100 152) 5 GB, 13"));
}

TEST(BubbleDrawing, dropsIconForLabelBelowRadius24) {
    EXPECT_THAT(contents(withIcon(sliceOf("a")), 19.99), IsEmpty());
    EXPECT_THAT(contents(withIcon(sliceOf("a")), 20), ElementsAre("text (100 100) Ab, 9"));
    EXPECT_THAT(contents(withIcon(sliceOf("a")), 23.75), ElementsAre("text (100 100) Ab, 9.5"));
}

TEST(BubbleDrawing, showsIconAloneFromRadius24) {
    EXPECT_THAT(contents(withIcon(sliceOf("a")), 24), ElementsAre("image 89.8 89.8 20.4 x 20.4"));
    EXPECT_THAT(contents(withIcon(sliceOf("a")), 30), ElementsAre("image 87.25 87.25 25.5 x 25.5"));
    EXPECT_THAT(contents(withIcon(sliceOf("a")), 31.99), ElementsAre(StartsWith("image")));
}

TEST(BubbleDrawing, labelsIconFromRadius32) {
    EXPECT_THAT(contents(withIcon(sliceOf("a")), 32),
                ElementsAre("image 90.08 82.4 19.84 x 19.84", "text (100 113.44) Ab, 8.32"));
    EXPECT_THAT(contents(withIcon(sliceOf("a")), 45),
                ElementsAre("image 86.05 75.25 27.9 x 27.9", "text (100 118.9) Ab, 11.7"));
}

TEST(BubbleDrawing, showsIconLabelAndSizeInLargeBubble) {
    EXPECT_THAT(contents(withIcon(sliceOf("a")), 100),
                ElementsAre("image 69 45 62 x 62", "text (100 130) Ab, 15", "text (100 152) 5 GB, 13"));
}

TEST(BubbleDrawing, elidesLabelAtThreeQuartersOfDiameter) {
    // At 9 a character, ten do not fit into a width of 30, but three do.
    EXPECT_THAT(contents(sliceOf("a", "Downloaded"), 20), ElementsAre("text (100 100) Do…, 9"));
    EXPECT_THAT(contents(sliceOf("a", "e\u0301a\u0300e\u0301"), 20), ElementsAre("text (100 100) e\u0301…, 9"))
        << "grapheme clusters are not split";
}

TEST(BubbleDrawing, keepsLabelThatJustFits) {
    EXPECT_THAT(contents(sliceOf("a", "Abcde"), 50), Contains(StartsWith("text (100 92) Abcde,")));
    EXPECT_THAT(contents(sliceOf("a", "Abcdef"), 50), Contains(StartsWith("text (100 92) Abcd…,")));
}

TEST(BubbleDrawing, drawsNoEmptyLabel) {
    EXPECT_THAT(contents(sliceOf("a", ""), 40), IsEmpty());
    EXPECT_THAT(contents(withIcon(sliceOf("a", "")), 40), ElementsAre(StartsWith("image")));
}

TEST(BubbleDrawing, omitsSizeThatDoesNotFit) {
    BubbleSlice slice = sliceOf("a");
    slice.bytes = 123'450'000'000;  // nine characters of 10, in a width of 75
    EXPECT_THAT(contents(slice, 50), ElementsAre("text (100 92) Ab, 15"));
    EXPECT_THAT(contents(slice, 100), Contains("text (100 152) 123.45 GB, 13"));
}

TEST(BubbleDrawing, omitsLabelWithoutRoomForOneCharacter) {
    // At the normal scale every circle with a label has room for a character; scaled text may not fit.
    constexpr double larger = 2;
    EXPECT_THAT(contents(sliceOf("a", "👨‍👩‍👧"), 20, larger), IsEmpty());
    EXPECT_THAT(contents(withIcon(sliceOf("a", "👨‍👩‍👧")), 32, larger), ElementsAre(StartsWith("image")));
    EXPECT_THAT(contents(withIcon(sliceOf("a", "👨‍👩‍👧a")), 32, larger), ElementsAre(StartsWith("image")));
}

TEST(BubbleDrawing, scaledTextsStayInsideBubbles) {
    constexpr double larger = 1.5;
    EXPECT_THAT(contents(withIcon(sliceOf("a")), 200, larger),
                ElementsAre("image 38 -10 124 x 124", "text (100 160) Ab, 22.5", "text (100 204) 5 GB, 19.5"));
    EXPECT_EQ(contents(withIcon(sliceOf("a")), 50, larger), contents(withIcon(sliceOf("a")), 50))
        << "the radius still limits the font";
}

TEST(BubbleDrawing, paintsIconLabelAndSize) {
    const QImage bubble = drawn({circleOf("a", 80)}, {withIcon(sliceOf("a", "HHHH"))});
    EXPECT_EQ(bubble.pixelColor(80, 65), QColor(Qt::blue));
    EXPECT_EQ(bubble.pixelColor(120, 100), QColor(Qt::blue));
    EXPECT_GT(whitePixels(bubble, {100, 124}), 10) << "the label";
    EXPECT_GT(whitePixels(bubble, {100, 142}), 5) << "the size";
    EXPECT_EQ(whitePixels(bareBubble(80), {100, 124}), 0);
}

TEST(BubbleDrawing, selectionRingTakesPrecedenceOverHover) {
    const QColor plain = bareBubble(40).pixelColor(139, 100);
    const QColor hovered = bareBubble(40, "a").pixelColor(139, 100);
    const QColor selected = bareBubble(40, {}, true).pixelColor(139, 100);
    EXPECT_LT(plain.red(), 130);
    EXPECT_GT(hovered.red(), 215);
    EXPECT_LT(hovered.red(), 250);
    EXPECT_GE(selected.red(), 253);
    EXPECT_GT(bareBubble(40, {}, true).pixelColor(138, 100).red(), 140) << "3 wide";
    EXPECT_LT(bareBubble(40, "a").pixelColor(138, 100).red(), 120) << "2 wide";
    EXPECT_EQ(bareBubble(40, "a", true), bareBubble(40, {}, true));
    EXPECT_EQ(bareBubble(40, "b"), bareBubble(40)) << "another bubble is hovered";
}

TEST(BubbleDrawing, bubbleWithoutColourHasThatOfSecondaryText) {
    for (const bool dark : {true, false}) {
        BubbleSlice bare = sliceOf("a");
        bare.color = QColor();
        BubbleSlice soft = bare;
        soft.color = (dark ? ZelkTheme::dark() : ZelkTheme::light()).inkSoft;
        const std::vector<PackedCircle> circle{circleOf("a", 40)};
        EXPECT_EQ(drawn(circle, {bare}, {}, {dark, 1}), drawn(circle, {soft}, {}, {dark, 1}));
    }
}

TEST(BubbleDrawing, paintsLaterCirclesOnTop) {
    BubbleSlice red = sliceOf("red", "");
    red.color = Qt::red;
    const std::vector<BubbleSlice> slices{sliceOf("a", ""), red};
    EXPECT_LT(drawn({circleOf("red", 18), circleOf("a", 18)}, slices).pixelColor(106, 106).red(), 120);
    EXPECT_GT(drawn({circleOf("a", 18), circleOf("red", 18)}, slices).pixelColor(106, 106).red(), 180);
}

TEST(BubbleDrawing, paintsCirclesWithSlicesInOrder) {
    const std::vector<PackedCircle> circles{circleOf("b", 60), circleOf("gone", 60), circleOf("a", 40)};
    const std::vector<BubbleSlice> slices{sliceOf("a"), sliceOf("b"), sliceOf("none")};
    EXPECT_THAT(paintedBubbles(circles, slicesOf(circles, slices), {}), ElementsAre(0U, 2U));
    EXPECT_THAT(paintedBubbles({}, slicesOf({}, slices), {}), IsEmpty());
    EXPECT_EQ(drawn({}, slices, "a"), drawn({}, {}));
}

TEST(BubbleDrawing, circlesOfOneIdShareASlice) {
    const std::vector<BubbleSlice> slices{sliceOf("a"), sliceOf("a", "Other")};
    EXPECT_THAT(slicesOf({circleOf("a", 40), {"a", {300, 100}, 40}}, slices),
                ElementsAre(slices.data(), slices.data()));
}

TEST(BubbleDrawing, skipsBubblesOutsideClip) {
    const std::vector<PackedCircle> circles{circleOf("a", 40), {"b", {300, 100}, 40}};
    const std::vector<BubbleSlice> slices{sliceOf("a"), sliceOf("b")};
    EXPECT_THAT(paintedBubbles(circles, slicesOf(circles, slices), {60, 60, 40, 40}), ElementsAre(0U));
    EXPECT_THAT(paintedBubbles(circles, slicesOf(circles, slices), {0, 152, 200, 40}), ElementsAre(0U))
        << "its shadow reaches into the clip";
}

TEST(BubbleDrawing, drawsNothingForNegativeRadius) {
    for (const double radius : {-1.0, -13.0}) {
        EXPECT_EQ(drawn({circleOf("a", radius)}, {withIcon(sliceOf("a"))}, "a"), drawn({}, {}));
        EXPECT_THAT(contents(sliceOf("a"), radius), IsEmpty());
    }
}

TEST(BubbleDrawing, drawsFocusRingOutsideBubble) {
    const QColor line(245, 166, 35);
    const QColor ground(12, 11, 18);
    const QImage ring =
        painted({200, 200}, [&](QPainter& painter) { drawBubbleFocus(painter, circleOf("a", 40), line, ground); });
    EXPECT_TRUE(alike(ring.pixelColor(144, 100), line));
    EXPECT_TRUE(alike(ring.pixelColor(142, 100), ground));
    EXPECT_TRUE(alike(ring.pixelColor(147, 100), ground));
    EXPECT_EQ(ring.pixelColor(140, 100).alpha(), 0);
    EXPECT_TRUE(bubbleBox(circleOf("a", 40)).contains(QRectF(100 - 48.5, 100 - 48.5, 97, 97)));
}

TEST(BubbleDrawing, labelAndSizeCanBeReadOnTheBrightestBubble) {
    constexpr int scale = 2;
    BubbleSlice amber = sliceOf("a", "HHHH");
    amber.color = QColor(245, 166, 35);
    const std::vector<PackedCircle> circles{circleOf("a", 80)};
    const std::vector<BubbleSlice> slices{amber};
    BubbleTexts texts;
    const QImage bubble = painted(
        {200, 200},
        [&](QPainter& painter) {
            drawBubbles(painter, circles, slicesOf(circles, slices), {}, {false, 1}, texts);
        },
        scale);
    // Below the highlight, which is white too.
    const WhiteStrokes strokes = whiteStrokes(bubble, QRect(80, 170, 240, 140), 4);
    EXPECT_GT(strokes.pixels, 100);
    EXPECT_EQ(strokes.unreadable, 0);
}

}  // namespace zelk
