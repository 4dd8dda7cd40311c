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
#include "ui/theme/ZelkTheme.h"

namespace zelk {

namespace {

using tour::findControl;
using tour::pressKey;

class Window : public AppModelFixture {
protected:
    Window() {
        fillHome();
        addWideFolder(home + "/wide");
    }
    ~Window() override {
        machine.directories.release();
        shown_.reset();
    }

    MainWindow& shown() {
        if (!shown_) {
            shown_ = std::make_unique<MainWindow>(model());
            shown_->motion().setReduced(true);
            shown_->show();
            runUntil([&] { return shown_->isUp(); });
        }
        return *shown_;
    }
    QQuickWindow& window() { return shown_->window(); }

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

    /// The names of what the Tab key comes to beside the sidebar, in its order, from one control round to the same
    /// again.
    std::vector<std::string> tabOrder() {
        std::vector<std::string> names;
        QQuickItem* first = window().activeFocusItem();
        do {
            if (!inSidebar(window().activeFocusItem())) names.push_back(focusName());
            pressKey(window(), Qt::Key_Tab);
        } while (window().activeFocusItem() != first && names.size() < 40);
        return names;
    }

    /// What the scan button is called before a survey.
    static std::string scanName() { return "Scan " + SystemTexts::of(SystemTexts::WholeComputer).toStdString(); }
    std::string focusName() {
        QAccessibleInterface* control = QAccessible::queryAccessibleInterface(window().activeFocusItem());
        return control == nullptr ? std::string() : control->text(QAccessible::Name).toStdString();
    }

    /// What is shown beside the sidebar and the menus: the controls, and the texts that are no part of one.
    struct Shown {
        std::vector<QQuickItem*> controls;
        std::vector<QQuickItem*> texts;
    };
    Shown whatIsShown() {
        Shown found;
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
        const Shown all = whatIsShown();
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

    void expectEverythingInSight() {
        window().grabWindow();  // lays out what the phase brought
        const QRectF bounds(0, 0, window().width(), window().height());
        const Shown all = whatIsShown();
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

    /// The middle of the scan button, where its phase is written.
    QImage face() {
        const QQuickItem* button = findControl(window(), QStringLiteral("scanButton"));
        const QRectF all = button->mapRectToScene(button->boundingRect());
        const double side = all.width() / 3;
        return window().grabWindow().copy(QRectF(all.center() - QPointF(side, side) / 2, QSizeF(side, side)).toRect());
    }

private:
    std::unique_ptr<MainWindow> shown_;
};

}  // namespace

TEST_F(Window, isCalledZelkAndHasItsLeastSize) {
    EXPECT_EQ(shown().window().title(), QStringLiteral("Zelk"));
    EXPECT_EQ(window().minimumWidth(), 960);
    EXPECT_EQ(window().minimumHeight(), 620);
    EXPECT_GE(window().width(), 960);
    EXPECT_GE(window().height(), 620);
}

TEST_F(Window, startsNoSurveyByItself) {
    shown();
    runWhatIsThere();
    EXPECT_EQ(model().scanPhase(), Phase::idle);
}

TEST_F(Window, givesTheScanButtonTheKeyboard) {
    shown();
    ASSERT_NE(window().activeFocusItem(), nullptr);
    EXPECT_EQ(window().activeFocusItem()->objectName(), QStringLiteral("scanButton"));
}

TEST_F(Window, tabGoesFromTheButtonToTheFeatures) {
    shown();
    EXPECT_EQ(tabOrder(),
              (std::vector<std::string>{scanName(), "Reclaim junk", "Find duplicates", "Largest files", "Visual map"}));
}

TEST_F(Window, tabGoesFromTheButtonToCancelDuringASurvey) {
    shown();
    scanAndHold();
    EXPECT_EQ(tabOrder(), (std::vector<std::string>{"scanning…", "cancel"}));
}

TEST_F(Window, namesAllItsControlsAndTextsInEveryPhase) {
    shown();
    expectEverythingNamed();
    scanAndHold();
    expectEverythingNamed();
    finish();
    expectEverythingNamed();
}

TEST_F(Window, showsWhereTheKeyboardIs) {
    shown();
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

TEST_F(Window, keepsTheKeyboardOnTheButtonWhenTheFocusedControlGoes) {
    shown();
    scanAndHold();
    pressKey(window(), Qt::Key_Tab);
    EXPECT_EQ(focusName(), "cancel");
    pressKey(window(), Qt::Key_Space);
    EXPECT_EQ(model().scanPhase(), Phase::idle);
    EXPECT_EQ(focusName(), scanName());
    EXPECT_TRUE(window().activeFocusItem()->property("visualFocus").toBool()) << "the keyboard must stay in sight";
}

TEST_F(Window, showsNoRingToWhoUsesTheMouse) {
    shown();
    machine.directories.hold(home + "/wide/inner");
    ASSERT_TRUE(tour::clickOn(window(), QStringLiteral("scanButton")));
    runUntil([&] { return model().itemsScanned() > 0; });
    window().grabWindow();  // lays out what the phase brought
    ASSERT_TRUE(tour::clickOn(window(), QStringLiteral("cancelButton")));
    EXPECT_EQ(model().scanPhase(), Phase::idle);
    EXPECT_EQ(focusName(), scanName());
    EXPECT_FALSE(window().activeFocusItem()->property("visualFocus").toBool());
}

TEST_F(Window, isPressedOnceByAScreenReader) {
    shown();
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

TEST_F(Window, pressesAFeatureWithTheKeyboard) {
    shown();
    pressKey(window(), Qt::Key_Tab);
    pressKey(window(), Qt::Key_Tab);
    pressKey(window(), Qt::Key_Return);
    EXPECT_EQ(model().selection(), Screen::duplicates);
}

TEST_F(Window, hasAFaceOfItsOwnForEveryPhaseInBothThemes) {
    shown();
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

TEST_F(Window, hasTheThemesGroundBehindEverything) {
    shown();
    const auto bottomRight = [&] {
        const QImage picture = window().grabWindow();
        return picture.pixelColor(picture.width() - 1, picture.height() - 1);
    };
    EXPECT_NEAR(bottomRight().lightness(), ZelkTheme::dark().ground.lightness(), 2);
    model().setAppearance(AppModel::Appearance::light);
    EXPECT_NEAR(bottomRight().lightness(), ZelkTheme::light().ground.lightness(), 2);
}

TEST_F(Window, movesNothingButTheCometFromPhaseToPhase) {
    shown();
    const QPointF before = findControl(window(), QStringLiteral("scanButton"))->mapToScene({});
    scanAndHold();
    EXPECT_EQ(findControl(window(), QStringLiteral("scanButton"))->mapToScene({}), before);
}

TEST_F(Window, keepsEverythingInSightAtItsLeastSize) {
    shown();
    window().resize(960, 620);
    runUntil([&] { return window().contentItem()->size() == QSizeF(960, 620); });
    expectEverythingInSight();
    scanAndHold();
    runUntil([&] { return !shown().survey().pathLine().isEmpty(); });
    expectEverythingInSight();
}

TEST_F(Window, turnsTheCometOnlyWhereMotionIsWanted) {
    shown();
    scanAndHold();
    // An animator moves what is drawn and not the item: look at the top of the ring, where the comet's head rests.
    const QQuickItem* comet = findControl(window(), QStringLiteral("comet"));
    ASSERT_NE(comet, nullptr);
    const QRect top = comet->mapRectToScene(QRectF(comet->width() / 2 - 6, 0, 12, 14)).toRect();
    const auto drawn = [&] { return window().grabWindow().copy(top); };
    const QImage atRest = drawn();
    runWhatIsThere();
    EXPECT_EQ(drawn(), atRest);
    shown().motion().setReduced(false);
    runUntil([&] { return drawn() != atRest; });
}

}  // namespace zelk
