// SPDX-License-Identifier: MIT
// Background items of Linux that have changed between the scan and their removal.
#include <gmock/gmock.h>

#include <functional>

#include "state/AppModelFixture.h"
#include "state/TuneModel.h"

namespace zelk {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Strings = std::vector<std::string>;

/// Notes below which folder no link may be followed.
class NotingTrash : public fakes::FakeTrash {
public:
    using FakeTrash::FakeTrash;

    Strings roots;

    TrashResult trash(const ItemPath& item) override {
        roots.push_back(item.root());
        return FakeTrash::trash(item);
    }
};

class TuneOfLinux : public AppModelFixture {
protected:
    TuneOfLinux() {
        machine.locations.itemFolders = {
            {autostart, BackgroundItemKind::autostartEntries, true, {"/etc/xdg/autostart"}},
            {units, BackgroundItemKind::userUnits, true, {"/etc/systemd/user"}}};
        machine.files.addFile(autostart + "/a.desktop", entry("A"));
        machine.files.addFile(autostart + "/b.desktop", entry("B"));
        machine.files.addFile(units + "/c.service", "[Unit]\nDescription=C\n");
    }
    TuneModel& tune() { return model().tune(); }
    Strings labels() {
        Strings labels;
        for (const Agent& agent : tune().agents()) labels.push_back(agent.label);
        return labels;
    }
    static std::string entry(const std::string& name) { return "[Desktop Entry]\nName=" + name + "\n"; }
    /// Ticks everything that the first scan finds, and removes it after `change`.
    void removeAllAfter(const std::function<void()>& change) {
        tune().scan();
        ASSERT_THAT(labels(), ElementsAre("A", "B", "C"));
        tune().selectAll();
        ASSERT_EQ(tune().selectedCount(), 3U);
        change();
        tune().removeSelected();
        // Those that stay leave the list too.
        EXPECT_THAT(labels(), IsEmpty());
    }

    const std::string autostart = "/home/me/.config/autostart";
    const std::string units = "/home/me/.config/systemd/user";
};

TEST_F(TuneOfLinux, removesWhatHasNotChanged) {
    removeAllAfter([] {});
    EXPECT_THAT(machine.trash.trashed(),
                ElementsAre(autostart + "/a.desktop", autostart + "/b.desktop", units + "/c.service"));
}

TEST_F(TuneOfLinux, itemThatBecameAMaskAfterTheScanStays) {
    removeAllAfter([this] {
        machine.files.addFile(autostart + "/a.desktop", entry("A") + "Hidden=true\n");
        machine.files.addFile("/dev/null");
        machine.files.addLink(units + "/c.service", "/dev/null");
    });
    EXPECT_THAT(machine.trash.trashed(), ElementsAre(autostart + "/b.desktop"));
    EXPECT_EQ(model().removalUndo().moved(), 1U);
    EXPECT_TRUE(machine.files.identity(autostart + "/a.desktop"));
    EXPECT_TRUE(machine.files.identity(units + "/c.service"));
}

TEST_F(TuneOfLinux, itemWhoseNameTheSystemTookAfterTheScanStays) {
    removeAllAfter([this] {
        machine.files.addFile("/etc/xdg/autostart/b.desktop", entry("Theirs"));
        machine.files.addFile("/etc/systemd/user/c.service", "[Unit]\n");
    });
    EXPECT_THAT(machine.trash.trashed(), ElementsAre(autostart + "/a.desktop"));
}

TEST_F(TuneOfLinux, itemOfAFolderThatBecameALinkAfterTheScanStays) {
    removeAllAfter([this] { machine.files.addLink(autostart, "/data"); });
    EXPECT_THAT(machine.trash.trashed(), ElementsAre(units + "/c.service"));
}

TEST_F(TuneOfLinux, everyItemIsLookedAtJustBeforeItGoes) {
    removeAllAfter([this] {
        machine.files.failing = [this](const auto& call) {
            // While the first one goes, the second is switched off.
            if (call.operation == "trash" && call.path == autostart + "/a.desktop")
                machine.files.addFile(autostart + "/b.desktop", entry("B") + "Hidden=true\n");
            return false;
        };
    });
    EXPECT_THAT(machine.trash.trashed(), ElementsAre(autostart + "/a.desktop", units + "/c.service"));
}

TEST_F(TuneOfLinux, removalFollowsNoLinkThatTheScanDidNot) {
    const auto rootsOf = [this] {
        NotingTrash trash(machine.files);
        const Platform fake = machine.platform();
        const Platform noting{fake.clock,     fake.directories, fake.files,     fake.contents,  trash,      fake.vitals,
                              fake.locations, fake.tasks,       fake.processes, fake.workspace, fake.system};
        TuneModel noted(noting, model().admin(), model().removalUndo());
        noted.scan();
        noted.selectAll();
        noted.removeSelected();
        return trash.roots;
    };
    EXPECT_THAT(rootsOf(), ElementsAre("/home/me", "/home/me", "/home/me"));
    machine.files.addFile(autostart + "/a.desktop", entry("A"));
    machine.files.addLink("/home/me/.config", "/data");
    EXPECT_THAT(rootsOf(), ElementsAre("/home/me/.config"));
}

}  // namespace
}  // namespace zelk
