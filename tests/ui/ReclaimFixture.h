// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "state/AppModelFixture.h"
#include "ui/screens/reclaim/ReclaimScreenModel.h"

namespace zelk {

/// The Reclaim screen over a home folder in memory, whose items can be surveyed and cleaned.
template <class Base>
class ReclaimFixtureOn : public Base {
protected:
    using Base::home;
    using Base::machine;
    using Base::model;
    using Base::survey;

    static constexpr std::uint64_t megabyte = 1'000'000;

    TimePoint daysAgo(double days) { return machine.clock.now() - days * secondsPerDay; }

    /// Creates a folder with one file of `bytes`.
    void put(const std::string& folder, std::uint64_t bytes, double daysOld = 100) {
        machine.directories.directory(folder, daysAgo(daysOld));
        machine.directories.file(folder + "/data", bytes);
        machine.files.addFile(folder + "/data", {}, bytes);
    }
    /// The same for build output in a project, whose age is that of the project folder.
    void putInProject(const std::string& project, const std::string& name, std::uint64_t bytes, double daysOld = 100) {
        machine.directories.directory(project, daysAgo(daysOld));
        put(project + "/" + name, bytes, 0);
    }

    const std::string yarn = home + "/Library/Caches/Yarn";
    const std::string npm = home + "/.npm/_cacache";
    const std::string cursorCache = home + "/Library/Application Support/Cursor/Cache";
    const std::string slackCache = home + "/Library/Application Support/Slack/Cache";
    const std::string environment = home + "/projects/py/.venv";
    const std::string webModules = home + "/projects/web/node_modules";
    const std::string appModules = home + "/projects/app/node_modules";

    /// Seven items in five categories, by bytes: Yarn (safe, 50 MB), an environment (review, 40 MB), modules
    /// (regenerates, 25 MB and 10 MB), npm (safe, by command, 30 MB), application caches (safe, 5 MB and 2 MB). Modules
    /// of 10 MB and Slack's cache are two days old, the rest a hundred.
    void fillJunk() {
        put(yarn, 50 * megabyte);
        putInProject(home + "/projects/py", ".venv", 40 * megabyte);
        putInProject(home + "/projects/web", "node_modules", 25 * megabyte);
        putInProject(home + "/projects/app", "node_modules", 10 * megabyte, 2);
        put(npm, 30 * megabyte);
        put(cursorCache, 5 * megabyte);
        put(slackCache, 2 * megabyte, 2);
    }

    ReclaimScreenModel& screen() {
        if (screen_ == nullptr) screen_ = std::make_unique<ReclaimScreenModel>(model());
        return *screen_;
    }
    void destroyScreen() { screen_.reset(); }

    /// Surveys in the background, then shows the screen to `audience`.
    void surveyFor(AppModel::Audience audience) {
        screen();
        survey();
        model().setAudience(audience);
        screen().setOnScreen(true);
    }

    /// Removes the item at `path` from the results.
    void loseItem(const std::string& path) { model().removeFromTree(*folderAt(model().root(), path)); }

    static std::string text(QAbstractItemModel& list, int row, int role) {
        return list.data(list.index(row, 0), role).toString().toStdString();
    }
    static bool flag(QAbstractItemModel& list, int row, int role) {
        return list.data(list.index(row, 0), role).toBool();
    }
    /// The row whose text of `role` is `wanted`; -1 if there is none.
    static int rowOf(QAbstractItemModel& list, int role, const std::string& wanted) {
        for (int row = 0; row < list.rowCount(); ++row)
            if (text(list, row, role) == wanted) return row;
        return -1;
    }

private:
    std::unique_ptr<ReclaimScreenModel> screen_;
};

using ReclaimFixture = ReclaimFixtureOn<AppModelFixture>;

}  // namespace zelk
