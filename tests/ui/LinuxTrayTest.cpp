// SPDX-License-Identifier: MIT
#include "ui/shell/linux/LinuxTray.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

#include "fakes/EventLoop.h"
#include "fakes/SessionBus.h"

namespace zelk {

namespace {

const QString watcherService = QStringLiteral("org.kde.StatusNotifierWatcher");

class LinuxTrayTest : public testing::Test {
protected:
    ~LinuxTrayTest() override {
        for (const char* name : {"zelk", "panel"}) QDBusConnection::disconnectFromBus(QString::fromLatin1(name));
    }

    /// A probe for the tray support of the toolkit; counts its calls in `asked`.
    std::function<bool()> toolkit(bool usable) {
        return [this, usable] {
            ++asked;
            return usable;
        };
    }

    fakes::SessionBus session;
    QDBusConnection panel = session.connect("panel");
    int asked = 0;
};

}  // namespace

TEST_F(LinuxTrayTest, isAvailableIfAWatcherIsRegistered) {
    ASSERT_TRUE(panel.registerService(watcherService));
    LinuxTray tray(session.connect("zelk"), false, toolkit(true));
    EXPECT_FALSE(tray.isThere()) << "not looked up yet";
    EXPECT_EQ(asked, 0);
    tray.look();
    EXPECT_TRUE(tray.isThere());
}

TEST_F(LinuxTrayTest, followsTheWatcher) {
    LinuxTray tray(session.connect("zelk"), false, toolkit(true));
    QSignalSpy changes(&tray, &Tray::changed);
    tray.look();
    EXPECT_FALSE(tray.isThere());
    EXPECT_EQ(asked, 0) << "the toolkit would cache that there is no tray";
    ASSERT_TRUE(panel.registerService(watcherService));
    runUntil([&] { return tray.isThere(); });
    ASSERT_TRUE(panel.unregisterService(watcherService));
    runUntil([&] { return !tray.isThere(); });
    ASSERT_TRUE(panel.registerService(watcherService));
    runUntil([&] { return tray.isThere(); });
    EXPECT_EQ(changes.size(), 3);
}

TEST_F(LinuxTrayTest, isUnavailableIfToolkitCannotUseIt) {
    ASSERT_TRUE(panel.registerService(watcherService));
    LinuxTray tray(session.connect("zelk"), false, toolkit(false));
    tray.look();
    EXPECT_FALSE(tray.isThere());
}

TEST_F(LinuxTrayTest, isAvailableWithoutWatcherIfAllowed) {
    LinuxTray tray(session.connect("zelk"), true, toolkit(true));
    tray.look();
    EXPECT_TRUE(tray.isThere());
}

TEST_F(LinuxTrayTest, isUnavailableWithoutBus) {
    LinuxTray tray(QDBusConnection(QStringLiteral("none")), false, toolkit(true));
    tray.look();
    EXPECT_FALSE(tray.isThere());
    EXPECT_EQ(asked, 0);
}

}  // namespace zelk
