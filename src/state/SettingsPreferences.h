// SPDX-License-Identifier: MIT
#pragma once

#include <QSettings>
#include <QString>
#include <map>
#include <string>

#include "platform/Preferences.h"

namespace zelk {

/// In the place where the system keeps what its users prefer: the user defaults on macOS, where the slash of a key is
/// stored as a dot; "Zelk/Zelk.conf" in the XDG configuration home on Linux. What is set while the home folder does not
/// exist lasts for this run only, for keeping it would make that folder.
class SettingsPreferences : public Preferences {
public:
    SettingsPreferences() : settings_(QStringLiteral("Zelk"), QStringLiteral("Zelk")) {}
    /// In a file of its own, for programs that must not touch what the user prefers.
    explicit SettingsPreferences(const QString& file) : settings_(file, QSettings::IniFormat) {}

    bool flag(const std::string& key) override;
    void setFlag(const std::string& key, bool value) override;

private:
    QSettings settings_;
    std::map<std::string, bool> unkept_;
};

}  // namespace zelk
