// SPDX-License-Identifier: MIT
#include "state/SettingsPreferences.h"

#include <QDir>
#include <QFileInfo>

#include "platform/FolderPath.h"

namespace zelk {

namespace {

bool wouldMakeTheHome(const QSettings& settings) {
    const QString home = QDir::homePath();
    return isInFolder(settings.fileName().toStdString(), home.toStdString()) && !QFileInfo::exists(home);
}

}  // namespace

bool SettingsPreferences::flag(const std::string& key) {
    if (const auto found = unkept_.find(key); found != unkept_.end()) return found->second;
    return settings_.value(QString::fromStdString(key), false).toBool();
}

void SettingsPreferences::setFlag(const std::string& key, bool value) {
    if (wouldMakeTheHome(settings_)) {
        unkept_[key] = value;
        return;
    }
    unkept_.erase(key);
    settings_.setValue(QString::fromStdString(key), value);
    settings_.sync();  // at once, in case this run crashes
}

}  // namespace zelk
