// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QString>
#include <string>

#include "reclaim/AppEntry.h"
#include "state/AppsModel.h"

namespace zelk {

/// What the screen of applications says of one.
class AppTexts {
    Q_DECLARE_TR_FUNCTIONS(AppTexts)

public:
    /// How it came here, in a word; empty for a bundle, since there is no other kind on macOS.
    static QString kind(const AppEntry& app);
    /// What removes it, as it stands beside it; empty if that is the Trash.
    static QString fate(AppKind kind);
    /// A path, with "~" for the home.
    static QString place(const std::string& path, const std::string& home);
    /// The second line of its row: its identifier or path, and once that is known what it and its data take.
    static QString detail(const AppEntry& app);
    /// Why it stays; empty if nothing is against its removal.
    static QString obstacle(const AppObstacle& obstacle);
    /// What of it goes, as its tool or the Trash calls it.
    static QString part(const AppEntry& app);
    /// How a removal ended, and the reason as it was told, which may be empty.
    static QString ending(const AppsModel::Ending& ending);
    static QString reason(const AppsModel::Ending& ending);

    /// The first line of the sheet that asks. `total` is a number of bytes as text.
    static QString question(const AppEntry& app, int leftovers, const QString& total);

private:
    static QString named(const AppObstacle& obstacle);
};

}  // namespace zelk
