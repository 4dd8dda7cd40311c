// SPDX-License-Identifier: MIT
// The texts of the Overview in each phase, read from the rendered window.
#include "TextsOf.h"
#include "ViewFixture.h"
#include "ui/screens/overview/SurveyScreenModel.h"

namespace zelk {

namespace {

using Texts = std::vector<std::string>;

class OverviewTexts : public ViewFixture {
protected:
    OverviewTexts() {
        machine.vitals.setVolume(home, VolumeInfo{100'000'000'000, 44'000'000'000, 44'000'000'000});
        screen.setCounting(false);
    }
    ~OverviewTexts() override {
        machine.directories.release();
        close();
    }
    void open() { show(QStringLiteral("Zelk.App"), QStringLiteral("SurveyView"), "survey", &screen, {900, 1400}); }

    const TextsOf texts{macOS};
    SurveyScreenModel screen{model()};
};

}  // namespace

TEST_F(OverviewTexts, inviteToScanBeforeSurvey) {
    open();
    EXPECT_EQ(seenTexts(), (Texts{"Test machine", "Test chip  ·  8 cores  ·  15 GB  ·  TestOS 1.0", "44 GB free",
                                  "of 100 GB", "Scan", "your whole Mac", "Scan every corner of your drive in seconds.",
                                  "Reclaim junk", "Find duplicates", "Largest files", "Visual map"}));
    EXPECT_EQ(sizeOf("Scan"), 20);
    EXPECT_EQ(sizeOf("your whole Mac"), 11);
    ASSERT_NE(symbol("scope"), nullptr);
    EXPECT_EQ(symbol("scope")->size(), 34);
    for (const char* sign : {"sparkles", "doc.on.doc", "tray.full", "circle.hexagongrid"})
        EXPECT_NE(symbol(sign), nullptr) << sign;
}

TEST_F(OverviewTexts, showProgressDuringSurvey) {
    addWideFolder(home + "/wide");
    machine.directories.hold(home + "/wide/inner");
    open();
    screen.pressScan();
    runUntil([&] { return screen.itemsLine().startsWith(QStringLiteral("20,00")); });
    settle();
    EXPECT_EQ(seenTexts(), (Texts{"Test machine", "Test chip  ·  8 cores  ·  15 GB  ·  TestOS 1.0", "44 GB free",
                                  "of 100 GB", screen.scanned().toStdString(), "scanning…",
                                  screen.itemsLine().toStdString(), "/home/me/wide", "cancel"}));
    EXPECT_EQ(sizeOf(screen.scanned().toStdString().c_str()), 26);
    EXPECT_EQ(sizeOf("scanning…"), 11);
}

TEST_F(OverviewTexts, showResultsAfterSurvey) {
    machine.trash.put("old.zip", 7'000'000);
    fillHome();
    survey();
    machine.clock.advance(secondsPerDay);
    survey();
    open();
    runWhatIsThere();
    settle();
    EXPECT_EQ(seenTexts(),
              (Texts{"Test machine", "Test chip  ·  8 cores  ·  15 GB  ·  TestOS 1.0", "44 GB free", "of 100 GB",
                     // The hero.
                     "60 MB", "recoverable", "re-run", "Tap to scan again · details below",
                     // The headline, the storage with the Trash, and the cards.
                     "You can reclaim", "60 MB", "across 2 items · most space: Video", "Review  →", "Findings",
                     "Scanned storage", "Video", "3 GB", "Disk images", "60 MB", "Other", "60 MB", "Archives", "7 MB",
                     "Trash", "free it by emptying the Trash", "7 MB", "Empty", "Reclaim", "60 MB", "2 items of junk",
                     "Clutter", "3.13 GB", "5 large files", "Downloads", "0 bytes", "review what landed here", "System",
                     "0 bytes", "purgeable & snapshots",
                     // The largest files and the trends.
                     "Largest files", "See all", "film.mov", "3 GB", "system.iso", "60 MB", "v6", "50 MB", "a.js",
                     "10 MB", "old.zip", "7 MB", "Trends", "0 bytes", "since your last scan · 2 tracked"}));
    EXPECT_EQ(sizeOf("recoverable"), 11);
    EXPECT_EQ(sizeOf("re-run"), 10);
}

TEST_F(OverviewTexts, reportCleanDriveIfNothingWasFound) {
    survey();
    open();
    EXPECT_EQ(sizeOf("0 bytes"), 28) << "a figure and its unit, not a word";
    EXPECT_NE(showing("Clean drive"), nullptr);
    EXPECT_EQ(showing("Review  →"), nullptr);
}

}  // namespace zelk
