// SPDX-License-Identifier: MIT
#include "ui/theme/DesktopSettings.h"

#include <QCoreApplication>
#include <QPointer>
#include <cmath>

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
const QString appearanceGroup = QStringLiteral("org.freedesktop.appearance");

const DesktopKey enableAnimations{gnomeInterface, QStringLiteral("enable-animations")};
const DesktopKey reducedMotionKey{appearanceGroup, QStringLiteral("reduced-motion")};
const DesktopKey colorScheme{appearanceGroup, QStringLiteral("color-scheme")};
const DesktopKey textScalingFactor{gnomeInterface, QStringLiteral("text-scaling-factor")};

#ifdef Q_OS_LINUX
const QString portalService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString settingsInterface = QStringLiteral("org.freedesktop.portal.Settings");
#endif

}  // namespace

std::optional<bool> reducedMotionFrom(const DesktopKey& key, const QVariant& value) {
    if (key == enableAnimations && value.typeId() == QMetaType::Bool) return !value.toBool();
    if (key == reducedMotionKey && value.typeId() == QMetaType::UInt) return value.toUInt() == 1;
    return std::nullopt;
}

std::optional<DesktopScheme> schemeFrom(const DesktopKey& key, const QVariant& value) {
    if (key != colorScheme || value.typeId() != QMetaType::UInt) return std::nullopt;
    switch (value.toUInt()) {
        case 1:
            return DesktopScheme::dark;
        case 2:
            return DesktopScheme::light;
        default:  // no preference, or a value unknown to us
            return DesktopScheme::untold;
    }
}

std::optional<double> textFactorFrom(const DesktopKey& key, const QVariant& value) {
    if (key != textScalingFactor || value.typeId() != QMetaType::Double) return std::nullopt;
    const double factor = value.toDouble();
    return std::isfinite(factor) && factor > 0 ? std::optional(factor) : std::nullopt;
}

const DesktopSettings& DesktopSettings::ofApplication() {
    static QPointer<DesktopSettings> settings;
    if (settings.isNull()) {
        settings = new DesktopSettings(QCoreApplication::instance());
        settings->start();
    }
    return *settings;
}

void DesktopSettings::hear(const DesktopKey& key, const QVariant& value) {
    if (const auto wish = reducedMotionFrom(key, value)) {
        const bool before = reducedMotion();
        (key == enableAnimations ? withoutAnimations_ : reducedMotion_) = *wish;
        if (reducedMotion() != before) emit reducedMotionChanged();
    } else if (const auto scheme = schemeFrom(key, value); scheme && *scheme != scheme_) {
        scheme_ = *scheme;
        emit schemeChanged();
    } else if (const auto factor = textFactorFrom(key, value); factor && *factor != textFactor_) {
        textFactor_ = *factor;
        emit textFactorChanged();
    }
}

#if defined(Q_OS_LINUX)

void DesktopSettings::start() {
    QDBusConnection bus = QDBusConnection::sessionBus();
    follow(bus);
}

void DesktopSettings::follow(QDBusConnection& bus) {
    if (!bus.isConnected()) return;
    // Qt looks up the slot's argument types by name, and this one may not have been registered yet.
    qRegisterMetaType<QDBusVariant>();
    bus.connect(portalService, portalPath, settingsInterface, QStringLiteral("SettingChanged"), this,
                SLOT(settingChanged(QString, QString, QDBusVariant)));
    for (const DesktopKey& key : {enableAnimations, reducedMotionKey, colorScheme, textScalingFactor}) ask(bus, key);
}

void DesktopSettings::ask(const QDBusConnection& bus, const DesktopKey& key) {
    QDBusMessage read =
        QDBusMessage::createMethodCall(portalService, portalPath, settingsInterface, QStringLiteral("Read"));
    read << key.nameSpace << key.key;
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(read), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, key](QDBusPendingCallWatcher* done) {
        const QDBusPendingReply<QDBusVariant> reply = *done;
        if (reply.isValid()) settingChanged(key.nameSpace, key.key, reply.value());
        done->deleteLater();
    });
}

void DesktopSettings::settingChanged(const QString& nameSpace, const QString& key, const QDBusVariant& value) {
    QVariant content = value.variant();
    // A reply to Read wraps the value in one more variant than the signal does.
    if (content.canConvert<QDBusVariant>()) content = content.value<QDBusVariant>().variant();
    hear({nameSpace, key}, content);
}

#elif defined(Q_OS_MACOS)

void DesktopSettings::start() {
    const QSettings accessibility(QStringLiteral("apple.com"), QStringLiteral("universalaccess"));
    hear(reducedMotionKey, accessibility.value(QStringLiteral("reduceMotion")).toBool() ? 1U : 0U);
}

#else

void DesktopSettings::start() {}

#endif

}  // namespace zelk

#include "moc_DesktopSettings.cpp"
