// SPDX-License-Identifier: MIT
#include "state/SettingsPreferences.h"

namespace zelk {

bool SettingsPreferences::flag(const std::string& key) {
    return settings_.value(QString::fromStdString(key), false).toBool();
}

void SettingsPreferences::setFlag(const std::string& key, bool value) {
    settings_.setValue(QString::fromStdString(key), value);
    settings_.sync();  // whatever becomes of this run
}

}  // namespace zelk
