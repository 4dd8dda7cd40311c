// SPDX-License-Identifier: MIT
#include "ui/shell/MainWindow.h"

#include <gmock/gmock.h>

#include <QAccessible>
#include <QImage>
#include <QSignalSpy>

#include "Camera.h"
#include "state/AppModelFixture.h"
#include "ui/screens/overview/SurveyScreenModel.h"
#include "ui/theme/Motion.h"
#include "ui/theme/SystemTexts.h"
#include "ui/theme/TextScale.h"
#include "ui/theme/ZelkTheme.h"

namespace zelk {

namespace {

using tour::findControl;
using tour::pressKey;

class MainWindowTest : public AppModelFixture {
protected:
    MainWindowTest() {
        fillHome();
        addWideFolder(home + "/wide");
    }
    ~MainWindowTest() override {
        machine.directories.release();
        mainWindow_.reset();
    }

    MainWindow& showWindow() {
        if (!mainWindow_) {
            mainWindow_ = std::make_unique<MainWindow>(model());
            mainWindow_->motion().setReduced(true);
            mainWindow_->show();
            runUntil([&] { return mainWindow_->isUp(); });
        }
        return *mainWindow_;
    }
    QQuickWindow& window() { return mainWindow_->window(); }

    void scanAndHold() {
        machine.directories.hold(home + "/wide/inner");
        model().startScan();
        runUntil([&] { return model().itemsScanned() > 0; });
    }
    void finish() {
        machine.directories.release();
        if (model().scanPhase() != Phase::scanning) model().startScan();
        runUntil([&] { return model().scanPhase() == Phase::finished; });
    }

    static bool inSidebar(const QQuickItem* item) {
        while (item != nullptr && item->objectName() != QStringLiteral("sidebar")) item = item->parentItem();
        return item != nullptr;
    }

    /// The accessible names outside the sidebar in Tab order, one full cycle from the focused item.
    std::vector<std::string> tabOrder() {
        std::vector<std::string> names;
        QQuickItem* first = window().activeFocusItem();
        do {
            if (!inSidebar(window().activeFocusItem())) names.push_back(focusName());
            pressKey(window(), Qt::Key_Tab);
        } while (window().activeFocusItem() != first && names.size() < 40);
        return names;
    }

    /// The accessible name of the scan button before a survey.
    static std::string scanName() { return "Scan " + SystemTexts::of(SystemTexts::WholeComputer).toStdString(); }
    std::string focusName() {
        QAccessibleInterface* control = QAccessible::queryAccessibleInterface(window().activeFocusItem());
        return control == nullptr ? std::string() : control->text(QAccessible::Name).toStdString();
    }

    /// The visible items outside the sidebar and the menus: controls, and texts that are not part of a control.
    struct VisibleItems {
        std::vector<QQuickItem*> controls;
        std::vector<QQuickItem*> texts;
    };
    VisibleItems visibleItems() {
        VisibleItems found;
        std::vector<QQuickItem*> pending{window().contentItem()};
        while (!pending.empty()) {
            QQuickItem* item = pending.back();
            pending.pop_back();
            if (!item->isVisible() || item->objectName() == QStringLiteral("sidebar") ||
                item->objectName() == QStringLiteral("menus"))
                continue;
            if (item->activeFocusOnTab()) {
                found.controls.push_back(item);
                continue;
            }
            if (item->property("text").isValid() && !item->inherits("QQuickLoader")) found.texts.push_back(item);
            for (QQuickItem* child : item->childItems()) pending.push_back(child);
        }
        return found;
    }

    void expectEverythingNamed() {
        const VisibleItems all = visibleItems();
        EXPECT_FALSE(all.controls.empty());
        EXPECT_FALSE(all.texts.empty());
        for (QQuickItem* item : all.controls) {
            QAccessibleInterface* control = QAccessible::queryAccessibleInterface(item);
            ASSERT_NE(control, nullptr) << item->metaObject()->className();
            EXPECT_FALSE(control->text(QAccessible::Name).isEmpty()) << item->metaObject()->className();
            EXPECT_THAT(control->role(),
                        testing::AnyOf(QAccessible::Button, QAccessible::PageTab, QAccessible::CheckBox))
                << item->metaObject()->className();
            EXPECT_TRUE(control->state().focusable) << item->metaObject()->className();
        }
        for (QQuickItem* item : all.texts) {
            const QString text = item->property("text").toString();
            QAccessibleInterface* label = QAccessible::queryAccessibleInterface(item);
            ASSERT_NE(label, nullptr) << text.toStdString();
            EXPECT_THAT(label->role(), testing::AnyOf(QAccessible::Paragraph, QAccessible::Heading))
                << text.toStdString();
            EXPECT_FALSE(label->state().focusable) << text.toStdString();
            EXPECT_EQ(label->text(QAccessible::Name), text);
        }
    }

    void expectEverythingInsideWindow() {
        window().grabWindow();  // applies the layout of the new phase
        const QRectF bounds(0, 0, window().width(), window().height());
        const VisibleItems all = visibleItems();
        EXPECT_FALSE(all.controls.empty());
        EXPECT_FALSE(all.texts.empty());
        for (const std::vector<QQuickItem*>& items : {all.controls, all.texts})
            for (QQuickItem* item : items) {
                const QRectF place = item->mapRectToScene(item->boundingRect());
                EXPECT_TRUE(bounds.contains(place))
                    << item->property("text").toString().toStdString() << " at " << place.x() << ", " << place.y()
                    << ", " << place.width() << " x " << place.height();
            }
    }

    QAccessibleInterface& scanButton() {
        QQuickItem* button = findControl(window(), QStringLiteral("scanButton"));
        return *QAccessible::queryAccessibleInterface(button);
    }

    /// The centre of the scan button, which shows the phase.
    QImage face() {
        const QQuickItem* button = findControl(window(), QStringLiteral("scanButton"));
        const QRectF all = button->mapRectToScene(button->boundingRect());
        const double side = all.width() / 3;
        return window().grabWindow().copy(QRectF(all.center() - QPointF(side, side) / 2, QSizeF(side, side)).toRect());
    }

private:
    std::unique_ptr<MainWindow> mainWindow_;
};

}  // namespace

TEST_F(MainWindowTest, hasTitleAndMinimumSize) {
    EXPECT_EQ(showWindow().window().title(), QStringLiteral("Zelk"));
    EXPECT_EQ(window().minimumWidth(), 960);
    EXPECT_EQ(window().minimumHeight(), 620);
    EXPECT_GE(window().width(), 960);
    EXPECT_GE(window().height(), 620);
}

TEST_F(MainWindowTest, startsNoSurvey) {
    showWindow();
    runWhatIsThere();
    EXPECT_EQ(model().scanPhase(), Phase::idle);
}

TEST_F(MainWindowTest, focusesScanButtonFirst) {
    showWindow();
    ASSERT_NE(window().activeFocusItem(), nullptr);
    EXPECT_EQ(window().activeFocusItem()->objectName(), QStringLiteral("scanButton"));
}

TEST_F(MainWindowTest, tabVisitsFeaturesAfterScanButton) {
    showWindow();
    EXPECT_EQ(tabOrder(),
              (std::vector<std::string>{scanName(), "Reclaim junk", "Find duplicates", "Largest files", "Visual map"}));
}

TEST_F(MainWindowTest, tabVisitsCancelDuringSurvey) {
    showWindow();
    scanAndHold();
    EXPECT_EQ(tabOrder(), (std::vector<std::string>{"scanning…", "cancel"}));
}

TEST_F(MainWindowTest, namesAllControlsAndTextsInEveryPhase) {
    showWindow();
    expectEverythingNamed();
    scanAndHold();
    expectEverythingNamed();
    finish();
    expectEverythingNamed();
}

TEST_F(MainWindowTest, tabShowsFocusRing) {
    showWindow();
    pressKey(window(), Qt::Key_Tab);
    QQuickItem* pill = window().activeFocusItem();
    ASSERT_NE(pill, nullptr);
    EXPECT_TRUE(pill->property("visualFocus").toBool());
    bool ringed = false;
    std::vector<QQuickItem*> pending{pill};
    while (!pending.empty()) {
        QQuickItem* item = pending.back();
        pending.pop_back();
        for (QQuickItem* child : item->childItems()) pending.push_back(child);
        if (QByteArray(item->metaObject()->className()).startsWith("FocusRing")) ringed |= item->isVisible();
    }
    EXPECT_TRUE(ringed);
}

TEST_F(MainWindowTest, returnsFocusToScanButtonWhenCancelDisappears) {
    showWindow();
    scanAndHold();
    pressKey(window(), Qt::Key_Tab);
    EXPECT_EQ(focusName(), "cancel");
    pressKey(window(), Qt::Key_Space);
    EXPECT_EQ(model().scanPhase(), Phase::idle);
    EXPECT_EQ(focusName(), scanName());
    EXPECT_TRUE(window().activeFocusItem()->property("visualFocus").toBool()) << "the focus must stay visible";
}

TEST_F(MainWindowTest, mouseShowsNoFocusRing) {
    showWindow();
    machine.directories.hold(home + "/wide/inner");
    ASSERT_TRUE(tour::clickOn(window(), QStringLiteral("scanButton")));
    runUntil([&] { return model().itemsScanned() > 0; });
    window().grabWindow();  // applies the layout of the new phase
    ASSERT_TRUE(tour::clickOn(window(), QStringLiteral("cancelButton")));
    EXPECT_EQ(model().scanPhase(), Phase::idle);
    EXPECT_EQ(focusName(), scanName());
    EXPECT_FALSE(window().activeFocusItem()->property("visualFocus").toBool());
}

TEST_F(MainWindowTest, screenReaderPressesScanButtonOnce) {
    showWindow();
    machine.directories.hold(home);
    QSignalSpy clicks(findControl(window(), QStringLiteral("scanButton")), SIGNAL(clicked()));
    QAccessibleActionInterface* actions = scanButton().actionInterface();
    ASSERT_NE(actions, nullptr);
    EXPECT_TRUE(actions->actionNames().contains(QAccessibleActionInterface::pressAction()));
    actions->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(clicks.count(), 1);
    EXPECT_EQ(model().scanPhase(), Phase::scanning);
    EXPECT_EQ(timesSignalled("scanPhase"), 1);
}

TEST_F(MainWindowTest, keyboardPressesFeature) {
    showWindow();
    pressKey(window(), Qt::Key_Tab);
    pressKey(window(), Qt::Key_Tab);
    pressKey(window(), Qt::Key_Return);
    EXPECT_EQ(model().selection(), Screen::duplicates);
}

TEST_F(MainWindowTest, scanButtonLooksDifferentInEachPhase) {
    showWindow();
    for (const auto appearance : {AppModel::Appearance::dark, AppModel::Appearance::light}) {
        model().setAppearance(appearance);
        model().cancelScan();
        const QImage idle = face();
        scanAndHold();
        const QImage scanning = face();
        finish();
        const QImage finished = face();
        EXPECT_NE(idle, scanning);
        EXPECT_NE(scanning, finished);
        EXPECT_NE(finished, idle);
    }
}

TEST_F(MainWindowTest, paintsBackgroundOfTheme) {
    showWindow();
    const auto bottomRight = [&] {
        const QImage picture = window().grabWindow();
        return picture.pixelColor(picture.width() - 1, picture.height() - 1);
    };
    EXPECT_NEAR(bottomRight().lightness(), ZelkTheme::dark().ground.lightness(), 2);
    model().setAppearance(AppModel::Appearance::light);
    EXPECT_NEAR(bottomRight().lightness(), ZelkTheme::light().ground.lightness(), 2);
}

TEST_F(MainWindowTest, keepsScanButtonInPlaceWhenScanning) {
    showWindow();
    const QPointF before = findControl(window(), QStringLiteral("scanButton"))->mapToScene({});
    scanAndHold();
    EXPECT_EQ(findControl(window(), QStringLiteral("scanButton"))->mapToScene({}), before);
}

TEST_F(MainWindowTest, fitsEverythingAtMinimumSize) {
    showWindow();
    window().resize(960, 620);
    runUntil([&] { return window().contentItem()->size() == QSizeF(960, 620); });
    expectEverythingInsideWindow();
    scanAndHold();
    runUntil([&] { return !showWindow().survey().pathLine().isEmpty(); });
    expectEverythingInsideWindow();
}

TEST_F(MainWindowTest, sidebarShowsTheSelectedModuleWhateverChoseIt) {
    showWindow();
    showWindow().textScale().setFactor(1.5);
    window().resize(960, 620);
    const auto inSight = [this](const char* name) {
        const QQuickItem* row = findControl(window(), QString::fromLatin1(name));
        const QQuickItem* area = row;
        while (area != nullptr && !area->inherits("QQuickFlickable")) area = area->parentItem();
        return area != nullptr &&
               area->mapRectToScene(area->boundingRect()).contains(row->mapRectToScene(QRectF({}, row->size())));
    };
    runUntil([&] { return !inSight("sidebarSystem"); });
    model().setSelection(Screen::system);
    runUntil([&] { return inSight("sidebarSystem"); });
    model().setSelection(Screen::survey);
    runUntil([&] { return inSight("sidebarOverview"); });
    showWindow().textScale().setFactor(1);
}

TEST_F(MainWindowTest, reducedMotionStopsComet) {
    showWindow();
    scanAndHold();
    // An animator changes the rendering, not the item: compare pixels at the top of the ring, where the comet rests.
    const QQuickItem* comet = findControl(window(), QStringLiteral("comet"));
    ASSERT_NE(comet, nullptr);
    const QRect top = comet->mapRectToScene(QRectF(comet->width() / 2 - 6, 0, 12, 14)).toRect();
    const auto drawn = [&] { return window().grabWindow().copy(top); };
    const QImage atRest = drawn();
    runWhatIsThere();
    EXPECT_EQ(drawn(), atRest);
    showWindow().motion().setReduced(false);
    runUntil([&] { return drawn() != atRest; });
}

}  // namespace zelk
