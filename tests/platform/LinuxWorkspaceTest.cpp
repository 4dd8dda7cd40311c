// SPDX-License-Identifier: MIT
#include "platform/linux/apps/LinuxWorkspace.h"

#include <gmock/gmock.h>
#include <signal.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QStringList>
#include <filesystem>

#include "fakes/Environment.h"
#include "fakes/EventLoop.h"
#include "fakes/InChild.h"
#include "fakes/SessionBus.h"
#include "fakes/TestFiles.h"
#include "platform/linux/apps/DetachedProgram.h"
#include "platform/linux/apps/FileUri.h"
#include "platform/posix/ThreadCount.h"
#include "zoo/TempFolder.h"

namespace zelk {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Command = std::vector<std::string>;

TEST(FileUri, percentEncodesPath) {
    EXPECT_EQ(fileUri("/home/me/a-b_c.d~1"), "file:///home/me/a-b_c.d~1");
    EXPECT_EQ(fileUri("/a b/100%/#?;"), "file:///a%20b/100%25/%23%3F%3B");
    EXPECT_EQ(fileUri("/\xc3\xa9/\xff\n"), "file:///%C3%A9/%FF%0A");
    EXPECT_EQ(fileUri("/"), "file:///");
}

/// Records what it is asked to show.
class FileManagerService : public QDBusVirtualObject {
public:
    bool refuses = false;
    QList<QVariantList> asked;

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        if (message.interface() != QStringLiteral("org.freedesktop.FileManager1") ||
            message.member() != QStringLiteral("ShowItems"))
            return false;
        asked.append(message.arguments());
        connection.send(refuses ? message.createErrorReply(QDBusError::Failed, QStringLiteral("not today"))
                                : message.createReply());
        return true;
    }
};

class LinuxWorkspaceTest : public testing::Test {
protected:
    ~LinuxWorkspaceTest() override {
        for (const char* name : {"zelk", "files"}) QDBusConnection::disconnectFromBus(QString::fromLatin1(name));
    }

    void offerFileManager() {
        QDBusConnection connection = session.connect("files");
        ASSERT_TRUE(connection.isConnected());
        ASSERT_TRUE(connection.registerVirtualObject(QStringLiteral("/org/freedesktop/FileManager1"), &service));
        ASSERT_TRUE(connection.registerService(QStringLiteral("org.freedesktop.FileManager1")));
    }

    int count = 1;
    char ownName[5] = "test";
    char* names[2] = {ownName, nullptr};
    QCoreApplication application{count, names};
    fakes::SessionBus session;
    FileManagerService service;
    std::vector<Command> launched;
    LinuxWorkspace workspace{"/home/me/.local/share", "/home/me/.local/share/Trash/files",
                             [this](Command command) { launched.push_back(std::move(command)); },
                             [this] { return session.connect("zelk"); }};
};

TEST_F(LinuxWorkspaceTest, revealAsksTheFileManager) {
    offerFileManager();
    workspace.reveal({"/home/me/a b.txt", "/home/me/\xff"});
    EXPECT_THAT(service.asked, IsEmpty());
    runUntil([&] { return !service.asked.empty(); });
    EXPECT_EQ(service.asked.front(),
              (QVariantList{QStringList{"file:///home/me/a%20b.txt", "file:///home/me/%FF"}, ""}));
    EXPECT_THAT(launched, IsEmpty());
}

TEST_F(LinuxWorkspaceTest, revealOpensEachFolderOnceWithoutFileManager) {
    workspace.reveal({"/home/me/b", "/home/me/a", "/top", "/home/me/folder/c"});
    EXPECT_THAT(launched, IsEmpty());
    runUntil([&] { return launched.size() == 3; });
    EXPECT_THAT(launched, ElementsAre(Command{"xdg-open", "/home/me"}, Command{"xdg-open", "/"},
                                      Command{"xdg-open", "/home/me/folder"}));
}

TEST_F(LinuxWorkspaceTest, revealOpensTheFolderWhenTheFileManagerRefuses) {
    offerFileManager();
    service.refuses = true;
    workspace.reveal({"/home/me/a"});
    runUntil([&] { return !launched.empty(); });
    EXPECT_THAT(launched, ElementsAre(Command{"xdg-open", "/home/me"}));
}

TEST_F(LinuxWorkspaceTest, revealOpensTheFolderWithoutBus) {
    std::vector<Command> opened;
    LinuxWorkspace alone(
        "/data", "/data/Trash/files", [&](Command command) { opened.push_back(std::move(command)); },
        [] { return QDBusConnection(QStringLiteral("never connected")); });
    alone.reveal({"/home/me/a"});
    EXPECT_THAT(opened, ElementsAre(Command{"xdg-open", "/home/me"}));
}

TEST_F(LinuxWorkspaceTest, revealOfNothingDoesNothing) {
    workspace.reveal({});
    workspace.reveal({"no path"});
    QCoreApplication::processEvents();
    EXPECT_THAT(launched, IsEmpty());
}

TEST_F(LinuxWorkspaceTest, canBeDestroyedWhileRevealing) {
    bool launchedLate = false;
    {
        LinuxWorkspace brief(
            "/data", "/data/Trash/files", [&](const Command&) { launchedLate = true; },
            [this] { return session.connect("zelk"); });
        brief.reveal({"/home/me/a"});
    }
    workspace.reveal({"/home/me/b"});  // answered after the first
    runUntil([&] { return !launched.empty(); });
    EXPECT_FALSE(launchedLate);
}

TEST_F(LinuxWorkspaceTest, opensURLsWithTheDesktop) {
    workspace.openURL("https://example.org/a?b=c");
    EXPECT_THAT(launched, ElementsAre(Command{"xdg-open", "https://example.org/a?b=c"}));
}

TEST_F(LinuxWorkspaceTest, accessSettingsRevealTheTrash) {
    offerFileManager();
    workspace.openURL(accessSettingsURL);
    runUntil([&] { return !service.asked.empty(); });
    EXPECT_EQ(service.asked.front().front(), QVariant(QStringList{"file:///home/me/.local/share/Trash/files"}));
    EXPECT_THAT(launched, IsEmpty());
}

// Starts a program of its own: after another test moved this process into a mount namespace, the kernel may report the
// path of this executable as seen from the previous one.
TEST_F(LinuxWorkspaceTest, listsRunningApplications) {
    const zoo::TempFolder data;
    const std::string program = data / "program";
    std::filesystem::copy_file("/bin/sleep", program);
    std::filesystem::create_directory(data / "applications");
    fakes::writeFile(data / "applications/test.desktop",
                     "[Desktop Entry]\nType=Application\nName=The program\nExec=\"" + program + "\"\n");
    const fakes::EnvironmentVariable others("XDG_DATA_DIRS", data / "nowhere");
    LinuxWorkspace here(
        data.path(), "/trash", [](const Command&) {}, [this] { return session.connect("zelk"); });
    // QProcess would clone() itself, which ThreadSanitizer does not survive.
    std::string argument = "600";
    std::string path = program;
    char* const arguments[] = {path.data(), argument.data(), nullptr};
    pid_t running = 0;
    ASSERT_EQ(::posix_spawn(&running, program.c_str(), nullptr, nullptr, arguments, environ), 0);
    EXPECT_THAT(here.runningApplications(), ElementsAre("The program"));
    EXPECT_THAT(here.runningApplications(), ElementsAre("The program"));
    ::kill(running, SIGKILL);
    ::waitpid(running, nullptr, 0);
}

/// A workspace of a sandbox, and how often it asked.
class AskingWorkspace : public LinuxWorkspaceTest {
protected:
    std::optional<RunningApplications> answer;
    int asked = 0;
    LinuxWorkspace asking{"/data", "/trash", [](const Command&) {}, [this] { return session.connect("zelk"); },
                          [this] {
                              ++asked;
                              return answer;
                          }};
};

TEST_F(AskingWorkspace, takesTheAnswerForAWhile) {
    answer = RunningApplications{{"Maps"}, {"org.sample.Maps"}};
    EXPECT_TRUE(asking.knowsRunningApplications());
    EXPECT_THAT(asking.runningApplications(), ElementsAre("Maps"));
    EXPECT_THAT(asking.runningApplicationIds(), ElementsAre("org.sample.Maps"));
    EXPECT_GE(asked, 1);
}

TEST_F(AskingWorkspace, knowsNothingWithoutAnAnswerAndDoesNotAskAgainAtOnce) {
    EXPECT_FALSE(asking.knowsRunningApplications());
    EXPECT_THAT(asking.runningApplications(), IsEmpty());
    EXPECT_THAT(asking.runningApplicationIds(), IsEmpty());
    EXPECT_EQ(asked, 1);
}

/// Answers nothing, and remembers who was to.
class SilentHost : public ChildProcess {
public:
    std::vector<std::string> programs;

    using ChildProcess::run;
    ChildOutcome run(const std::string& executable, const std::vector<std::string>&, const ChildStreams&) override {
        programs.push_back(executable);
        return {std::nullopt, 1, {}};
    }
};

TEST_F(LinuxWorkspaceTest, asksTheHostInASandboxAlone) {
    const zoo::TempFolder root;
    SilentHost host;
    LinuxWorkspace outside("/data", "/trash", Sandbox(root.path()), host);
    EXPECT_TRUE(outside.knowsRunningApplications());
    EXPECT_THAT(host.programs, IsEmpty());
    fakes::writeFile(root / ".flatpak-info", "");
    LinuxWorkspace inside("/data", "/trash", Sandbox(root.path()), host);
    EXPECT_FALSE(inside.knowsRunningApplications());
    EXPECT_THAT(host.programs, ElementsAre("/usr/bin/flatpak-spawn"));
}

// Programs on their own.

void waitForThreads() {
    while (!drainThreads(1)) {
    }
}

/// In a process that has had no children.
bool hasNoChild() {
    return ::waitpid(-1, nullptr, WNOHANG) == -1 && errno == ECHILD;
}

TEST(DetachedProgram, isNotAChildOfThisProcess) {
    const zoo::TempFolder folder;
    const std::string fifo = folder / "fifo";
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
    EXPECT_TRUE(fakes::inChild([&] {
        startDetached({"sh", "-c", "echo \"$1\" > \"$2\"", "sh", "a  'b\" $c", fifo});
        waitForThreads();
        return hasNoChild() && fakes::fileContent(fifo) == "a  'b\" $c\n";
    }));
}

TEST(DetachedProgram, isNotWaitedFor) {
    const zoo::TempFolder folder;
    const std::string fifo = folder / "fifo";
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
    startDetached({"sh", "-c", "read line < " + fifo + "; echo $line > " + (folder / "done") + "; echo > " + fifo});
    waitForThreads();
    EXPECT_FALSE(std::filesystem::exists(folder / "done"));
    fakes::writeFile(fifo, "go\n");
    EXPECT_EQ(fakes::fileContent(fifo), "\n");
    EXPECT_EQ(fakes::fileContent(folder / "done"), "go\n");
}

TEST(DetachedProgram, ignoresMissingProgram) {
    EXPECT_TRUE(fakes::inChild([] {
        startDetached({"zelk-has-no-such-program"});
        startDetached({});
        waitForThreads();
        return hasNoChild();
    }));
}

}  // namespace
}  // namespace zelk
