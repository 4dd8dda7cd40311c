// SPDX-License-Identifier: MIT
#include "ui/shell/linux/LinuxTray.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

#include "fakes/EventLoop.h"
#include "fakes/SessionBus.h"

namespace zelk {

namespace {

const QString announcer = QStringLiteral("org.kde.StatusNotifierWatcher");

class LinuxTrayTest : public testing::Test {
protected:
    ~LinuxTrayTest() override {
        for (const char* name : {"zelk", "panel"}) QDBusConnection::disconnectFromBus(QString::fromLatin1(name));
    }

    /// A tray of the toolkit that counts how often it is asked for.
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

TEST_F(LinuxTrayTest, isThereWhereTheDesktopAnnouncesIt) {
    ASSERT_TRUE(panel.registerService(announcer));
    LinuxTray tray(session.connect("zelk"), false, toolkit(true));
    EXPECT_FALSE(tray.isThere()) << "nobody has looked";
    EXPECT_EQ(asked, 0);
    tray.look();
    EXPECT_TRUE(tray.isThere());
}

TEST_F(LinuxTrayTest, comesAndGoesWithWhoAnnouncesIt) {
    LinuxTray tray(session.connect("zelk"), false, toolkit(true));
    QSignalSpy changes(&tray, &Tray::changed);
    tray.look();
    EXPECT_FALSE(tray.isThere());
    EXPECT_EQ(asked, 0) << "the toolkit would remember that there is none";
    ASSERT_TRUE(panel.registerService(announcer));
    runUntil([&] { return tray.isThere(); });
    ASSERT_TRUE(panel.unregisterService(announcer));
    runUntil([&] { return !tray.isThere(); });
    ASSERT_TRUE(panel.registerService(announcer));
    runUntil([&] { return tray.isThere(); });
    EXPECT_EQ(changes.size(), 3);
}

TEST_F(LinuxTrayTest, isNotThereIfTheToolkitCannotUseIt) {
    ASSERT_TRUE(panel.registerService(announcer));
    LinuxTray tray(session.connect("zelk"), false, toolkit(false));
    tray.look();
    EXPECT_FALSE(tray.isThere());
}

TEST_F(LinuxTrayTest, mayBeThereUnannounced) {
    LinuxTray tray(session.connect("zelk"), true, toolkit(true));
    tray.look();
    EXPECT_TRUE(tray.isThere());
}

TEST_F(LinuxTrayTest, isNotThereWithoutABus) {
    LinuxTray tray(QDBusConnection(QStringLiteral("none")), false, toolkit(true));
    tray.look();
    EXPECT_FALSE(tray.isThere());
    EXPECT_EQ(asked, 0);
}

}  // namespace zelk
