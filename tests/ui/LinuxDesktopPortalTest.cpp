// SPDX-License-Identifier: MIT
// The desktop portal, asked and heard over a bus.
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

/// Answers as the portal does: a value in a variant in a variant.
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

    void offer() {
        ASSERT_TRUE(theirs.isConnected());
        ASSERT_TRUE(theirs.registerVirtualObject(portalPath, &portal));
        ASSERT_TRUE(theirs.registerService(QStringLiteral("org.freedesktop.portal.Desktop")));
    }
    void tell(const QString& nameSpace, const QString& key, const QVariant& value) {
        QDBusMessage changed =
            QDBusMessage::createSignal(portalPath, settingsInterface, QStringLiteral("SettingChanged"));
        changed << nameSpace << key << QVariant::fromValue(QDBusVariant(value));
        theirs.send(changed);
    }

    fakes::SessionBus session;
    QDBusConnection theirs = session.connect("portal");
    QDBusConnection ours = session.connect("zelk");
    Portal portal;
    DesktopSettings desktop;
};

}  // namespace

TEST_F(DesktopPortal, isAskedAtTheStartAndNotWaitedFor) {
    portal.settings = {{"color-scheme", 1U}, {"text-scaling-factor", 1.25}, {"enable-animations", false}};
    offer();
    desktop.follow(ours);
    // Nobody can have answered: the portal lives on this thread.
    EXPECT_EQ(desktop.scheme(), DesktopScheme::untold);
    EXPECT_EQ(desktop.textFactor(), 1);
    runUntil([&] {
        return desktop.scheme() == DesktopScheme::dark && desktop.textFactor() == 1.25 && desktop.reducedMotion();
    });
}

TEST_F(DesktopPortal, isHeardWhenSomethingChanges) {
    portal.settings = {{"text-scaling-factor", 1.25}};
    offer();
    desktop.follow(ours);
    runUntil([&] { return desktop.textFactor() == 1.25; });
    tell(commonGroup, QStringLiteral("color-scheme"), 2U);
    runUntil([&] { return desktop.scheme() == DesktopScheme::light; });
    tell(gnomeGroup, QStringLiteral("text-scaling-factor"), 1.5);
    runUntil([&] { return desktop.textFactor() == 1.5; });
}

TEST_F(DesktopPortal, isNotThereWhereThereIsNoBus) {
    QDBusConnection none(QStringLiteral("never connected"));
    desktop.follow(none);
    runWhatIsThere();
    EXPECT_EQ(desktop.scheme(), DesktopScheme::untold);
    EXPECT_EQ(desktop.textFactor(), 1);
    EXPECT_FALSE(desktop.reducedMotion());
}

}  // namespace zelk
