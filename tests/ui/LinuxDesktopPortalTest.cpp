// SPDX-License-Identifier: MIT
// Talks to a fake desktop portal over a private session bus.
#include <gtest/gtest.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <map>

#include "fakes/EventLoop.h"
#include "fakes/SessionBus.h"
#include "ui/theme/DesktopSettings.h"

namespace zelk {

namespace {

const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString settingsInterface = QStringLiteral("org.freedesktop.portal.Settings");
const QString gnomeGroup = QStringLiteral("org.gnome.desktop.interface");
const QString commonGroup = QStringLiteral("org.freedesktop.appearance");

/// Answers like the portal, with a value inside two variants.
class Portal : public QDBusVirtualObject {
public:
    std::map<QString, QVariant> settings;

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        if (message.interface() != settingsInterface || message.member() != QStringLiteral("Read")) return false;
        const auto found = settings.find(message.arguments().value(1).toString());
        const auto wrapped = [](const QVariant& value) { return QVariant::fromValue(QDBusVariant(value)); };
        connection.send(found == settings.end()
                            ? message.createErrorReply(QStringLiteral("org.freedesktop.portal.Error.NotFound"), {})
                            : message.createReply(wrapped(wrapped(found->second))));
        return true;
    }
};

class DesktopPortal : public testing::Test {
protected:
    ~DesktopPortal() override {
        for (const char* name : {"zelk", "portal"}) QDBusConnection::disconnectFromBus(QString::fromLatin1(name));
    }

    void registerPortal() {
        ASSERT_TRUE(portalBus.isConnected());
        ASSERT_TRUE(portalBus.registerVirtualObject(portalPath, &portal));
        ASSERT_TRUE(portalBus.registerService(QStringLiteral("org.freedesktop.portal.Desktop")));
    }
    void sendChange(const QString& nameSpace, const QString& key, const QVariant& value) {
        QDBusMessage changed =
            QDBusMessage::createSignal(portalPath, settingsInterface, QStringLiteral("SettingChanged"));
        changed << nameSpace << key << QVariant::fromValue(QDBusVariant(value));
        portalBus.send(changed);
    }

    fakes::SessionBus session;
    QDBusConnection portalBus = session.connect("portal");
    QDBusConnection appBus = session.connect("zelk");
    Portal portal;
    DesktopSettings desktop;
};

}  // namespace

TEST_F(DesktopPortal, readsSettingsAsynchronously) {
    portal.settings = {{"color-scheme", 1U}, {"text-scaling-factor", 1.25}, {"enable-animations", false}};
    registerPortal();
    desktop.follow(appBus);
    // The portal runs on this thread, so it cannot have answered yet.
    EXPECT_EQ(desktop.scheme(), DesktopScheme::untold);
    EXPECT_EQ(desktop.textFactor(), 1);
    runUntil([&] {
        return desktop.scheme() == DesktopScheme::dark && desktop.textFactor() == 1.25 && desktop.reducedMotion();
    });
}

TEST_F(DesktopPortal, followsSettingChanged) {
    portal.settings = {{"text-scaling-factor", 1.25}};
    registerPortal();
    desktop.follow(appBus);
    runUntil([&] { return desktop.textFactor() == 1.25; });
    sendChange(commonGroup, QStringLiteral("color-scheme"), 2U);
    runUntil([&] { return desktop.scheme() == DesktopScheme::light; });
    sendChange(gnomeGroup, QStringLiteral("text-scaling-factor"), 1.5);
    runUntil([&] { return desktop.textFactor() == 1.5; });
}

TEST_F(DesktopPortal, keepsDefaultsWithoutBus) {
    QDBusConnection none(QStringLiteral("never connected"));
    desktop.follow(none);
    runWhatIsThere();
    EXPECT_EQ(desktop.scheme(), DesktopScheme::untold);
    EXPECT_EQ(desktop.textFactor(), 1);
    EXPECT_FALSE(desktop.reducedMotion());
}

}  // namespace zelk
