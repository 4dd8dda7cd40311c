// SPDX-License-Identifier: MIT
#include "platform/linux/apps/LinuxApplications.h"

#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>

#include "fakes/Environment.h"
#include "fakes/InChild.h"
#include "fakes/TestFiles.h"
#include "zoo/TempFolder.h"

namespace zelk {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Strings = std::vector<std::string>;

// Control groups.

TEST(ApplicationUnit, parsesUnitsOfDesktopsAndPackages) {
    const auto of = [](const std::string& unit) {
        return applicationsOfControlGroup("0::/user.slice/user-1000.slice/user@1000.service/app.slice/" + unit + "\n");
    };
    EXPECT_THAT(of("app-gnome-org.gnome.Maps-4711.scope"), ElementsAre("org.gnome.Maps"));
    EXPECT_THAT(of("app-firefox-4711.scope"), ElementsAre("firefox"));
    EXPECT_THAT(of(R"(app-gnome-google\x2dchrome-4711.scope)"), ElementsAre("google-chrome"));
    EXPECT_THAT(of("app-org.kde.kate@1f3c.service"), ElementsAre("org.kde.kate"));
    EXPECT_THAT(of("app-gnome-org.gnome.Maps@autostart.service"), ElementsAre("org.gnome.Maps"));
    EXPECT_THAT(of("app-flatpak-org.gimp.GIMP-12.scope"), ElementsAre("org.gimp.GIMP"));
    EXPECT_THAT(of("app-org.kde.konsole-e4f1.service"), ElementsAre("e4f1", "org.kde.konsole"));
    EXPECT_THAT(of("snap.firefox.firefox-3f2b1c4d-0000-1111-2222-333344445555.scope"), ElementsAre("firefox_firefox"));
    EXPECT_THAT(of("snap.gimp.gimp.3f2b1c4d-0000-1111-2222-333344445555.scope"), ElementsAre("gimp_gimp"));
    EXPECT_THAT(of("app-code-77.scope/worker"), ElementsAre("code"));
}

TEST(ApplicationUnit, ignoresOtherUnits) {
    for (const char* text : {"", "\n", "0::/", "0::/init.scope", "0::/system.slice/ssh.service",
                             "0::/user.slice/session-2.scope", "0::/app.slice", "0::/app-.scope", "0::/app-x.scope",
                             "0::/snap..scope", "0::/snap.scope", "0::/user.slice/app-gnome-org.gnome.Maps-4711.slice"})
        EXPECT_THAT(applicationsOfControlGroup(text), IsEmpty()) << text;
}

// Processes.

class Processes : public testing::Test {
protected:
    void add(int number, const std::string& executable, const Strings& arguments, const std::string& group = "0::/") {
        const std::string process = folder / std::to_string(number);
        std::filesystem::create_directory(process);
        ASSERT_EQ(::symlink(executable.c_str(), (process + "/exe").c_str()), 0);
        std::string line;
        for (const std::string& argument : arguments) line += argument + '\0';
        fakes::writeFile(process + "/cmdline", line);
        fakes::writeFile(process + "/cgroup", group + "\n");
    }

    zoo::TempFolder folder;
};

TEST_F(Processes, areSortedByProcessId) {
    add(10, "/usr/bin/b", {"b", "", "--flag"});
    add(9, "/usr/bin/a", {"a"}, "0::/app-a-1.scope");
    fakes::writeFile(folder / "version", "6.1");
    std::filesystem::create_directory(folder / "self");
    const std::vector<RunningProcess> processes = runningProcesses(folder.path());
    ASSERT_EQ(processes.size(), 2U);
    EXPECT_EQ(processes[0].executable, "/usr/bin/a");
    EXPECT_THAT(processes[0].applications, ElementsAre("a"));
    EXPECT_EQ(processes[1].executable, "/usr/bin/b");
    EXPECT_THAT(processes[1].arguments, ElementsAre("b", "", "--flag"));
}

TEST_F(Processes, stripsDeletedMarkFromExecutable) {
    add(1, "/usr/bin/a (deleted)", {"a"});
    EXPECT_EQ(runningProcesses(folder.path()).at(0).executable, "/usr/bin/a");
}

TEST_F(Processes, unreadableFieldsAreEmpty) {
    std::filesystem::create_directory(folder / "1");
    const std::vector<RunningProcess> processes = runningProcesses(folder.path());
    ASSERT_EQ(processes.size(), 1U);
    EXPECT_EQ(processes[0].executable, "");
    EXPECT_THAT(processes[0].arguments, IsEmpty());
    EXPECT_THAT(runningProcesses(folder / "nowhere"), IsEmpty());
}

// Process 1 belongs to the superuser.
TEST_F(Processes, omitsOtherUsers) {
    add(1, "/usr/bin/a", {"a"});
    ASSERT_EQ(::chmod(folder.path().c_str(), 0755), 0);
    ASSERT_EQ(runningProcesses(folder.path()).size(), 1U);
    const std::string processes = ::geteuid() == 0 ? folder.path() : "/proc";
    EXPECT_TRUE(fakes::asOrdinaryUser([&] {
        const auto names = fakes::namesIn(processes);
        const auto numbers = std::count_if(names.begin(), names.end(), [](const std::string& name) {
            return name.front() >= '1' && name.front() <= '9';
        });
        return static_cast<std::ptrdiff_t>(runningProcesses(processes).size()) < numbers;
    }));
}

TEST(RealProcesses, includeThisProgram) {
    const std::string own = std::filesystem::read_symlink("/proc/self/exe").string();
    const std::vector<RunningProcess> processes = runningProcesses();
    EXPECT_TRUE(std::any_of(processes.begin(), processes.end(),
                            [&](const RunningProcess& process) { return process.executable == own; }));
}

// Applications.

class Applications : public testing::Test {
protected:
    Applications() {
        for (const char* name : {"own/applications", "shared/applications/kde", "bin", "lib"})
            std::filesystem::create_directories(folder / name);
        places.entries = {folder / "own/applications", folder / "shared/applications"};
        places.programs = {folder / "bin"};
    }

    std::string program(const std::string& below, const std::string& content =
                                                      "\x7f"
                                                      "ELF") {
        fakes::writeFile(folder / below, content);
        EXPECT_EQ(::chmod((folder / below).c_str(), 0755), 0);
        return folder / below;
    }
    void entry(const std::string& below, const std::string& name, const std::string& exec,
               const std::string& more = {}) {
        fakes::writeFile(folder / below,
                         "[Desktop Entry]\nType=Application\nName=" + name + "\nExec=" + exec + "\n" + more);
    }
    void shared(const std::string& id, const std::string& name, const std::string& exec, const std::string& more = {}) {
        entry("shared/applications/" + id + ".desktop", name, exec, more);
    }

    Strings running(const std::vector<RunningProcess>& processes) {
        return runningApplicationsOf(installedApplications(places), processes).names;
    }
    Strings installedNames() {
        Strings names;
        for (const InstalledApplication& application : installedApplications(places)) names.push_back(application.name);
        return names;
    }
    static RunningProcess process(const std::string& executable, Strings arguments = {}) {
        return {executable, std::move(arguments), {}};
    }

    zoo::TempFolder folder;
    ApplicationPlaces places;
};

TEST_F(Applications, executableIdentifiesRunningApplication) {
    const std::string maps = program("bin/maps");
    program("bin/other");
    shared("maps", "Maps", "maps %U");
    shared("other", "Other", folder / "bin/other");
    EXPECT_THAT(running({process(maps)}), ElementsAre("Maps"));
    EXPECT_THAT(running({process("/elsewhere/bin/maps", {"maps"})}), IsEmpty());
    EXPECT_THAT(running({}), IsEmpty());
}

TEST_F(Applications, executableIsComparedBehindLinks) {
    const std::string real = program("lib/maps-3.2");
    ASSERT_EQ(::symlink(real.c_str(), (folder / "bin/maps").c_str()), 0);
    shared("maps", "Maps", "maps");
    EXPECT_THAT(running({process(real)}), ElementsAre("Maps"));
}

TEST_F(Applications, areListedOnceInProcessOrder) {
    const std::string a = program("bin/a");
    const std::string b = program("bin/b");
    shared("a", "A", "a");
    shared("a-new", "A", "a --new");
    shared("b", "B", "b");
    EXPECT_THAT(running({process(b), process(a), process(b)}), ElementsAre("B", "A"));
}

TEST_F(Applications, scriptIdentifiesRunningApplication) {
    const std::string interpreter = program("bin/python3.11");
    const std::string script = program("bin/tool", "#!" + interpreter + "\n");
    shared("tool", "Tool", "tool");
    EXPECT_THAT(running({process(interpreter, {interpreter, script})}), ElementsAre("Tool"));
    EXPECT_THAT(running({process(interpreter, {"python3", "-u", script, "file"})}), ElementsAre("Tool"));
    EXPECT_THAT(running({process(interpreter, {"python3", "other.py", script})}), IsEmpty());
    EXPECT_THAT(running({process("/usr/bin/vi", {"vi", script})}), IsEmpty());
    EXPECT_THAT(running({process(interpreter, {})}), IsEmpty());
}

TEST_F(Applications, interpreterOfScriptIsFoundOnPath) {
    const std::string interpreter = program("bin/python3");
    const std::string script = program("bin/tool", "#! /usr/bin/env python3 \nprint()\n");
    shared("tool", "Tool", "tool");
    EXPECT_THAT(running({process(interpreter, {"python3", script})}), ElementsAre("Tool"));
}

TEST_F(Applications, execKeepsScriptPathAsProcessName) {
    program("bin/sh");
    const std::string script = program("bin/browser", "#!" + (folder / "bin/sh") + "\nexec -a \"$0\" /opt/browser\n");
    shared("browser", "Browser", "browser %U");
    EXPECT_THAT(running({process("/opt/browser", {script, "--type=renderer"})}), ElementsAre("Browser"));
    EXPECT_THAT(running({process("/opt/browser", {"browser"})}), IsEmpty());
}

TEST_F(Applications, sharedInterpreterIsNotTheApplication) {
    const std::string python = program("bin/python3");
    const std::string flatpak = program("bin/flatpak");
    const std::string script = program("lib/app.py", "");
    shared("app", "App", "python3 " + script);
    shared("org.gimp.GIMP", "GIMP", "flatpak run --branch=stable org.gimp.GIMP");
    EXPECT_THAT(running({process(python, {"python3"}), process(flatpak, {"flatpak", "update"})}), IsEmpty());
    EXPECT_THAT(running({process(python, {"python3", script})}), ElementsAre("App"));
}

TEST_F(Applications, controlGroupIdentifiesRunningApplication) {
    program("bin/flatpak");
    shared("org.gimp.GIMP", "GIMP", "flatpak run org.gimp.GIMP");
    entry("shared/applications/kde/kate.desktop", "Kate", "kate");
    RunningProcess sandboxed = process("/usr/bin/bwrap", {"bwrap"});
    sandboxed.applications = {"org.gimp.GIMP"};
    EXPECT_THAT(running({sandboxed}), ElementsAre("GIMP"));
    sandboxed.applications = {"e4f1", "kde-kate"};
    EXPECT_THAT(running({sandboxed}), ElementsAre("Kate"));
}

TEST_F(Applications, envPrefixIsSkipped) {
    program("bin/env");
    const std::string maps = program("bin/maps");
    shared("maps", "Maps", "env LANG=C A=B maps %u");
    shared("nothing", "Nothing", "env A=B");
    EXPECT_THAT(running({process(maps)}), ElementsAre("Maps"));
    EXPECT_THAT(running({process(folder / "bin/env")}), IsEmpty());
}

TEST_F(Applications, omitsHiddenAndIncompleteEntries) {
    shared("hidden", "Hidden", "a", "Hidden=true\n");
    shared("helper", "Helper", "a", "NoDisplay=true\n");
    shared("link", "Link", "a", "Type=Link\n");
    shared("nameless", "", "a");
    shared("gone", "Gone", "a", "TryExec=not-there\n");
    fakes::writeFile(folder / "shared/applications/broken.desktop", "\xff\n");
    fakes::writeFile(folder / "shared/applications/readme.txt", "[Desktop Entry]\nType=Application\nName=Text\n");
    EXPECT_THAT(installedNames(), IsEmpty());
    program("bin/there");
    shared("there", "There", "a", "TryExec=there\n");
    EXPECT_THAT(installedNames(), ElementsAre("There"));
}

TEST_F(Applications, usersEntryOverridesTheSystems) {
    program("bin/a");
    shared("a", "A", "a");
    shared("b", "B", "a");
    entry("shared/applications/kde/c.desktop", "C", "a");
    entry("own/applications/a.desktop", "My A", "a");
    entry("own/applications/b.desktop", "B", "a", "Hidden=true\n");
    entry("own/applications/kde-c.desktop", "My C", "a");
    EXPECT_THAT(installedNames(), ElementsAre("My A", "My C"));
}

TEST_F(Applications, nameIsLocalized) {
    shared("maps", "Maps", "maps", "Name[de]=Karten\n");
    places.locales = {"de_AT", "de"};
    EXPECT_THAT(installedNames(), ElementsAre("Karten"));
}

TEST_F(Applications, survivesLinkLoops) {
    program("bin/a");
    shared("a", "A", "a");
    ASSERT_EQ(::symlink((folder / "shared/applications").c_str(), (folder / "shared/applications/kde/again").c_str()),
              0);
    EXPECT_THAT(Strings({installedNames().front()}), ElementsAre("A"));
}

TEST_F(Applications, placesComeFromTheEnvironment) {
    const fakes::EnvironmentVariable data("XDG_DATA_DIRS", "/one:relative::/two//:/one");
    const fakes::EnvironmentVariable path("PATH", "/bin:.:/usr/bin:/bin/");
    const fakes::EnvironmentVariable all("LC_ALL", std::nullopt);
    const fakes::EnvironmentVariable messages("LC_MESSAGES", "");
    const fakes::EnvironmentVariable language("LANG", "pt_BR.UTF-8");
    const ApplicationPlaces found = ApplicationPlaces::ofEnvironment("/home/me/.local/share");
    EXPECT_THAT(found.entries,
                ElementsAre("/home/me/.local/share/applications", "/one/applications", "/two/applications"));
    EXPECT_THAT(found.programs, ElementsAre("/bin", "/usr/bin"));
    EXPECT_THAT(found.locales, ElementsAre("pt_BR", "pt"));
}

TEST_F(Applications, placesHaveDefaults) {
    const fakes::EnvironmentVariable data("XDG_DATA_DIRS", std::nullopt);
    const fakes::EnvironmentVariable all("LC_ALL", "C");
    const fakes::EnvironmentVariable language("LANG", "pt_BR.UTF-8");
    const ApplicationPlaces found = ApplicationPlaces::ofEnvironment("/d");
    EXPECT_THAT(found.entries,
                ElementsAre("/d/applications", "/usr/local/share/applications", "/usr/share/applications"));
    EXPECT_THAT(found.locales, IsEmpty());
}

}  // namespace
}  // namespace zelk
