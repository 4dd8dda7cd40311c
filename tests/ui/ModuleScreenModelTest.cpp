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

TEST(ModuleScreenModel, tellsShareInWordsForAScreenReader) {
    ModuleTexts texts;
    texts.scanningLabel = QStringLiteral("Hashing…");
    ModuleScreenModel module(Screen::apps, texts);
    QSignalSpy changes(&module, &ModuleScreenModel::shareChanged);
    EXPECT_LT(module.share(), 0);
    EXPECT_EQ(module.doing(), QStringLiteral("Hashing…"));
    module.setShare(0.25, QStringLiteral("1 MB of 4 MB"));
    EXPECT_EQ(module.share(), 0.25);
    EXPECT_EQ(module.doing(), QStringLiteral("Hashing…, 1 MB of 4 MB"));
    module.setShare(0.25, QStringLiteral("1 MB of 4 MB"));
    EXPECT_EQ(changes.count(), 1);
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
