// SPDX-License-Identifier: MIT
#include "ui/screens/tools/ToolsScreenModel.h"

#include "state/AppModel.h"
#include "ui/theme/SystemTexts.h"

namespace zelk {

QString Tool::spoken() const {
    const QString said = look().title + QStringLiteral(". ") + detail;
    return cleanup.isEmpty() ? said : said + u' ' + cleanup;
}

ToolsScreenModel::ToolsScreenModel(AppModel& app)
    : app_(app),
      tools_{
          {Screen::survey, SystemTexts::of(SystemTexts::ScanWholeComputer), {}},
          {Screen::reclaim, tr("Find caches, logs, and developer junk, grouped by safety."),
           tr("clear it to the Trash")},
          {Screen::lens, tr("Explore where space went as bubbles, a drill-down list, or a treemap."),
           tr("delete folders you don't need")},
          {Screen::clutter, tr("Surface your largest and oldest files, filterable by type."),
           tr("move them to the Trash")},
          {Screen::duplicates, tr("Find byte-identical files across your folders."),
           tr("keep one copy, trash the rest")},
          {Screen::health, tr("Live disk, memory, CPU, and battery gauges."), {}},
          {Screen::apps, tr("See apps by true footprint and uninstall them with all their leftovers."), {}},
          {Screen::privacy, tr("Clear browsing traces — caches, histories, cookies — across your browsers."), {}},
          {Screen::tune, tr("Free up memory, flush the DNS cache, and manage startup items."), {}},
          {Screen::system, tr("Local snapshots, purgeable space, and disk-image / VM bloat."), {}},
      } {}

void ToolsScreenModel::press(int row) {
    if (row >= 0 && row < tools_.size()) app_.setSelection(tools_[row].screen);
}

}  // namespace zelk

#include "moc_ToolsScreenModel.cpp"
