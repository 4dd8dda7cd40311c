// SPDX-License-Identifier: MIT
#include <QAbstractItemModel>
#include <QQuickItem>
#include <algorithm>

#include "Camera.h"
#include "Tour.h"

namespace zelk::tour {

namespace {

/// The row of the first application of a kind, or of a name; -1 if there is none.
template <class Wanted>
int rowWith(const AppsModel& apps, Wanted wanted) {
    const std::vector<AppEntry> sorted = apps.sortedApps();
    const auto found = std::find_if(sorted.begin(), sorted.end(), wanted);
    return found == sorted.end() ? -1 : static_cast<int>(found - sorted.begin());
}

auto isKind(AppKind kind) {
    return [kind](const AppEntry& app) { return app.kind == kind; };
}

}  // namespace

/// The list while it is read, without and with footprints, in both orders, with nothing in it, and its sheets. A home
/// without applications is skipped.
bool Tour::apps() {
    QQuickWindow& window = window_.window();
    AppsModel& apps = app_.apps();
    PretendedApplications& pretended = pretence_.applications();
    pretended.restore();
    pretence_.setPrograms([&pretended](const std::string& executable, const std::vector<std::string>& arguments) {
        return pretended.answer(executable, arguments);
    });
    if (!go(Screen::apps) || !picture(QStringLiteral("apps-idle"))) return false;
    pretended.setNone(true);
    if (!clickOn(window, QStringLiteral("moduleScanButton"))) return missed("the button that reads applications");
    waitUntil([&] { return !apps.loading(); });
    const bool none = picture(QStringLiteral("apps-none"));
    pretended.setNone(false);

    pretence_.hold();
    pretended.holdSizes(true);
    apps.scanApps();
    const bool reading = apps.loading() && picture(QStringLiteral("apps-reading"));
    pretence_.release();
    waitUntil([&] { return !apps.loading(); });
    const bool listed = appears(window, "appList") && picture(QStringLiteral("apps-list"));
    pretended.holdSizes(false);
    const auto hasData = [](const AppEntry& app) { return app.dataTotal > 0; };
    if (!none || !reading || !listed) return missed("the list of applications");
    if (plan_.complete) waitUntil([&] { return rowWith(apps, hasData) >= 0; });
    if (!picture(QStringLiteral("apps-footprints"))) return false;

    findControl(window, QStringLiteral("appList"))->forceActiveFocus(Qt::TabFocusReason);
    pressKey(window, Qt::Key_End);
    bool taken = picture(QStringLiteral("apps-end"));
    apps.setSort(AppsModel::Sort::bundle);
    taken = taken && picture(QStringLiteral("apps-by-size"));
    apps.setSort(AppsModel::Sort::footprint);
    taken = taken && appSheets() && appRemovals();
    pretence_.setPrograms([](const std::string&, const std::vector<std::string>&) { return ChildOutcome(); });
    return taken && go(Screen::survey);
}

/// Asks about an application of each kind, while its leftovers are measured too.
bool Tour::appSheets() {
    QQuickWindow& window = window_.window();
    AppsModel& apps = app_.apps();
    const auto ask = [&](int row) {
        QQuickItem* list = findControl(window, QStringLiteral("appList"));
        list->forceActiveFocus(Qt::TabFocusReason);
        list->setProperty("rowChosen", true);
        list->setProperty("currentIndex", row);
        pressKey(window, Qt::Key_Return);
        return appears(window, "confirmUninstall");
    };
    const auto sheet = [&](const char* name, int row) {
        if (row < 0) return missing(name);
        if (!ask(row)) return missed(name);
        waitUntil([&] { return findControl(window, QStringLiteral("uninstallSpinner")) == nullptr; });
        const bool taken = picture(QString::fromLatin1(name));
        pressKey(window, Qt::Key_Escape);
        return taken;
    };
    const auto lone = [](const AppEntry& app) { return app.kind == AppKind::userFlatpak && app.dataTotal == 0; };
    const auto rich = [](const AppEntry& app) { return app.kind == AppKind::userFlatpak && app.dataTotal > 0; };
    bool taken = sheet("apps-sheet", rowWith(apps, isKind(AppKind::unpacked))) &&
                 sheet("apps-sheet-alone", rowWith(apps, lone)) && sheet("apps-sheet-flatpak", rowWith(apps, rich)) &&
                 sheet("apps-sheet-package", rowWith(apps, isKind(AppKind::package))) &&
                 sheet("apps-sheet-snap", rowWith(apps, isKind(AppKind::snap)));
    pretence_.applications().setAlongside("plugins-of-studio");
    taken = taken && sheet("apps-sheet-stays", rowWith(apps, isKind(AppKind::package)));
    pretence_.applications().setAlongside({});
    pretence_.hold();
    taken = taken && ask(rowWith(apps, isKind(AppKind::package))) && picture(QStringLiteral("apps-sheet-measuring"));
    pretence_.release();
    pressKey(window, Qt::Key_Escape);
    return taken;
}

/// A removal that fails, one that nobody allows, one under way, and one that succeeds.
bool Tour::appRemovals() {
    AppsModel& apps = app_.apps();
    const int row = rowWith(apps, [](const AppEntry& app) { return app.package == "studio"; });
    if (row < 0) return missed("the package to remove");
    const AppEntry studio = apps.sortedApps()[static_cast<std::size_t>(row)];
    const auto remove = [&](const char* name, const ChildOutcome& outcome) {
        pretence_.applications().setRemoval(outcome);
        apps.uninstall(studio, {});
        waitUntil([&] { return !apps.removing(); });
        return picture(QString::fromLatin1(name));
    };
    QQuickItem* list = findControl(window_.window(), QStringLiteral("appList"));
    list->setProperty("currentIndex", 0);
    list->setProperty("contentY", list->property("originY").toReal() - list->property("topMargin").toReal());
    const std::string words = "dpkg: error: dpkg frontend lock was locked by another process with pid 4711\n";
    if (!remove("apps-failed", {std::nullopt, 2, words})) return false;
    const std::string dismissed = "Error executing command as another user: Request dismissed\n";
    if (!remove("apps-not-allowed", {std::nullopt, 126, dismissed})) return false;
    pretence_.applications().setRemoval({});
    pretence_.hold();
    apps.uninstall(studio, {});
    const bool under = picture(QStringLiteral("apps-removing"));
    pretence_.release();
    waitUntil([&] { return !apps.removing(); });
    return under && picture(QStringLiteral("apps-removed"));
}

}  // namespace zelk::tour
