// SPDX-License-Identifier: MIT
// Shows one of each shared control and a sheet, and records what each of them signals.
#pragma once

#include <QKeyEvent>
#include <algorithm>

#include "ViewFixture.h"

namespace zelk {

inline constexpr const char* controlsBoard = R"(
import QtQuick
import Zelk.App
import Zelk.Charts
import Zelk.Controls

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
        Button {
            kind: Button.Primary
            objectName: "primary"
            text: "Clean"
            enabled: board.able
            onClicked: board.tell("primary")
        }
        Button {
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
        Button {
            kind: Button.Link
            objectName: "link"
            text: "Show all"
            enabled: board.able
            onClicked: board.tell("link")
        }
        ModuleCard {
            objectName: "card"
            symbol: "gearshape"
            title: "Large Files"
            value: 12e9
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

            Button {
                objectName: "cancel"
                text: "Cancel"
                onClicked: board.tell("cancel")
            }
            Button {
                id: go

                kind: Button.Primary
                objectName: "go"
                text: "Move"
                enabled: board.able
                onClicked: board.tell("go")
            }
        }
    }
}
)";

class ControlsFixture : public ViewFixture {
protected:
    ControlsFixture() {
        show(QString::fromUtf8(controlsBoard), {560, 760});
        find("start")->forceActiveFocus();
    }

    /// Returns what the controls signalled since the last call, separated by blanks.
    std::string told() {
        const std::string text = view().property("told").toString().trimmed().toStdString();
        view().setProperty("told", QString());
        return text;
    }
    void give(const char* object) {
        find(object)->forceActiveFocus(Qt::TabFocusReason);
        settle();
    }
    /// The number of visible focus rings.
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
    /// Holds a key until it has repeated three times, with the events that a window system sends.
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

}  // namespace zelk
