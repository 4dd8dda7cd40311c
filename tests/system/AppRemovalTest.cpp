// SPDX-License-Identifier: MIT
#include "system/apps/AppRemoval.h"

#include <gmock/gmock.h>

#include "fakes/AppsHome.h"
#include "platform/Translation.h"
#include "system/apps/ApplicationList.h"

namespace zelk {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Outcome = AppRemoval::Outcome;

class AppRemovalTest : public testing::Test {
protected:
    AppRemovalTest() { desktop.fill(); }

    AppEntry app(const std::string& name) {
        for (AppEntry& one : listApplications(machine.platform()))
            if (one.name == name) return one;
        ADD_FAILURE() << name;
        return {};
    }
    AppRemoval remove(const std::string& name) { return removeApplication(machine.platform(), app(name)); }
    /// The calls since the applications were listed.
    std::vector<std::string> removals() { return desktop.removals(); }

    fakes::FakePlatform machine;
    fakes::LinuxApps desktop{machine};
};

}  // namespace

TEST_F(AppRemovalTest, flatpaksGoByFlatpakAndNeverWithTheirData) {
    EXPECT_EQ(remove("Orrery").outcome, Outcome::gone);
    EXPECT_EQ(remove("Maps").outcome, Outcome::gone);
    EXPECT_THAT(removals(), ElementsAre("/usr/bin/flatpak uninstall --user -y --noninteractive --app "
                                        "app/org.sample.Orrery/x86_64/stable",
                                        "/usr/bin/flatpak uninstall --system -y --noninteractive --app "
                                        "app/org.sample.Maps/x86_64/stable"));
    EXPECT_THAT(machine.trash.trashed(), IsEmpty());
    EXPECT_EQ(machine.processes.calls().back().streams, (ChildStreams{false, true, true}));
}

TEST_F(AppRemovalTest, snapGoesBySnapAndKeepsItsSnapshot) {
    EXPECT_EQ(remove("Chat").outcome, Outcome::gone);
    EXPECT_THAT(removals(), ElementsAre("/usr/bin/snap remove chat"));
    EXPECT_THAT(machine.trash.trashed(), IsEmpty());
}

TEST_F(AppRemovalTest, packageGoesByAnAdministrator) {
    EXPECT_EQ(remove("Studio").outcome, Outcome::gone);
    EXPECT_THAT(removals(), ElementsAre("/usr/bin/pkexec --disable-internal-agent /bin/sh -c "
                                        "DEBIAN_FRONTEND=noninteractive /usr/bin/dpkg --remove studio"));
    EXPECT_THAT(machine.trash.trashed(), IsEmpty());
}

TEST_F(AppRemovalTest, packageGoesByTheHelperWhereItIsInstalled) {
    machine.files.addFile("/usr/libexec/zelk-admin");
    EXPECT_EQ(remove("Studio").outcome, Outcome::gone);
    EXPECT_THAT(removals(), ElementsAre("/usr/bin/pkexec --disable-internal-agent /usr/libexec/zelk-admin "
                                        "remove-package studio"));
}

TEST_F(AppRemovalTest, whatIsTheUsersGoesToTheTrash) {
    const AppRemoval removal = remove("Sonata");
    EXPECT_EQ(removal.outcome, Outcome::gone);
    EXPECT_TRUE(removal.trashed.has_value());
    EXPECT_EQ(remove("Tidepool").outcome, Outcome::gone);
    EXPECT_THAT(machine.trash.trashed(),
                ElementsAre(desktop.home + "/Applications/Sonata.AppImage", desktop.home + "/Tidepool"));
    EXPECT_THAT(removals(), IsEmpty());
}

TEST_F(AppRemovalTest, bundleGoesToTheTrash) {
    machine.system = SystemKind::macOS;
    fakes::addBundle(machine, "Inkwell", 1'000);
    AppEntry inkwell;
    inkwell.url = "/Applications/Inkwell.app";
    EXPECT_EQ(removeApplication(machine.platform(), inkwell).outcome, Outcome::gone);
    EXPECT_THAT(machine.trash.trashed(), ElementsAre("/Applications/Inkwell.app"));
}

TEST_F(AppRemovalTest, lastWordsOfAToolAreTheReason) {
    desktop.removal = {std::nullopt, 1, "Removing…\nerror: org.sample.Orrery is in use\n\n"};
    const AppRemoval removal = remove("Orrery");
    EXPECT_EQ(removal.outcome, Outcome::failed);
    EXPECT_EQ(removal.words, "error: org.sample.Orrery is in use");
    EXPECT_FALSE(removal.trashed.has_value());
}

TEST_F(AppRemovalTest, toolThatIsMissingIsTold) {
    desktop.removal = {"No such file or directory", 0, {}};
    for (const char* name : {"Orrery", "Chat", "Studio"}) {
        const AppRemoval removal = remove(name);
        EXPECT_EQ(removal.outcome, Outcome::notStarted) << name;
        EXPECT_EQ(removal.words, "No such file or directory") << name;
    }
}

TEST_F(AppRemovalTest, questionThatIsDismissedIsNoFailureOfTheTool) {
    desktop.removal = {std::nullopt, 126, "Error executing command as another user: Request dismissed\n"};
    EXPECT_EQ(remove("Studio").outcome, Outcome::notAllowed);
    EXPECT_EQ(remove("Studio").words, "");
    desktop.removal = {std::nullopt, 1, "dpkg: dependency problems prevent removal of studio:\n  plugins depends\n"};
    EXPECT_EQ(remove("Studio").outcome, Outcome::failed);
    EXPECT_EQ(remove("Studio").words, "plugins depends");
}

// Whatever stands before the words of a tool in the user's language, even if it is the same everywhere.
TEST_F(AppRemovalTest, endsAreToldApartInEveryLanguage) {
    setTranslation([](const char*, const char*) { return std::string("x"); });
    desktop.removal = {"xyz", 0, {}};
    EXPECT_EQ(remove("Studio").outcome, Outcome::notStarted);
    desktop.removal = {std::nullopt, 1, "xyz\n"};
    const AppRemoval removal = remove("Studio");
    EXPECT_EQ(removal.outcome, Outcome::failed);
    EXPECT_EQ(removal.words, "xyz");
    desktop.removal = {std::nullopt, 126, "Error executing command as another user: Not authorized\n"};
    EXPECT_EQ(remove("Studio").outcome, Outcome::notAllowed);
    desktop.removal = {std::nullopt, 0, "xyz\n"};
    EXPECT_EQ(remove("Studio").outcome, Outcome::gone);
    setTranslation(nullptr);
}

TEST_F(AppRemovalTest, toolThatRemovesNothingIsFoundOut) {
    desktop.removes = false;
    for (const char* name : {"Orrery", "Maps", "Chat", "Studio"})
        EXPECT_EQ(remove(name).outcome, Outcome::stillThere) << name;
}

TEST_F(AppRemovalTest, trashThatRefusesIsTold) {
    machine.files.failing = [](const auto& call) { return call.operation == "trash"; };
    const AppRemoval removal = remove("Sonata");
    EXPECT_EQ(removal.outcome, Outcome::failed);
    EXPECT_EQ(removal.words, desktop.home + "/Applications/Sonata.AppImage would not go to the Trash");
}

TEST_F(AppRemovalTest, whatStaysIsNotTouched) {
    AppEntry studio = app("Studio");
    studio.obstacle = {AppObstacle::Reason::partOfSystem};
    EXPECT_EQ(removeApplication(machine.platform(), studio).outcome, Outcome::failed);
    EXPECT_THAT(removals(), IsEmpty());
}

TEST_F(AppRemovalTest, nameThatAToolCouldMisreadIsNotPassedOn) {
    for (const char* name : {"Orrery", "Chat", "Studio"}) {
        AppEntry odd = app(name);
        odd.package = "--all";
        EXPECT_EQ(removeApplication(machine.platform(), odd).outcome, Outcome::failed) << name;
    }
    EXPECT_THAT(removals(), IsEmpty());
}

TEST_F(AppRemovalTest, onlyAPackageIsAskedAboutAgain) {
    desktop.alongside = {"plugins"};
    EXPECT_EQ(obstacleNow(machine.platform(), app("Studio")), (AppObstacle{AppObstacle::Reason::needed, {"plugins"}}));
    for (const char* name : {"Orrery", "Chat", "Sonata", "Tidepool", "Maps"})
        EXPECT_EQ(obstacleNow(machine.platform(), app(name)), AppObstacle()) << name;
    AppEntry studio = app("Studio");
    studio.obstacle = {AppObstacle::Reason::partOfSystem};
    EXPECT_EQ(obstacleNow(machine.platform(), studio).reason, AppObstacle::Reason::partOfSystem);
}

TEST_F(AppRemovalTest, whatIsTheUsersIsCheckedOnceMoreBeforeItGoes) {
    const AppEntry tidepool = app("Tidepool");
    const AppEntry sonata = app("Sonata");
    machine.files.addFolder(desktop.home + "/Tidepool/.git");
    machine.files.addFile(sonata.url, "a film by now");
    for (const AppEntry& one : {tidepool, sonata}) {
        EXPECT_EQ(obstacleNow(machine.platform(), one).reason, AppObstacle::Reason::changed) << one.name;
        EXPECT_EQ(removeApplication(machine.platform(), one).outcome, Outcome::failed) << one.name;
    }
    EXPECT_THAT(machine.trash.trashed(), IsEmpty());
}

TEST_F(AppRemovalTest, whatIsTheUsersIsMeasuredAgain) {
    const AppEntry tidepool = app("Tidepool");
    const AppEntry sonata = app("Sonata");
    machine.files.addFile(desktop.home + "/Tidepool/letters/.hidden", {}, 5'000'000);
    desktop.addAppImage(sonata.url, 95'000'000);
    EXPECT_EQ(sizeNow(machine.platform(), tidepool), 65'000'000U);
    EXPECT_EQ(sizeNow(machine.platform(), sonata), 95'000'000U);
    EXPECT_EQ(sizeNow(machine.platform(), app("Orrery")), 500'000'000U);
    EXPECT_EQ(sizeNow(machine.platform(), app("Studio")), app("Studio").size);
}

TEST_F(AppRemovalTest, updateIsNoRemoval) {
    // Both are found before the tools answer otherwise.
    for (const AppEntry& one : {app("Orrery"), app("Chat")}) {
        machine.processes.outcome = [&](const auto&) {
            machine.files.move(one.url, one.kind == AppKind::snap ? desktop.snapFile("chat", "43") : one.url + "-next");
            return ChildOutcome();
        };
        EXPECT_EQ(removeApplication(machine.platform(), one).outcome, Outcome::stillThere) << one.name;
    }
}

TEST_F(AppRemovalTest, leftoverGoesOnlyWhileItIsOne) {
    const std::string path = desktop.home + "/.config/studio";
    machine.files.addFile(path + "/file");
    EXPECT_FALSE(trashLeftover(machine.platform(), path).failure);
    EXPECT_TRUE(trashLeftover(machine.platform(), path).failure) << "gone";
    machine.files.addLink(path, "/elsewhere");
    EXPECT_TRUE(trashLeftover(machine.platform(), path).failure) << "a link by now";
    EXPECT_THAT(machine.trash.trashed(), ElementsAre(path));
}

}  // namespace zelk
