// SPDX-License-Identifier: MIT
// The texts of the Overview in each phase, read from the rendered window.
#include "TextsOf.h"
#include "ViewFixture.h"
#include "ui/controls/NumberItem.h"
#include "ui/screens/overview/SurveyScreenModel.h"
#include "ui/theme/DisplayText.h"
#include "ui/theme/FileTypeLook.h"

namespace zelk {

namespace {

using Texts = std::vector<std::string>;

class OverviewTexts : public ViewFixture {
protected:
    OverviewTexts() { machine.vitals.setVolume(home, VolumeInfo{100'000'000'000, 44'000'000'000, 44'000'000'000}); }
    ~OverviewTexts() override {
        machine.directories.release();
        close();
    }
    void open() { show(QStringLiteral("Zelk.App"), QStringLiteral("SurveyView"), "survey", &screen, {900, 1400}); }

    /// The visible number of this size.
    NumberItem* figure(int pixelSize) {
        for (QQuickItem* item : seen())
            if (auto* number = qobject_cast<NumberItem*>(item); number != nullptr && number->pixelSize() == pixelSize)
                return number;
        return nullptr;
    }
    static QVariantAnimation& animation(NumberItem& number) { return *number.findChild<QVariantAnimation*>(); }

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
    runUntil([&] { return screen.items() >= 20'000; });
    settle();
    const std::string bytes = byteFigure(screen.scanned()).toStdString();
    EXPECT_EQ(seenTexts(),
              (Texts{"Test machine", "Test chip  ·  8 cores  ·  15 GB  ·  TestOS 1.0", "44 GB free", "of 100 GB", bytes,
                     "scanning…", groupedFigure(screen.items()).toStdString() + " items", "/home/me/wide", "cancel"}));
    EXPECT_EQ(sizeOf(bytes.c_str()), 26);
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

TEST_F(OverviewTexts, endTogetherInTheCardOfTheLargestFiles) {
    fillHome();
    survey();
    open();
    const auto rightOf = [this](const char* text) {
        return showing(text)->mapRectToScene(showing(text)->boundingRect()).right();
    };
    EXPECT_NEAR(rightOf("See all"), rightOf("50 MB"), 0.5) << "the size of v6, which no other card shows";
}

TEST_F(OverviewTexts, standBesideSymbolsInTheColourOfTheType) {
    fillHome();
    survey();
    open();
    for (const auto appearance : {AppModel::Appearance::dark, AppModel::Appearance::light}) {
        model().setAppearance(appearance);
        settle();
        EXPECT_EQ(colorsOf("film"), std::vector<QColor>{QColor(232, 91, 196)});
        EXPECT_EQ(symbol("film")->size(), sideBesideText(13));
        const QColor other = lookOf(FileType::other, singleton<Theme>("Theme").current()).color;
        EXPECT_EQ(colorsOf("doc"), (std::vector<QColor>{other, other})) << "v6 and a.js";
    }
}

TEST_F(OverviewTexts, cardsHaveTheLooksOfTheirModules) {
    survey();
    open();
    const std::tuple<const char*, const char*, QColor> table[] = {
        {"findingCard0", "sparkles", {50, 199, 123}},
        {"findingCard1", "tray.full", {34, 195, 201}},
        {"findingCard2", "arrow.down.circle", {86, 194, 245}},
        {"findingCard3", "internaldrive", {124, 131, 255}},
    };
    std::vector<QQuickItem*> cards;
    for (const auto& [name, sign, tint] : table) {
        cards.push_back(find(name));
        ASSERT_NE(cards.back(), nullptr) << name;
        ASSERT_NE(symbol(sign), nullptr) << sign;
        EXPECT_TRUE(cards.back()->isAncestorOf(symbol(sign)));
        EXPECT_EQ(symbol(sign)->color(), tint);
    }
    model().setVolume(VolumeInfo{100'000'000'000, 44'000'000'000, 45'000'000'000});
    settle();
    EXPECT_NE(showing("1 GB"), nullptr);
    for (std::size_t at = 0; at < cards.size(); ++at)
        EXPECT_EQ(find(std::get<0>(table[at])), cards[at]) << "a card that has the focus stays";
}

TEST_F(OverviewTexts, followSurveyWithinQuarterOfASecond) {
    singleton<Motion>("Motion").setReduced(false);
    addWideFolder(home + "/wide");
    machine.directories.hold(home + "/wide/inner");
    open();
    screen.pressScan();
    runUntil([&] { return screen.items() >= 20'000; });
    // In the button, where it fades in, and below.
    runUntil([&] { return figure(26) != nullptr; });
    for (NumberItem* number : {figure(26), qobject_cast<NumberItem*>(find("scannedItems"))}) {
        ASSERT_NE(number, nullptr);
        EXPECT_EQ(animation(*number).duration(), 250);
        EXPECT_EQ(number->interval(), 80);
        runUntil([&] { return number->shown() == number->text(); });
    }
    EXPECT_EQ(find("scannedItems")->property("text").toString(), groupedFigure(screen.items()) + " items");
}

TEST_F(OverviewTexts, countUpToRecoverableBytesAfterSurvey) {
    singleton<Motion>("Motion").setReduced(false);
    fillHome();
    open();
    survey();
    runUntil([&] { return figure(28) != nullptr; });
    NumberItem& recoverable = *figure(28);
    EXPECT_EQ(recoverable.text(), QStringLiteral("60 MB"));
    EXPECT_EQ(nameOf(find("scanButton")), "60 MB recoverable, re-run");
    EXPECT_EQ(animation(recoverable).duration(), 900);
    animation(recoverable).setCurrentTime(450);
    EXPECT_EQ(recoverable.shown(), QStringLiteral("52.5 MB"));
    runUntil([&] { return recoverable.shown() == recoverable.text(); });

    // It counts up again after the next survey, but not when the screen is merely shown again.
    view().setVisible(false);
    view().setVisible(true);
    EXPECT_EQ(recoverable.shown(), QStringLiteral("60 MB"));
}

TEST_F(OverviewTexts, reportCleanDriveIfNothingWasFound) {
    survey();
    open();
    EXPECT_EQ(sizeOf("0 bytes"), 28) << "a figure and its unit, not a word";
    EXPECT_NE(showing("Clean drive"), nullptr);
    EXPECT_EQ(showing("Review  →"), nullptr);
}

}  // namespace zelk
