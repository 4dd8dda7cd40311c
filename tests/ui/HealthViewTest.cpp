// SPDX-License-Identifier: MIT
// The health screen as it is seen, operated and read aloud.
#include <gmock/gmock.h>

#include <algorithm>
#include <utility>

#include "HealthViewFixture.h"
#include "Readable.h"
#include "fakes/HeapInUse.h"
#include "ui/charts/RingPicture.h"

namespace zelk {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

class HealthWindow : public HealthViewFixture {
protected:
    /// What each item that screen readers find is called, as far as it is seen.
    std::vector<std::string> namesForReaders() {
        std::vector<std::string> names;
        for (QQuickItem* item : seen())
            for (const QObject* part : item->children())
                if (part->inherits("QQuickAccessibleAttached"))
                    names.push_back(part->property("name").toString().toStdString());
        return names;
    }
};

}  // namespace

TEST_F(HealthWindow, showsItsTextsInOrder) {
    open();
    EXPECT_THAT(seenTexts(), ElementsAre("Mac health", "TestOS 1.0", "Mac Health", "Excellent",
                                         "Everything looks great — plenty of headroom.", "0%", "CPU", "8 cores", "25%",
                                         "Memory", "4 GB used", "40%", "Disk", "600 GB free", "This Mac", "Chip",
                                         "Test chip", "Cores", "8", "Memory", "15 GB", "macOS", "TestOS 1.0", "Uptime",
                                         "1h 0m", "Improve", "Find junk to clean", "Free up RAM", "Flush DNS cache",
                                         "Find duplicates", "Find large files"));
    EXPECT_EQ(samples(), 1U) << "the first frame has one sample";
}

TEST_F(HealthWindow, speaksOfNoMacOnLinux) {
    const TextsOf here(desktopLinux);
    open({900, 1400}, desktopLinux);
    setGrade(1);
    click("scoreInfo");
    for (const std::string& text : seenTexts()) {
        EXPECT_EQ(text.find("Mac"), std::string::npos) << text;
        EXPECT_EQ(text.find("macOS"), std::string::npos) << text;
    }
    expectTexts({"Computer health", "Computer Health", "Computer Health Score", "This computer", "System",
                 "Your computer is in good shape."});
}

TEST_F(HealthWindow, isColumnOfLimitedWidth) {
    open({1600, 1000});
    int cards = 0;
    for (QQuickItem* item : seen())
        if (item->inherits("QQuickPane")) {
            ++cards;
            EXPECT_EQ(item->mapToScene({}).x(), 26);
            EXPECT_EQ(item->width(), 820);
        }
    EXPECT_EQ(cards, 4);
    open({800, 1000});
    for (QQuickItem* item : seen())
        if (item->inherits("QQuickPane")) {
            EXPECT_EQ(item->width(), 800 - 2 * 26);
        }
}

TEST_F(HealthWindow, sectionsStandEighteenApart) {
    open();
    double bottom = 0;
    int gaps = 0;
    for (QQuickItem* item : seen()) {
        if (!item->inherits("QQuickPane")) continue;
        const QRectF box = item->mapRectToScene(item->boundingRect());
        if (bottom > 0) {
            EXPECT_EQ(box.top() - bottom, 18);
            ++gaps;
        }
        bottom = box.bottom();
    }
    EXPECT_EQ(gaps, 3);
}

TEST_F(HealthWindow, showsEveryGradeInItsColour) {
    struct Told {
        const char* label;
        const char* summary;
        QColor color;
    };
    const std::array<Told, 5> told{{
        {"Excellent", "Everything looks great — plenty of headroom.", {91, 200, 250}},
        {"Good", "Your Mac is in good shape.", {47, 211, 165}},
        {"Fair", "A cleanup would help free things up.", {245, 200, 75}},
        {"Requires Attention", "Worth reclaiming space and easing load.", {245, 166, 35}},
        {"Critical", "Low on resources — clean up soon.", {255, 90, 77}},
    }};
    open();
    for (int place = 0; place < 5; ++place) {
        const Told& wanted = told.at(static_cast<std::size_t>(place));
        model().setAppearance(AppModel::Appearance::dark);
        setGrade(place);
        ASSERT_NE(showing(wanted.label), nullptr) << wanted.label;
        ASSERT_NE(showing(wanted.summary), nullptr) << wanted.summary;
        EXPECT_EQ(sizeOf(wanted.label), 30);
        EXPECT_EQ(colorOf(wanted.label), wanted.color);
        const SymbolItem* heart = symbol("heart.fill");
        ASSERT_NE(heart, nullptr);
        EXPECT_EQ(heart->color(), wanted.color);
        EXPECT_EQ(heart->parentItem()->size(), QSizeF(64, 64));
        EXPECT_EQ(heart->parentItem()->property("border").value<QObject*>()->property("color").value<QColor>(),
                  wanted.color);
        model().setAppearance(AppModel::Appearance::light);
        settle();
        EXPECT_EQ(symbol("heart.fill")->color(), wanted.color) << "the same in both themes";
        EXPECT_GE(contrastBetween(colorOf(wanted.label), theme().surface()), readableContrast - 0.001) << wanted.label;
    }
}

TEST_F(HealthWindow, gaugesStandEvenlySideBySide) {
    machine.vitals.powerInfo = PowerInfo{true, 80, false, true};
    open();
    for (const std::size_t count : {4U, 3U, 2U}) {
        const auto shown = gauges();
        ASSERT_EQ(shown.size(), count);
        const double step = (820.0 - 2 * 20) / static_cast<double>(count);
        for (std::size_t at = 0; at < count; ++at) {
            const QPointF place = shown[at]->mapToScene({});
            EXPECT_EQ(place.y(), shown[0]->mapToScene({}).y());
            EXPECT_NEAR(place.x(), 26 + 20 + static_cast<double>(at) * step, 0.01);
            EXPECT_NEAR(shown[at]->width(), step, 0.01);
        }
        if (count == 4)
            machine.vitals.powerInfo = PowerInfo();
        else
            machine.vitals.setVolume(home, std::nullopt);
        tick();
    }
}

TEST_F(HealthWindow, leavesOutWhatTheMachineDoesNotHave) {
    machine.vitals.setVolume(home, std::nullopt);
    open();
    EXPECT_THAT(seenTexts(), Not(Contains("Disk")));
    EXPECT_THAT(seenTexts(), Not(Contains("Battery")));
    machine.vitals.powerInfo = PowerInfo{true, 40, false, false};
    tick();
    expectTexts({"Battery", "40%", "on battery"});
    machine.vitals.powerInfo = PowerInfo{true, 40, true, true};
    tick();
    expectTexts({"Charging", "40%", "on power"});
    EXPECT_THAT(seenTexts(), Not(Contains("Battery")));
}

TEST_F(HealthWindow, gaugesHaveTheColoursOfTheirLevels) {
    machine.vitals.powerInfo = PowerInfo{true, 10, false, false};
    machine.vitals.memoryStats = MemoryStats{10, 8, 2, 0, 0};
    open();
    const auto colors = [this] {
        std::vector<QColor> found;
        for (QQuickItem* item : seen())
            if (qobject_cast<RingPicture*>(item)) found.push_back(item->property("color").value<QColor>());
        return found;
    };
    const QColor green(50, 199, 123);
    const QColor amber(245, 166, 35);
    EXPECT_THAT(colors(), ElementsAre(green, amber, green, QColor(255, 90, 77)));
    model().setAppearance(AppModel::Appearance::light);
    settle();
    EXPECT_THAT(colors(), ElementsAre(green, amber, green, QColor(216, 64, 46)));
}

TEST_F(HealthWindow, gaugesHaveNameValueAndDetailForScreenReaders) {
    machine.vitals.powerInfo = PowerInfo{true, 80, false, true};
    open();
    std::vector<std::string> said;
    for (QQuickItem* gauge : gauges()) {
        EXPECT_EQ(readerOf(gauge)->role(), QAccessible::Graphic);
        said.push_back(read(gauge));
    }
    EXPECT_THAT(said, ElementsAre("CPU|0%, 8 cores", "Memory|25%, 4 GB used", "Disk|40%, 600 GB free",
                                  "Battery|80%, on power"));
}

/// A hundred samples with other values each. A changed name would be reported, a changed description is not.
TEST_F(HealthWindow, nothingSpeaksUnasked) {
    machine.vitals.powerInfo = PowerInfo{true, 100, false, true};
    open();
    std::vector<std::string> names = namesForReaders();
    ASSERT_THAT(names, Contains("Uptime, 1h 0m"));
    int changes = 0;
    for (int at = 0; at < 100; ++at) {
        machine.vitals.cpuTicks = CPUTicks{at * 37.0, 0, at * 100.0, 0};
        machine.vitals.memoryStats.used = static_cast<std::uint64_t>(4'000'000'000 + at * 10'000'000);
        machine.vitals.powerInfo.percent = 100 - at % 50;
        machine.vitals.uptimeSeconds = 3600 + 2 * at;
        tick();
        std::vector<std::string> now = namesForReaders();
        ASSERT_EQ(now.size(), names.size());
        for (std::size_t one = 0; one < now.size(); ++one) {
            if (now[one] == names[one]) continue;
            ++changes;
            EXPECT_EQ(now[one].rfind("Uptime, ", 0), 0U) << now[one];
        }
        names = std::move(now);
    }
    EXPECT_EQ(changes, 3) << "one a minute";
    EXPECT_EQ(read(gauges().at(3)), "Battery|51%, on power") << "who asks is told the value of now";
}

TEST_F(HealthWindow, samplesOnlyWhileItIsSeen) {
    open();
    const std::size_t before = samples();
    EXPECT_TRUE(screen().watched());
    view().setVisible(false);
    EXPECT_FALSE(screen().watched());
    view().setVisible(true);
    EXPECT_TRUE(screen().watched());
    EXPECT_EQ(samples(), before + 1);
    window().setWindowStates(Qt::WindowMinimized);
    runWhatIsThere();
    EXPECT_FALSE(screen().watched());
    window().setWindowStates(Qt::WindowNoState);
    runUntil([&] { return screen().watched(); });
    close();
    EXPECT_FALSE(screen().watched());
}

TEST_F(HealthWindow, samplingAllocatesNothingThatStays) {
    machine.vitals.powerInfo = PowerInfo{true, 100, false, true};
    open();
    const auto sample = [this](int times) {
        for (int at = 0; at < times; ++at) {
            machine.vitals.cpuTicks = CPUTicks{at * 1000.0 + at % 9 * 10, 0, at * 1000.0, 0};
            machine.vitals.memoryStats.used = static_cast<std::uint64_t>(4'000'000'000 + at % 50 * 100'000'000);
            machine.vitals.powerInfo.percent = at % 100;
            machine.vitals.uptimeSeconds = at % 100 * 60;
            screen().sample();
            runWhatIsThere();
        }
    };
    sample(1000);
    settle();
    const auto before = static_cast<std::ptrdiff_t>(fakes::heapInUse());
    sample(1000);
    settle();
    // The fake notes the paths of all volumes that were read.
    constexpr std::ptrdiff_t notes = 4096 * sizeof(std::string);
    EXPECT_LT(static_cast<std::ptrdiff_t>(fakes::heapInUse()) - before, notes + 64 * 1024);
}

TEST_F(HealthWindow, tabVisitsEverything) {
    open();
    EXPECT_EQ(focusName(), "Mac Health Score");
    EXPECT_THAT(tabOrder(), ElementsAre("Mac Health Score", "Find junk to clean", "Free up RAM", "Flush DNS cache",
                                        "Find duplicates", "Find large files"));
    expectAllControlsNamed();
}

TEST_F(HealthWindow, scrollsToFocusedRow) {
    open({726, 560});
    for (int stop = 0; stop < 6; ++stop) {
        expectFocusInSight();
        press(Qt::Key_Tab);
    }
}

TEST_F(HealthWindow, rowsLeadToTheirScreens) {
    const std::array<std::pair<const char*, Screen>, 3> ways{{{"improveJunk", Screen::reclaim},
                                                              {"improveDuplicates", Screen::duplicates},
                                                              {"improveLargeFiles", Screen::clutter}}};
    open();
    for (const auto& [row, to] : ways) {
        click(row);
        EXPECT_EQ(model().selection(), to);
        model().setSelection(Screen::health);
        find(row)->forceActiveFocus(Qt::TabFocusReason);
        press(Qt::Key_Return);
        EXPECT_EQ(model().selection(), to);
        model().setSelection(Screen::health);
    }
}

TEST_F(HealthWindow, rowsHaveTheirSymbols) {
    open();
    const std::array symbols{"sparkles", "memorychip", "network", "doc.on.doc", "tray.full"};
    for (std::size_t at = 0; at < rows.size(); ++at) {
        const SymbolItem* sign = symbol(symbols.at(at));
        ASSERT_NE(sign, nullptr) << symbols.at(at);
        EXPECT_TRUE(find(rows.at(at))->isAncestorOf(sign)) << symbols.at(at);
    }
}

TEST_F(HealthWindow, noRowIsPressedWhileCommandRuns) {
    open();
    machine.tasks.hold();
    EXPECT_TRUE(named("improveSpinner").empty());
    click("improveMemory");
    for (const char* row : rows) EXPECT_FALSE(find(row)->isEnabled()) << row;
    ASSERT_EQ(named("improveSpinner").size(), 1U);
    EXPECT_EQ(read(find("improveSpinner")), "working…|");
    for (const char* row : rows) click(row);
    EXPECT_EQ(model().selection(), Screen::health);
    EXPECT_EQ(machine.tasks.waiting().size(), 1U);
    machine.tasks.release();
    untilIdle();
    for (const char* row : rows) EXPECT_TRUE(find(row)->isEnabled()) << row;
    EXPECT_TRUE(named("improveSpinner").empty());
}

TEST_F(HealthWindow, rowKeepsFocusAndRingOverItsCommand) {
    open();
    find("improveDNS")->forceActiveFocus(Qt::TabFocusReason);
    machine.tasks.hold();
    press(Qt::Key_Return);
    EXPECT_TRUE(screen().busy());
    EXPECT_FALSE(find("improveDNS")->hasActiveFocus());
    machine.tasks.release();
    untilIdle();
    EXPECT_EQ(focusName(), "Flush DNS cache");
    EXPECT_TRUE(focusIsRinged());
    find("improveDuplicates")->forceActiveFocus(Qt::TabFocusReason);
    EXPECT_TRUE(focusIsRinged());
    click("improveDNS");
    untilIdle();
    EXPECT_EQ(focusName(), "Flush DNS cache");
    EXPECT_FALSE(focusIsRinged()) << "a click shows none";
}

TEST_F(HealthWindow, showsResultInLines) {
    answer("one\rtwo\r\nthree\n");
    open();
    EXPECT_TRUE(named("healthOutput").empty());
    click("improveDNS");
    untilIdle();
    QQuickItem* text = showing("one\ntwo\nthree\n");
    ASSERT_NE(text, nullptr);
    // The last one is empty, as the tool wrote it; later versions of Qt do not count it.
    EXPECT_THAT(text->property("lineCount").toInt(), testing::AnyOf(3, 4));
    EXPECT_EQ(sizeOf("one\ntwo\nthree\n"), 10);
    EXPECT_EQ(text->property("font").value<QFont>().family(), theme().fixedFont());
}

/// Screen readers announce an alert that appears.
TEST_F(HealthWindow, announcesEveryResultOnce) {
    open();
    int shown = 0;
    std::string name;
    auto* output = view().findChild<QQuickItem*>(QStringLiteral("healthOutput"));
    ASSERT_NE(output, nullptr);
    const QObject watching;  // ends before what it counts in, and the view goes on
    QObject::connect(output, &QQuickItem::visibleChanged, &watching, [&] {
        shown += output->isVisible() ? 1 : 0;
        name = nameOf(output);
    });
    for (const char* text : {"done", "done", "more"}) {
        answer(text);
        shown = 0;
        click("improveDNS");
        untilIdle();
        EXPECT_EQ(shown, 1);
        EXPECT_EQ(name, text) << "its name is there before it appears";
    }
    EXPECT_EQ(readerOf(output)->role(), QAccessible::AlertMessage);
}

TEST_F(HealthWindow, scrollsToLongResult) {
    const std::string result = std::string(300, 'x') + "\n" + std::string(200, '\n') + "end";
    answer(result);
    open({726, 560});
    find("improveDNS")->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Return);
    untilIdle();
    settle();
    const QQuickItem* output = named("healthOutput").at(0);
    const double top = output->mapToScene({}).y();
    EXPECT_GT(top, 0);
    EXPECT_LT(top, 200) << "its beginning is in sight";
    const QQuickItem* text = showing(result.c_str());
    ASSERT_NE(text, nullptr);
    EXPECT_LE(text->property("contentWidth").toReal(), text->width());
    EXPECT_GT(text->property("lineCount").toInt(), 202) << "a long line is wrapped";
    QQuickItem* scroll = find("healthScroll");
    scroll->forceActiveFocus();
    press(Qt::Key_End);
    EXPECT_LE(output->mapRectToScene(output->boundingRect()).bottom(), 560);
}

}  // namespace zelk
