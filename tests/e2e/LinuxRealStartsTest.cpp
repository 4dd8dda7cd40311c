// SPDX-License-Identifier: MIT
// Starts the application many times, kills it and stops it. Only one process may stay.
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QMap>
#include <memory>

#include "RealStarts.h"
#include "fakes/EventLoop.h"
#include "fakes/SessionBus.h"

namespace zelk {

namespace {

using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

constexpr int manyStarts = 100;

/// Starts that can meet on a session bus, or without one in the runtime folder.
class RealStartsAt : public RealStarts, public testing::WithParamInterface<bool> {
protected:
    RealStartsAt() {
        if (!GetParam()) return;
        bus = std::make_unique<fakes::SessionBus>();
        environment["DBUS_SESSION_BUS_ADDRESS"] = bus->address();
    }
    ~RealStartsAt() override { QDBusConnection::disconnectFromBus(QStringLiteral("watching")); }

    /// Whether a process has shown its window and answers.
    bool isUp() {
        if (!bus) return listens(temp / "runtime/io.github.zelk.Zelk/socket");
        return bus->connect("watching").interface()->isServiceRegistered(QStringLiteral("io.github.zelk.Zelk.Ready"));
    }
    pid_t startAndWait() {
        const pid_t child = start();
        EXPECT_TRUE(waitUntil(child, [&] { return isUp(); })) << said();
        return child;
    }

    std::unique_ptr<fakes::SessionBus> bus;
};

}  // namespace

TEST_P(RealStartsAt, hundredAtTheSameMomentLeaveOne) {
    startTogether(manyStarts);
    const auto [left, statuses] = lastOne();
    EXPECT_THAT(statuses, SizeIs(manyStarts - 1));
    EXPECT_THAT(statuses, Each(0)) << said();
    EXPECT_TRUE(waitUntil(left, [&] { return isUp(); })) << said();
    EXPECT_THAT(running(), ElementsAre(HasSubstr("zelk")));
    EXPECT_EQ(statusOf(start()), 0) << "one more has it come forward";
    EXPECT_FALSE(hasEnded(left));
    EXPECT_EQ(end(left, SIGTERM), 0) << said();
    EXPECT_THAT(running(), IsEmpty());
}

TEST_P(RealStartsAt, laterOneSaysNothingIfFirstComesForward) {
    const pid_t first = startAndWait();
    EXPECT_EQ(statusOf(start()), 0);
    EXPECT_THAT(said(), testing::Not(HasSubstr("Zelk is running")));
    EXPECT_EQ(end(first, SIGTERM), 0);
}

TEST_P(RealStartsAt, nothingOfKilledOneIsInTheWay) {
    EXPECT_EQ(end(startAndWait(), SIGKILL), -SIGKILL);
    EXPECT_FALSE(isUp());
    const pid_t next = startAndWait();
    EXPECT_EQ(statusOf(start()), 0);
    EXPECT_EQ(end(next, SIGTERM), 0);
}

TEST_P(RealStartsAt, nextOneComesAfterTheFirstHasEnded) {
    EXPECT_EQ(end(startAndWait(), SIGTERM), 0);
    EXPECT_FALSE(isUp());
    EXPECT_EQ(end(startAndWait(), SIGTERM), 0);
}

TEST_P(RealStartsAt, laterOneDoesNotWaitForeverForOneThatHangs) {
    const pid_t first = startAndWait();
    ::kill(first, SIGSTOP);
    EXPECT_EQ(statusOf(start()), 1);
    EXPECT_THAT(said(), HasSubstr("Zelk is running already, but does not answer."));
    ::kill(first, SIGCONT);
    EXPECT_EQ(statusOf(start()), 0) << "it answers again";
    EXPECT_EQ(end(first, SIGTERM), 0);
}

TEST_P(RealStartsAt, startsWithAndWithoutBusMeet) {
    const pid_t first = startAndWait();
    const fakes::SessionBus another;
    for (const std::string& address : {"unix:path=" + temp / "no-bus", another.address()}) {
        environment["DBUS_SESSION_BUS_ADDRESS"] = address;
        EXPECT_EQ(statusOf(start()), 0) << address << said();
    }
    EXPECT_FALSE(hasEnded(first));
    EXPECT_EQ(end(first, SIGTERM), 0);
}

TEST_P(RealStartsAt, needNoRuntimeFolder) {
    const std::string unwritable = temp / "unwritable";
    std::filesystem::create_directory(unwritable);
    std::filesystem::permissions(unwritable, std::filesystem::perms::owner_read);
    // Qt makes a missing one itself, after the first start has looked for it and before the next one does.
    for (const std::string& runtime : {temp / "missing", unwritable, std::string("/dev/null"), std::string()}) {
        environment["XDG_RUNTIME_DIR"] = runtime;
        if (runtime.empty()) environment.erase("XDG_RUNTIME_DIR");
        const pid_t first = start();
        const std::string fallback = temp / "tmp/io.github.zelk.Zelk-" + std::to_string(::geteuid());
        EXPECT_TRUE(waitUntil(first, [&] { return listens(fallback + "/socket"); })) << runtime << said();
        EXPECT_EQ(statusOf(start()), 0) << runtime;
        environment["XDG_RUNTIME_DIR"] = temp / "runtime";
        EXPECT_EQ(statusOf(start()), 0) << runtime << ": one that has it";
        EXPECT_FALSE(hasEnded(first)) << runtime;
        EXPECT_EQ(end(first, SIGTERM), 0) << runtime;
    }
}

INSTANTIATE_TEST_SUITE_P(Starts, RealStartsAt, testing::Bool(),
                         [](const auto& suite) { return suite.param ? "OnABus" : "WithoutBus"; });

TEST_F(RealStarts, busStartsWindowAndBringsItForward) {
    const std::string services = temp / "services";
    std::filesystem::create_directory(services);
    fakes::writeFile(services + "/io.github.zelk.Zelk.service",
                     "[D-BUS Service]\nName=io.github.zelk.Zelk\nExec=" ZELK_PROGRAM "\n");
    fakes::writeFile(temp / "bus.conf",
                     "<busconfig><type>session</type><listen>unix:tmpdir=" + temp / "tmp" + "</listen><servicedir>" +
                         services +
                         "</servicedir><policy context=\"default\"><allow send_destination=\"*\" eavesdrop=\"true\"/>"
                         "<allow eavesdrop=\"true\"/><allow own=\"*\"/></policy></busconfig>");
    const fakes::SessionBus bus("--config-file=" + temp / "bus.conf");
    QDBusConnection caller = bus.connect("caller");
    QMap<QString, QString> variables;
    environment["DBUS_SESSION_BUS_ADDRESS"] = bus.address();
    for (const auto& [name, value] : environment)
        variables.insert(QString::fromStdString(name), QString::fromStdString(value));
    QDBusMessage update = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("UpdateActivationEnvironment"));
    qDBusRegisterMetaType<QMap<QString, QString>>();
    update << QVariant::fromValue(variables);
    ASSERT_EQ(caller.call(update).type(), QDBusMessage::ReplyMessage);

    const QString name = QStringLiteral("io.github.zelk.Zelk");
    const auto activate = [&] {
        QDBusMessage call =
            QDBusMessage::createMethodCall(name, QStringLiteral("/io/github/zelk/Zelk"),
                                           QStringLiteral("org.freedesktop.Application"), QStringLiteral("Activate"));
        call << QVariantMap();
        QDBusPendingCallWatcher watcher(caller.asyncCall(call));
        runUntil([&] { return watcher.isFinished(); });
        return watcher.reply().errorMessage().toStdString();
    };
    EXPECT_EQ(activate(), "") << "it is called before it has a window";
    const uint process = caller.interface()->servicePid(name);
    EXPECT_EQ(activate(), "") << "it is running";
    EXPECT_EQ(statusOf(start()), 0) << "somebody starts it by hand";
    EXPECT_EQ(caller.interface()->servicePid(name), process);
    EXPECT_THAT(running(), SizeIs(1));
    ::kill(static_cast<pid_t>(process), SIGTERM);
    QDBusConnectionInterface* names = caller.interface();
    while (names->isServiceRegistered(name)) ::usleep(1000);
    QDBusConnection::disconnectFromBus(QStringLiteral("caller"));
}

}  // namespace zelk
