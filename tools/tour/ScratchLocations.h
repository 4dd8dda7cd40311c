// SPDX-License-Identifier: MIT
#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <string>
#include <vector>

#include "platform/Locations.h"

namespace zelk::tour {

/// The user's real home, with a temporary folder for application data, so that the tour leaves no survey in the user's
/// history. With `withRecords` the folder starts with a copy of the history.
class ScratchLocations : public Locations {
public:
    ScratchLocations(Locations& real, bool withRecords) : real_(real) {
        const std::optional<std::string> records = real.applicationSupport();
        if (!withRecords || !records || !QDir(support_.path()).mkdir(QStringLiteral("Zelk"))) return;
        const QString file = QStringLiteral("/Zelk/history.json");
        QFile::copy(QString::fromStdString(*records) + file, support_.path() + file);
    }

    std::string home() override { return real_.home(); }
    std::optional<std::string> applicationSupport() override { return support_.path().toStdString(); }
    std::optional<XdgHomes> xdgHomes() override { return real_.xdgHomes(); }
    TrashPlaces trashPlaces() override { return real_.trashPlaces(); }
    /// A folder with as many items as a well-filled desktop has, and a few of the system's.
    std::vector<BackgroundItemFolder> backgroundItemFolders() override {
        const QString own = support_.filePath(QStringLiteral("autostart"));
        const QString system = support_.filePath(QStringLiteral("system"));
        for (int item = 1; item <= 296; ++item) put(own, item, "Companion");
        for (int item = 1; item <= 4; ++item) put(system, item, "Scheduler");
        return {{own.toStdString(), BackgroundItemKind::autostartEntries, true},
                {system.toStdString(), BackgroundItemKind::autostartEntries, false}};
    }
    std::vector<std::string> programFolders() override { return real_.programFolders(); }
    std::vector<std::string> sharedDataFolders() override { return real_.sharedDataFolders(); }
    std::vector<std::string> entryLocales() override { return {}; }
    bool isSandboxed() override { return real_.isSandboxed(); }
    std::string pathInSandbox(const std::string& path) override { return real_.pathInSandbox(path); }

private:
    static void put(const QString& folder, int item, const char* name) {
        const QString words = QStringLiteral("%1 %2").arg(QLatin1String(name)).arg(item, 3, 10, QLatin1Char('0'));
        QDir().mkpath(folder);
        QFile file(folder + QLatin1Char('/') + words.toLower().replace(QLatin1Char(' '), QLatin1Char('-')) +
                   QStringLiteral(".desktop"));
        if (file.open(QFile::WriteOnly))
            file.write("[Desktop Entry]\nType=Application\nName=" + words.toUtf8() + "\nExec=sh\n");
    }

    Locations& real_;
    QTemporaryDir support_;
};

}  // namespace zelk::tour
