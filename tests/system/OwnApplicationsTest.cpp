// SPDX-License-Identifier: MIT
#include "system/apps/OwnApplications.h"

#include <gmock/gmock.h>

#include "fakes/AppsHome.h"
#include "system/apps/UserFolders.h"

namespace zelk {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using testing::UnorderedElementsAre;

class OwnApplicationsTest : public testing::Test {
protected:
    std::vector<AppEntry> appImages() {
        AppFindings findings;
        findAppImages(AppSearch(machine.platform()), findings);
        return findings.apps;
    }
    /// Without the AppImages.
    std::vector<AppEntry> unpacked() {
        AppFindings findings;
        const AppSearch search(machine.platform());
        findAppImages(search, findings);
        findUnpacked(search, findings);
        std::erase_if(findings.apps, [](const AppEntry& app) { return app.kind != AppKind::unpacked; });
        return findings.apps;
    }
    static std::vector<std::string> urlsOf(const std::vector<AppEntry>& apps) {
        std::vector<std::string> urls;
        for (const AppEntry& app : apps) urls.push_back(app.url);
        return urls;
    }
    /// A program in a folder, and an entry that starts it.
    void unpack(const std::string& program, const std::string& id) {
        machine.files.addFile(program, "program", 1'000);
        desktop.addOwnEntry(id, "Name of " + id, program);
    }

    fakes::FakePlatform machine;
    fakes::LinuxApps desktop{machine};
    const std::string home = desktop.home;
};

}  // namespace

TEST(AppImageStart, isAnElfWithTwoLettersAndItsType) {
    const std::string elf = std::string("\177ELF\2\1\1\0", 8);
    EXPECT_TRUE(isAppImage(elf + "AI\1"));
    EXPECT_TRUE(isAppImage(elf + "AI\2"));
    EXPECT_TRUE(isAppImage(elf + "AI\2more"));
    EXPECT_FALSE(isAppImage(elf + "AI\3"));
    EXPECT_FALSE(isAppImage(elf + std::string("AI\0", 3)));
    EXPECT_FALSE(isAppImage(elf + "AX\2"));
    EXPECT_FALSE(isAppImage(elf + "XI\2"));
    EXPECT_FALSE(isAppImage(elf + "AI"));
    EXPECT_FALSE(isAppImage("#!/bin/AI\2"));
    EXPECT_FALSE(isAppImage(""));
}

TEST_F(OwnApplicationsTest, findsAppImagesWherePeopleKeepThem) {
    for (const char* place : {"/Applications/A.AppImage", "/.local/bin/b", "/Downloads/c.appimage"})
        desktop.addAppImage(home + place, 1'000);
    machine.files.addFile(home + "/Downloads/film.AppImage", "no program");
    desktop.addAppImage(home + "/Documents/d.AppImage", 1'000);
    desktop.addAppImage(home + "/Applications/deep/e.AppImage", 1'000);
    const std::vector<AppEntry> apps = appImages();
    EXPECT_THAT(urlsOf(apps), UnorderedElementsAre(home + "/Applications/A.AppImage", home + "/.local/bin/b",
                                                   home + "/Downloads/c.appimage"));
    std::vector<std::string> names;
    for (const AppEntry& app : apps) names.push_back(app.name);
    EXPECT_THAT(names, UnorderedElementsAre("A", "b", "c"));
}

TEST_F(OwnApplicationsTest, findsAppImagesInTheConfiguredDownloads) {
    machine.files.addFile(home + "/.config/user-dirs.dirs", "XDG_DOWNLOAD_DIR=\"$HOME/Herunter\"\n");
    desktop.addAppImage(home + "/Herunter/a.AppImage", 1'000);
    EXPECT_THAT(urlsOf(appImages()), ElementsAre(home + "/Herunter/a.AppImage"));
}

TEST_F(OwnApplicationsTest, appImageTakesNameAndIdentifierFromItsEntries) {
    desktop.addAppImage(home + "/tools of mine/Sonata-2.1.AppImage", 90'000);
    desktop.addOwnEntry("sonata", "Sonata", "\"" + home + "/tools of mine/Sonata-2.1.AppImage\" %U",
                        "Icon=sonata\nX-AppImage-Name=org.sample.Sonata\n");
    desktop.addOwnEntry("other", "Other", "/usr/bin/other");
    AppEntry sonata;
    sonata.url = home + "/tools of mine/Sonata-2.1.AppImage";
    sonata.name = "Sonata";
    sonata.size = 90'000;
    sonata.bundleID = "org.sample.Sonata";
    sonata.kind = AppKind::appImage;
    sonata.program = "Sonata-2.1.AppImage";
    sonata.icon = "sonata";
    sonata.entries = {desktop.ownEntry("sonata")};
    EXPECT_THAT(appImages(), ElementsAre(sonata));
}

TEST_F(OwnApplicationsTest, appImageWithoutEntryHasNoIdentifier) {
    desktop.addAppImage(home + "/Applications/A.AppImage", 1'000);
    EXPECT_EQ(appImages().at(0).bundleID, std::nullopt);
    desktop.addOwnEntry("a", "A", home + "/Applications/A.AppImage");
    EXPECT_EQ(appImages().at(0).bundleID, std::nullopt);
    EXPECT_THAT(appImages().at(0).entries, ElementsAre(desktop.ownEntry("a")));
}

TEST_F(OwnApplicationsTest, appImageIsListedOnceByItsRealPath) {
    desktop.addAppImage(home + "/Applications/A.AppImage", 1'000);
    machine.files.addLink(home + "/.local/bin/a", home + "/Applications/A.AppImage");
    desktop.addOwnEntry("a", "A", home + "/.local/bin/a");
    EXPECT_THAT(urlsOf(appImages()), ElementsAre(home + "/Applications/A.AppImage"));
    EXPECT_THAT(appImages().at(0).entries, ElementsAre(desktop.ownEntry("a")));
}

TEST_F(OwnApplicationsTest, appImageOutsideOfTheHomeIsNobodysToRemove) {
    desktop.addAppImage("/opt/A.AppImage", 1'000);
    desktop.addOwnEntry("a", "A", "/opt/A.AppImage");
    EXPECT_THAT(appImages(), IsEmpty());
}

TEST_F(OwnApplicationsTest, appImageOfAnotherUserStays) {
    desktop.addAppImage(home + "/Applications/A.AppImage", 1'000);
    EXPECT_EQ(appImages().at(0).obstacle, AppObstacle());
    machine.files.giveAway(home + "/Applications/A.AppImage");
    EXPECT_EQ(appImages().at(0).obstacle.reason, AppObstacle::Reason::notOwn);
}

TEST_F(OwnApplicationsTest, findsUnpackedApplicationWithAllOfItsFolder) {
    machine.files.addFile(home + "/Tidepool/tidepool", "program", 1'000);
    machine.files.addFile(home + "/Tidepool/data/.hidden", {}, 200);
    desktop.addOwnEntry("org.sample.Tidepool", "Tidepool", "env A=b " + home + "/Tidepool/tidepool %f",
                        "Icon=/i.png\n");
    AppEntry tidepool;
    tidepool.url = home + "/Tidepool";
    tidepool.name = "Tidepool";
    tidepool.size = 1'200;
    tidepool.bundleID = "org.sample.Tidepool";
    tidepool.kind = AppKind::unpacked;
    tidepool.program = "tidepool";
    tidepool.icon = "/i.png";
    tidepool.entries = {desktop.ownEntry("org.sample.Tidepool")};
    EXPECT_THAT(unpacked(), ElementsAre(tidepool));
}

TEST_F(OwnApplicationsTest, folderOfAProgramInBinIsTheOneAbove) {
    unpack(home + "/Editor/bin/editor.sh", "editor");
    EXPECT_THAT(urlsOf(unpacked()), ElementsAre(home + "/Editor"));
}

TEST_F(OwnApplicationsTest, scriptBehindAnInterpreterCountsWithoutItsName) {
    machine.files.addFile(home + "/Papercrane/crane.jar", {}, 1'000);
    desktop.addOwnEntry("crane", "Papercrane", "java -jar " + home + "/Papercrane/crane.jar");
    ASSERT_THAT(urlsOf(unpacked()), ElementsAre(home + "/Papercrane"));
    EXPECT_EQ(unpacked().at(0).program, "");
}

TEST_F(OwnApplicationsTest, severalEntriesOfOneProgramGoTogether) {
    unpack(home + "/Suite/suite", "writer");
    desktop.addOwnEntry("draw", "Draw", home + "/Suite/suite --draw");
    ASSERT_THAT(unpacked(), SizeIs(1));
    EXPECT_THAT(unpacked().at(0).entries, ElementsAre(desktop.ownEntry("draw"), desktop.ownEntry("writer")));
}

TEST_F(OwnApplicationsTest, neverTakesAFolderForOtherThings) {
    int number = 0;
    for (const char* place :
         {"/run",          "/Desktop/run",        "/Documents/run",  "/Downloads/run",     "/Music/run",
          "/Pictures/run", "/Public/run",         "/Templates/run",  "/Videos/run",        "/Applications/run",
          "/bin/run",      "/apps/run",           "/Work/Tools/run", "/projects/run",      "/.local/opt/editor/run",
          "/.hidden/run",  "/Editor/.hidden/run", "/snap/run",       "/Documents/bin/run", "/Akten/run"})
        unpack(home + place, "id" + std::to_string(number++));
    machine.files.addFile(home + "/.config/user-dirs.dirs", "XDG_DOCUMENTS_DIR=\"$HOME/Akten\"\n");
    EXPECT_THAT(urlsOf(unpacked()), IsEmpty());
}

TEST_F(OwnApplicationsTest, neverTakesAFolderThatHoldsOneOfThose) {
    machine.files.addFile(home + "/.config/user-dirs.dirs", "XDG_MUSIC_DIR=\"$HOME/Player/Music\"\n");
    unpack(home + "/Player/player", "player");
    EXPECT_THAT(unpacked(), IsEmpty());
    machine.locations.xdg->data = home + "/Other/data";
    machine.files.addFile(home + "/Other/run");
    machine.files.addFile(home + "/Other/data/applications/other.desktop",
                          fakes::applicationEntry("Other", home + "/Other/run"));
    EXPECT_THAT(unpacked(), IsEmpty());
}

TEST_F(OwnApplicationsTest, neverTakesAFolderOfSeveralPrograms) {
    unpack(home + "/Mine/one", "one");
    unpack(home + "/Mine/two", "two");
    EXPECT_THAT(unpacked(), IsEmpty());
}

TEST_F(OwnApplicationsTest, takesNeitherOfTwoNestedFolders) {
    unpack(home + "/Outer/outer", "outer");
    unpack(home + "/Outer/Inner/inner", "inner");
    EXPECT_THAT(unpacked(), IsEmpty());
}

TEST_F(OwnApplicationsTest, takesAFolderBelowOneForMany) {
    unpack(home + "/run", "home");
    unpack(home + "/Tools/run", "tools");
    unpack(home + "/Tools/Editor/editor", "editor");
    unpack(home + "/Downloads/run", "downloads");
    unpack(home + "/Downloads/Player/player", "player");
    EXPECT_THAT(urlsOf(unpacked()), UnorderedElementsAre(home + "/Tools/Editor", home + "/Downloads/Player"));
}

TEST_F(OwnApplicationsTest, documentBehindALauncherIsNoProgram) {
    machine.files.addFile(home + "/Thesis/thesis.pdf", {}, 1'000);
    for (const char* launcher : {"xdg-open", "kioclient exec", "gtk-launch viewer", "sudo", "steam", "java -cp",
                                 "python3 -m", "flatpak run org.sample.Viewer", "electron"}) {
        desktop.addOwnEntry("thesis", "Thesis", std::string(launcher) + " " + home + "/Thesis/thesis.pdf");
        EXPECT_THAT(unpacked(), IsEmpty()) << launcher;
    }
    machine.files.addFolder(home + "/Server/source");
    desktop.addOwnEntry("server", "Server", "node " + home + "/Server/source");
    EXPECT_THAT(unpacked(), IsEmpty()) << "a folder is no program";
}

TEST_F(OwnApplicationsTest, neverTakesAFolderWithSomethingThatAnotherEntryOpens) {
    unpack(home + "/Editor/editor", "editor");
    ASSERT_THAT(unpacked(), SizeIs(1));
    machine.files.addFile(home + "/Editor/letters/letter.txt");
    desktop.addOwnEntry("letter", "Letter", "xdg-open " + home + "/Editor/letters/letter.txt");
    EXPECT_THAT(unpacked(), IsEmpty());
}

TEST_F(OwnApplicationsTest, neverTakesAFolderThatIsKeptElsewhere) {
    for (const char* name : {"Dropbox", "Nextcloud", "ownCloud", "OneDrive", "Google Drive", "MEGA", "Sync",
                             "Syncthing", "Backup", "Backups", "VMs", "VirtualBox VMs", "Dropbox (Work)"}) {
        const std::string folder = home + "/" + name;
        machine.files.addFile(folder + "/deep/Editor/editor", "program");
        desktop.addOwnEntry("editor", "Editor", "\"" + folder + "/deep/Editor/editor\"");
        EXPECT_THAT(unpacked(), IsEmpty()) << name;
        machine.files.addFile(folder + "/editor", "program");
        desktop.addOwnEntry("editor", "Editor", "\"" + folder + "/editor\"");
        EXPECT_THAT(unpacked(), IsEmpty()) << name;
    }
    unpack(home + "/Editors/Sync/editor", "editor");
    EXPECT_THAT(unpacked(), SizeIs(1)) << "only directly in the home";
}

TEST_F(OwnApplicationsTest, neverTakesAFolderWithAnAppImage) {
    unpack(home + "/Mine/one", "one");
    desktop.addAppImage(home + "/Mine/two.AppImage", 1'000);
    desktop.addOwnEntry("two", "Two", home + "/Mine/two.AppImage");
    EXPECT_THAT(unpacked(), IsEmpty());
}

TEST_F(OwnApplicationsTest, neverTakesAProjectUnderVersionControl) {
    unpack(home + "/Editor/editor", "editor");
    ASSERT_THAT(unpacked(), SizeIs(1));
    for (const char* sign : {".git", ".hg", ".svn"}) {
        machine.files.addFolder(home + "/Editor/" + sign);
        EXPECT_THAT(unpacked(), IsEmpty()) << sign;
        machine.files.erase(home + "/Editor/" + sign);
    }
}

TEST_F(OwnApplicationsTest, neverTakesAPartOfAProjectUnderVersionControl) {
    unpack(home + "/Project/build/Editor/editor", "editor");
    machine.files.addFolder(home + "/.git");
    ASSERT_THAT(unpacked(), SizeIs(1)) << "settings of the home are no project";
    for (const char* sign : {"/Project/.git", "/Project/build/.hg"}) {
        machine.files.addFolder(home + sign);
        EXPECT_THAT(unpacked(), IsEmpty()) << sign;
        machine.files.erase(home + sign);
    }
}

TEST_F(OwnApplicationsTest, areLookedAtAgainBeforeTheyGo) {
    unpack(home + "/Editor/editor", "editor");
    desktop.addAppImage(home + "/Applications/A.AppImage", 1'000);
    const AppEntry editor = unpacked().at(0);
    const AppEntry image = appImages().at(0);
    const auto now = [this](const AppEntry& app) { return obstacleOfOwn(machine.platform(), app).reason; };
    EXPECT_EQ(now(editor), AppObstacle::Reason::none);
    EXPECT_EQ(now(image), AppObstacle::Reason::none);
    EXPECT_THAT(machine.files.pathsOf("fullSizeBelow"), ElementsAre(home + "/Editor")) << "when it was listed";

    machine.files.addFolder(home + "/Editor/.git");
    EXPECT_EQ(now(editor), AppObstacle::Reason::changed);
    machine.files.erase(home + "/Editor/.git");
    machine.files.giveAway(home + "/Editor");
    EXPECT_EQ(now(editor), AppObstacle::Reason::notOwn);
    machine.files.giveAway(image.url);
    EXPECT_EQ(now(image), AppObstacle::Reason::notOwn);
    machine.files.addFile(image.url, "a film by now");
    EXPECT_EQ(now(image), AppObstacle::Reason::changed);
    machine.files.erase(image.url);
    EXPECT_EQ(now(image), AppObstacle::Reason::changed);
}

TEST_F(OwnApplicationsTest, skipsProgramsElsewhereAndEntriesThatStartNothing) {
    unpack("/opt/editor/editor", "opt");
    desktop.addOwnEntry("gone", "Gone", home + "/Gone/gone");
    desktop.addOwnEntry("named", "Named", "named");
    desktop.addOwnEntry("empty", "Empty", "");
    desktop.addOwnEntry("page", "Page", "xdg-open https://example.org");
    machine.files.addFile("/usr/lib/real/real");
    machine.files.addLink(home + "/Link/link", "/usr/lib/real/real");
    desktop.addOwnEntry("link", "Link", home + "/Link/link");
    EXPECT_THAT(unpacked(), IsEmpty());
}

TEST_F(OwnApplicationsTest, unpackedOfAnotherUserStays) {
    unpack(home + "/Editor/editor", "editor");
    machine.files.giveAway(home + "/Editor");
    EXPECT_EQ(unpacked().at(0).obstacle.reason, AppObstacle::Reason::notOwn);
}

TEST_F(OwnApplicationsTest, unpackedThatNoMenuShowsIsNotListed) {
    machine.files.addFile(home + "/Editor/editor");
    desktop.addOwnEntry("editor", "Editor", home + "/Editor/editor", "NoDisplay=true\n");
    EXPECT_THAT(unpacked(), IsEmpty());
}

TEST(UserFolders, areThoseConfiguredAndTheUsualOnes) {
    const UserFolders folders = parseUserFolders(
        "# a comment\nXDG_DOWNLOAD_DIR=\"$HOME/My \\\"Loads\\\"/\"\n XDG_MUSIC_DIR = \"/srv/music\" \n"
        "XDG_VIDEOS_DIR=\"$HOME/\"\nXDG_PICTURES_DIR=\"relative\"\nXDG_DESKTOP_DIR=$HOME/x\nOTHER=\"$HOME/o\"\nXDG_X\n",
        "/home/me");
    EXPECT_EQ(folders.downloads, "/home/me/My \"Loads\"");
    EXPECT_THAT(folders.all, ElementsAre("/home/me/Desktop", "/home/me/Documents", "/home/me/Downloads",
                                         "/home/me/Music", "/home/me/Pictures", "/home/me/Public", "/home/me/Templates",
                                         "/home/me/Videos", "/home/me/My \"Loads\"", "/srv/music"));
    EXPECT_EQ(parseUserFolders("", "/home/me").downloads, "/home/me/Downloads");
}

}  // namespace zelk
