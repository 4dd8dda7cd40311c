// SPDX-License-Identifier: MIT
#pragma once

#include <QSettings>
#include <QString>
#include <map>
#include <string>

#include "platform/Preferences.h"

namespace zelk {

/// Stores flags where the system keeps preferences: on macOS in the user defaults of the bundle, where the slash of a
/// key becomes a dot, and on Linux in "Zelk/Zelk.conf" in the XDG configuration home. While the home folder does not
/// exist, flags last for this run only, because storing them would create that folder. Main thread only; failures are
/// silent.
class SettingsPreferences : public Preferences {
public:
    SettingsPreferences() : settings_(organization(), QStringLiteral("Zelk")) {}
    /// Uses another file, for programs that must not touch the user's preferences.
    explicit SettingsPreferences(const QString& file) : settings_(file, QSettings::IniFormat) {}

    bool flag(const std::string& key) override;
    void setFlag(const std::string& key, bool value) override;

private:
    /// The toolkit makes the name of the user defaults of it: turned round, and the application's behind it. That must
    /// be the bundle's identifier, by which the system and everybody who removes the application find them.
    static QString organization() {
#ifdef Q_OS_MACOS
        return QStringLiteral("zelk.github.io");
#else
        return QStringLiteral("Zelk");
#endif
    }

    QSettings settings_;
    std::map<std::string, bool> unkept_;
};

}  // namespace zelk
