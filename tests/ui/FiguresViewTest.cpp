// SPDX-License-Identifier: MIT
// The components that show and are not pressed: their sizes, their texts and the order of those.
#include <gmock/gmock.h>

#include <QTest>

#include "AnimationClock.h"
#include "ViewFixture.h"
#include "ui/charts/RibbonPicture.h"
#include "ui/charts/RingPicture.h"
#include "ui/screens/overview/SurveyScreenModel.h"

namespace zelk {

namespace {

using testing::ElementsAre;

class FiguresWindow : public ViewFixture {
protected:
    /// Shows one component, as wide as it likes, in a window that has room for it.
    void showOne(const QString& component) {
        show(QStringLiteral("import QtQuick\nimport Zelk.App\nimport Zelk.Charts\nimport Zelk.Controls\n"
                            "Item { property deviceFace face; property list<ribbonSegment> segments; id: board\n"
                            "%1 }")
                 .arg(component),
             {640, 400});
    }
    QQuickItem& one() { return *find("one"); }
    double top(const QQuickItem* item) { return item->mapToScene({}).y(); }
    QColor colorOf(const char* text) { return showing(text)->property("color").value<QColor>(); }
    template <class T>
    T* only() {
        T* found = nullptr;
        for (QQuickItem* item : seen())
            if (T* match = qobject_cast<T*>(item)) found = match;
        return found;
    }
    Theme& theme() { return singleton<Theme>("Theme"); }
    static QColor withAlpha(QColor color, double alpha) {
        color.setAlphaF(static_cast<float>(alpha));
        return color;
    }
    QColor themes(const char* name) { return theme().property(name).value<QColor>(); }
};

}  // namespace

TEST_F(FiguresWindow, aStatBlockIsItsNameOverItsValue) {
    showOne(QStringLiteral("StatBlock { objectName: 'one'; label: 'Files'; value: 1234; format: NumberItem.Count }"));
    ASSERT_NE(showing("Files"), nullptr);
    ASSERT_NE(showing("1,234"), nullptr);
    EXPECT_EQ(sizeOf("Files"), 11);
    EXPECT_EQ(sizeOf("1,234"), 18);
    EXPECT_LT(top(showing("Files")), top(showing("1,234")));
    EXPECT_EQ(colorOf("Files"), themes("inkSoft"));
    EXPECT_EQ(colorOf("1,234"), themes("ink"));
    one().setProperty("accent", true);
    EXPECT_EQ(colorOf("1,234"), themes("accent"));
}

TEST_F(FiguresWindow, anEyebrowIsUpperCasedAndSpaced) {
    showOne(QStringLiteral("Eyebrow { objectName: 'one'; text: 'Largest files' }"));
    const QFont font = one().property("font").value<QFont>();
    EXPECT_EQ(font.capitalization(), QFont::AllUppercase);
    EXPECT_EQ(font.pixelSize(), 10);
    EXPECT_NEAR(font.letterSpacing(), 1.2, 1.0 / 64) << "fonts count in 64ths";
    EXPECT_EQ(one().property("color").value<QColor>(), themes("inkSoft"));
    EXPECT_EQ(nameOf(&one()), "Largest files") << "a screen reader would spell capitals";
}

TEST_F(FiguresWindow, aRingGaugeIs108SquareWithItsTextsInsideAndUnder) {
    showOne(
        QStringLiteral("RingGauge { objectName: 'one'; value: 0.5; center: 50; caption: 'memory'; "
                       "color: 'red'; detail: '8 GB of 16 GB' }"));
    const auto* ring = only<RingPicture>();
    ASSERT_NE(ring, nullptr);
    EXPECT_EQ(ring->size(), QSizeF(108, 108));
    EXPECT_EQ(ring->shown(), 0.5);
    EXPECT_EQ(ring->property("color").value<QColor>(), QColor(Qt::red));
    EXPECT_EQ(ring->property("track").value<QColor>(), themes("hairline"));
    EXPECT_EQ(sizeOf("50%"), 22);
    EXPECT_EQ(sizeOf("memory"), 10);
    EXPECT_EQ(sizeOf("8 GB of 16 GB"), 10);
    EXPECT_EQ(colorOf("memory"), themes("inkSoft"));
    EXPECT_EQ(colorOf("8 GB of 16 GB"), themes("inkSoft"));
    EXPECT_LT(top(showing("50%")), top(showing("memory")));
    EXPECT_LT(top(showing("memory")), top(ring) + 108);
    EXPECT_GE(top(showing("8 GB of 16 GB")), top(ring) + 108);
}

TEST_F(FiguresWindow, aRingGaugeKeepsLongTextsInsideItsRing) {
    singleton<TextScale>("TextScale").setFactor(1.5);
    showOne(
        QStringLiteral("RingGauge { objectName: 'one'; value: 0.5; center: 123.45e9; format: NumberItem.Bytes; "
                       "caption: 'of everything'; "
                       "color: 'red'; detail: '' }"));
    const auto* ring = only<RingPicture>();
    for (const char* text : {"123.45 GB", "of everything"}) {
        const QQuickItem* words = showing(text);
        ASSERT_NE(words, nullptr) << text;
        EXPECT_LE(words->mapRectToScene(words->boundingRect()).width(), ring->width() - 20) << text;
    }
}

TEST_F(FiguresWindow, aSparklineIsInTheAccentUnlessTold) {
    showOne(QStringLiteral("Sparkline { objectName: 'one'; values: [1, 2, 3] }"));
    EXPECT_EQ(one().property("color").value<QColor>(), themes("accent"));
    one().setProperty("color", QColor(Qt::blue));
    EXPECT_EQ(one().property("color").value<QColor>(), QColor(Qt::blue));
}

TEST_F(FiguresWindow, aProgressBarStaysPutWithReducedMotion) {
    AnimationClock clock;
    showOne(QStringLiteral("ModuleProgressBar { objectName: 'one'; tint: 'red'; width: 180 }"));
    EXPECT_EQ(one().width(), 180);
    EXPECT_EQ(one().property("seconds").toDouble(), 0.75) << "its sliver rests in the middle, where it is seen";
    const QImage before = window().grabWindow();
    for (int step = 0; step < 15; ++step) {
        clock.pass(100);
        settle();
        EXPECT_EQ(window().grabWindow(), before);
    }
}

TEST_F(FiguresWindow, aProgressBarRunsWithMotion) {
    singleton<Motion>("Motion").setReduced(false);
    showOne(QStringLiteral("ModuleProgressBar { objectName: 'one'; tint: 'red' }"));
    const double before = one().property("seconds").toDouble();
    runUntil([&] { return one().property("seconds").toDouble() != before; });
}

TEST_F(FiguresWindow, aModuleCardHasItsTileItsTextsAndTheWayOn) {
    showOne(
        QStringLiteral("ModuleCard { objectName: 'one'; symbol: 'tray.full'; title: 'Clutter'; value: 3e9; "
                       "detail: '12 large files'; tint: 'red' }"));
    EXPECT_GE(one().width(), 140);
    EXPECT_EQ(one().property("padding").toDouble(), 16);
    const SymbolItem* tray = symbol("tray.full");
    ASSERT_NE(tray, nullptr);
    EXPECT_EQ(tray->size(), sideBesideText(15));
    EXPECT_EQ(tray->color(), QColor(Qt::red));
    const QQuickItem* tile = tray->parentItem();
    EXPECT_EQ(tile->size(), QSizeF(34, 34));
    EXPECT_EQ(tile->property("color").value<QColor>(), withAlpha(Qt::red, 0.16));
    EXPECT_EQ(tile->mapToItem(&one(), QPointF()), QPointF(16, 16));
    EXPECT_EQ(sizeOf("Clutter"), 11);
    EXPECT_EQ(sizeOf("3 GB"), 23);
    EXPECT_EQ(sizeOf("12 large files"), 11);
    EXPECT_LT(top(showing("Clutter")), top(showing("3 GB")));
    EXPECT_EQ(top(showing("12 large files")), top(showing("3 GB")) + showing("3 GB")->height() + 2);
    const SymbolItem* on = symbol("chevron.right");
    ASSERT_NE(on, nullptr);
    EXPECT_EQ(on->mapRectToItem(&one(), on->boundingRect()).right(), one().width() - 16);
}

TEST_F(FiguresWindow, aModuleCardIsNeverNarrowerThan140) {
    showOne(
        QStringLiteral("ModuleCard { objectName: 'one'; symbol: 'tray.full'; title: ''; value: 0; detail: ''; "
                       "tint: 'red' }"));
    EXPECT_EQ(one().width(), 140);
}

TEST_F(FiguresWindow, aRibbonIs22HighOverALegendOfAllSegments) {
    showOne(
        QStringLiteral("StorageRibbon { objectName: 'one'; width: 600; freeBytes: 100; segments: board.segments }"));
    const RibbonSegment video{QStringLiteral("Video"), 200, QStringLiteral("200 bytes"), Qt::red};
    const RibbonSegment audio{QStringLiteral("Audio"), 0, QStringLiteral("0 bytes"), Qt::blue};
    one().setProperty("segments", QVariant::fromValue(QList<RibbonSegment>{video, audio}));
    settle();
    const auto* bar = only<RibbonPicture>();
    ASSERT_NE(bar, nullptr);
    EXPECT_EQ(bar->size(), QSizeF(600, 22));
    EXPECT_EQ(bar->property("freeBytes").toDouble(), 100);
    EXPECT_EQ(bar->property("freeColor").value<QColor>(), themes("hairline"));
    for (const char* text : {"Video", "200 bytes", "Audio", "0 bytes"}) {
        ASSERT_NE(showing(text), nullptr) << text;
        EXPECT_EQ(sizeOf(text), 11);
        EXPECT_EQ(top(showing(text)), 36) << "14 below the bar";
    }
    EXPECT_EQ(colorOf("Video"), themes("ink"));
    EXPECT_EQ(colorOf("200 bytes"), themes("inkSoft"));
    std::vector<QColor> swatches;
    for (QQuickItem* item : seen())
        if (item->size() == QSizeF(9, 9) && item->property("radius").toInt() == 2)
            swatches.push_back(item->property("color").value<QColor>());
    EXPECT_THAT(swatches, testing::UnorderedElementsAre(QColor(Qt::red), QColor(Qt::blue)));
}

TEST_F(FiguresWindow, aRibbonWithoutSegmentsHasNoLegend) {
    showOne(QStringLiteral("StorageRibbon { objectName: 'one'; width: 600; freeBytes: -1; segments: board.segments }"));
    EXPECT_THAT(seenTexts(), ElementsAre());
    EXPECT_EQ(only<RibbonPicture>()->size(), QSizeF(600, 22));
}

TEST_F(FiguresWindow, aDeviceHeaderTellsTheMachineAndItsVolume) {
    showOne(QStringLiteral("DeviceHeader { objectName: 'one'; width: 600; device: board.face }"));
    const DeviceInfo device{"Studio", "Quad", 8, std::uint64_t{16} << 30, "Linux", ""};
    one().setProperty("device", QVariant::fromValue(DeviceFace::of(device, VolumeInfo{2000, 1000, 0})));
    settle();
    EXPECT_EQ(sizeOf("Studio"), 17);
    EXPECT_EQ(sizeOf("Quad  ·  8 cores  ·  16 GB  ·  Linux"), 11);
    EXPECT_EQ(colorOf("Quad  ·  8 cores  ·  16 GB  ·  Linux"), themes("inkSoft"));
    EXPECT_EQ(sizeOf("1 KB free"), 15);
    EXPECT_EQ(sizeOf("of 2 KB"), 11);
    EXPECT_LT(top(showing("Studio")), top(showing("Quad  ·  8 cores  ·  16 GB  ·  Linux")));
    EXPECT_LT(top(showing("1 KB free")), top(showing("of 2 KB")));
    const QQuickItem* total = showing("of 2 KB");
    EXPECT_EQ(total->mapRectToScene(total->boundingRect()).right(), 600);
    const SymbolItem* laptop = symbol("laptopcomputer");
    ASSERT_NE(laptop, nullptr);
    EXPECT_EQ(laptop->size(), 22);
    EXPECT_EQ(laptop->color(), themes("accent"));
    const QQuickItem* box = laptop->parentItem();
    EXPECT_EQ(box->size(), QSizeF(22 + 2 * 12, 22 + 2 * 12));
    EXPECT_EQ(box->property("color").value<QColor>(), withAlpha(themes("accent"), 0.15));
    EXPECT_LT(box->mapToScene({}).x(), showing("Studio")->mapToScene({}).x());
}

TEST_F(FiguresWindow, aDeviceHeaderWithoutAVolumeGivesItsRoomToTheName) {
    showOne(QStringLiteral("DeviceHeader { objectName: 'one'; width: 600; device: board.face }"));
    const DeviceInfo device{std::string(200, 'n'), "", 1, 0, "", ""};
    one().setProperty("device", QVariant::fromValue(DeviceFace::of(device, std::nullopt)));
    settle();
    EXPECT_THAT(seenTexts(), testing::UnorderedElementsAre(std::string(200, 'n'), "1 cores  ·  0 GB"));
    const QQuickItem* name = showing(std::string(200, 'n').c_str());
    const QRectF box = name->mapRectToScene(name->boundingRect());
    EXPECT_LE(box.right(), 600);
    EXPECT_GE(box.right(), 560);
}

}  // namespace zelk
