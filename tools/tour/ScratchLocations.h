// SPDX-License-Identifier: MIT
#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <string>

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
    std::optional<std::string> xdgDataHome() override { return real_.xdgDataHome(); }
    TrashPlaces trashPlaces() override { return real_.trashPlaces(); }

private:
    Locations& real_;
    QTemporaryDir support_;
};

}  // namespace zelk::tour
