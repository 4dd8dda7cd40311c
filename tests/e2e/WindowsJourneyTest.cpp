// SPDX-License-Identifier: MIT
// The windows of the application: their titles and sizes, and what opening and closing them does.
#include <QPointer>

#include "ReclaimHands.h"
#include "ShellFixture.h"
#include "fakes/FakeTray.h"

namespace zelk {

namespace {

class Windows : public ShellFixture {
protected:
    Windows() { shell(); }
};

class WindowsWithTray : public ShellFixture {
protected:
    WindowsWithTray() {
        services.tray = [this] {
            auto made = std::make_unique<fakes::FakeTray>();
            tray = made.get();
            tray->come(true);
            return made;
        };
        shell();
        runUntil([&] { return shell().statusItem().present(); });
    }

    fakes::FakeTray* tray = nullptr;
};

}  // namespace

TEST_F(Windows, mainWindowHasMinimumSize) {
    EXPECT_EQ(window().minimumWidth(), 960);
    EXPECT_EQ(window().minimumHeight(), 620);
    EXPECT_GE(window().width(), 960);
    EXPECT_GE(window().height(), 620);
}

TEST_F(Windows, otherWindowsHaveTitlesAndSizes) {
    QQuickWindow& about = main().openWindow(WindowId::about);
    EXPECT_EQ(about.title(), QStringLiteral("About Zelk"));
    EXPECT_EQ(about.minimumSize(), about.maximumSize());
    EXPECT_EQ(about.size(), about.minimumSize());
    const QRect screen = about.screen()->availableGeometry();
    EXPECT_LE((about.geometry().center() - screen.center()).manhattanLength(), 2);

    QQuickWindow& help = main().openWindow(WindowId::help);
    EXPECT_EQ(help.title(), QStringLiteral("Zelk Help"));
    EXPECT_EQ(help.size(), QSize(760, 520));

    QQuickWindow& settings = main().openWindow(WindowId::settings);
    EXPECT_EQ(settings.minimumSize(), QSize(460, 360));
    EXPECT_EQ(settings.maximumSize(), QSize(460, 360));
}

TEST_F(Windows, aboutShowsDriveInCentreOfItsMark) {
    QQuickWindow& about = main().openWindow(WindowId::about);
    runUntil([&] { return about.isExposed(); });
    const QQuickItem* drive = findVisible(about, [](const QQuickItem& item) {
        return item.inherits("zelk::SymbolItem") && item.property("name").toString() == QStringLiteral("internaldrive");
    });
    ASSERT_NE(drive, nullptr);
    const QQuickItem* mark = drive->parentItem();
    EXPECT_EQ(mark->size(), QSizeF(96, 96)) << "with its glow";
    EXPECT_EQ(drive->mapToItem(mark, drive->boundingRect().center()), QPointF(48, 48));
    EXPECT_LE(drive->width() * std::sqrt(2), 78) << "inside the disc";
    EXPECT_NEAR(mark->mapToScene({48, 0}).x(), about.width() / 2.0, 1);
}

TEST_F(Windows, settingsDoNotRepeatTheirTitle) {
    QQuickWindow& settings = main().openWindow(WindowId::settings);
    EXPECT_EQ(settings.title(), QStringLiteral("Settings"));
    settings.grabWindow();
    std::vector<QQuickItem*> pending{settings.contentItem()};
    while (!pending.empty()) {
        const QQuickItem* item = pending.back();
        pending.pop_back();
        if (!item->isVisible()) continue;
        EXPECT_NE(item->property("text").toString(), settings.title()) << "the title bar shows it already";
        for (QQuickItem* child : item->childItems()) pending.push_back(child);
    }
}

TEST_F(Windows, openingAgainActivatesSameWindow) {
    for (const WindowId id : {WindowId::about, WindowId::help, WindowId::settings}) {
        QQuickWindow& first = main().openWindow(id);
        window().requestActivate();
        runUntil([&] { return window().isActive(); });
        QQuickWindow& second = main().openWindow(id);
        EXPECT_EQ(&first, &second);
        runUntil([&] { return first.isActive(); });
    }
}

TEST_F(Windows, closedWindowsAreDestroyed) {
    for (const WindowId id : {WindowId::about, WindowId::help, WindowId::settings}) {
        const QPointer<QQuickWindow> closed = &main().openWindow(id);
        runUntil([&] { return closed->isActive(); });
        closed->close();
        EXPECT_EQ(main().findWindow(id), nullptr);
        runWhatIsThere();
        EXPECT_TRUE(closed.isNull());
        EXPECT_TRUE(main().openWindow(id).isVisible());
    }
}

TEST_F(Windows, windowsReopenWhereTheyWereClosed) {
    QQuickWindow& help = main().openWindow(WindowId::help);
    runUntil([&] { return help.isActive(); });
    help.setGeometry(40, 50, 800, 600);
    runWhatIsThere();
    help.close();
    QQuickWindow& settings = main().openWindow(WindowId::settings);
    settings.setPosition(60, 70);
    runWhatIsThere();
    settings.close();
    runWhatIsThere();
    EXPECT_EQ(main().openWindow(WindowId::help).geometry(), QRect(40, 50, 800, 600));
    EXPECT_EQ(main().openWindow(WindowId::settings).geometry(), QRect(60, 70, 460, 360));
}

TEST_F(Windows, escapeAndControlWCloseOtherWindows) {
    for (const WindowId id : {WindowId::about, WindowId::help, WindowId::settings}) {
        QQuickWindow& other = main().openWindow(id);
        runUntil([&] { return other.isActive(); });
        press(other, Qt::Key_Escape);
        EXPECT_EQ(main().findWindow(id), nullptr);
        QQuickWindow& again = main().openWindow(id);
        runUntil([&] { return again.isActive(); });
        press(again, Qt::Key_W, Qt::ControlModifier);
        EXPECT_EQ(main().findWindow(id), nullptr);
        EXPECT_TRUE(window().isVisible());
    }
    EXPECT_EQ(quits, 0);
}

TEST_F(Windows, closingMainWindowQuitsWithoutTray) {
    ASSERT_FALSE(shell().statusItem().present()) << "there is no tray here";
    window().close();
    EXPECT_EQ(quits, 1);
}

TEST_F(WindowsWithTray, closingMainWindowKeepsRunning) {
    window().close();
    runWhatIsThere();
    EXPECT_FALSE(window().isVisible());
    EXPECT_EQ(quits, 0);
}

TEST_F(WindowsWithTray, mainWindowReappearsWhenTrayDisappears) {
    tray->come(false);
    EXPECT_TRUE(window().isVisible());
    tray->come(true);
    window().close();
    tray->come(false);
    EXPECT_TRUE(window().isVisible()) << "nothing else can open it";
    EXPECT_EQ(quits, 0);
    window().close();
    EXPECT_EQ(quits, 1);
}

TEST_F(WindowsWithTray, openZelkDoesNotReopenMainWindow) {
    window().close();
    QAction* entry = shell().statusItem().menu().actions().at(2);
    ASSERT_EQ(entry->text(), QStringLiteral("Open Zelk"));
    entry->trigger();
    runWhatIsThere();
    EXPECT_FALSE(window().isVisible());
    EXPECT_EQ(quits, 0);
}

TEST_F(Windows, raisesAllWindowsWithMainWindowOnTop) {
    main().openWindow(WindowId::help);
    EXPECT_EQ(main().bringAllForward(), 2);
    runUntil([&] { return window().isActive(); });
}

TEST_F(Windows, surveyIsShownEverywhere) {
    machine.directories.hold(home + "/wide/inner");
    model().startScan();
    EXPECT_EQ(find("cancelButton") != nullptr, true);
    click("sidebarLens");
    EXPECT_NE(find("moduleProgressBar"), nullptr);
    const QMenu& menu = shell().statusItem().menu();
    runUntil([&] { return menu.actions()[3]->text().startsWith(QStringLiteral("Surveying… ")); });
}

TEST_F(Windows, settingsFitTheirWindow) {
    QQuickWindow& settings = main().openWindow(WindowId::settings);
    runUntil([&] { return settings.isActive(); });
    settings.grabWindow();
    const QQuickItem* page =
        findVisible(settings, [](const QQuickItem& item) { return item.inherits("QQuickFlickable"); });
    ASSERT_NE(page, nullptr);
    EXPECT_GT(page->property("contentHeight").toDouble(), 0.75 * page->height());
    EXPECT_LE(page->property("contentHeight").toDouble(), page->height());
}

TEST_F(Windows, settingsReopenAtTop) {
    std::vector<std::string> many;
    for (int root = 0; root < 30; ++root) many.push_back("/root" + std::to_string(root));
    model().setScanRoots(many);
    QQuickWindow& settings = main().openWindow(WindowId::settings);
    runUntil([&] { return settings.isActive(); });
    settings.grabWindow();
    QQuickItem* page = findVisible(settings, [](const QQuickItem& item) { return item.inherits("QQuickFlickable"); });
    ASSERT_NE(page, nullptr);
    EXPECT_EQ(page->property("contentY").toDouble(), 0);
    press(settings, Qt::Key_Backtab);
    EXPECT_GT(page->property("contentY").toDouble(), 0);
    press(settings, Qt::Key_Escape);
    QQuickWindow& again = main().openWindow(WindowId::settings);
    runUntil([&] { return again.isActive(); });
    again.grabWindow();
    page = findVisible(again, [](const QQuickItem& item) { return item.inherits("QQuickFlickable"); });
    ASSERT_NE(page, nullptr);
    EXPECT_EQ(page->property("contentY").toDouble(), 0);
    press(again, Qt::Key_Tab);
    EXPECT_EQ(page->property("contentY").toDouble(), 0) << "the first control stands at the top";
}

}  // namespace zelk
