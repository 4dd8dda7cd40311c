// SPDX-License-Identifier: MIT
#include "system/apps/PackagedApplications.h"

#include <gmock/gmock.h>

#include "fakes/AppsHome.h"
#include "system/AdminLines.h"
#include "system/apps/DpkgStatus.h"

namespace zelk {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class PackagedApplicationsTest : public testing::Test {
protected:
    std::vector<AppEntry> found() {
        AppFindings findings;
        findPackages(AppSearch(machine.platform()), findings);
        return findings.apps;
    }

    fakes::FakePlatform machine;
    fakes::LinuxApps desktop{machine};
};

}  // namespace

TEST_F(PackagedApplicationsTest, findsPackageByItsEntry) {
    desktop.packages = {{"falkon", 3'000}};
    desktop.owners["/usr/bin/falkon-bin"] = "falkon";
    desktop.addEntry("falkon", "Falkon", "org.kde.falkon", "/usr/bin/falkon-bin", "Icon=falkon\n");
    AppEntry falkon;
    falkon.url = "/usr/share/applications/org.kde.falkon.desktop";
    falkon.name = "Falkon";
    falkon.size = 3'072'000;
    falkon.bundleID = "org.kde.falkon";
    falkon.kind = AppKind::package;
    falkon.package = "falkon";
    falkon.program = "falkon-bin";
    falkon.icon = "falkon";
    EXPECT_THAT(found(), ElementsAre(falkon));
}

TEST_F(PackagedApplicationsTest, asksForAllPackagesAtOnce) {
    for (const char* name : {"aa", "bb", "cc"}) desktop.addPackaged({name}, name, name);
    EXPECT_THAT(found(), SizeIs(3));
    const ChildStreams asked{false, false, true};
    EXPECT_THAT(
        machine.processes.calls(),
        ElementsAre(
            fakes::FakeProcesses::Call{"/usr/bin/dpkg-query", {"-S", "/usr/share/applications/*.desktop"}, asked},
            fakes::FakeProcesses::Call{"/usr/bin/dpkg-query", {"-W", std::string("-f=") + dpkgFormat}, asked},
            fakes::FakeProcesses::Call{
                "/usr/bin/dpkg-query",
                {"-S", "/usr/bin/aa", "/bin/aa", "/usr/bin/bb", "/bin/bb", "/usr/bin/cc", "/bin/cc"},
                asked}));
}

TEST_F(PackagedApplicationsTest, listsAPackageOnceByItsMainEntry) {
    desktop.packages = {{"suite"}};
    desktop.addEntry("suite", "Calculator", "calc", "/usr/bin/suite --calc");
    desktop.addEntry("suite", "Suite", "suite", "/usr/bin/suite");
    desktop.addEntry("suite", "Hidden", "aaa", "/usr/bin/suite --x", "NoDisplay=true\n");
    ASSERT_THAT(found(), SizeIs(1));
    EXPECT_EQ(found().at(0).name, "Suite");
    EXPECT_THAT(found().at(0).alongside, ElementsAre("Calculator"));
    machine.files.erase(desktop.entryOf("suite"));
    EXPECT_EQ(found().at(0).name, "Calculator");
}

TEST_F(PackagedApplicationsTest, programOfAnotherPackageIsNoName) {
    desktop.packages = {{"page"}, {"monitor"}, {"browser"}};
    for (const char* program : {"browser", "konsole"}) {
        machine.files.addFile(std::string("/usr/bin/") + program);
        desktop.owners[std::string("/usr/bin/") + program] = "browser";
    }
    desktop.addEntry("page", "Page", "page", "browser --app=https://example.org");
    desktop.addEntry("monitor", "Monitor", "monitor", "/usr/bin/konsole -e top");
    desktop.addEntry("browser", "Browser", "browser", "browser");
    for (const AppEntry& app : found()) EXPECT_EQ(app.program, app.name == "Browser" ? "browser" : "") << app.name;
    desktop.owners.erase("/usr/bin/browser");
    for (const AppEntry& app : found()) EXPECT_EQ(app.program, "") << app.name << ", of no package";
}

TEST_F(PackagedApplicationsTest, findsProgramByEitherSpellingOfItsFolder) {
    desktop.packages = {{"one"}, {"two"}};
    desktop.addEntry("one", "One", "one", "/usr/bin/one");
    desktop.owners["/bin/one"] = "one";
    desktop.addEntry("two", "Two", "two", "/sbin/two");
    desktop.owners["/usr/sbin/two"] = "two";
    for (const AppEntry& app : found()) EXPECT_EQ(app.program, app.package);
}

TEST_F(PackagedApplicationsTest, asksForNoProgramThatWouldBeAPattern) {
    desktop.packages = {{"odd"}};
    desktop.addEntry("odd", "Odd", "odd", "\"/usr/bin/o*\"");
    desktop.owners["/usr/bin/o*"] = "odd";
    EXPECT_EQ(found().at(0).program, "");
    EXPECT_THAT(machine.processes.calls(), SizeIs(2));
}

TEST_F(PackagedApplicationsTest, skipsPackagesThatNoMenuShows) {
    desktop.packages = {{"helper"}};
    desktop.addEntry("helper", "Helper", "helper", "/usr/bin/helper", "NoDisplay=true\n");
    EXPECT_THAT(found(), IsEmpty());
    machine.files.addFile(desktop.entryOf("helper"), fakes::applicationEntry("Helper", "x", "Hidden=true\n"));
    EXPECT_THAT(found(), IsEmpty());
}

TEST_F(PackagedApplicationsTest, staysIfItIsPartOfTheSystem) {
    desktop.addPackaged({"essential", 1, "", "optional", "yes"}, "E", "e");
    desktop.addPackaged({"standard", 1, "", "standard"}, "S", "s");
    for (const AppEntry& app : found()) EXPECT_EQ(app.obstacle.reason, AppObstacle::Reason::partOfSystem) << app.name;
}

TEST_F(PackagedApplicationsTest, staysIfAnotherPackageNeedsIt) {
    desktop.addPackaged({"inkwell"}, "Inkwell", "inkwell");
    desktop.packages.push_back({"plugins", 1, "inkwell (>= 4)"});
    desktop.packages.push_back({"desktop", 1, "libc6, inkwell"});
    EXPECT_EQ(found().at(0).obstacle, (AppObstacle{AppObstacle::Reason::needed, {"desktop", "plugins"}}));
}

TEST_F(PackagedApplicationsTest, staysIfInstalledForTwoArchitectures) {
    desktop.addPackaged({"wine"}, "Wine", "wine");
    desktop.packages.push_back({"wine"});
    EXPECT_EQ(found().at(0).obstacle.reason, AppObstacle::Reason::severalVersions);
}

TEST_F(PackagedApplicationsTest, entryOfNoPackageIsListedAndStays) {
    machine.files.addFile(desktop.entryOf("handmade"), fakes::applicationEntry("Handmade", "/opt/x"));
    ASSERT_THAT(found(), SizeIs(1));
    EXPECT_EQ(found().at(0).obstacle.reason, AppObstacle::Reason::unknown);
    EXPECT_EQ(found().at(0).package, "");
    EXPECT_EQ(found().at(0).url, desktop.entryOf("handmade"));
}

TEST_F(PackagedApplicationsTest, entryOfTwoPackagesStays) {
    desktop.addPackaged({"one"}, "One", "one");
    machine.processes.outcome = [&](const fakes::FakeProcesses::Call& call) -> ChildOutcome {
        if (call.arguments.front() == "-S") return {std::nullopt, 0, "one, two: " + desktop.entryOf("one") + "\n"};
        return {std::nullopt, 0, "one\tinstalled\tno\t\toptional\t1\t\t\t\n"};
    };
    EXPECT_EQ(found().at(0).obstacle.reason, AppObstacle::Reason::unknown);
}

TEST_F(PackagedApplicationsTest, withoutDpkgEntriesAreListedAndStay) {
    desktop.addPackaged({"inkwell"}, "Inkwell", "inkwell");
    machine.files.erase("/usr/bin/dpkg-query");
    ASSERT_THAT(found(), SizeIs(1));
    EXPECT_EQ(found().at(0).obstacle.reason, AppObstacle::Reason::unknown);
    EXPECT_EQ(found().at(0).name, "Inkwell");
}

TEST_F(PackagedApplicationsTest, programOfManyIsNoName) {
    desktop.packages = {{"page"}, {"script"}};
    desktop.addEntry("page", "Page", "page", "xdg-open https://example.org");
    desktop.addEntry("script", "Script", "script", "env X=1 python3 /usr/share/script/script.py");
    for (const AppEntry& app : found()) EXPECT_EQ(app.program, "") << app.name;
}

TEST_F(PackagedApplicationsTest, readsEntriesInFolders) {
    machine.files.addFile("/usr/share/applications/kde/kate.desktop", fakes::applicationEntry("Kate", "kate"));
    desktop.packages = {{"kate"}};
    desktop.owners["/usr/share/applications/kde/kate.desktop"] = "kate";
    EXPECT_EQ(found().at(0).bundleID, "kde-kate");
    EXPECT_EQ(found().at(0).package, "kate");
}

TEST_F(PackagedApplicationsTest, aptSaysWhatWouldGoAlong) {
    ChildProcess& processes = machine.processes;
    EXPECT_EQ(obstacleOfRemoving(processes, "inkwell"), AppObstacle());
    EXPECT_EQ(machine.processes.calls().at(0),
              (fakes::FakeProcesses::Call{
                  "/usr/bin/apt-get",
                  {"-s", "--no-auto-remove", "-o", "APT::Get::Purge=false", "remove", "--", "inkwell"},
                  {false, false, true}}));
    desktop.alongside = {"plugins", "desktop"};
    EXPECT_EQ(obstacleOfRemoving(processes, "inkwell"),
              (AppObstacle{AppObstacle::Reason::needed, {"plugins", "desktop"}}));
}

TEST_F(PackagedApplicationsTest, aptThatPurgesRemovesToo) {
    machine.processes.outcome = [](const auto&) {
        return ChildOutcome{std::nullopt, 0, "Purg inkwell [1]\nPurg plugins [1]\n"};
    };
    EXPECT_EQ(obstacleOfRemoving(machine.processes, "inkwell"),
              (AppObstacle{AppObstacle::Reason::needed, {"plugins"}}));
}

TEST_F(PackagedApplicationsTest, whatAptDoesNotSayIsNoConsent) {
    for (const ChildOutcome& outcome :
         {ChildOutcome{std::nullopt, 100, "Remv inkwell [1]\n"}, ChildOutcome{std::nullopt, 0, ""},
          ChildOutcome{std::nullopt, 0, "Remv other [1]\n"},
          ChildOutcome{std::nullopt, 0, "Remv inkwell [1]\nInst inkwell-lite (1)\n"},
          ChildOutcome{"missing", 0, "Remv inkwell [1]\n"}}) {
        machine.processes.outcome = [&](const auto&) { return outcome; };
        EXPECT_EQ(obstacleOfRemoving(machine.processes, "inkwell").reason, AppObstacle::Reason::unknown);
    }
}

TEST(RemovePackageLine, isOneThatTheHelperKnows) {
    for (const char* name : {"falkon", "g++", "libstdc++-12-dev", "python3.11"}) {
        const std::optional<std::string> line = removePackageLine(name);
        ASSERT_TRUE(line.has_value()) << name;
        EXPECT_EQ(adminArguments(*line), (std::vector<std::string>{"remove-package", name}));
    }
    EXPECT_EQ(removePackageLine("falkon"), "DEBIAN_FRONTEND=noninteractive /usr/bin/dpkg --remove falkon");
    for (const char* name : {"", "-o", "a;b", "$(a)", "a b", "A"}) EXPECT_EQ(removePackageLine(name), std::nullopt);
}

}  // namespace zelk
