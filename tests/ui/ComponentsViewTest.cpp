// SPDX-License-Identifier: MIT
// The controls of the house under the mouse, the keyboard and a screen reader.
#include <gmock/gmock.h>

#include <QKeyEvent>
#include <QTest>
#include <algorithm>

#include "ViewFixture.h"

namespace zelk {

namespace {

using Names = std::vector<std::string>;

const char* const board = R"(
import QtQuick
import Zelk.Components

FocusScope {
    id: board

    property string told
    property int picked: 1
    property bool able: true

    function tell(what) { board.told += what + " "; }

    focus: true

    Column {
        x: 20
        y: 20
        spacing: 16

        Item {
            objectName: "start"
            width: 20
            height: 20
            focus: true
            activeFocusOnTab: true
            Accessible.role: Accessible.Pane
            Accessible.name: "Start"
        }
        PrimaryButton {
            objectName: "primary"
            text: "Clean"
            enabled: board.able
            onClicked: board.tell("primary")
        }
        SecondaryButton {
            objectName: "secondary"
            text: "Later"
            enabled: board.able
            onClicked: board.tell("secondary")
        }
        IconButton {
            objectName: "icon"
            text: "Refresh"
            symbol: "gearshape"
            help: "Reads it again"
            enabled: board.able
            onClicked: board.tell("icon")
        }
        LinkButton {
            objectName: "link"
            text: "Show all"
            enabled: board.able
            onClicked: board.tell("link")
        }
        ModuleCard {
            objectName: "card"
            symbol: "gearshape"
            title: "Large Files"
            value: "12 GB"
            detail: "40 items"
            tint: "#123456"
            enabled: board.able
            onClicked: board.tell("card")
        }
        ToggleSwitch {
            objectName: "toggle"
            text: "Delete permanently"
            onToggled: board.tell("toggle")
        }
        StepperField {
            objectName: "stepper"
            label: "Days"
            from: 0
            to: 3
            value: 1
            onMoved: value => board.tell(value)
        }
        SegmentedPicker {
            objectName: "picker"
            label: "Theme"
            options: ["System", "Light", "Dark"]
            current: board.picked
            onPicked: index => {
                board.picked = index;
                board.tell("picked" + index);
            }
        }
    }

    Sheet {
        objectName: "sheet"
        title: "Move to Trash"
        primary: go
        onDismissed: board.tell("dismissed")

        Column {
            spacing: 8

            SecondaryButton {
                objectName: "cancel"
                text: "Cancel"
                onClicked: board.tell("cancel")
            }
            PrimaryButton {
                id: go

                objectName: "go"
                text: "Move"
                enabled: board.able
                onClicked: board.tell("go")
            }
        }
    }
}
)";

struct Pressable {
    const char* object;
    const char* name;
};
constexpr Pressable buttons[] = {{"primary", "Clean"},
                                 {"secondary", "Later"},
                                 {"icon", "Refresh"},
                                 {"link", "Show all"},
                                 {"card", "Large Files, 12 GB, 40 items"}};

class ControlsWindow : public ViewFixture {
protected:
    ControlsWindow() {
        show(QString::fromUtf8(board), {560, 760});
        find("start")->forceActiveFocus();
    }

    /// What was told since the last call.
    std::string told() {
        const std::string text = view().property("told").toString().trimmed().toStdString();
        view().setProperty("told", QString());
        return text;
    }
    void give(const char* object) {
        find(object)->forceActiveFocus(Qt::TabFocusReason);
        settle();
    }
    /// The rings that are seen.
    std::ptrdiff_t rings() {
        const std::vector<QQuickItem*> items = seen();
        return std::count_if(items.begin(), items.end(), [](const QQuickItem* item) {
            return QString::fromLatin1(item->metaObject()->className()).startsWith(QStringLiteral("FocusRing"));
        });
    }
    void sendKey(QEvent::Type type, Qt::Key key, bool repeated) {
        QKeyEvent event(type, key, Qt::NoModifier, {}, repeated);
        QCoreApplication::sendEvent(&window(), &event);
    }
    /// Holds a key down until it has repeated itself three times, as the system tells it.
    void hold(Qt::Key key) {
        sendKey(QEvent::KeyPress, key, false);
        for (int repeat = 0; repeat < 3; ++repeat) {
            sendKey(QEvent::KeyRelease, key, true);
            sendKey(QEvent::KeyPress, key, true);
        }
        sendKey(QEvent::KeyRelease, key, false);
        settle();
    }
    QAccessible::Role roleOf(const char* object) { return QAccessible::queryAccessibleInterface(find(object))->role(); }
    QAccessible::State stateOf(QQuickItem* item) { return QAccessible::queryAccessibleInterface(item)->state(); }
    void openSheet() {
        QMetaObject::invokeMethod(sheet(), "open");
        settle();
        ASSERT_NE(find("cancel"), nullptr);
    }
    QObject* sheet() { return view().findChild<QObject*>(QStringLiteral("sheet")); }
    QQuickItem* segment(const char* name) {
        for (QQuickItem* item : seen())
            if (item->activeFocusOnTab() || item->property("chosen").isValid())
                if (nameOf(item) == name) return item;
        return nullptr;
    }
    void clickItem(const QQuickItem* item) {
        tour::clickAt(window(), item->mapToScene(item->boundingRect().center()));
        settle();
    }
};

}  // namespace

TEST_F(ControlsWindow, everyButtonIsPressedWithTheMouse) {
    for (const auto& [object, name] : buttons) {
        click(object);
        EXPECT_EQ(told(), object);
    }
}

TEST_F(ControlsWindow, everyButtonIsPressedWithSpaceReturnAndEnter) {
    for (const auto& [object, name] : buttons) {
        give(object);
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
            press(key);
            EXPECT_EQ(told(), object) << key;
        }
    }
}

TEST_F(ControlsWindow, aKeyThatIsHeldPressesOnce) {
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        for (const auto& [object, name] : buttons) {
            give(object);
            hold(key);
            EXPECT_EQ(told(), object) << key;
        }
        give("toggle");
        hold(key);
        EXPECT_EQ(told(), "toggle") << key;
        EXPECT_EQ(find("toggle")->property("checked").toBool(), key != Qt::Key_Return) << key;
    }
}

TEST_F(ControlsWindow, everyButtonIsToldAsAButtonWithItsName) {
    for (const auto& [object, name] : buttons) {
        EXPECT_EQ(roleOf(object), QAccessible::Button) << object;
        EXPECT_EQ(nameOf(find(object)), name);
    }
    const QAccessibleInterface* icon = QAccessible::queryAccessibleInterface(find("icon"));
    EXPECT_EQ(icon->text(QAccessible::Description), QStringLiteral("Reads it again"));
}

TEST_F(ControlsWindow, aScreenReaderPressesEveryButtonOnce) {
    for (const auto& [object, name] : buttons) {
        QAccessible::queryAccessibleInterface(find(object))
            ->actionInterface()
            ->doAction(QAccessibleActionInterface::pressAction());
        EXPECT_EQ(told(), object);
    }
}

TEST_F(ControlsWindow, whatIsDisabledIsNeitherReachedNorPressed) {
    view().setProperty("able", false);
    settle();
    const Names order = tabOrder();
    for (const auto& [object, name] : buttons) {
        EXPECT_EQ(std::count(order.begin(), order.end(), name), 0) << name;
        click(object);
        QAccessible::queryAccessibleInterface(find(object))
            ->actionInterface()
            ->doAction(QAccessibleActionInterface::pressAction());
        EXPECT_EQ(told(), "") << object;
        EXPECT_LT(find(object)->opacity() * find(object)->property("contentItem").value<QQuickItem*>()->opacity(), 1)
            << object;
    }
}

TEST_F(ControlsWindow, theTabKeyComesToEachOnceInItsOrder) {
    EXPECT_EQ(tabOrder(), (Names{"Start", "Clean", "Later", "Refresh", "Show all", "Large Files, 12 GB, 40 items",
                                 "Delete permanently", "Days", "Light"}));
}

TEST_F(ControlsWindow, theRingIsShownWithTheKeyboardAlone) {
    EXPECT_EQ(rings(), 0);
    for (const char* object : {"primary", "secondary", "icon", "link", "card", "toggle", "stepper"}) {
        click(object);
        EXPECT_EQ(rings(), 0) << object;
        find("start")->forceActiveFocus();
        give(object);
        EXPECT_EQ(rings(), 1) << object;
        find("start")->forceActiveFocus();
        settle();
        EXPECT_EQ(rings(), 0) << object;
    }
    clickItem(segment("Dark"));
    EXPECT_EQ(rings(), 0);
    press(Qt::Key_Left);
    EXPECT_EQ(rings(), 1);
}

TEST_F(ControlsWindow, aToggleIsSwitchedByMouseSpaceAndReturn) {
    const auto isOn = [&] { return find("toggle")->property("checked").toBool(); };
    click("toggle");
    EXPECT_TRUE(isOn());
    EXPECT_EQ(told(), "toggle");
    press(Qt::Key_Space);
    EXPECT_FALSE(isOn());
    EXPECT_EQ(told(), "toggle");
    press(Qt::Key_Return);
    EXPECT_TRUE(isOn());
    EXPECT_EQ(told(), "toggle");
}

TEST_F(ControlsWindow, aToggleIsToldWithItsState) {
    EXPECT_EQ(roleOf("toggle"), QAccessible::CheckBox);
    EXPECT_EQ(nameOf(find("toggle")), "Delete permanently");
    EXPECT_TRUE(stateOf(find("toggle")).checkable);
    EXPECT_FALSE(stateOf(find("toggle")).checked);
    click("toggle");
    EXPECT_TRUE(stateOf(find("toggle")).checked);
}

TEST_F(ControlsWindow, aScreenReaderSwitchesAToggleOnce) {
    QAccessibleActionInterface* toggle = QAccessible::queryAccessibleInterface(find("toggle"))->actionInterface();
    ASSERT_TRUE(toggle->actionNames().contains(QAccessibleActionInterface::toggleAction()));
    toggle->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_TRUE(find("toggle")->property("checked").toBool());
    EXPECT_EQ(told(), "toggle");
    toggle->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_FALSE(find("toggle")->property("checked").toBool());
    EXPECT_EQ(told(), "toggle");
    find("toggle")->setEnabled(false);
    toggle->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_FALSE(find("toggle")->property("checked").toBool());
}

TEST_F(ControlsWindow, aStepperIsSteppedByTheArrowsToItsEnds) {
    give("stepper");
    for (int step = 0; step < 3; ++step) press(Qt::Key_Up);
    EXPECT_EQ(told(), "2 3");
    for (int step = 0; step < 5; ++step) press(Qt::Key_Down);
    EXPECT_EQ(told(), "2 1 0");
}

TEST_F(ControlsWindow, aStepperIsSteppedByTheMouse) {
    const auto indicator = [&](const char* which) {
        QObject* side = find("stepper")->property(which).value<QObject*>();
        return side->property("indicator").value<QQuickItem*>();
    };
    clickItem(indicator("up"));
    EXPECT_EQ(told(), "2");
    clickItem(indicator("down"));
    clickItem(indicator("down"));
    clickItem(indicator("down"));
    EXPECT_EQ(told(), "1 0");
}

TEST_F(ControlsWindow, aStepperIsToldWithItsName) {
    EXPECT_EQ(roleOf("stepper"), QAccessible::SpinBox);
    EXPECT_EQ(nameOf(find("stepper")), "Days");
    QAccessibleInterface* stepper = QAccessible::queryAccessibleInterface(find("stepper"));
    ASSERT_NE(stepper->valueInterface(), nullptr);
    EXPECT_EQ(stepper->valueInterface()->currentValue().toInt(), 1);
}

TEST_F(ControlsWindow, aPickerIsPickedByTheArrowsAndStopsAtItsEnds) {
    segment("Light")->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Right);
    EXPECT_EQ(told(), "picked2");
    press(Qt::Key_Right);
    EXPECT_EQ(told(), "");
    EXPECT_EQ(focusName(), "Dark");
    press(Qt::Key_Up);
    press(Qt::Key_Left);
    EXPECT_EQ(told(), "picked1 picked0");
    press(Qt::Key_Left);
    EXPECT_EQ(told(), "");
    EXPECT_EQ(focusName(), "System");
    press(Qt::Key_Down);
    EXPECT_EQ(told(), "picked1");
}

TEST_F(ControlsWindow, aPickerIsPickedByTheMouseAndReachedWhereItIsPicked) {
    clickItem(segment("Dark"));
    EXPECT_EQ(told(), "picked2");
    find("start")->forceActiveFocus();
    press(Qt::Key_Backtab);
    EXPECT_EQ(focusName(), "Dark");
    press(Qt::Key_Space);
    EXPECT_EQ(told(), "picked2") << "what is picked stays so";
}

TEST_F(ControlsWindow, aPickersWordsAreToldAsOneChoice) {
    EXPECT_EQ(roleOf("picker"), QAccessible::Grouping);
    EXPECT_EQ(nameOf(find("picker")), "Theme");
    for (const char* name : {"System", "Light", "Dark"}) {
        QQuickItem* word = segment(name);
        ASSERT_NE(word, nullptr) << name;
        // To Qt 6.4 whatever can be pressed is a button.
        EXPECT_THAT(QAccessible::queryAccessibleInterface(word)->role(),
                    testing::AnyOf(QAccessible::RadioButton, QAccessible::Button));
        EXPECT_EQ(stateOf(word).checked, name == std::string("Light")) << name;
    }
}

TEST_F(ControlsWindow, aCardIsNeverNarrowerThan140) {
    EXPECT_GE(find("card")->implicitWidth(), 140);
    for (const char* text : {"title", "value", "detail"}) find("card")->setProperty(text, QStringLiteral("1"));
    settle();
    EXPECT_EQ(find("card")->implicitWidth(), 140);
}

TEST_F(ControlsWindow, aCardRisesUnderThePointer) {
    QQuickItem* ground = find("card")->property("background").value<QQuickItem*>();
    const auto shadow = [&] {
        settle();
        return std::pair(ground->property("shadowOpacity").toDouble(), ground->property("shadowRadius").toDouble());
    };
    tour::restPointer(window());
    EXPECT_EQ(shadow(), std::pair(0.06, 6.0));
    const QColor resting = ground->property("outline").value<QColor>();
    QTest::mouseMove(&window(), find("card")->mapToScene({20, 20}).toPoint());
    EXPECT_EQ(shadow(), std::pair(0.25, 12.0));
    const QColor outline = ground->property("outline").value<QColor>();
    EXPECT_EQ(outline.rgb(), QColor(0x12, 0x34, 0x56).rgb());
    EXPECT_NEAR(outline.alphaF(), 0.5, 0.01);
    tour::restPointer(window());
    EXPECT_EQ(shadow(), std::pair(0.06, 6.0));
    EXPECT_EQ(ground->property("outline").value<QColor>(), resting);
}

TEST_F(ControlsWindow, theSheetIsADialogWithItsTitle) {
    openSheet();
    QQuickItem* inside = sheet()->property("contentItem").value<QQuickItem*>();
    EXPECT_EQ(QAccessible::queryAccessibleInterface(inside)->role(), QAccessible::Dialog);
    EXPECT_EQ(nameOf(inside), "Move to Trash");
}

TEST_F(ControlsWindow, escapeDismissesTheSheetOnce) {
    openSheet();
    press(Qt::Key_Escape);
    EXPECT_EQ(told(), "dismissed");
    EXPECT_TRUE(sheet()->property("opened").toBool()) << "who shows it decides when it goes";
    give("cancel");
    press(Qt::Key_Escape);
    EXPECT_EQ(told(), "dismissed");
}

TEST_F(ControlsWindow, escapeDoesNothingToASheetThatCannotBeClosed) {
    sheet()->setProperty("closable", false);
    openSheet();
    press(Qt::Key_Escape);
    EXPECT_EQ(told(), "");
}

TEST_F(ControlsWindow, enterPressesTheSheetsPrimary) {
    openSheet();
    press(Qt::Key_Return);
    EXPECT_EQ(told(), "go");
    press(Qt::Key_Enter);
    EXPECT_EQ(told(), "go");
    hold(Qt::Key_Return);
    EXPECT_EQ(told(), "go");
    view().setProperty("able", false);
    press(Qt::Key_Return);
    EXPECT_EQ(told(), "") << "it is not to be pressed";
}

TEST_F(ControlsWindow, aButtonOfTheSheetThatHasTheKeyboardIsThePressedOne) {
    openSheet();
    give("cancel");
    press(Qt::Key_Return);
    EXPECT_EQ(told(), "cancel");
    press(Qt::Key_Space);
    EXPECT_EQ(told(), "cancel");
}

TEST_F(ControlsWindow, theKeyboardStaysInsideTheSheet) {
    openSheet();
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab}) {
        Names reached;
        for (int stop = 0; stop < 8; ++stop) {
            press(key);
            reached.push_back(focusName());
            EXPECT_TRUE(focusName() == "Cancel" || focusName() == "Move" || focusName() == "Move to Trash")
                << focusName();
        }
        for (const char* name : {"Cancel", "Move"}) EXPECT_GT(std::count(reached.begin(), reached.end(), name), 0);
    }
}

TEST_F(ControlsWindow, theMouseStaysInsideTheSheet) {
    openSheet();
    click("primary");
    EXPECT_EQ(told(), "");
    EXPECT_TRUE(sheet()->property("opened").toBool());
    click("go");
    EXPECT_EQ(told(), "go");
}

TEST_F(ControlsWindow, theKeyboardGoesBackWhereItWas) {
    give("link");
    openSheet();
    EXPECT_NE(focusName(), "Show all");
    QMetaObject::invokeMethod(sheet(), "close");
    settle();
    EXPECT_EQ(focusName(), "Show all");
    EXPECT_EQ(rings(), 1);

    click("secondary");
    openSheet();
    QMetaObject::invokeMethod(sheet(), "close");
    settle();
    EXPECT_EQ(focusName(), "Later");
    EXPECT_EQ(rings(), 0) << "the mouse had pressed it";
}

}  // namespace zelk
