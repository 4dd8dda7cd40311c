// SPDX-License-Identifier: MIT
#include "ui/screens/system/SystemScreenModel.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "state/AppModel.h"
#include "state/Figures.h"
#include "ui/theme/DisplayText.h"
#include "ui/theme/SystemTexts.h"

namespace zelk {

namespace {

double bytesBeyond(std::int64_t all, std::int64_t part) {
    return static_cast<double>(std::max<std::int64_t>(all - part, 0));
}

}  // namespace

SystemScreenModel::SystemScreenModel(AppModel& app)
    : SurveyedModule(app, Screen::system,
                     {.title = tr("System"),
                      .subtitle = SystemTexts::of(SystemTexts::SystemLead),
                      .scanLabel = tr("Run survey"),
                      .scanningLabel = tr("Surveying your drive…")}),
      app_(app),
      explanation_(app.home()),
      snapshots_(app) {
    connect(&app, &AppModel::volumeChanged, this, &SystemScreenModel::volumeChanged);
    connect(&app, &AppModel::insightsChanged, this, &SystemScreenModel::refresh);
    connect(this, &ModuleScreenModel::phaseChanged, this, &SystemScreenModel::refresh);
    connect(this, &ModuleScreenModel::phaseChanged, this, &SystemScreenModel::listIfSeen);
    refresh();
}

void SystemScreenModel::setOnScreen(bool onScreen) {
    if (std::exchange(onScreen_, onScreen) != onScreen) listIfSeen();
}

bool SystemScreenModel::volumed() const {
    return app_.volume().has_value();
}

double SystemScreenModel::totalBytes() const {
    return static_cast<double>(app_.volume().value_or(VolumeInfo()).total);
}

double SystemScreenModel::usedBytes() const {
    const VolumeInfo volume = app_.volume().value_or(VolumeInfo());
    return bytesBeyond(volume.total, volume.available);
}

double SystemScreenModel::freeBytes() const {
    return static_cast<double>(app_.volume().value_or(VolumeInfo()).available);
}

double SystemScreenModel::purgeableBytes() const {
    const VolumeInfo volume = app_.volume().value_or(VolumeInfo());
    return bytesBeyond(volume.importantAvailable, volume.available);
}

QString SystemScreenModel::skippedLine() const {
    if (skipped_ <= 0) return {};
    return tr("%1 folders skipped during the scan — normal.", "", forPlural(skipped_)).arg(groupedFigure(skipped_));
}

void SystemScreenModel::explain(int row) {
    if (const std::string path = diskImages_.pathAt(row); !path.empty()) explanation_.open(path);
}

void SystemScreenModel::reveal(int row) {
    if (const std::string path = diskImages_.pathAt(row); !path.empty()) app_.workspace().reveal({path});
}

/// Skipped during a survey, whose results are not known yet.
void SystemScreenModel::refresh() {
    if (app_.scanPhase() != AppModel::ScanPhase::finished) return;
    diskImages_.show(app_.insights().diskImages);
    emit diskImagesChanged();
    skipped_ = app_.blockedPaths();
    emit skippedChanged();
}

void SystemScreenModel::listIfSeen() {
    if (onScreen_ && results()) snapshots_.reload();
}

}  // namespace zelk

#include "moc_SystemScreenModel.cpp"
