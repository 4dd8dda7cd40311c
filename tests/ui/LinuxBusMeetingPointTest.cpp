// SPDX-License-Identifier: MIT
#include "ui/shell/linux/BusMeetingPoint.h"

#include <gmock/gmock.h>

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusPendingCallWatcher>
#include <atomic>
#include <thread>

#include "QtMessages.h"
#include "fakes/EventLoop.h"
#include "fakes/SessionBus.h"
#include "fakes/TestFiles.h"
#include "zoo/TempFolder.h"

namespace zelk {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using Answer = MeetingPoint::Answer;
using Claim = MeetingPoint::Claim;

constexpr int unlimitedWait = 1'000'000'000;  // milliseconds: never reached
const QString ownedName = QStringLiteral("io.github.zelk.Zelk");
const QString calledPath = QStringLiteral("/io/github/zelk/Zelk");
const QString calledInterface = QStringLiteral("org.freedesktop.Application");
const Activation clickOnIcon{QStringLiteral("token"), QStringLiteral("id_TIME5")};

class LinuxBusMeetingPoint : public testing::Test {
protected:
    ~LinuxBusMeetingPoint() override {
        for (const char* connection : {"first", "second", "other"})
            QDBusConnection::disconnectFromBus(QString::fromLatin1(connection));
    }

    std::unique_ptr<BusMeetingPoint> point(const char* connection, int patience = unlimitedWait) {
        return std::make_unique<BusMeetingPoint>([this, connection] { return session.connect(connection); }, patience);
    }
    /// The first, which comes forward if `comes`, and notes by what.
    std::unique_ptr<BusMeetingPoint> first(bool comes = true) {
        auto made = point("first");
        EXPECT_EQ(made->claim(), Claim::held);
        made->serve([this, comes](const Activation& by) {
            asked.push_back(by);
            return comes;
        });
        return made;
    }
    /// What another start is answered, meanwhile the event loop runs.
    Answer answerTo(BusMeetingPoint& second) {
        std::atomic<bool> done = false;
        Answer answer = Answer::silent;
        std::thread other([&] {
            answer = second.call(clickOnIcon);
            done = true;
            QMetaObject::invokeMethod(
                qApp, [] {}, Qt::QueuedConnection);
        });
        runUntil([&] { return done.load(); });
        other.join();
        return answer;
    }
    /// What the bus brings from a stranger's call.
    QDBusMessage reply(const QString& method, const QVariantList& arguments) {
        QDBusConnection other = session.connect("other");
        QDBusMessage call = QDBusMessage::createMethodCall(ownedName, calledPath, calledInterface, method);
        call.setArguments(arguments);
        QDBusPendingCallWatcher watcher(other.asyncCall(call));
        runUntil([&] { return watcher.isFinished(); });
        return watcher.reply();
    }

    fakes::SessionBus session;
    std::vector<Activation> asked;
};

}  // namespace

TEST_F(LinuxBusMeetingPoint, belongsToOneProcess) {
    const auto held = first();
    EXPECT_EQ(held->claim(), Claim::held) << "again";
    const auto second = point("second");
    EXPECT_EQ(second->claim(), Claim::taken);
    EXPECT_EQ(second->claim(), Claim::taken);
}

TEST_F(LinuxBusMeetingPoint, ownsNameOfApplication) {
    QDBusConnection other = session.connect("other");
    EXPECT_FALSE(other.interface()->isServiceRegistered(ownedName));
    const auto held = first();
    EXPECT_TRUE(other.interface()->isServiceRegistered(ownedName));
}

TEST_F(LinuxBusMeetingPoint, isFreeWhenItsHolderGoes) {
    auto held = first();
    held->announce();
    held.reset();
    QDBusConnection other = session.connect("other");
    EXPECT_FALSE(other.interface()->isServiceRegistered(ownedName));
    EXPECT_FALSE(other.interface()->isServiceRegistered(ownedName + QStringLiteral(".Ready")));
    EXPECT_EQ(point("second")->claim(), Claim::held);
}

TEST_F(LinuxBusMeetingPoint, holderHearsOthersWithTheirActivation) {
    const auto held = first();
    held->announce();
    const auto second = point("second");
    ASSERT_EQ(second->claim(), Claim::taken);
    EXPECT_EQ(answerTo(*second), Answer::heard);
    EXPECT_THAT(asked, ElementsAre(clickOnIcon));
}

TEST_F(LinuxBusMeetingPoint, doesNotWaitForHolderThatStarts) {
    const auto held = first();
    const auto second = point("second");
    ASSERT_EQ(second->claim(), Claim::taken);
    EXPECT_EQ(second->call(clickOnIcon), Answer::starting) << "no event loop runs";
    EXPECT_THAT(asked, IsEmpty());
    runUntil([&] { return !asked.empty(); });
    EXPECT_THAT(asked, ElementsAre(clickOnIcon)) << "what was asked is not lost";
}

TEST_F(LinuxBusMeetingPoint, callsBeforeHandlerAreAnswered) {
    const auto held = point("first");
    ASSERT_EQ(held->claim(), Claim::held);
    EXPECT_EQ(reply(QStringLiteral("Activate"), {QVariantMap()}).type(), QDBusMessage::ReplyMessage);
}

TEST_F(LinuxBusMeetingPoint, tellsSilentHolder) {
    const auto held = first();
    held->announce();
    const auto second = point("second", 1);
    ASSERT_EQ(second->claim(), Claim::taken);
    EXPECT_EQ(second->call(clickOnIcon), Answer::silent) << "no event loop runs";
}

TEST_F(LinuxBusMeetingPoint, holderThatEndsDoesNotAnswer) {
    auto held = first(false);
    held->announce();
    const auto second = point("second");
    ASSERT_EQ(second->claim(), Claim::taken);
    Answer answer = Answer::silent;
    std::thread other([&] { answer = second->call(clickOnIcon); });
    runUntil([&] { return !asked.empty(); });
    held.reset();
    other.join();
    EXPECT_EQ(answer, Answer::gone);
    EXPECT_EQ(second->claim(), Claim::held);
}

TEST_F(LinuxBusMeetingPoint, noticesThatHolderHasGone) {
    auto held = first();
    const auto second = point("second");
    ASSERT_EQ(second->claim(), Claim::taken);
    held.reset();
    EXPECT_EQ(second->call(clickOnIcon), Answer::gone);
    EXPECT_EQ(second->claim(), Claim::held);
}

TEST_F(LinuxBusMeetingPoint, isImpossibleWithoutBus) {
    for (const char* address : {"", "nothing:", "unix:path=/nonexistent/bus", "unix:path=/dev/null"}) {
        BusMeetingPoint none(
            [address] { return QDBusConnection::connectToBus(QString::fromLatin1(address), QStringLiteral("first")); });
        EXPECT_EQ(none.claim(), Claim::impossible) << address;
        EXPECT_EQ(none.claim(), Claim::impossible) << address;
    }
}

TEST_F(LinuxBusMeetingPoint, isImpossibleIfBusRefusesTheName) {
    const zoo::TempFolder temp;
    fakes::writeFile(temp / "bus.conf",
                     "<busconfig><type>session</type><listen>unix:tmpdir=/tmp</listen><policy context=\"default\">"
                     "<allow send_destination=\"*\" eavesdrop=\"true\"/><allow eavesdrop=\"true\"/><deny own=\"*\"/>"
                     "</policy>"
                     "</busconfig>");
    const fakes::SessionBus strict("--config-file=" + temp / "bus.conf");
    BusMeetingPoint refused([&] { return strict.connect("first"); });
    EXPECT_EQ(refused.claim(), Claim::impossible);
}

TEST_F(LinuxBusMeetingPoint, isImpossibleAfterBusHasGone) {
    auto ended = std::make_unique<fakes::SessionBus>();
    BusMeetingPoint left([&] { return ended->connect("first"); });
    BusMeetingPoint other([&] { return ended->connect("other"); });
    ASSERT_EQ(other.claim(), Claim::held);
    ASSERT_EQ(left.claim(), Claim::taken);
    ended.reset();
    EXPECT_EQ(left.call(clickOnIcon), Answer::gone);
    EXPECT_EQ(left.claim(), Claim::impossible);
}

// The interface as desktops call it.

TEST_F(LinuxBusMeetingPoint, openBringsApplicationForward) {
    const auto held = first();
    const QVariantMap data{{QStringLiteral("desktop-startup-id"), QStringLiteral("panel_TIME1")},
                           {QStringLiteral("something else"), 5}};
    const QDBusMessage answer = reply(QStringLiteral("Open"), {QStringList{QStringLiteral("file:///tmp")}, data});
    EXPECT_EQ(answer.type(), QDBusMessage::ReplyMessage);
    EXPECT_THAT(asked, ElementsAre(Activation{{}, QStringLiteral("panel_TIME1")}));
}

TEST_F(LinuxBusMeetingPoint, refusesActions) {
    const auto held = first();
    const QDBusMessage answer =
        reply(QStringLiteral("ActivateAction"), {QStringLiteral("survey"), QVariantList(), QVariantMap()});
    EXPECT_EQ(answer.errorName(), QStringLiteral("org.freedesktop.DBus.Error.InvalidArgs"));
    EXPECT_EQ(answer.errorMessage(), QStringLiteral("Zelk has no action “survey”."));
    EXPECT_THAT(asked, IsEmpty());
}

TEST_F(LinuxBusMeetingPoint, refusesWhatIsNoMethod) {
    const auto held = first();
    for (const char* method : {"deleteLater", "serve", "activate"})
        EXPECT_EQ(reply(QString::fromLatin1(method), {}).errorName(),
                  QStringLiteral("org.freedesktop.DBus.Error.UnknownMethod"))
            << method;
    EXPECT_EQ(reply(QStringLiteral("Activate"), {}).type(), QDBusMessage::ErrorMessage) << "without platform data";
    // A newer Qt tells of each.
    for (const QString& line : tour::takeQtMessages()) EXPECT_THAT(line.toStdString(), HasSubstr("slot"));
}

TEST_F(LinuxBusMeetingPoint, describesInterfaceOfFreedesktop) {
    const auto held = first();
    QDBusConnection other = session.connect("other");
    QDBusPendingCallWatcher watcher(other.asyncCall(QDBusMessage::createMethodCall(
        ownedName, calledPath, QStringLiteral("org.freedesktop.DBus.Introspectable"), QStringLiteral("Introspect"))));
    runUntil([&] { return watcher.isFinished(); });
    std::string description = watcher.reply().arguments().value(0).toString().simplified().toStdString();
    for (const char* part : {"<interface name=\"org.freedesktop.Application\">",
                             "<method name=\"Activate\"> <arg name=\"platformData\" type=\"a{sv}\" direction=\"in\"/>",
                             "<method name=\"Open\"> <arg name=\"uris\" type=\"as\" direction=\"in\"/> "
                             "<arg name=\"platformData\" type=\"a{sv}\" direction=\"in\"/>",
                             "<method name=\"ActivateAction\"> <arg name=\"name\" type=\"s\" direction=\"in\"/> "
                             "<arg name=\"parameter\" type=\"av\" direction=\"in\"/> "
                             "<arg name=\"platformData\" type=\"a{sv}\" direction=\"in\"/>"})
        EXPECT_THAT(description, HasSubstr(part));
}

}  // namespace zelk
