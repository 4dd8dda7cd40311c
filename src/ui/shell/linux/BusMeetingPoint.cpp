// SPDX-License-Identifier: MIT
#include "ui/shell/linux/BusMeetingPoint.h"

#include <QDBusMessage>
#include <QDBusPendingCall>
#include <utility>

#include "ui/shell/Application.h"

namespace zelk {

namespace {

const QString objectPath = QStringLiteral("/io/github/zelk/Zelk");
const QString applicationInterface = QStringLiteral("org.freedesktop.Application");
const QString busService = QStringLiteral("org.freedesktop.DBus");
const QString busPath = QStringLiteral("/org/freedesktop/DBus");

constexpr int busPatience = 5000;  // milliseconds; for what the bus answers itself

constexpr uint doNotQueue = 4;

// What the bus answers to RequestName.
constexpr uint isOwner = 1;
constexpr uint isTaken = 3;
constexpr uint wasOwner = 4;

/// Owned in addition once the window is shown. Until then nobody should wait for an answer: a slow start is no hang.
QString readyName() {
    return applicationId() + QStringLiteral(".Ready");
}

}  // namespace

BusMeetingPoint::BusMeetingPoint(std::function<QDBusConnection()> connect, int patience)
    : connect_(std::move(connect)), patience_(patience) {}

/// Whoever waits for an answer learns that there will be none.
BusMeetingPoint::~BusMeetingPoint() {
    if (!bus_) return;
    const QString name = bus_->name();
    bus_->unregisterObject(objectPath);
    bus_.reset();
    QDBusConnection::disconnectFromBus(name);
}

QDBusConnection BusMeetingPoint::connectToSessionBus() {
    return QDBusConnection::connectToBus(QDBusConnection::SessionBus, applicationId());
}

MeetingPoint::Claim BusMeetingPoint::claim() {
    if (!bus_) bus_.emplace(connect_());
    if (!bus_->isConnected()) return Claim::impossible;
    // Before the name is owned: what a desktop starts through the bus is called at once.
    if (bus_->objectRegisteredAt(objectPath) == nullptr &&
        !bus_->registerObject(objectPath, &service_, QDBusConnection::ExportAllSlots))
        return Claim::impossible;
    const uint answer =
        askBus(QStringLiteral("RequestName"), {applicationId(), QVariant::fromValue(doNotQueue)}).toUInt();
    if (answer == isOwner || answer == wasOwner) return Claim::held;
    return answer == isTaken ? Claim::taken : Claim::impossible;
}

MeetingPoint::Answer BusMeetingPoint::call(const Activation& by) {
    // The process is called and not the name, whose next owner may be this process, or one that the bus would start.
    const QString owner = ownerOf(applicationId());
    if (owner.isEmpty()) return Answer::gone;
    QDBusMessage activate =
        QDBusMessage::createMethodCall(owner, objectPath, applicationInterface, QStringLiteral("Activate"));
    activate << platformDataOf(by);
    QDBusPendingCall answer = bus_->asyncCall(activate, patience_);
    // The bus answers in order: it has passed on the call by now, or has found nobody to pass it to.
    const bool ready = ownerOf(readyName()) == owner;
    if (ready) answer.waitForFinished();
    if (ready && !answer.isError()) return Answer::heard;
    if (ownerOf(applicationId()) != owner) return Answer::gone;
    return ready ? Answer::silent : Answer::starting;
}

void BusMeetingPoint::announce() {
    askBus(QStringLiteral("RequestName"), {readyName(), QVariant::fromValue(doNotQueue)});
}

/// What the bus itself returns; invalid on an error.
QVariant BusMeetingPoint::askBus(const QString& method, const QVariantList& arguments) const {
    QDBusMessage question = QDBusMessage::createMethodCall(busService, busPath, busService, method);
    question.setArguments(arguments);
    const QDBusMessage answer = bus_->call(question, QDBus::Block, busPatience);
    const bool answered = answer.type() == QDBusMessage::ReplyMessage && !answer.arguments().isEmpty();
    return answered ? answer.arguments().first() : QVariant();
}

/// The unique name of the process that owns the name; empty if none does.
QString BusMeetingPoint::ownerOf(const QString& name) const {
    return askBus(QStringLiteral("GetNameOwner"), {name}).toString();
}

}  // namespace zelk
