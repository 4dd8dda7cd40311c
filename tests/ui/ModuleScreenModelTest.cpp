// SPDX-License-Identifier: MIT
#include "ui/screens/module/ModuleScreenModel.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

#include "state/AppModelFixture.h"
#include "ui/theme/ScreenLook.h"

namespace zelk {

namespace {

class Modules : public AppModelFixture {
protected:
    Modules() {
        fillHome();
        addWideFolder(home + "/wide");
    }
    ~Modules() override { machine.directories.release(); }

    std::unique_ptr<ModuleScreenModel> module(Screen screen) { return makeUnbuiltModule(screen); }
};

}  // namespace

TEST(ModuleScreenModel, titleDefaultsToThatOfTheScreen) {
    const ModuleScreenModel untitled(Screen::clutter, {});
    EXPECT_EQ(untitled.title(), QStringLiteral("Clutter"));
    ModuleTexts texts;
    texts.title = QStringLiteral("Mac health");
    const ModuleScreenModel titled(Screen::health, texts);
    EXPECT_EQ(titled.title(), QStringLiteral("Mac health"));
    EXPECT_EQ(titled.symbol(), lookOf(Screen::health).symbol);
    EXPECT_EQ(titled.tint(), lookOf(Screen::health).color);
}

TEST(ModuleScreenModel, showsOneFaceAtATime) {
    ModuleScreenModel module(Screen::apps, {});
    QSignalSpy changes(&module, &ModuleScreenModel::phaseChanged);
    const auto faces = [&] { return std::vector<bool>{module.idle(), module.scanning(), module.results()}; };
    EXPECT_EQ(faces(), (std::vector<bool>{true, false, false}));
    module.setPhase(ModulePhase::scanning);
    EXPECT_EQ(faces(), (std::vector<bool>{false, true, false}));
    module.setPhase(ModulePhase::scanning);
    module.setPhase(ModulePhase::results);
    EXPECT_EQ(faces(), (std::vector<bool>{false, false, true}));
    EXPECT_EQ(changes.count(), 2);
}

TEST(ModuleScreenModel, scanRunsActionOfTheModule) {
    int runs = 0;
    ModuleTexts texts;
    texts.scanLabel = QStringLiteral("Find duplicates");
    ModuleScreenModel module(Screen::duplicates, texts, [&] { ++runs; });
    module.scan();
    EXPECT_EQ(runs, 1);
    ModuleScreenModel idle(Screen::duplicates, {});
    idle.scan();
}

TEST_F(Modules, haveTitleAndSubtitle) {
    const auto expect = [&](Screen screen, const char* title, const char* subtitle) {
        EXPECT_EQ(module(screen)->title().toStdString(), title);
        EXPECT_EQ(module(screen)->subtitle().toStdString(), subtitle);
    };
    expect(Screen::apps, "Apps",
           "List installed apps by size and uninstall them cleanly — the app plus its leftover caches, preferences, "
           "and support files.");
    expect(Screen::duplicates, "Duplicates",
           "Find byte-identical files — duplicate downloads, copied media, repeated exports — and keep just one.");
}

TEST_F(Modules, showNoteInsteadOfScanIfUnbuilt) {
    for (const Screen screen : {Screen::apps, Screen::duplicates}) {
        const auto unbuilt = module(screen);
        EXPECT_TRUE(unbuilt->scanLabel().isEmpty());
        EXPECT_EQ(unbuilt->note(), lookOf(screen).title + QStringLiteral(" is not in this version yet."));
        unbuilt->scan();
        EXPECT_EQ(model().scanPhase(), Phase::idle);
        EXPECT_TRUE(unbuilt->idle());
    }
}

TEST_F(Modules, followSurveyStartedByTheirButton) {
    ModuleTexts texts;
    texts.scanLabel = QStringLiteral("Look");
    const auto looking = std::make_unique<SurveyedModule>(model(), Screen::lens, texts);
    EXPECT_TRUE(looking->idle());
    machine.directories.hold(home + "/wide/inner");
    looking->scan();
    EXPECT_TRUE(looking->scanning());
    runUntil(
        [&] { return model().itemsScanned() > 0 && looking->scanDetail().toStdString() == model().progressLine(); });
    EXPECT_TRUE(looking->scanDetail().contains(QStringLiteral(" items · ")));
    looking->cancel();
    EXPECT_EQ(model().scanPhase(), Phase::idle);
    EXPECT_TRUE(looking->idle());
    machine.directories.release();
    survey();
    EXPECT_TRUE(looking->results());
    looking->cancel();
    EXPECT_EQ(model().scanPhase(), Phase::finished) << "there is nothing to cancel";
}

TEST_F(Modules, joinRunningSurvey) {
    machine.directories.hold(home + "/wide/inner");
    model().startScan();
    EXPECT_TRUE(SurveyedModule(model(), Screen::lens, {}).scanning());
}

}  // namespace zelk
