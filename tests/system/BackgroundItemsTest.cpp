// SPDX-License-Identifier: MIT
#include "system/BackgroundItems.h"

#include <gmock/gmock.h>

#include "fakes/FakePlatform.h"

namespace zelk {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

using Kind = BackgroundItemKind;

class BackgroundItems : public testing::Test {
protected:
    std::vector<Agent> read() { return backgroundItems(files, locations); }
    /// The only item.
    Agent only() {
        const std::vector<Agent> agents = read();
        EXPECT_EQ(agents.size(), 1U);
        return agents.empty() ? Agent() : agents.front();
    }
    std::vector<std::string> labels() {
        std::vector<std::string> labels;
        for (const Agent& agent : read()) labels.push_back(agent.label);
        return labels;
    }
    static std::string plist(const std::string& content) {
        return "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict>" + content + "</dict></plist>";
    }
    static std::string entry(const std::string& lines) { return "[Desktop Entry]\nType=Application\n" + lines; }

    fakes::FakeFileManager files;
    fakes::FakeLocations locations;
};

class LaunchdItems : public BackgroundItems {
protected:
    LaunchdItems() {
        locations.itemFolders = {{own, Kind::launchdPropertyLists, true},
                                 {"/Library/LaunchAgents", Kind::launchdPropertyLists, false},
                                 {"/Library/LaunchDaemons", Kind::launchdPropertyLists, false}};
        files.addFolder(own);
        files.addFile("/opt/agent");
        files.addFile("/opt/other");
    }
    void add(const std::string& content) { files.addFile(own + "/file.plist", content); }

    const std::string own = "/home/me/Library/LaunchAgents";
};

TEST_F(LaunchdItems, areReadFromThreeFoldersInOrder) {
    files.addFile("/Library/LaunchDaemons/c.plist", plist("<key>Label</key><string>daemon</string>"));
    files.addFile("/Library/LaunchAgents/b.plist", plist("<key>Label</key><string>agent</string>"));
    files.addFile(own + "/a.plist",
                  plist("<key>Label</key><string>own</string><key>Program</key><string>/opt/agent</string>"));
    EXPECT_THAT(read(), ElementsAre(Agent{"own", own + "/a.plist", "/opt/agent", true},
                                    Agent{"agent", "/Library/LaunchAgents/b.plist", std::nullopt, false},
                                    Agent{"daemon", "/Library/LaunchDaemons/c.plist", std::nullopt, false}));
}

TEST_F(LaunchdItems, folderThatCannotBeListedIsSkipped) {
    files.addFile("/Library/LaunchAgents/b.plist", plist(""));
    files.addFile(own + "/a.plist", plist(""));
    files.failing = [this](const auto& call) { return call.operation == "list" && call.path == own; };
    EXPECT_THAT(labels(), ElementsAre("b"));
}

TEST_F(LaunchdItems, otherFilesAreIgnored) {
    for (const char* name : {"/a.txt", "/plist", "/a.plist~", "/a.PLIST", "/.DS_Store"}) files.addFile(own + name);
    EXPECT_THAT(read(), IsEmpty());
    files.addFile(own + "/.plist");
    EXPECT_EQ(only().label, "");
}

TEST_F(LaunchdItems, withoutLabelAreNamedByTheirFile) {
    add(plist("<key>Program</key><string>/opt/agent</string>"));
    EXPECT_EQ(only(), (Agent{"file", own + "/file.plist", "/opt/agent", true}));
    add(plist("<key>Label</key><integer>3</integer>"));
    EXPECT_EQ(only().label, "file");
    add(plist("<key>Label</key><string></string>"));
    EXPECT_EQ(only().label, "");
}

TEST_F(LaunchdItems, programThatIsGoneIsAbsent) {
    add(plist("<key>Program</key><string>/opt/deleted</string>"));
    EXPECT_EQ(only().program, std::nullopt);
}

TEST_F(LaunchdItems, programComesBeforeArguments) {
    const std::string arguments = "<key>ProgramArguments</key><array><string>/opt/other</string></array>";
    add(plist(arguments + "<key>Program</key><string>/opt/agent</string>"));
    EXPECT_THAT(only().program, Optional(std::string("/opt/agent")));
    // Even if it is gone.
    add(plist(arguments + "<key>Program</key><string>/opt/deleted</string>"));
    EXPECT_EQ(only().program, std::nullopt);
    add(plist(arguments + "<key>Program</key><true/>"));
    EXPECT_THAT(only().program, Optional(std::string("/opt/other")));
}

TEST_F(LaunchdItems, firstArgumentIsTheProgram) {
    add(plist("<key>ProgramArguments</key><array><string>/opt/agent</string><string>/opt/other</string></array>"));
    EXPECT_THAT(only().program, Optional(std::string("/opt/agent")));
}

TEST_F(LaunchdItems, emptyArgumentsAreNoProgram) {
    for (const char* arguments : {"<array/>", "<array></array>", "<string>/opt/agent</string>",
                                  "<array><integer>1</integer></array>", "<array><string></string></array>"}) {
        add(plist(std::string("<key>ProgramArguments</key>") + arguments));
        EXPECT_EQ(only().program, std::nullopt) << arguments;
    }
}

TEST_F(LaunchdItems, fileThatCannotBeReadIsListedByItsName) {
    add(plist("<key>Label</key><string>label</string>"));
    files.failing = [](const auto& call) { return call.operation == "readSmall"; };
    EXPECT_EQ(only(), (Agent{"file", own + "/file.plist", std::nullopt, true}));
    files.failing = nullptr;
    for (const std::string& content : {std::string("garbage"), std::string(), std::string(2 << 20, 'x')}) {
        add(content);
        EXPECT_EQ(only().label, "file");
    }
}

TEST_F(LaunchdItems, ofTheSameNameAreBothListed) {
    files.addFile(own + "/a.plist", plist("<key>Label</key><string>same</string>"));
    files.addFile("/Library/LaunchAgents/a.plist", plist("<key>Label</key><string>same</string>"));
    EXPECT_THAT(labels(), ElementsAre("same", "same"));
    EXPECT_TRUE(read().front().removable);
}

class LinuxItems : public BackgroundItems {
protected:
    LinuxItems() {
        locations.homePath = "/home/me";
        locations.programs = {"/usr/local/bin", "/usr/bin"};
        locations.locales = {"de"};
        locations.itemFolders = {{autostart, Kind::autostartEntries, true, {"/etc/xdg/autostart"}},
                                 {units, Kind::userUnits, true, {"/etc/systemd/user", "/usr/lib/systemd/user"}},
                                 {"/etc/xdg/autostart", Kind::autostartEntries, false},
                                 {"/etc/systemd/user", Kind::userUnits, false},
                                 {"/etc/systemd/system", Kind::systemUnits, false}};
        for (const char* program : {"/usr/bin/sync", "/opt/my app/run", "/home/me/bin/own"}) files.addFile(program);
    }
    /// As `systemctl mask` makes it: a link to a device, which can be opened but is no file to read.
    void mask(const std::string& path) {
        files.addFile("/dev/null");
        files.addLink(path, "/dev/null");
        files.failing = [path](const auto& call) { return call.operation == "readSmall" && call.path == path; };
    }

    const std::string autostart = "/home/me/.config/autostart";
    const std::string units = "/home/me/.config/systemd/user";
};

TEST_F(LinuxItems, areEntriesAndUnits) {
    files.addFile(autostart + "/a.desktop", entry("Name=Sync\nName[de]=Abgleich\nExec=sync --hidden %U\n"));
    files.addFile(units + "/b.service", "[Unit]\nDescription=Own\n[Service]\nExecStart=-%h/bin/own x\n");
    files.addFile("/etc/xdg/autostart/c.desktop", entry("Name=Applet\nExec=\"/opt/my app/run\"\n"));
    files.addFile("/etc/systemd/user/d.timer", "[Unit]\nDescription=Timer\n");
    files.addFile("/etc/systemd/system/e.service", "[Service]\nExecStart=@sync sync\n");
    EXPECT_THAT(read(), ElementsAre(Agent{"Abgleich", autostart + "/a.desktop", "/usr/bin/sync", true},
                                    Agent{"Own", units + "/b.service", "/home/me/bin/own", true},
                                    Agent{"Applet", "/etc/xdg/autostart/c.desktop", "/opt/my app/run", false},
                                    Agent{"Timer", "/etc/systemd/user/d.timer", std::nullopt, false},
                                    Agent{"e", "/etc/systemd/system/e.service", "/usr/bin/sync", false}));
}

TEST_F(LinuxItems, haveTheirEndings) {
    for (const char* name : {"a.service", "b.timer", "c.socket", "d.path", "e.target", "f.service.d", "g.conf",
                             "h.mount", "service", "i.desktop"})
        files.addFile(units + "/" + name, "[Unit]\n");
    EXPECT_THAT(labels(), ElementsAre("a", "b", "c", "d"));
    files.addFile(autostart + "/k.service", "[Unit]\n");
    EXPECT_EQ(read().size(), 4U);
}

TEST_F(LinuxItems, withoutNameAreNamedByTheirFile) {
    files.addFile(autostart + "/org.x.Sync.desktop", entry("Exec=sync\n"));
    files.addFile(autostart + "/z.desktop", "no entry at all");
    files.addFile(units + "/own.path", "[Path]\n");
    EXPECT_THAT(labels(), ElementsAre("org.x.Sync", "z", "own"));
}

TEST_F(LinuxItems, programMustExist) {
    const auto programOf = [this](const std::string& command) {
        files.addFile(autostart + "/a.desktop", entry("Exec=" + command + "\n"));
        return only().program.value_or("none");
    };
    EXPECT_EQ(programOf("sync"), "/usr/bin/sync");
    files.addFile("/usr/local/bin/sync");
    EXPECT_EQ(programOf("sync"), "/usr/local/bin/sync");
    EXPECT_EQ(programOf("/usr/bin/sync"), "/usr/bin/sync");
    for (const char* absent : {"missing", "/opt/missing", "bin/sync", "./sync", "", "%U"})
        EXPECT_EQ(programOf(absent), "none") << absent;
}

TEST_F(LinuxItems, homeInUnitStandsForTheHomeFolder) {
    const auto programOf = [this](const std::string& command) {
        files.addFile(units + "/a.service", "[Service]\nExecStart=" + command + "\n");
        return only().program.value_or("none");
    };
    EXPECT_EQ(programOf("%h/bin/own"), "/home/me/bin/own");
    EXPECT_EQ(programOf("/x%h/bin/own"), "none");
    EXPECT_EQ(programOf("%h"), "none");
    locations.homePath = "/";
    files.addFile("/bin/own");
    EXPECT_EQ(programOf("%h/bin/own"), "/bin/own");
}

TEST_F(LinuxItems, switchedOffEntryIsNotListedNorWhatItHides) {
    for (const char* off : {"Hidden=true\n", "X-GNOME-Autostart-enabled=false\n"}) {
        files.addFile(autostart + "/a.desktop", entry(off));
        files.addFile("/etc/xdg/autostart/a.desktop", entry("Name=Applet\n"));
        EXPECT_THAT(read(), IsEmpty()) << off;
    }
    files.addFile("/etc/xdg/autostart/b.desktop", entry("Name=Off\nHidden=true\n"));
    EXPECT_THAT(read(), IsEmpty());
}

TEST_F(LinuxItems, maskedUnitIsNotListedNorWhatItHides) {
    files.addFile("/etc/systemd/user/a.service", "[Unit]\nDescription=A\n");
    files.addFile("/etc/systemd/user/b.service", "[Unit]\nDescription=B\n");
    EXPECT_THAT(labels(), ElementsAre("A", "B"));
    mask(units + "/a.service");
    files.addFile(units + "/b.service", "");
    EXPECT_THAT(read(), IsEmpty());
}

TEST_F(LinuxItems, ownEntryInPlaceOfTheSystemsIsListedOnceAndStays) {
    files.addFile(autostart + "/a.desktop", entry("Name=Mine\n"));
    files.addFile("/etc/xdg/autostart/a.desktop", entry("Name=Theirs\n"));
    EXPECT_THAT(read(), ElementsAre(Agent{"Mine", autostart + "/a.desktop", std::nullopt, false, true}));
    files.erase("/etc/xdg/autostart/a.desktop");
    EXPECT_THAT(read(), ElementsAre(Agent{"Mine", autostart + "/a.desktop", std::nullopt, true, false}));
}

TEST_F(LinuxItems, linkThatLeadsNowhereIsHiddenInASandboxAlone) {
    files.addFile(autostart + "/a.desktop", entry("Name=Mine\n"));
    files.addLink("/etc/xdg/autostart/a.desktop", "/nix/store/a.desktop");
    EXPECT_TRUE(only().removable);
    locations.sandboxed = true;
    EXPECT_TRUE(only().replaces) << "on the host it may lead somewhere";
    EXPECT_FALSE(only().removable);
}

TEST_F(LinuxItems, ownItemStaysIfWhatItHidesCannotBeSeen) {
    for (BackgroundItemFolder& folder : locations.itemFolders) folder.hidesUnseen = folder.path == units;
    files.addFile(units + "/a.service", "[Unit]\nDescription=Mine\n");
    Agent mine = only();
    EXPECT_FALSE(mine.removable);
    EXPECT_FALSE(mine.replaces);
    EXPECT_TRUE(mine.mayReplace);
    EXPECT_FALSE(isRemovableNow(files, locations, mine));
    files.addFile("/usr/lib/systemd/user/a.service", "[Unit]\nDescription=Theirs\n");
    mine = only();
    EXPECT_TRUE(mine.replaces) << "this one can";
    EXPECT_FALSE(mine.mayReplace);
    EXPECT_FALSE(mine.removable);
}

TEST_F(LinuxItems, programsAreLookedForOnTheHost) {
    locations.sandboxed = true;
    files.addFile(autostart + "/a.desktop", entry("Exec=/usr/bin/other\n"));
    files.addFile("/usr/bin/other");
    EXPECT_EQ(only().program, std::nullopt) << "the runtime has it";
    files.addFile("/run/host/usr/bin/other");
    EXPECT_THAT(only().program, Optional(std::string("/usr/bin/other")));
}

TEST_F(LinuxItems, ownUnitInPlaceOfAPackagesStays) {
    files.addFile(units + "/a.service", "[Unit]\nDescription=Mine\n");
    files.addFile("/usr/lib/systemd/user/a.service", "[Unit]\nDescription=Theirs\n");
    EXPECT_THAT(read(), ElementsAre(Agent{"Mine", units + "/a.service", std::nullopt, false, true}));
}

TEST_F(LinuxItems, ownInstanceInPlaceOfAPackagesTemplateStays) {
    files.addFile(units + "/foo@bar.b@z.service", "[Unit]\nDescription=Mine\n");
    EXPECT_TRUE(only().removable);
    for (const char* other : {"foo.service", "foo@.timer", "foo@bar.service", "fo@.service", "foo@bar.b@.service"})
        files.addFile(std::string("/usr/lib/systemd/user/") + other, "[Unit]\n");
    EXPECT_TRUE(only().removable);
    files.addFile("/usr/lib/systemd/user/foo@.service", "[Unit]\nDescription=Theirs %i\n");
    EXPECT_EQ(only(), (Agent{"Mine", units + "/foo@bar.b@z.service", std::nullopt, false, true}));
    files.erase("/usr/lib/systemd/user/foo@.service");
    files.addFile("/usr/lib/systemd/user/foo@bar.b@z.service", "[Unit]\nDescription=Theirs\n");
    EXPECT_TRUE(only().replaces);
}

TEST_F(LinuxItems, entriesHaveNoTemplates) {
    files.addFile(autostart + "/a@b.desktop", entry("Name=Mine\n"));
    files.addFile("/etc/xdg/autostart/a@.desktop", entry("Name=Theirs\n"));
    EXPECT_TRUE(read().front().removable);
}

TEST_F(LinuxItems, namesHideOthersOfTheirKindOnly) {
    locations.itemFolders.push_back({"/etc/other", Kind::autostartEntries, false});
    files.addFile("/etc/xdg/autostart/a.desktop", entry("Name=First\n"));
    files.addFile("/etc/other/a.desktop", entry("Name=Second\n"));
    files.addFile("/etc/systemd/user/a.service", "[Unit]\nDescription=User\n");
    files.addFile("/etc/systemd/system/a.service", "[Unit]\nDescription=System\n");
    EXPECT_THAT(labels(), ElementsAre("First", "User", "System"));
}

TEST_F(LinuxItems, linksAreNoSystemUnits) {
    files.addFile("/lib/systemd/system/real.service", "[Unit]\n");
    files.addLink("/etc/systemd/system/alias.service", "/lib/systemd/system/real.service");
    files.addLink("/etc/systemd/system/multi-user.target.wants/real.service", "/lib/systemd/system/real.service");
    files.addFile("/etc/systemd/system/own.service", "[Unit]\n");
    EXPECT_THAT(labels(), ElementsAre("own"));
    // The user's own may be links, as `systemctl --user link` makes them.
    files.addLink(units + "/linked.service", "/lib/systemd/system/real.service");
    EXPECT_THAT(labels(), ElementsAre("linked", "own"));
}

TEST_F(LinuxItems, foldersAreNoItemsAndHideNothing) {
    files.addFolder(autostart + "/a.desktop");
    files.addFile("/etc/xdg/autostart/a.desktop", entry("Name=Applet\n"));
    EXPECT_THAT(labels(), ElementsAre("Applet"));
}

TEST_F(LinuxItems, itemThatVanishesIsNoneAndHidesNothing) {
    files.addFile(autostart + "/a.desktop", entry("Name=Mine\n"));
    files.addFile("/etc/xdg/autostart/a.desktop", entry("Name=Theirs\n"));
    files.failing = [this](const auto& call) {
        return call.operation == "properties" && call.path == autostart + "/a.desktop";
    };
    EXPECT_THAT(labels(), ElementsAre("Theirs"));
}

TEST_F(LinuxItems, fileThatCannotBeReadIsListedByItsName) {
    files.addFile(autostart + "/a.desktop", entry("Name=A\n"));
    files.failing = [](const auto& call) { return call.operation == "readSmall" || call.operation == "tryOpen"; };
    EXPECT_EQ(only(), (Agent{"a", autostart + "/a.desktop", std::nullopt, true}));
}

TEST_F(LinuxItems, tooLargeFileIsNoItem) {
    files.addFile(autostart + "/a.desktop", entry("Name=A\n") + std::string(1 << 20, '#'));
    EXPECT_THAT(read(), IsEmpty());
}

TEST_F(LinuxItems, ownItemsKnowTheDeepestLinkOnTheirWay) {
    files.addFile(autostart + "/a.desktop", entry("Name=A\n"));
    files.addFile("/etc/xdg/autostart/b.desktop", entry("Name=B\n"));
    EXPECT_EQ(read().front().link, "");
    files.addLink("/home/me/.config", "/data/config");
    EXPECT_EQ(read().front().link, "/home/me/.config");
    files.addFolder("/data/autostart");
    for (const char* name : {"a", "b"}) files.addFile(std::string("/data/autostart/") + name + ".desktop");
    files.addLink(autostart, "/data/autostart");
    EXPECT_EQ(read().front().link, autostart);
    // Those of the system are not moved, and the way to the home itself may have links.
    files.addLink("/etc/xdg/autostart", "/data/autostart");
    EXPECT_EQ(read().back().link, "");
    files.addLink("/home/me", "/data/me");
    EXPECT_EQ(read().front().link, autostart);
}

TEST_F(LinuxItems, linksOutsideOfTheHomeAreNotLookedFor) {
    locations.itemFolders = {{"/home/you/autostart", Kind::autostartEntries, true}};
    files.addFile("/home/you/autostart/a.desktop", entry("Name=A\n"));
    files.addLink("/home/you", "/data");
    EXPECT_EQ(only().link, "");
    locations.homePath = "/";
    EXPECT_EQ(only().link, "/home/you");
}

class RemovableNow : public LinuxItems {
protected:
    RemovableNow() {
        files.addFile(autostart + "/a.desktop", entry("Name=Entry\n"));
        files.addFile(units + "/b@c.service", "[Unit]\nDescription=Unit\n");
        files.addFile("/etc/xdg/autostart/s.desktop", entry("Name=System\n"));
        const std::vector<Agent> agents = read();
        EXPECT_EQ(agents.size(), 3U);
        item = agents.at(0);
        unit = agents.at(1);
        systems = agents.at(2);
    }
    bool stillRemovable(const Agent& agent) { return isRemovableNow(files, locations, agent); }

    Agent item;
    Agent unit;
    Agent systems;
};

TEST_F(RemovableNow, isWhatHasNotChanged) {
    EXPECT_TRUE(stillRemovable(item));
    EXPECT_TRUE(stillRemovable(unit));
    EXPECT_FALSE(stillRemovable(systems));
    systems.removable = true;
    EXPECT_FALSE(stillRemovable(systems)) << "whatever it says";
    files.addFile(item.path, entry("Name=Other\n"));
    EXPECT_TRUE(stillRemovable(item)) << "another one of that name that starts";
}

TEST_F(RemovableNow, isNotWhatHasGone) {
    files.erase(item.path);
    EXPECT_FALSE(stillRemovable(item));
    files.addFolder(item.path);
    EXPECT_FALSE(stillRemovable(item));
    locations.itemFolders = {{"/home/me/agents", Kind::launchdPropertyLists, true}};
    files.addFile("/home/me/agents/x.plist");
    const Agent list = only();
    EXPECT_TRUE(stillRemovable(list));
    files.erase(list.path);
    EXPECT_FALSE(stillRemovable(list));
}

TEST_F(RemovableNow, isNotWhatWasSwitchedOff) {
    files.addFile(item.path, entry("Name=Entry\nHidden=true\n"));
    EXPECT_FALSE(stillRemovable(item));
    files.addFile(unit.path, "");
    EXPECT_FALSE(stillRemovable(unit));
    files.addFile(unit.path, "[Unit]\n");
    EXPECT_TRUE(stillRemovable(unit));
    mask(unit.path);
    EXPECT_FALSE(stillRemovable(unit));
}

TEST_F(RemovableNow, isNotWhatStandsInPlaceOfAnother) {
    files.addFile("/etc/xdg/autostart/a.desktop", entry("Name=Theirs\n"));
    EXPECT_FALSE(stillRemovable(item));
    files.addFile("/etc/systemd/user/b@.service", "[Unit]\n");
    EXPECT_FALSE(stillRemovable(unit));
}

TEST_F(RemovableNow, isNotWhatALinkLeadsTo) {
    files.addLink("/home/me/.config", "/data");
    EXPECT_FALSE(stillRemovable(item));
    item.link = "/home/me/.config";
    EXPECT_TRUE(stillRemovable(item)) << "as it did before";
    files.addLink(autostart, "/data");
    EXPECT_FALSE(stillRemovable(item));
}

TEST_F(RemovableNow, isNotWhatIsInNoFolderOfTheUsers) {
    files.addFile("/home/me/a.desktop", entry("Name=Entry\n"));
    for (const char* path : {"", "a.desktop", "/", "/home/me/a.desktop", "/home/me/.config/autostart/../x.desktop"}) {
        item.path = path;
        EXPECT_FALSE(stillRemovable(item)) << path;
    }
    item.path = autostart + "/notes.txt";
    files.addFile(item.path);
    EXPECT_FALSE(stillRemovable(item)) << "no item";
}

}  // namespace
}  // namespace zelk
