// SPDX-License-Identifier: MIT
#include "ui/theme/DesktopMotion.h"

#ifdef Q_OS_LINUX
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#endif
#ifdef Q_OS_MACOS
#include <QSettings>
#endif

namespace zelk {

namespace {

const QString gnomeInterface = QStringLiteral("org.gnome.desktop.interface");
const QString enableAnimations = QStringLiteral("enable-animations");
const QString appearance = QStringLiteral("org.freedesktop.appearance");
const QString reducedMotion = QStringLiteral("reduced-motion");

#ifdef Q_OS_LINUX
const QString portalService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString settingsInterface = QStringLiteral("org.freedesktop.portal.Settings");
#endif

}  // namespace

std::optional<bool> DesktopMotion::reducedFrom(const QString& nameSpace, const QString& key, const QVariant& value) {
    if (nameSpace == gnomeInterface && key == enableAnimations && value.typeId() == QMetaType::Bool)
        return !value.toBool();
    if (nameSpace == appearance && key == reducedMotion && value.typeId() == QMetaType::UInt)
        return value.toUInt() == 1;
    return std::nullopt;
}

void DesktopMotion::hear(const QString& nameSpace, const QString& key, const QVariant& value) {
    const std::optional<bool> wish = reducedFrom(nameSpace, key, value);
    if (!wish) return;
    (key == enableAnimations ? withoutAnimations_ : reducedMotion_) = *wish;
    const bool reduced = withoutAnimations_ || reducedMotion_;
    if (reduced == reduced_) return;
    reduced_ = reduced;
    emit reducedChanged(reduced);
}

#if defined(Q_OS_LINUX)

void DesktopMotion::start() {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) return;
    bus.connect(portalService, portalPath, settingsInterface, QStringLiteral("SettingChanged"), this,
                SLOT(settingChanged(QString, QString, QDBusVariant)));
    ask(gnomeInterface, enableAnimations);
    ask(appearance, reducedMotion);
}

void DesktopMotion::ask(const QString& nameSpace, const QString& key) {
    QDBusMessage read =
        QDBusMessage::createMethodCall(portalService, portalPath, settingsInterface, QStringLiteral("Read"));
    read << nameSpace << key;
    auto* watcher = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(read), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, nameSpace, key](QDBusPendingCallWatcher* done) {
        const QDBusPendingReply<QDBusVariant> reply = *done;
        if (reply.isValid()) settingChanged(nameSpace, key, reply.value());
        done->deleteLater();
    });
}

void DesktopMotion::settingChanged(const QString& nameSpace, const QString& key, const QDBusVariant& value) {
    QVariant content = value.variant();
    // Reading wraps the value in one variant more than the signal does.
    if (content.canConvert<QDBusVariant>()) content = content.value<QDBusVariant>().variant();
    hear(nameSpace, key, content);
}

#elif defined(Q_OS_MACOS)

void DesktopMotion::start() {
    const QSettings accessibility(QStringLiteral("apple.com"), QStringLiteral("universalaccess"));
    if (accessibility.value(QStringLiteral("reduceMotion")).toBool()) emit reducedChanged(true);
}

#else

void DesktopMotion::start() {}

#endif

}  // namespace zelk
