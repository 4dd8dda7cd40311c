// SPDX-License-Identifier: MIT
#pragma once

#include <QSettings>
#include <QString>
#include <map>
#include <string>

#include "platform/Preferences.h"

namespace zelk {

/// Stores flags where the system keeps preferences: in the user defaults on macOS, where the slash of a key becomes a
/// dot, and in "Zelk/Zelk.conf" in the XDG configuration home on Linux. While the home folder does not exist, flags
/// last for this run only, because storing them would create that folder. Main thread only; failures are silent.
class SettingsPreferences : public Preferences {
public:
    SettingsPreferences() : settings_(QStringLiteral("Zelk"), QStringLiteral("Zelk")) {}
    /// Uses another file, for programs that must not touch the user's preferences.
    explicit SettingsPreferences(const QString& file) : settings_(file, QSettings::IniFormat) {}

    bool flag(const std::string& key) override;
    void setFlag(const std::string& key, bool value) override;

private:
    QSettings settings_;
    std::map<std::string, bool> unkept_;
};

}  // namespace zelk
