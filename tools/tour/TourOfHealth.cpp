// SPDX-License-Identifier: MIT
// The health screen with every grade, with and without a battery, and with a command and its result.
#include <QQuickItem>
#include <array>
#include <cstdint>

#include "Camera.h"
#include "Tour.h"
#include "ui/screens/health/HealthScreenModel.h"
#include "ui/theme/TextScale.h"

namespace zelk::tour {

namespace {

constexpr std::int64_t gigabyte = 1'000'000'000;

VolumeInfo driveWith(std::int64_t freePercent) {
    return {1000 * gigabyte, 10 * freePercent * gigabyte, 10 * freePercent * gigabyte};
}

MemoryStats memoryWith(std::uint64_t used) {
    constexpr std::uint64_t unit = gigabyte;
    return {16 * unit, used * unit, (16 - used) * unit, 0, 0};
}

struct GradeState {
    const char* name;
    PretendedVitals vitals;
};

constexpr PowerInfo plugged{true, 92, false, true};

/// The volume and memory that earn each grade with a battery that is full, or not.
const std::array<GradeState, 5> gradeStates{{
    {"health-excellent", {driveWith(60), memoryWith(5), plugged}},
    {"health-good", {driveWith(20), memoryWith(6), plugged}},
    {"health-fair", {driveWith(5), memoryWith(8), PowerInfo{true, 35, false, false}}},
    {"health-attention", {driveWith(6), memoryWith(15), PowerInfo{true, 22, false, false}}},
    {"health-critical", {driveWith(1), memoryWith(15), PowerInfo{true, 6, false, false}}},
}};

}  // namespace

bool Tour::health() {
    if (!go(Screen::health)) return false;
    QQuickItem* scroll = findControl(window_.window(), QStringLiteral("healthScroll"));
    if (scroll == nullptr) return missed("the health of the machine");
    auto& screen = *scroll->parentItem()->property("health").value<HealthScreenModel*>();
    const auto show = [&](const char* name, const PretendedVitals& vitals) {
        pretence_.setVitals(vitals);
        screen.sample();
        return picture(QString::fromLatin1(name));
    };
    for (int place = 0; place < static_cast<int>(gradeStates.size()); ++place) {
        const GradeState& state = gradeStates.at(static_cast<std::size_t>(place));
        if (!show(state.name, state.vitals)) return false;
        if (screen.gradeIndex() != place) return missed(state.name);
    }
    const PretendedVitals usual{driveWith(42), memoryWith(7), {}};
    PretendedVitals changed = usual;
    changed.power = PowerInfo{true, 64, true, true};
    if (!show("health-charging", changed)) return false;
    if (!clickOn(window_.window(), QStringLiteral("scoreInfo"))) return missed("the explanation of the score");
    if (!picture(QStringLiteral("health-score"))) return false;
    pressKey(window_.window(), Qt::Key_Escape);
    changed.power = PowerInfo();
    bool taken = show("health-no-battery", changed) && healthActions(*scroll);
    window_.textScale().setFactor(1.5);
    taken = taken && picture(QStringLiteral("large-text-health"));
    window_.textScale().setFactor(1);
    pretence_.setVitals({});
    return taken && go(Screen::survey);
}

/// A command that waits for its administrator, and what it has to say in the end.
bool Tour::healthActions(QQuickItem& scroll) {
    QQuickWindow& window = window_.window();
    QQuickItem* row = findControl(window, QStringLiteral("improveMemory"));
    if (row == nullptr) return missed("what improves the grade");
    pretence_.print("Freed 3 caches:\r/var/cache/names\r/var/cache/files\r/var/cache/a-place-with-a-long-name\n");
    pretence_.hold();
    row->forceActiveFocus(Qt::TabFocusReason);  // scrolls there
    pressKey(window, Qt::Key_Return);
    window.grabWindow();
    bool taken = !row->isEnabled() && picture(QStringLiteral("health-busy"));
    pretence_.release();
    waitUntil([&] { return row->isEnabled(); });
    taken = taken && appears(window, "healthOutput") && picture(QStringLiteral("health-output"));
    pretence_.print({});
    scroll.setProperty("contentY", 0);
    return taken || missed("a command and its result");
}

}  // namespace zelk::tour
