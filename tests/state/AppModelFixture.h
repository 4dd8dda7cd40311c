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

/// A model on a machine in memory, whose home is "/home/me", and a note of every signal of the model.
class AppModelFixture : public testing::Test {
protected:
    using Phase = AppModel::ScanPhase;

    AppModelFixture() {
        machine.directories.directory(home);
        machine.vitals.setVolume(home, VolumeInfo{1'000, 400, 450});
    }

    /// Filled before the first call.
    AppModel& model() {
        if (model_ == nullptr) {
            model_ = std::make_unique<AppModel>(machine.platform());
            noteSignals();
        }
        return *model_;
    }

    void destroyModel() { model_.reset(); }

    /// Two things to reclaim (a Yarn cache of 50 MB, which is safe, and modules of 10 MB), a film, a disk image and a
    /// Trash that holds 7 MB.
    void fillHome() {
        fakes::FakeDirectoryService& disk = machine.directories;
        disk.file(home + "/Library/Caches/Yarn/v6", 50'000'000, 1'000);
        disk.file(home + "/projects/app/node_modules/a.js", 10'000'000, 2'000);
        disk.file(home + "/projects/film.mov", 3'000'000'000, 3'000);
        disk.file(home + "/projects/system.iso", 60'000'000, 4'000);
        disk.file(home + "/.Trash/old.zip", 7'000'000, 5'000);
    }

    /// A folder whose reading makes an update due, and in it an empty one called "inner".
    void addWideFolder(const std::string& path) {
        for (int file = 0; file < 20'000; ++file) machine.directories.file(path + "/" + std::to_string(file), 1'000);
        machine.directories.directory(path + "/inner");
    }

    /// A whole survey; the Trash is measured too when this comes back.
    void survey() {
        model().startScan();
        runUntil([&] { return model().scanPhase() == Phase::finished; });
        runUntil([&] { return !model().trashLoading(); });
    }

    /// Up to where the classifier has been asked for its items and has not begun.
    void surveyUpToClassification() {
        machine.tasks.hold();
        model().startScan();
        const NodeRef before = model().root();
        runUntil([&] { return !(model().root() == before); });
    }

    /// From there on: the classifier has done its work, and the record is to be kept by a task that has not begun.
    void classifyUpToTheRecord() {
        machine.tasks.runNext();
        runUntil([&] { return !machine.tasks.waiting().empty(); });
    }

    /// Everything that a cancelled scan may still send has been sent and taken up.
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
        note(&AppModel::itemsScannedChanged, "itemsScanned");
        note(&AppModel::bytesScannedChanged, "bytesScanned");
        note(&AppModel::currentPathChanged, "currentPath");
        note(&AppModel::blockedPathsChanged, "blockedPaths");
        note(&AppModel::rootChanged, "root");
        note(&AppModel::statsChanged, "stats");
        note(&AppModel::reclaimablesChanged, "reclaimables");
        note(&AppModel::insightsChanged, "insights");
        note(&AppModel::volumeChanged, "volume");
        note(&AppModel::historyChanged, "history");
        note(&AppModel::trashBytesChanged, "trashBytes");
        note(&AppModel::trashAccessibleChanged, "trashAccessible");
        note(&AppModel::trashLoadingChanged, "trashLoading");
        note(&AppModel::emptyingTrashChanged, "emptyingTrash");
    }

    std::vector<std::string> signals_;
    std::unique_ptr<AppModel> model_;
};

/// The folder at `path` in a tree; absent if it is not there.
inline NodeRef folderAt(const NodeRef& top, const std::string& path) {
    std::vector<NodeRef> pending = top->children;
    while (!pending.empty()) {
        const NodeRef node = pending.back();
        pending.pop_back();
        if (node->fullPath() == path) return node;
        pending.insert(pending.end(), node->children.begin(), node->children.end());
    }
    return nullptr;
}

}  // namespace zelk
