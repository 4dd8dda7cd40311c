// SPDX-License-Identifier: MIT
// What the System screen looks like.
#include <gmock/gmock.h>

#include <set>

#include "Readable.h"
#include "SystemViewFixture.h"

namespace zelk {

namespace {

class SystemLooks : public SystemViewFixture {};

}  // namespace

TEST_F(SystemLooks, headingsStandEquallyFarBelowTheTopOfTheirCards) {
    open();
    std::set<double> distances;
    for (const char* heading : {"Capacity", "Local snapshots", "Protected areas"}) {
        const QQuickItem* card = showing(heading);
        const double top = card->mapToScene({}).y();
        while (!card->inherits("QQuickPane")) card = card->parentItem();
        distances.insert(top - card->mapToScene({}).y());
    }
    EXPECT_THAT(distances, testing::SizeIs(1));
}

TEST_F(SystemLooks, arrowThatReloadsEndsAtTheMargin) {
    open();
    const auto rightOf = [](const QQuickItem* item) { return item->mapRectToScene(item->boundingRect()).right(); };
    for (const double factor : {1.0, 1.5}) {
        singleton<TextScale>("TextScale").setFactor(factor);
        settle();
        EXPECT_EQ(rightOf(symbol("arrow.clockwise")), rightOf(find("deleteSnapshot1"))) << factor;
    }
    singleton<TextScale>("TextScale").setFactor(1);
}

TEST_F(SystemLooks, cardsHaveTheirGreatestWidth) {
    open({1600, 1200});
    const QQuickItem* card = find("snapshotList");
    ASSERT_NE(card, nullptr);
    EXPECT_EQ(card->width(), 760 - 2 * 18);
    EXPECT_EQ(card->mapToScene({}).x(), 26 + 18);
}

TEST_F(SystemLooks, clipsNoTextAtLargeScaleInSmallWindow) {
    machine.directories.file(home + "/win.vdi", 60'000'000'000, 0);
    open({726, 592});
    expectNoTextClipped();
    singleton<TextScale>("TextScale").setFactor(1.5);
    settle();
    expectNoTextClipped();
    singleton<TextScale>("TextScale").setFactor(1);
}

TEST_F(SystemLooks, textsAreReadableInBothThemes) {
    machine.directories.file(home + "/win.vdi", 60'000'000'000, 0);
    open();
    answer("done");
    click("thinSnapshots");
    settle();
    for (const auto appearance : {AppModel::Appearance::dark, AppModel::Appearance::light}) {
        model().setAppearance(appearance);
        settle();
        const ZelkTheme& theme = singleton<Theme>("Theme").current();
        int texts = 0;
        for (QQuickItem* item : seen()) {
            if (!item->inherits("QQuickText") || item->property("text").toString().isEmpty()) continue;
            if (shownOpacity(item) < 1) continue;  // of a button that rests
            const auto color = item->property("color").value<QColor>();
            const QVariant fill = item->parentItem()->property("ink");  // of a tag
            QColor ground = theme.surface;
            if (fill.isValid()) ground = laidOn(ground, item->parentItem()->property("color").value<QColor>());
            EXPECT_GE(contrastBetween(color, ground), readableContrast - 0.001)
                << item->property("text").toString().toStdString();
            ++texts;
        }
        EXPECT_GT(texts, 20);
    }
}

}  // namespace zelk
