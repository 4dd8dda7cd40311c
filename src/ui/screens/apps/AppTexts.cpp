// SPDX-License-Identifier: MIT
#include "ui/screens/apps/AppTexts.h"

#include <QStringList>
#include <algorithm>
#include <cstddef>

#include "platform/FolderPath.h"
#include "state/Figures.h"
#include "ui/theme/DisplayText.h"

namespace zelk {

namespace {

constexpr std::size_t namedPackages = 3;

QString bytesOf(std::uint64_t bytes) {
    return byteFigure(static_cast<std::int64_t>(bytes));
}

}  // namespace

QString AppTexts::kind(const AppEntry& app) {
    switch (app.kind) {
        case AppKind::bundle:
            return {};
        case AppKind::userFlatpak:
            return tr("flatpak");
        case AppKind::systemFlatpak:
            return tr("flatpak, all users");
        case AppKind::snap:
            return tr("snap");
        case AppKind::appImage:
            return tr("AppImage");
        case AppKind::unpacked:
            return tr("unpacked");
        case AppKind::package:
            return app.package.empty() ? tr("system") : tr("package");
    }
    return {};
}

QString AppTexts::fate(AppKind kind) {
    switch (kind) {
        case AppKind::userFlatpak:
        case AppKind::systemFlatpak:
            return tr("removed by flatpak");
        case AppKind::snap:
            return tr("removed by snap");
        case AppKind::package:
            return tr("removed by an administrator");
        case AppKind::bundle:
        case AppKind::appImage:
        case AppKind::unpacked:
            break;
    }
    return {};
}

QString AppTexts::place(const std::string& path, const std::string& home) {
    return displayText(isInFolder(path, home) ? "~" + path.substr(home.size()) : path);
}

QString AppTexts::detail(const AppEntry& app) {
    if (app.dataTotal > 0) return tr("app %1 · data %2").arg(bytesOf(app.size), bytesOf(app.dataTotal));
    return displayText(app.bundleID.value_or(app.url));
}

QString AppTexts::named(const AppObstacle& obstacle) {
    QStringList names;
    for (const std::string& one : obstacle.who) {
        if (names.size() == static_cast<qsizetype>(namedPackages)) break;
        names.append(displayText(one));
    }
    const QString list = names.join(tr(", ", "between the names of packages"));
    const std::size_t left = obstacle.who.size() - std::min(obstacle.who.size(), namedPackages);
    return left == 0 ? list : tr("%1 and %2 more", "", forPlural(static_cast<std::int64_t>(left))).arg(list).arg(left);
}

QString AppTexts::obstacle(const AppObstacle& obstacle) {
    switch (obstacle.reason) {
        case AppObstacle::Reason::none:
            return {};
        case AppObstacle::Reason::partOfSystem:
            return tr("Stays: it is part of the system.");
        case AppObstacle::Reason::needed:
            return tr("Stays: needed by %1.").arg(named(obstacle));
        case AppObstacle::Reason::noTool:
            return tr("Stays: only %1 can remove it, which is not installed.").arg(named(obstacle));
        case AppObstacle::Reason::outOfReach:
            return tr("Stays: only %1 can remove it, which Flatpak’s sandbox does not have.").arg(named(obstacle));
        case AppObstacle::Reason::severalVersions:
            return tr("Stays: it is installed more than once. Its own tool can remove one of them.");
        case AppObstacle::Reason::notOwn:
            return tr("Stays: it belongs to another user.");
        case AppObstacle::Reason::changed:
            return tr("Stays: it has changed since it was listed.");
        case AppObstacle::Reason::unknown:
            return tr("Stays: nothing here says what removes it.");
    }
    return {};
}

QString AppTexts::part(const AppEntry& app) {
    if (app.kind == AppKind::userFlatpak || app.kind == AppKind::systemFlatpak || app.kind == AppKind::package)
        return displayText(app.package);
    return nameText(app.url);
}

QString AppTexts::question(const AppEntry& app, int leftovers, const QString& total) {
    switch (app.kind) {
        case AppKind::bundle:
        case AppKind::appImage:
        case AppKind::unpacked:
            return tr("Moves the app and %1 leftover item(s) to Trash — %2.", "", leftovers).arg(leftovers).arg(total);
        case AppKind::systemFlatpak:
            if (leftovers == 0) return tr("Removes the app through flatpak for all users, for good — %1.").arg(total);
            return tr("Removes the app through flatpak for all users, for good, and moves %1 leftover item(s) to Trash "
                      "— %2.",
                      "", leftovers)
                .arg(leftovers)
                .arg(total);
        case AppKind::userFlatpak:
            if (leftovers == 0) return tr("Removes the app through flatpak, for good — %1.").arg(total);
            return tr("Removes the app through flatpak, for good, and moves %1 leftover item(s) to Trash — %2.", "",
                      leftovers)
                .arg(leftovers)
                .arg(total);
        case AppKind::snap:
            return tr("Removes the app through snap for all users, for good — %1. Snap removes the folder of the app "
                      "too, and may keep a copy of its data for a while.")
                .arg(total);
        case AppKind::package:
            if (leftovers == 0)
                return tr("Removes the package for all users, for good, once an administrator agrees — %1.").arg(total);
            return tr("Removes the package for all users, for good, once an administrator agrees, and moves %1 "
                      "leftover item(s) to Trash — %2.",
                      "", leftovers)
                .arg(leftovers)
                .arg(total);
    }
    return {};
}

QString AppTexts::ending(const AppsModel::Ending& ending) {
    const QString name = displayText(ending.app.name);
    QStringList sentences;
    switch (ending.removal.outcome) {
        case AppRemoval::Outcome::gone:
            sentences += tr("%1 was removed.").arg(name);
            break;
        case AppRemoval::Outcome::notAllowed:
            sentences += tr("%1 was not removed: an administrator has to agree to it.").arg(name);
            break;
        case AppRemoval::Outcome::notStarted:
            sentences += tr("%1 was not removed: what removes it could not be started.").arg(name);
            break;
        case AppRemoval::Outcome::failed:
            sentences += tr("%1 was not removed.").arg(name);
            break;
        case AppRemoval::Outcome::stillThere:
            sentences += tr("%1 was not removed: it is still there.").arg(name);
            break;
    }
    const auto moved = static_cast<int>(ending.moved);
    const auto stayed = static_cast<int>(ending.stayed);
    if (moved > 0) sentences += tr("Moved to the Trash: %1 leftover item(s).", "", moved).arg(moved);
    if (stayed > 0) sentences += tr("Where they were: %1 leftover item(s).", "", stayed).arg(stayed);
    return sentences.join(QLatin1Char(' '));
}

QString AppTexts::reason(const AppsModel::Ending& ending) {
    return displayText(ending.removal.words);
}

}  // namespace zelk
