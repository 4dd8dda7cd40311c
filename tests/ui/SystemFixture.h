// SPDX-License-Identifier: MIT
#pragma once

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <vector>

#include "TextsOf.h"
#include "fakes/SnapshotTools.h"
#include "state/AppModelFixture.h"
#include "ui/screens/system/SystemScreenModel.h"

namespace zelk {

/// The System screen of a Mac with three snapshots.
class SystemModelTest : public AppModelFixture {
protected:
    SystemModelTest() {
        tools.kept = {{"com.apple.os.update-1", false, 1},
                      {"com.apple.TimeMachine.2024-03-07-101502.local", true, 2},
                      {"NewRoot", true, 3}};
    }

    SystemScreenModel& screen() {
        if (!screen_) screen_ = std::make_unique<SystemScreenModel>(model());
        return *screen_;
    }
    SnapshotsModel& snapshots() { return *screen().snapshots(); }
    void closeScreen() { screen_.reset(); }
    void list() {
        snapshots().reload();
        runWhatIsThere();
    }
    /// Lists, removes and handles everything that follows.
    void remove(int row) {
        list();
        snapshots().remove(row);
        runWhatIsThere();
    }
    std::vector<std::string> names() {
        std::vector<std::string> all;
        for (const LocalSnapshot& snapshot : snapshots().snapshots()) all.push_back(snapshot.name);
        return all;
    }
    std::string cell(int row, int role) { return snapshots().rows()->index(row).data(role).toString().toStdString(); }
    std::string output() { return snapshots().output().toStdString(); }
    void answer(const std::string& text, int status = 0) { tools.removal = {std::nullopt, status, text}; }

    using Kept = fakes::SnapshotTools::Kept;

    fakes::SnapshotTools tools{machine};
    TextsOf texts{macOS};

private:
    std::unique_ptr<SystemScreenModel> screen_;
};

}  // namespace zelk
