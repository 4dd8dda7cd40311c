// SPDX-License-Identifier: MIT
// The view of Health with its model, on a machine whose vitals a test sets.
#pragma once

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "TextsOf.h"
#include "ViewFixture.h"
#include "ui/screens/health/HealthScreenModel.h"

namespace zelk {

class HealthViewFixture : public ViewFixture {
protected:
    HealthViewFixture() {
        machine.vitals.memoryStats = MemoryStats{16'000'000'000, 4'000'000'000, 12'000'000'000, 0, 0};
        machine.vitals.setVolume(home, VolumeInfo{1'000'000'000'000, 600'000'000'000, 0});
        machine.vitals.powerInfo = PowerInfo();
    }
    ~HealthViewFixture() override { close(); }

    void open(QSize size = {900, 1400}, SystemTexts::System system = macOS) {
        close();
        const TextsOf texts(system);
        model().setSelection(Screen::health);
        screen_ = std::make_unique<HealthScreenModel>(model(), [this] { ++helps; });
        show(QStringLiteral("Zelk.App"), QStringLiteral("HealthView"), "health", screen_.get(), size);
    }
    HealthScreenModel& screen() { return *screen_; }
    std::size_t samples() const { return machine.vitals.volumeReads().size(); }
    void tick() {
        screen().sample();
        settle();
    }
    void untilIdle() {
        runUntil([&] { return !screen().busy(); });
        settle();
    }
    void answer(const std::string& output) {
        machine.processes.outcome = [=](const auto&) {
            ChildOutcome outcome;
            outcome.output = output;
            return outcome;
        };
    }
    /// Makes the score be in the band of this grade.
    void setGrade(int place) {
        constexpr std::array<std::int64_t, 5> available{600, 200, 50, 1, 1};
        constexpr std::array<std::uint64_t, 5> used{4, 4, 4, 4, 15};
        machine.vitals.setVolume(home, VolumeInfo{1000, available.at(static_cast<std::size_t>(place)), 0});
        machine.vitals.memoryStats = MemoryStats{16, used.at(static_cast<std::size_t>(place)), 0, 0, 0};
        machine.vitals.powerInfo = place == 4 ? PowerInfo{true, 3, false, false} : PowerInfo();
        tick();
        ASSERT_EQ(screen().gradeIndex(), place);
    }
    QColor colorOf(const char* text) { return showing(text)->property("color").value<QColor>(); }
    Theme& theme() { return singleton<Theme>("Theme"); }
    std::vector<QQuickItem*> gauges() {
        std::vector<QQuickItem*> found;
        for (QQuickItem* item : seen())
            if (item->objectName() == QStringLiteral("gauge")) found.push_back(item);
        return found;
    }
    std::vector<QQuickItem*> named(const char* name) {
        std::vector<QQuickItem*> found;
        for (QQuickItem* item : seen())
            if (item->objectName() == QLatin1String(name)) found.push_back(item);
        return found;
    }
    static QAccessibleInterface* readerOf(QQuickItem* item) { return QAccessible::queryAccessibleInterface(item); }
    static std::string read(QQuickItem* item) {
        return readerOf(item)->text(QAccessible::Name).toStdString() + "|" +
               readerOf(item)->text(QAccessible::Description).toStdString();
    }

    int helps = 0;

    static constexpr std::array rows{"improveJunk", "improveMemory", "improveDNS", "improveDuplicates",
                                     "improveLargeFiles"};

private:
    std::unique_ptr<HealthScreenModel> screen_;
};

}  // namespace zelk
