// SPDX-License-Identifier: MIT
// Checks every screen for layout and accessibility faults, in every window size, theme and text size.
#include <gmock/gmock.h>

#include "ScreenFaults.h"
#include "ShellFixture.h"
#include "ui/theme/ScreenLook.h"
#include "ui/theme/TextScale.h"

namespace zelk {

namespace {

constexpr QSize minimumSize(960, 620);
constexpr QSize largeSize(1600, 1000);

/// What the home folder contains. It is not surveyed with `none`.
enum class Content { none, usual, longNames, hugeFigures };

std::string nameOfContent(const testing::TestParamInfo<Content>& content) {
    constexpr std::array names{"noSurvey", "usualHome", "longNames", "hugeFigures"};
    return names[static_cast<std::size_t>(content.param)];
}

class ScreenWalk : public ShellFixture, public testing::WithParamInterface<Content> {
protected:
    ScreenWalk() {
        fakes::FakeDirectoryService& disk = machine.directories;
        switch (GetParam()) {
            case Content::none:
            case Content::usual:
                break;
            case Content::longNames:
                for (const std::size_t length : {30U, 200U}) {
                    disk.file(home + "/" + std::string(length, 'n') + ".mov", 4'000'000'000, 1'000);
                    // With spaces to break at, and without.
                    std::string words;
                    while (words.size() < length) words += "long ";
                    disk.file(home + "/" + words + ".iso", 3'500'000'000, 1'000);
                    for (const std::string& name : {std::string(length, 'f'), words})
                        for (const char* inner : {"/", "/inner/"})
                            disk.file(home + "/" + name + inner + name.substr(0, 40) + "/file", 5'000'000'000, 1'000);
                }
                break;
            case Content::hugeFigures:
                for (const char* kind : {"mov", "iso", "zip", "jpg", "mp3", "pdf", "bin"})
                    disk.file(home + "/huge." + kind, 1'000'000'000'000'000, 1'000);
                for (const char* place : {"/huge/inner/file", "/huge/other/file", "/as huge/file", "/third/file"})
                    disk.file(home + place, 999'990'000'000'000, 1'000);
                machine.vitals.setVolume(home, VolumeInfo{2'000'000'000'000'000, 999'999'999'999'999, 0});
                break;
        }
    }

    void expectNoFaults(const std::string& where) {
        window().grabWindow();  // applies pending layout
        runWhatIsThere();
        window().grabWindow();
        EXPECT_THAT(layoutFaults(window()), testing::IsEmpty()) << where;
        EXPECT_THAT(accessibilityFaults(window()), testing::IsEmpty()) << where;
        EXPECT_FALSE(focusableNames(window()).empty()) << where;
    }

    /// Checks the Lens inside its first folder, with that folder selected.
    void walkIntoFolder(const std::string& where) {
        QQuickItem* list = find("lensList");
        if (list == nullptr) return;
        list->forceActiveFocus(Qt::TabFocusReason);
        press(Qt::Key_Home);
        press(Qt::Key_Space);
        press(Qt::Key_Right);
        EXPECT_TRUE(find("lensBack")->isEnabled()) << "not inside";
        expectNoFaults(where + ", inside the first folder");
        press(Qt::Key_Left);
        press(Qt::Key_Space);
    }

    void walk(const std::string& state) {
        for (const Screen screen : allScreens) {
            model().setSelection(screen);
            const std::string name = lookOf(screen).title.toStdString();
            expectNoFaults(state + ", " + name);
            if (screen == Screen::lens) walkIntoFolder(state + ", " + name);
            QQuickItem* scroll = screen == Screen::survey ? find("surveyScroll") : nullptr;
            if (scroll == nullptr) continue;
            const double end = scroll->property("contentHeight").toReal() - scroll->height();
            for (double y = 0; y < end; y += 0.8 * scroll->height()) {
                scroll->setProperty("contentY", std::min(y, end));
                expectNoFaults(state + ", " + name + " from " + std::to_string(std::lround(y)));
            }
            scroll->setProperty("contentY", 0);
        }
    }
};

}  // namespace

TEST_P(ScreenWalk, hasNoFaultInAnySizeOrTheme) {
    shell();
    if (GetParam() != Content::none) survey();
    TextScale& text = main().textScale();
    for (const QSize size : {minimumSize, largeSize}) {
        window().resize(size);
        runUntil([&] { return window().contentItem()->size() == QSizeF(size); });
        for (const double factor : {1.0, 1.5}) {
            text.setFactor(factor);
            for (const auto appearance : {AppModel::Appearance::dark, AppModel::Appearance::light}) {
                model().setAppearance(appearance);
                walk(std::to_string(size.width()) + " wide, texts by " + std::to_string(factor) +
                     (appearance == AppModel::Appearance::dark ? ", dark" : ", light"));
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(With, ScreenWalk,
                         testing::Values(Content::none, Content::usual, Content::longNames, Content::hugeFigures),
                         nameOfContent);

}  // namespace zelk
