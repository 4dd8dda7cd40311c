// SPDX-License-Identifier: MIT
#pragma once

#include <gmock/gmock.h>

#include "ReclaimHands.h"
#include "ShellFixture.h"
#include "ui/screens/reclaim/ReclaimScreenModel.h"

namespace zelk {

/// A home folder with reclaimable items of every kind, and helpers to operate the Reclaim screen.
class ReclaimingFixture : public ShellFixture {
protected:
    ReclaimingFixture() {
        // Makes the items of the base fixture removable, and adds more.
        machine.files.addFile(yarn + "/v6");
        machine.files.addFile(modules + "/a.js");
        junk(backups + "/phone", 30'000'000);
        junk(youngModules + "/a.js", 2'000'000);
        machine.directories.directory(home + "/young", machine.clock.now() - 3 * secondsPerDay);
        junk(npm + "/index", 5'000'000);
        junk(cursor + "/data", 4'000'000);
        machine.workspace.running = {"Cursor"};
        machine.trash.put("old.zip", 7'000'000);
    }

    void junk(const std::string& path, std::uint64_t bytes) {
        machine.directories.file(path, bytes, 1'000);
        machine.files.addFile(path, {}, bytes);
    }

    void untilSurveyed(std::size_t surveys) {
        runUntil([&] { return model().history().size() == surveys && model().scanPhase() == Phase::finished; });
    }
    void surveyByMouse() {
        click("scanButton");
        untilSurveyed(1);
        click("sidebarReclaim");
    }
    void surveyByKeys() {
        shell();
        press(Qt::Key_Return);
        untilSurveyed(1);
        tabTo(window(), "sidebarReclaim");
        press(Qt::Key_Return);
    }

    std::vector<std::string> cells(const char* list, const char* role) { return texts(window(), list, role); }
    /// The values of `role` in the selected rows of a list.
    std::vector<std::string> ticked(const char* list, const char* role) {
        std::vector<std::string> chosen;
        const std::vector<std::string> names = cells(list, role);
        const std::vector<QVariant> ticks = column(window(), list, "chosen");
        for (std::size_t row = 0; row < names.size(); ++row)
            if (ticks[row].toBool()) chosen.push_back(names[row]);
        return chosen;
    }
    std::vector<std::string> chosen() { return ticked("categoryList", "identity"); }
    std::vector<std::string> reviewed() {
        const std::vector<std::string> folders = cells("dryRunList", "folder");
        std::vector<std::string> paths = cells("dryRunList", "name");
        for (std::size_t row = 0; row < paths.size(); ++row) paths[row] = folders[row] + "/" + paths[row];
        return paths;
    }
    void clickText(const char* text) { clickMiddle(window(), showing(QString::fromUtf8(text))); }
    void chooseInMenu(const char* entry) {
        click("selectMenu");
        runUntil([&] { return menuEntry(window(), entry) != nullptr; });
        clickMiddle(window(), menuEntry(window(), entry));
        runUntil([&] { return menuEntry(window(), entry) == nullptr; });
    }
    void untilReviewed() {
        runUntil([&] { return control(window(), "confirmCleanup") != nullptr; });
    }
    void untilDone() {
        runUntil([&] { return control(window(), "cleanupResult") != nullptr; });
    }
    void untilClosed() {
        runUntil([&] { return control(window(), "dryRunList") == nullptr; });
        runUntil([&] { return control(window(), "cleanupResult") == nullptr; });
    }
    void expectNothingHappened() {
        EXPECT_THAT(machine.trash.trashed(), testing::IsEmpty());
        EXPECT_THAT(machine.files.pathsOf("remove"), testing::IsEmpty());
        EXPECT_THAT(machine.processes.calls(), testing::IsEmpty());
        EXPECT_EQ(model().history().size(), 1U) << "there is no new survey without a clean-up";
    }
    int itemRow(const char* name) { return rowOf(window(), "itemList", "name", name); }
    std::string item(int row, const char* role) { return cells("itemList", role)[static_cast<std::size_t>(row)]; }

    const std::string yarn = home + "/Library/Caches/Yarn";
    const std::string modules = home + "/projects/app/node_modules";
    const std::string youngModules = home + "/young/node_modules";
    const std::string backups = home + "/Library/Application Support/MobileSync/Backup";
    const std::string npm = home + "/.npm/_cacache";
    const std::string cursor = home + "/Library/Application Support/Cursor/Cache";
};

}  // namespace zelk
