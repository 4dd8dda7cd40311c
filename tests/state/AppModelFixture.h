// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "fakes/EventLoop.h"
#include "fakes/FakePlatform.h"
#include "state/AppModel.h"

namespace zelk {

/// A model on a machine in memory with the home "/home/me", and a log of the signals of the model.
class AppModelFixture : public testing::Test {
protected:
    using Phase = AppModel::ScanPhase;

    AppModelFixture() {
        machine.directories.directory(home);
        machine.vitals.setVolume(home, VolumeInfo{1'000, 400, 450});
    }

    /// Created at the first call: fill the machine before.
    AppModel& model() {
        if (model_ == nullptr) {
            model_ = std::make_unique<AppModel>(machine.platform());
            noteSignals();
        }
        return *model_;
    }

    void destroyModel() { model_.reset(); }

    /// Two reclaimable items (a safe Yarn cache of 50 MB, and modules of 10 MB), a film, a disk image and 7 MB in the
    /// Trash.
    void fillHome() {
        fakes::FakeDirectoryService& disk = machine.directories;
        disk.file(home + "/Library/Caches/Yarn/v6", 50'000'000, 1'000);
        disk.file(home + "/projects/app/node_modules/a.js", 10'000'000, 2'000);
        disk.file(home + "/projects/film.mov", 3'000'000'000, 3'000);
        disk.file(home + "/projects/system.iso", 60'000'000, 4'000);
        disk.file(home + "/.Trash/old.zip", 7'000'000, 5'000);
    }

    /// A folder with so many files that reading it reports progress, and in it an empty folder "inner".
    void addWideFolder(const std::string& path) {
        for (int file = 0; file < 20'000; ++file) machine.directories.file(path + "/" + std::to_string(file), 1'000);
        machine.directories.directory(path + "/inner");
    }

    /// Runs a whole survey, including the measurement of the Trash.
    void survey() {
        model().startScan();
        runUntil([&] { return model().scanPhase() == Phase::finished; });
        runUntil([&] { return !model().trashLoading(); });
    }

    /// Runs a survey until the task of the classifier is queued.
    void surveyUpToClassification() {
        machine.tasks.hold();
        model().startScan();
        const NodeRef before = model().root();
        runUntil([&] { return !(model().root() == before); });
    }

    /// Continues from there until the task that writes the record is queued.
    void classifyUpToTheRecord() {
        machine.tasks.runNext();
        runUntil([&] { return !machine.tasks.waiting().empty(); });
    }

    /// Waits until cancelled scans have ended and everything they sent was handled.
    void letScansDrain() {
        machine.directories.release();
        machine.waitForThreads();
        runWhatIsThere();
    }

    std::vector<std::string> takeSignals() { return std::exchange(signals_, {}); }
    int timesSignalled(const std::string& name) const {
        return static_cast<int>(std::count(signals_.begin(), signals_.end(), name));
    }

    std::optional<std::string> historyFile() const {
        return machine.files.content("/home/me/support/Zelk/history.json");
    }

    const std::string home = "/home/me";
    fakes::FakePlatform machine;

private:
    void noteSignals() {
        const auto note = [this](void (AppModel::*changed)(), const char* name) {
            QObject::connect(model_.get(), changed, model_.get(), [this, name] { signals_.emplace_back(name); });
        };
        note(&AppModel::appearanceChanged, "appearance");
        note(&AppModel::audienceChanged, "audience");
        note(&AppModel::selectionChanged, "selection");
        note(&AppModel::scanRootsChanged, "scanRoots");
        note(&AppModel::ageFilterDaysChanged, "ageFilterDays");
        note(&AppModel::hardDeleteEnabledChanged, "hardDeleteEnabled");
        note(&AppModel::scanPhaseChanged, "scanPhase");
        note(&AppModel::progressChanged, "progress");
        note(&AppModel::rootChanged, "root");
        note(&AppModel::reclaimablesChanged, "reclaimables");
        note(&AppModel::insightsChanged, "insights");
        note(&AppModel::volumeChanged, "volume");
        note(&AppModel::historyChanged, "history");
        note(&AppModel::trashChanged, "trash");
    }

    std::vector<std::string> signals_;
    std::unique_ptr<AppModel> model_;
};

/// The folder at `path` in a tree; null if there is none.
inline NodeRef folderAt(const NodeRef& top, const std::string& path) {
    std::vector<FSNode*> pending{top.get()};
    while (!pending.empty()) {
        FSNode* const node = pending.back();
        pending.pop_back();
        if (node != top.get() && node->fullPath() == path) return NodeRef(node);
        for (FSNode& child : node->children()) pending.push_back(&child);
    }
    return nullptr;
}

}  // namespace zelk
