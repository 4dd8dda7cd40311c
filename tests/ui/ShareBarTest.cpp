// SPDX-License-Identifier: MIT
// The bar of a clean-up's progress, read from the rendered window.
#include "ViewFixture.h"

namespace zelk {

namespace {

class ShareBar : public ViewFixture {
protected:
    // The track of the dark theme is white on white.
    ShareBar() { model().setAppearance(AppModel::Appearance::light); }
    ~ShareBar() override { close(); }

    QImage barOf(double share) {
        close();
        show(QStringLiteral("import QtQuick\nimport Zelk.Charts\n"
                            "Item { ShareBar { width: 200; height: 6; name: 'Cleaning'; progress: ''; value: %1 } }")
                 .arg(share),
             {220, 40});
        return window().grabWindow().copy(0, 0, 200, 6);
    }

    bool isFilled(const QImage& bar, int x) {
        return bar.pixelColor(x, 3).rgb() == singleton<Theme>("Theme").accent().rgb();
    }

    /// The length of the filled part along the middle of the bar.
    int filledLength(double share) {
        const QImage bar = barOf(share);
        int reach = 3;  // past the round end
        while (reach < 197 && isFilled(bar, reach)) ++reach;
        return reach == 3 ? 0 : reach;
    }
};

}  // namespace

TEST_F(ShareBar, fillsTrackFromTheLeft) {
    EXPECT_NEAR(filledLength(0.25), 50, 2);
    EXPECT_NEAR(filledLength(0.5), 100, 2);
    const QImage bar = barOf(0.25);
    const QColor track = bar.pixelColor(150, 3);
    EXPECT_NE(track, QColor(Qt::white)) << "of the window";
    EXPECT_EQ(bar.pixelColor(60, 3), track);
    EXPECT_NE(bar.pixelColor(49, 0), bar.pixelColor(25, 0)) << "its end is round";
    EXPECT_NE(bar.pixelColor(199, 0), bar.pixelColor(150, 0)) << "and so is the track's";
}

TEST_F(ShareBar, isEmptyAtZeroAndADotAboveIt) {
    EXPECT_EQ(filledLength(0), 0);
    EXPECT_NEAR(filledLength(0.001), 6, 2);
}

TEST_F(ShareBar, clampsToFullTrack) {
    EXPECT_EQ(filledLength(1), 197);
    EXPECT_EQ(barOf(1.7), barOf(1));
}

}  // namespace zelk
