// SPDX-License-Identifier: MIT
#include "ui/shell/StatusMenu.h"

#include <utility>

#include "state/AppModel.h"
#include "ui/theme/DisplayText.h"

namespace zelk {

namespace {

constexpr int refreshInterval = 200;  // milliseconds

}  // namespace

StatusMenu::StatusMenu(AppModel& app, std::function<void()> openZelk, std::function<void()> quit)
    : app_(app), openZelk_(std::move(openZelk)), quit_(std::move(quit)) {
    timer_.setSingleShot(true);
    timer_.setInterval(refreshInterval);
    connect(&timer_, &QTimer::timeout, this, &StatusMenu::changed);
    const auto soon = [this] {
        if (!timer_.isActive()) timer_.start();
    };
    connect(&app, &AppModel::volumeChanged, this, soon);
    connect(&app, &AppModel::scanPhaseChanged, this, soon);
    connect(&app, &AppModel::progressChanged, this, soon);
    connect(&app, &AppModel::reclaimablesChanged, this, soon);
}

std::vector<StatusEntry> StatusMenu::entries() const {
    const bool scanning = app_.scanPhase() == AppModel::ScanPhase::scanning;
    const bool finished = app_.scanPhase() == AppModel::ScanPhase::finished;
    std::vector<StatusEntry> entries;
    entries.push_back({tr("Free space: %1").arg(byteFigure(app_.freeBytes())), {}});
    entries.push_back({});
    entries.push_back({tr("Open Zelk"), openZelk_});
    if (scanning)
        entries.push_back({tr("Surveying… %1").arg(byteFigure(app_.bytesScanned())), {}});
    else
        entries.push_back({tr("Run survey"), [this] { runSurvey(); }});
    if (const std::int64_t safe = app_.safeBytes(); finished && safe >= 1)
        entries.push_back({tr("Clean safe caches (%1)").arg(byteFigure(safe)), [this] { app_.cleanSafeCaches(); }});
    entries.push_back({});
    entries.push_back({tr("Quit Zelk"), quit_});
    return entries;
}

void StatusMenu::runSurvey() const {
    app_.setSelection(Screen::survey);
    app_.startScan();
    openZelk_();
}

}  // namespace zelk

#include "moc_StatusMenu.cpp"
