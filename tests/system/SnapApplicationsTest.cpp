// SPDX-License-Identifier: MIT
#include "system/apps/SnapApplications.h"

#include <gmock/gmock.h>

#include "fakes/AppsHome.h"

namespace zelk {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class SnapApplicationsTest : public testing::Test {
protected:
    std::vector<AppEntry> found() {
        AppFindings findings;
        findSnaps(AppSearch(machine.platform()), findings);
        return findings.apps;
    }

    fakes::FakePlatform machine;
    fakes::LinuxApps desktop{machine};
};

}  // namespace

TEST_F(SnapApplicationsTest, findsSnapWithItsFile) {
    desktop.addSnap("chat", "Chat", "42", 300'000'000);
    AppEntry chat;
    chat.url = "/var/lib/snapd/snaps/chat_42.snap";
    chat.name = "Chat";
    chat.size = 300'000'000;
    chat.bundleID = "chat";
    chat.kind = AppKind::snap;
    chat.package = "chat";
    EXPECT_THAT(found(), ElementsAre(chat));
    EXPECT_THAT(machine.processes.calls(), IsEmpty());
}

TEST_F(SnapApplicationsTest, takesTheRevisionInUse) {
    desktop.addSnap("chat", "Chat", "42", 300);
    machine.files.addFile(desktop.snapFile("chat", "43"), {}, 400);
    EXPECT_EQ(found().at(0).url, desktop.snapFile("chat", "42"));
    machine.files.erase("/snap");
    machine.files.addFolder("/var/lib/snapd/snap/chat/43");
    machine.files.addLink("/var/lib/snapd/snap/chat/current", "/var/lib/snapd/snap/chat/43");
    EXPECT_EQ(found().at(0).url, desktop.snapFile("chat", "43"));
}

TEST_F(SnapApplicationsTest, takesTheNewestRevisionIfNoneIsInUse) {
    desktop.addSnap("chat", "Chat", "9", 100);
    machine.files.erase("/snap");
    for (const char* revision : {"10", "x2", "new", ""})
        machine.files.addFile(desktop.snapFile("chat", revision), {}, 200);
    machine.files.addFile("/var/lib/snapd/snaps/chatty_99.snap");
    machine.files.addFile("/var/lib/snapd/snaps/chat_98.part");
    EXPECT_EQ(found().at(0).url, desktop.snapFile("chat", "10"));
    EXPECT_EQ(found().at(0).size, 200U);
}

TEST_F(SnapApplicationsTest, listsASnapOnceByItsMainEntry) {
    desktop.addSnap("chat", "Chat", "42", 300);
    machine.files.addFile("/var/lib/snapd/desktop/applications/chat_a.desktop",
                          fakes::applicationEntry("Another", "/snap/bin/chat.a"));
    ASSERT_THAT(found(), SizeIs(1));
    EXPECT_EQ(found().at(0).name, "Chat");
    EXPECT_THAT(found().at(0).alongside, ElementsAre("Another"));
}

TEST_F(SnapApplicationsTest, isThereInAnyRevision) {
    desktop.addSnap("chat", "Chat", "42", 300);
    EXPECT_TRUE(isSnapThere(machine.files, "chat"));
    machine.files.move(desktop.snapFile("chat", "42"), desktop.snapFile("chat", "x43"));
    EXPECT_TRUE(isSnapThere(machine.files, "chat"));
    machine.files.move(desktop.snapFile("chat", "x43"), desktop.snapFile("chat_work", "43"));
    EXPECT_FALSE(isSnapThere(machine.files, "chat")) << "another instance is another snap";
}

TEST_F(SnapApplicationsTest, staysWithoutItsTool) {
    desktop.addSnap("chat", "Chat", "42", 300);
    EXPECT_EQ(found().at(0).obstacle, AppObstacle());
    machine.files.erase(snapTool);
    EXPECT_EQ(found().at(0).obstacle, (AppObstacle{AppObstacle::Reason::noTool, {"snap"}}));
}

TEST_F(SnapApplicationsTest, skipsWhatIsNoSnapOrIsGone) {
    for (const char* file : {"noname", "_x", "UPPER_x", "a b_x", "-o_x", "gone_gone"})
        machine.files.addFile(std::string("/var/lib/snapd/desktop/applications/") + file + ".desktop",
                              fakes::applicationEntry(file, "x"));
    EXPECT_THAT(found(), IsEmpty());
}

TEST(SnapNames, areLowerCaseWords) {
    for (const char* name : {"chat", "a", "0ad", "a-b-2"}) EXPECT_TRUE(isSnapName(name)) << name;
    for (const char* name : {"", "-o", "Chat", "a_b", "a b", "a/b", "a;b", "a+b", "ä"})
        EXPECT_FALSE(isSnapName(name)) << name;
}

}  // namespace zelk
