// SPDX-License-Identifier: MIT
#include "ui/charts/BubbleDrawing.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QPainter>
#include <cstdio>

#include "fakes/RecordingCanvas.h"
#include "ui/controls/PainterCanvas.h"

namespace zelk {

namespace {

using Lines = std::vector<std::string>;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

template <class... Values>
std::string format(const char* pattern, Values... values) {
    char text[400];
    std::snprintf(text, sizeof text, pattern, values...);
    return text;
}

std::string told(const QColor& color) {
    const std::string solid =
        color == QColor(Qt::white) ? "white" : format("%d,%d,%d", color.red(), color.green(), color.blue());
    if (color.alpha() == 255) return solid;
    const std::string base = color.rgb() == qRgb(255, 255, 255) ? "white" : solid;
    return base + format(" at %.3g", color.alphaF());
}

std::string told(const Paint& paint) {
    if (paint.kind == Paint::Kind::solid) return told(paint.stops.front().color);
    std::string text = format("radial (%g %g) %g", paint.from.x(), paint.from.y(), paint.radius);
    for (const GradientStop& stop : paint.stops) text += format(", %g ", stop.at) + told(stop.color);
    return text;
}

/// One call of the canvas with all its numbers.
std::string told(const fakes::DrawnShape& shape) {
    using Kind = fakes::DrawnShape::Kind;
    const std::string circle = format("(%g %g) %g", shape.center.x(), shape.center.y(), shape.radius);
    const std::string rect =
        format("%g %g %g x %g", shape.rect.x(), shape.rect.y(), shape.rect.width(), shape.rect.height());
    switch (shape.kind) {
        case Kind::shadowedDisc:
            return "shadowed " + circle + ": " + told(shape.paint) + "; " + told(shape.shadow.color) +
                   format(", blur %g, by (%g %g)", shape.shadow.blur, shape.shadow.offset.x(), shape.shadow.offset.y());
        case Kind::disc:
            return "disc " + circle + ": " + told(shape.paint);
        case Kind::ring:
            return "ring " + circle + format(" wide %g: ", shape.width) + told(shape.paint);
        case Kind::ellipse:
            return "ellipse " + rect + ": " + told(shape.paint);
        case Kind::image:
            return "image " + rect;
        case Kind::text:
            return format("text (%g %g) ", shape.center.x(), shape.center.y()) + shape.text.toStdString() +
                   format(", %g %s%s: ", shape.lettering.size,
                          shape.lettering.weight == Lettering::Weight::semibold ? "semibold" : "medium",
                          shape.lettering.rounded ? " rounded" : "") +
                   told(shape.paint);
        default:
            return "another shape";
    }
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
    return QImage(8, 8, QImage::Format_ARGB32_Premultiplied);
}

BubbleSlice withIcon(BubbleSlice slice) {
    slice.icon = icon();
    return slice;
}

PackedCircle circleOf(const char* id, double radius) {
    return {id, {100, 100}, radius};
}

Lines drawn(const std::vector<PackedCircle>& circles, const std::vector<BubbleSlice>& slices,
            const std::optional<std::string>& hoveredID = {}, const BubbleLook& look = {}) {
    fakes::RecordingCanvas canvas;
    drawBubbles(canvas, circles, byID(slices), hoveredID, look);
    Lines lines;
    for (const fakes::DrawnShape& shape : canvas.shapes) lines.push_back(told(shape));
    return lines;
}

/// What one bubble has on its glass: icon and texts.
Lines contents(const BubbleSlice& slice, double radius, const BubbleLook& look = {}) {
    Lines lines;
    for (const std::string& line : drawn({circleOf(slice.id.c_str(), radius)}, {slice}, {}, look))
        if (line.starts_with("image") || line.starts_with("text")) lines.push_back(line);
    return lines;
}

}  // namespace

TEST(BubbleDrawing, ofAPlainBubbleInTheDarkIsTheWholeListInOrder) {
    EXPECT_THAT(drawn({circleOf("a", 40)}, {sliceOf("a")}),
                ElementsAre("shadowed (100 100) 40: 100,150,200; 0,0,0 at 0.5, blur 6.4, by (0 3.2)",
                            "disc (100 100) 40: radial (88 85.6) 62, 0 165,194,223, 1 72,108,144",
                            "ring (100 100) 41 wide 1.5: 185,208,230 at 0.7", "ring (100 100) 40 wide 1: white at 0.12",
                            "ellipse 81.6 70.4 36.8 x 19.2: white at 0.16", "text (100 100) Ab, 15 semibold: white"));
}

TEST(BubbleDrawing, ofASelectedBubbleWithAnIconInTheLightIsTheWholeListInOrder) {
    BubbleSlice slice = withIcon(sliceOf("a"));
    slice.selected = true;
    BubbleLook light;
    light.dark = false;
    EXPECT_THAT(drawn({circleOf("a", 50)}, {slice}, "a", light),
                ElementsAre("shadowed (100 100) 50: 100,150,200; 0,0,0 at 0.22, blur 8, by (0 4)",
                            "disc (100 100) 50: radial (85 82) 77.5, 0 165,194,223, 1 72,108,144",
                            "ring (100 100) 51 wide 1.5: 185,208,230 at 0.7", "ring (100 100) 50 wide 1: white at 0.12",
                            "ellipse 77 63 46 x 24: white at 0.16", "ring (100 100) 50 wide 3: white",
                            "image 84.5 72.5 31 x 31", "text (100 115) Ab, 13 semibold: white",
                            "text (100 126) 5 GB, 10 medium rounded: white at 0.95"));
}

TEST(BubbleDrawing, ofASmallBubbleIsItsGlassWithTheLeastOfShadows) {
    EXPECT_THAT(drawn({circleOf("a", 10)}, {withIcon(sliceOf("a"))}, "a"),
                ElementsAre("shadowed (100 100) 10: 100,150,200; 0,0,0 at 0.5, blur 3, by (0 1)",
                            "disc (100 100) 10: radial (97 96.4) 15.5, 0 165,194,223, 1 72,108,144",
                            "ring (100 100) 11 wide 1.5: 185,208,230 at 0.7", "ring (100 100) 10 wide 1: white at 0.12",
                            "ring (100 100) 10 wide 2: white at 0.85"));
}

TEST(BubbleDrawing, theHighlightBeginsAtSixteen) {
    for (const double none : {1.0, 15.99})
        EXPECT_THAT(drawn({circleOf("a", none)}, {sliceOf("a")}), Not(Contains(StartsWith("ellipse"))));
    for (const double some : {16.0, 16.01})
        EXPECT_THAT(drawn({circleOf("a", some)}, {sliceOf("a")}), Contains(StartsWith("ellipse")));
}

TEST(BubbleDrawing, plainLabelsBeginAtTwentyAndGrowToFifteen) {
    EXPECT_THAT(contents(sliceOf("a"), 19.99), IsEmpty());
    EXPECT_THAT(contents(sliceOf("a"), 20), ElementsAre("text (100 100) Ab, 9 semibold: white"));
    EXPECT_THAT(contents(sliceOf("a"), 25), ElementsAre("text (100 100) Ab, 10 semibold: white"));
    EXPECT_THAT(contents(sliceOf("a"), 49.99), ElementsAre("text (100 100) Ab, 15 semibold: white"));
}

TEST(BubbleDrawing, plainLabelsMakeRoomForTheSizeAtFifty) {
    EXPECT_THAT(contents(sliceOf("a"), 50), ElementsAre("text (100 92) Ab, 15 semibold: white",
                                                        "text (100 126) 5 GB, 10 medium rounded: white at 0.95"));
    EXPECT_THAT(contents(sliceOf("a"), 100), ElementsAre("text (100 92) Ab, 15 semibold: white",
                                                         "text (100 152) 5 GB, 13 medium rounded: white at 0.95"));
}

TEST(BubbleDrawing, anIconBelowTwentyFourIsLeftOutForALabel) {
    EXPECT_THAT(contents(withIcon(sliceOf("a")), 19.99), IsEmpty());
    EXPECT_THAT(contents(withIcon(sliceOf("a")), 20), ElementsAre("text (100 100) Ab, 9 semibold: white"));
    EXPECT_THAT(contents(withIcon(sliceOf("a")), 23.75), ElementsAre("text (100 100) Ab, 9.5 semibold: white"));
}

TEST(BubbleDrawing, anIconStandsAloneFromTwentyFour) {
    EXPECT_THAT(contents(withIcon(sliceOf("a")), 24), ElementsAre("image 89.8 89.8 20.4 x 20.4"));
    EXPECT_THAT(contents(withIcon(sliceOf("a")), 30), ElementsAre("image 87.25 87.25 25.5 x 25.5"));
    EXPECT_THAT(contents(withIcon(sliceOf("a")), 31.99), ElementsAre(StartsWith("image")));
}

TEST(BubbleDrawing, anIconIsLabelledFromThirtyTwo) {
    EXPECT_THAT(contents(withIcon(sliceOf("a")), 32),
                ElementsAre("image 90.08 82.4 19.84 x 19.84", "text (100 113.44) Ab, 8.32 semibold: white"));
    EXPECT_THAT(contents(withIcon(sliceOf("a")), 45),
                ElementsAre("image 86.05 75.25 27.9 x 27.9", "text (100 118.9) Ab, 11.7 semibold: white"));
}

TEST(BubbleDrawing, anIconTheLabelAndTheSizeStandInALargeBubble) {
    EXPECT_THAT(contents(withIcon(sliceOf("a")), 100),
                ElementsAre("image 69 45 62 x 62", "text (100 130) Ab, 15 semibold: white",
                            "text (100 152) 5 GB, 13 medium rounded: white at 0.95"));
}

TEST(BubbleDrawing, aLabelEndsInAnEllipsisWithinThreeQuartersOfTheBubble) {
    // Ten of size nine are wider than thirty, and three are not.
    EXPECT_THAT(contents(sliceOf("a", "Downloaded"), 20), ElementsAre("text (100 100) Do…, 9 semibold: white"));
    EXPECT_THAT(contents(sliceOf("a", "e\u0301a\u0300e\u0301"), 20),
                ElementsAre("text (100 100) e\u0301…, 9 semibold: white"))
        << "what a reader takes for one character stays whole";
}

TEST(BubbleDrawing, aLabelOfExactlyTheRoomStaysWhole) {
    EXPECT_THAT(contents(sliceOf("a", "Abcde"), 50), Contains(StartsWith("text (100 92) Abcde,")));
    EXPECT_THAT(contents(sliceOf("a", "Abcdef"), 50), Contains(StartsWith("text (100 92) Abcd…,")));
}

TEST(BubbleDrawing, anEmptyLabelDrawsNothing) {
    EXPECT_THAT(contents(sliceOf("a", ""), 40), IsEmpty());
    EXPECT_THAT(contents(withIcon(sliceOf("a", "")), 40), ElementsAre(StartsWith("image")));
}

TEST(BubbleDrawing, aSizeThatDoesNotFitIsLeftOutAndNeverShortened) {
    BubbleSlice slice = sliceOf("a");
    slice.bytes = 123'450'000'000;  // nine units of size ten, in room for seven and a half
    EXPECT_THAT(contents(slice, 50), ElementsAre("text (100 92) Ab, 15 semibold: white"));
    EXPECT_THAT(contents(slice, 100), Contains("text (100 152) 123.45 GB, 13 medium rounded: white at 0.95"));
}

TEST(BubbleDrawing, aLabelWithoutRoomForACharacterIsLeftOutAndTheIconStays) {
    // No circle that has a label is that narrow with this face; with larger texts one is.
    BubbleLook larger;
    larger.textScale = 2;
    EXPECT_THAT(contents(sliceOf("a", "👨‍👩‍👧"), 20, larger), IsEmpty());
    EXPECT_THAT(contents(withIcon(sliceOf("a", "👨‍👩‍👧")), 32, larger), ElementsAre(StartsWith("image")));
    EXPECT_THAT(contents(withIcon(sliceOf("a", "👨‍👩‍👧a")), 32, larger), ElementsAre(StartsWith("image")));
}

TEST(BubbleDrawing, largerTextsGrowWithinTheirBubbles) {
    BubbleLook larger;
    larger.textScale = 1.5;
    EXPECT_THAT(contents(withIcon(sliceOf("a")), 200, larger),
                ElementsAre("image 38 -10 124 x 124", "text (100 160) Ab, 22.5 semibold: white",
                            "text (100 204) 5 GB, 19.5 medium rounded: white at 0.95"));
    EXPECT_EQ(contents(withIcon(sliceOf("a")), 50, larger), contents(withIcon(sliceOf("a")), 50))
        << "where the bubble sets the size, it still does";
}

TEST(BubbleDrawing, selectionWinsOverThePointer) {
    BubbleSlice slice = sliceOf("a");
    const std::string hovered = "ring (100 100) 18 wide 2: white at 0.85";
    const std::string selected = "ring (100 100) 18 wide 3: white";
    EXPECT_EQ(drawn({circleOf("a", 18)}, {slice}, "a").back(), hovered);
    slice.selected = true;
    EXPECT_EQ(drawn({circleOf("a", 18)}, {slice}).back(), selected);
    const Lines both = drawn({circleOf("a", 18)}, {slice}, "a");
    EXPECT_EQ(both.back(), selected);
    EXPECT_THAT(both, Not(Contains(hovered)));
}

TEST(BubbleDrawing, aPointerOnAnotherBubbleChangesNothing) {
    EXPECT_EQ(drawn({circleOf("a", 40)}, {sliceOf("a")}, "b"), drawn({circleOf("a", 40)}, {sliceOf("a")}));
}

TEST(BubbleDrawing, ofNoCirclesIsNothing) {
    EXPECT_THAT(drawn({}, {}), IsEmpty());
    EXPECT_THAT(drawn({}, {sliceOf("a")}, "a"), IsEmpty()) << "a slice without a circle";
}

TEST(BubbleDrawing, aCircleWithoutASliceIsSkipped) {
    EXPECT_EQ(drawn({circleOf("gone", 60), circleOf("a", 40)}, {sliceOf("a")}),
              drawn({circleOf("a", 40)}, {sliceOf("a")}));
}

TEST(BubbleDrawing, circlesOfOneIdShowTheSameSlice) {
    BubbleSlice other = sliceOf("a", "Other");
    const Lines lines = drawn({circleOf("a", 40), {"a", {300, 100}, 40}}, {sliceOf("a"), other});
    EXPECT_THAT(lines, Contains("text (100 100) Ab, 15 semibold: white"));
    EXPECT_THAT(lines, Contains("text (300 100) Ab, 15 semibold: white"));
    EXPECT_THAT(lines, Not(Contains(HasSubstr("Other"))));
}

TEST(BubbleDrawing, laterCirclesLieOnTop) {
    const Lines lines = drawn({circleOf("b", 18), circleOf("a", 18)}, {sliceOf("a"), sliceOf("b")}, "b");
    ASSERT_EQ(lines.size(), 11U);
    EXPECT_EQ(lines[5], "ring (100 100) 18 wide 2: white at 0.85") << "the first circle's own, below the second";
    EXPECT_THAT(lines[6], StartsWith("shadowed"));
}

TEST(BubbleDrawing, whatIsNotSeenIsNotDrawn) {
    const std::vector<BubbleSlice> slices{sliceOf("a"), sliceOf("b")};
    fakes::RecordingCanvas canvas;
    canvas.seen = {60, 60, 40, 40};
    drawBubbles(canvas, {circleOf("a", 40), {"b", {300, 100}, 40}}, byID(slices), {}, {});
    EXPECT_EQ(canvas.shapes.size(), 6U);
    for (const fakes::DrawnShape& shape : canvas.shapes) EXPECT_THAT(told(shape), Not(HasSubstr("(300 ")));
    EXPECT_EQ(canvas.measured, 1) << "nor measured";
}

TEST(BubbleDrawing, aShadowIsSeenWhereItsBubbleIsNot) {
    const std::vector<BubbleSlice> slices{sliceOf("a")};
    fakes::RecordingCanvas canvas;
    canvas.seen = {0, 205, 200, 40};
    drawBubbles(canvas, {circleOf("a", 100)}, byID(slices), {}, {});
    EXPECT_FALSE(canvas.shapes.empty());
}

TEST(BubbleDrawing, circlesWithoutARadiusAreDrawnWithoutComplaint) {
    for (const double radius : {0.0, -12.0}) {
        QImage image(200, 200, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        const QImage before = image;
        QPainter painter(&image);
        PainterCanvas canvas(painter);
        const std::vector<BubbleSlice> slices{withIcon(sliceOf("a"))};
        drawBubbles(canvas, {circleOf("a", radius - 1)}, byID(slices), "a", {});
        painter.end();
        EXPECT_EQ(image, before);
        EXPECT_THAT(contents(sliceOf("a"), radius), IsEmpty());
    }
}

TEST(BubbleDrawing, theKeyboardsBubbleIsRingedOutsideOfItself) {
    fakes::RecordingCanvas canvas;
    drawBubbleFocus(canvas, circleOf("a", 40), QColor(245, 166, 35), QColor(12, 11, 18));
    Lines lines;
    for (const fakes::DrawnShape& shape : canvas.shapes) lines.push_back(told(shape));
    EXPECT_THAT(lines, ElementsAre("ring (100 100) 45 wide 7: 12,11,18", "ring (100 100) 45 wide 3: 245,166,35"));
    EXPECT_TRUE(bubbleBox(circleOf("a", 40)).contains(QRectF(100 - 48.5, 100 - 48.5, 97, 97)));
}

}  // namespace zelk
