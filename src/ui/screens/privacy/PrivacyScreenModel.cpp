// SPDX-License-Identifier: MIT
#include "ui/screens/privacy/PrivacyScreenModel.h"

#include <utility>

#include "state/AppModel.h"
#include "ui/theme/DisplayText.h"

namespace zelk {

namespace {

constexpr int lookAgainInterval = 2'000;  // milliseconds

}  // namespace

PrivacyScreenModel::PrivacyScreenModel(AppModel& app)
    : ModuleScreenModel(
          Screen::privacy,
          {.title = tr("Privacy"),
           .subtitle = tr("Clear browsing traces across your browsers — caches, histories, cookies. No malware scanner "
                          "(that needs a signature database)."),
           .scanLabel = tr("Scan for traces"),
           .scanningLabel = tr("Scanning browser traces…")},
          [&app] { app.privacy().scanTraces(); }),
      privacy_(app.privacy()),
      rows_(privacy_),
      undoBar_(app, RemovalUndo::Source::traces) {
    connect(&privacy_, &PrivacyModel::tracesChanged, this, &PrivacyScreenModel::showTraces);
    connect(&privacy_, &PrivacyModel::selectionChanged, &rows_, &TraceRows::tellTicks);
    connect(&privacy_, &PrivacyModel::selectionChanged, this, &PrivacyScreenModel::selectionChanged);
    connect(&privacy_, &PrivacyModel::runningChanged, this, &PrivacyScreenModel::showRunning);
    connect(&privacy_, &PrivacyModel::hasScannedChanged, this, &PrivacyScreenModel::followScan);
    connect(&privacy_, &PrivacyModel::loadingChanged, this, &PrivacyScreenModel::followScan);
    again_.setInterval(lookAgainInterval);
    connect(&again_, &QTimer::timeout, &privacy_, &PrivacyModel::refreshRunning);
    rows_.show();
    followScan();
}

void PrivacyScreenModel::followScan() {
    if (!privacy_.hasScanned()) return setPhase(ModulePhase::idle);
    setPhase(privacy_.loading() ? ModulePhase::scanning : ModulePhase::results);
}

void PrivacyScreenModel::showTraces() {
    rows_.show();
    showRunning();
    emit tracesChanged();
    emit selectionChanged();
}

void PrivacyScreenModel::showRunning() {
    rows_.tellRunning();
    const bool waits = watched_ && rows_.hasRunning();
    if (waits == again_.isActive()) return;
    waits ? again_.start() : again_.stop();
}

bool PrivacyScreenModel::historyStays() const {
    return privacy_.firefoxHistoryStays();
}

QString PrivacyScreenModel::selectedLine() const {
    return tr("%1 selected").arg(byteFigure(static_cast<std::int64_t>(privacy_.selectedBytes())));
}

bool PrivacyScreenModel::clearable() const {
    return !privacy_.selected().empty();
}

void PrivacyScreenModel::toggle(int row) {
    const std::optional<std::string> identity = rows_.identityAt(row);
    if (identity && rows_.isFree(row)) privacy_.setSelected(*identity, !privacy_.selected().contains(*identity));
}

void PrivacyScreenModel::clearChosen() {
    privacy_.clearSelected();
}

void PrivacyScreenModel::watch(bool seen, bool active) {
    const bool appears = seen && !std::exchange(watched_, seen);
    const bool wakes = active && !std::exchange(active_, active);
    watched_ = seen;
    active_ = active;
    if (appears || (wakes && seen)) privacy_.refreshRunning();
    showRunning();
}

}  // namespace zelk

#include "moc_PrivacyScreenModel.cpp"
