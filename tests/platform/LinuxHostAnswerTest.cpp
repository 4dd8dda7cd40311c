// SPDX-License-Identifier: MIT
#include "platform/linux/apps/HostAnswer.h"

#include <gmock/gmock.h>

#include <utility>

namespace zelk {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Strings = std::vector<std::string>;

/// Writes an answer as the host does.
class HostText {
public:
    HostText& process(const std::string& number, const std::string& program, const Strings& arguments,
                      const std::string& group = "0::/user.slice\n") {
        programs_ += text("/proc/" + number + "/exe") + text(program);
        for (const std::string& one : arguments) files_ += text("/proc/" + number + "/cmdline") + text(one);
        files_ += text("/proc/" + number + "/cgroup") + text(group);
        return *this;
    }
    /// Of another user.
    HostText& foreign(const std::string& number, const std::string& argument) {
        files_ += text("/proc/" + number + "/cmdline") + text(argument);
        files_ += text("/proc/" + number + "/cgroup") + text("0::/app-org.sample.Maps-1.scope\n");
        return *this;
    }
    HostText& entry(const std::string& path, const Strings& lines) {
        for (const std::string& line : lines) entries_ += text(path) + line + "\n";
        return *this;
    }
    HostText& app(const std::string& id, const std::string& name, const std::string& exec, Strings more = {}) {
        more.insert(more.begin(), {"[Desktop Entry]", "Type=Application", "Name=" + name, "Exec=" + exec});
        return entry("/usr/share/applications/" + id + ".desktop", more);
    }
    std::string whole(const std::string& asker = "7") const {
        const std::string separator = text("") + text("");
        return text(asker) + programs_ + separator + files_ + separator + entries_ + text("") + "end\n";
    }

private:
    static std::string text(const std::string& content) { return content + std::string(1, '\0'); }

    std::string programs_;
    std::string files_;
    std::string entries_;
};

/// An answer with the shell that gave it and one application.
HostText usual() {
    HostText host;
    host.process("7", "/usr/bin/dash", {"/bin/sh", "-c", "script\nof\nlines", "sh", "1000"});
    host.app("org.sample.Maps", "Maps", "maps %U");
    return host;
}

Strings runningNames(const HostText& host) {
    const auto answer = parseHostAnswer(host.whole());
    return answer ? runningApplicationsOf(*answer, {"de"}).names : Strings{"no answer"};
}

Strings runningNames(const std::string& program, const Strings& arguments, const std::string& exec) {
    return runningNames(usual().app("x", "X", exec).process("8", program, arguments));
}

TEST(HostAnswers, tellProcessesAndEntries) {
    const auto answer =
        parseHostAnswer(usual()
                            .process("12", "/opt/a b/run (deleted)", {"run", "", "--flag\n"},
                                     "0::/user.slice/app.slice/app-gnome-org.sample.Chat-12.scope/sub\n")
                            .entry("/home/me/.local/share/applications/kde/x.desktop", {"[Desktop Entry]", "Name=X"})
                            .whole());
    ASSERT_TRUE(answer);
    ASSERT_EQ(answer->processes.size(), 2U);
    EXPECT_EQ(answer->processes[0].executable, "/usr/bin/dash");
    EXPECT_EQ(answer->processes[1].executable, "/opt/a b/run");
    EXPECT_THAT(answer->processes[1].arguments, ElementsAre("run", "", "--flag\n"));
    EXPECT_THAT(answer->processes[1].applications, ElementsAre("org.sample.Chat"));
    ASSERT_EQ(answer->entries.size(), 2U);
    EXPECT_EQ(answer->entries[0].id, "org.sample.Maps");
    EXPECT_EQ(answer->entries[1], (HostEntry{"kde-x", "[Desktop Entry]\nName=X\n"}));
}

TEST(HostAnswers, tellProcessesThatDoNotShowTheirProgram) {
    const auto answer = parseHostAnswer(
        usual().process("12", "", {"/opt/x/run"}).process("13", "", {}).process("13", "/bin/y", {"y"}).whole());
    ASSERT_TRUE(answer);
    ASSERT_EQ(answer->processes.size(), 3U);
    EXPECT_EQ(answer->processes[1].executable, "");
    EXPECT_THAT(answer->processes[1].arguments, ElementsAre("/opt/x/run"));
    EXPECT_EQ(answer->processes[2].executable, "/bin/y");
    EXPECT_THAT(answer->processes[2].arguments, ElementsAre("y"));
}

TEST(HostAnswers, leaveOutOtherUsers) {
    const auto answer = parseHostAnswer(usual().foreign("1", "/sbin/init").whole());
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->processes.size(), 1U);
    EXPECT_THAT(runningApplicationsOf(*answer, {}).names, IsEmpty());
}

TEST(HostAnswers, thatAreCutOffAreNone) {
    const std::string whole = usual().process("8", "/usr/bin/maps", {"maps"}).whole();
    ASSERT_TRUE(parseHostAnswer(whole));
    for (std::size_t length = 0; length < whole.size(); ++length)
        EXPECT_FALSE(parseHostAnswer(whole.substr(0, length))) << length;
}

TEST(HostAnswers, thatGoOnAreNone) {
    const std::string whole = usual().whole();
    for (const std::string& more : {std::string("x"), std::string(1, '\0'), std::string("\n"), whole})
        EXPECT_FALSE(parseHostAnswer(whole + more));
}

TEST(HostAnswers, thatAreSomethingElseAreNone) {
    for (const std::string& text :
         {std::string(), std::string("sh: 1: find: not found\n"), std::string(100, '\0'), std::string(100, '\n'),
          std::string("end\n"), std::string("\0\0\0\0\0end\n", 9), std::string(1000, '\xff')})
        EXPECT_FALSE(parseHostAnswer(text)) << text;
    std::string otherEnd = usual().whole();
    otherEnd.replace(otherEnd.size() - 4, 3, "and");
    EXPECT_FALSE(parseHostAnswer(otherEnd));
}

TEST(HostAnswers, withoutTheOneWhoAnswersAreNone) {
    EXPECT_FALSE(parseHostAnswer(usual().whole("8"))) << "of another process namespace";
    for (const char* asker : {"", "x", "-", "7 ", "0x7"}) EXPECT_FALSE(parseHostAnswer(usual().whole(asker))) << asker;
}

// A find, grep or kernel that does not tell everything tells of nobody.
TEST(HostAnswers, withoutAllOfTheOneWhoAnswersAreNone) {
    const auto withShell = [](const std::string& program, const Strings& arguments, bool grouped) {
        HostText host;
        host.process("7", program, arguments).app("maps", "Maps", "maps");
        std::string whole = host.whole();
        if (!grouped) whole.replace(whole.find("/proc/7/cgroup"), 14, "/proc/8/cgroup");
        return whole;
    };
    EXPECT_TRUE(parseHostAnswer(withShell("/bin/sh", {"sh"}, true)));
    EXPECT_FALSE(parseHostAnswer(withShell("", {"sh"}, true)));
    EXPECT_FALSE(parseHostAnswer(withShell("/bin/sh", {}, true)));
    EXPECT_FALSE(parseHostAnswer(withShell("/bin/sh", {"sh"}, false)));
}

TEST(HostAnswers, withoutAnyEntryAreNone) {
    HostText host;
    host.process("7", "/bin/sh", {"sh"});
    EXPECT_FALSE(parseHostAnswer(host.whole()));
}

TEST(HostApplications, runIfTheirControlGroupSaysSo) {
    const auto withGroup = [](const std::string& group) {
        return usual()
            .app("org.sample.Chat", "Chat", "/usr/bin/flatpak run org.sample.Chat")
            .process("8", "/app/bin/other", {"other"}, "0::/user.slice/" + group + "\n");
    };
    EXPECT_THAT(runningNames(withGroup("app-flatpak-org.sample.Chat-8.scope")), ElementsAre("Chat"));
    EXPECT_THAT(runningNames(withGroup("app-flatpak-org.sample.Chats-8.scope")), IsEmpty());
    EXPECT_THAT(runningNames(withGroup("session-2.scope")), IsEmpty());
}

TEST(HostApplications, runIfAProgramIsCalledAsTheirs) {
    EXPECT_THAT(runningNames("/usr/bin/xs", {"xs"}, "xs"), ElementsAre("X"));
    EXPECT_THAT(runningNames("/usr/bin/xs", {"a title of its own"}, "xs"), ElementsAre("X")) << "by its program";
    EXPECT_THAT(runningNames("/opt/x/xs", {"/opt/x/xs"}, "/usr/bin/xs --new %U"), ElementsAre("X")) << "behind a link";
    EXPECT_THAT(runningNames("/opt/x/x-3.2", {"/usr/bin/xs"}, "env A=1 xs"), ElementsAre("X")) << "by its argument";
    EXPECT_THAT(runningNames("", {"xs"}, "xs"), ElementsAre("X")) << "without a program";
    EXPECT_THAT(runningNames("/usr/bin/xs2", {"xs2", "xs"}, "xs"), IsEmpty());
    EXPECT_THAT(runningNames("/usr/bin/other", {}, "xs"), IsEmpty());
}

TEST(HostApplications, runIfTheirScriptDoes) {
    EXPECT_THAT(runningNames("/usr/bin/python3.11", {"python3", "-u", "/usr/bin/xs"}, "xs"), ElementsAre("X"));
    EXPECT_THAT(runningNames("/usr/bin/python3.11", {"python3", "/opt/xs.py"}, "python3 /opt/xs.py"), ElementsAre("X"));
    EXPECT_THAT(runningNames("/usr/bin/python3.11", {"python3", "/opt/ys.py"}, "python3 /opt/xs.py"), IsEmpty());
    EXPECT_THAT(runningNames("/usr/bin/python3.11", {"python3", "other", "/usr/bin/xs"}, "xs"), IsEmpty());
    EXPECT_THAT(runningNames("/usr/bin/python3.11", {"python3", "-"}, "python3"), IsEmpty()) << "anybody's";
}

TEST(HostApplications, doNotRunByALauncherOfMany) {
    EXPECT_THAT(runningNames("/usr/bin/flatpak", {"flatpak", "run", "a"}, "flatpak run b"), IsEmpty());
    EXPECT_THAT(runningNames("/usr/bin/dash", {"sh", "-c", "x"}, "sh -c 'y'"), IsEmpty());
    EXPECT_THAT(runningNames("", {""}, "flatpak run b"), IsEmpty()) << "what has no name is not called as one";
}

TEST(HostApplications, areNamedAsInTheMenus) {
    EXPECT_THAT(runningNames(usual().process("8", "/usr/bin/maps", {"maps"})), ElementsAre("Maps"));
    EXPECT_THAT(runningNames(usual().app("y", "Why", "y", {"Name[de]=Warum"}).process("8", "/bin/y", {"y"})),
                ElementsAre("Warum"));
    for (const char* hidden : {"NoDisplay=true", "Hidden=true", "Type=Link", "Name="})
        EXPECT_THAT(runningNames(usual().app("y", "Why", "y", {hidden}).process("8", "/bin/y", {"y"})), IsEmpty())
            << hidden;
}

TEST(HostApplications, areThoseOfTheFirstEntry) {
    const HostText host = usual()
                              .entry("/home/me/.local/share/applications/y.desktop",
                                     {"[Desktop Entry]", "Type=Application", "Name=Mine", "Exec=y"})
                              .app("y", "Theirs", "y")
                              .process("8", "/bin/y", {"y"});
    EXPECT_THAT(runningNames(host), ElementsAre("Mine"));
}

TEST(HostApplications, areListedOnceWithTheirIds) {
    const auto answer = parseHostAnswer(usual()
                                            .app("org.sample.Atlas", "Maps", "maps")
                                            .process("8", "/usr/bin/maps", {"maps"})
                                            .process("9", "/usr/bin/maps", {"maps"})
                                            .whole());
    ASSERT_TRUE(answer);
    const RunningApplications running = runningApplicationsOf(*answer, {});
    EXPECT_THAT(running.names, ElementsAre("Maps"));
    EXPECT_THAT(running.ids, ElementsAre("org.sample.Maps", "org.sample.Atlas"));
}

}  // namespace
}  // namespace zelk
