// SPDX-License-Identifier: MIT
// The row of a card that is disabled while what it does goes on.
#include "ViewFixture.h"

namespace zelk {

namespace {

class ActionRowWindow : public ViewFixture {
protected:
    ActionRowWindow() {
        show(QStringLiteral("import QtQuick\n"
                            "import Zelk.Controls\n"
                            "FocusScope {\n"
                            "    id: scope\n"
                            "    focus: true\n"
                            "    property bool busy: false\n"
                            "    ActionRow {\n"
                            "        objectName: 'one'; width: 160; symbol: 'network'; tint: 'red'\n"
                            "        text: 'An action whose name takes several lines'; enabled: !scope.busy\n"
                            "    }\n"
                            "    ActionRow {\n"
                            "        objectName: 'two'; y: 200; width: 160; symbol: 'network'; tint: 'red'\n"
                            "        text: 'Another'\n"
                            "    }\n"
                            "}\n"),
             {200, 300});
    }
    void give(const char* name, Qt::FocusReason reason) { find(name)->forceActiveFocus(reason); }
    bool has(const char* name) { return window().activeFocusItem() == find(name); }
    void setBusy(bool busy) {
        view().setProperty("busy", busy);
        settle();
    }
};

}  // namespace

TEST_F(ActionRowWindow, titleIsWrapped) {
    const QQuickItem* title = showing("An action whose name takes several lines");
    ASSERT_NE(title, nullptr);
    EXPECT_GT(title->property("lineCount").toInt(), 1);
    EXPECT_FALSE(title->property("truncated").toBool());
    EXPECT_GE(find("one")->height(), title->height() + 2 * 7);
    expectNoTextClipped();
}

TEST_F(ActionRowWindow, ringComesBackWithTheFocus) {
    give("one", Qt::TabFocusReason);
    ASSERT_TRUE(focusIsRinged());
    for (int times = 0; times < 2; ++times) {
        setBusy(true);
        EXPECT_FALSE(has("one"));
        setBusy(false);
        EXPECT_TRUE(has("one"));
        EXPECT_TRUE(focusIsRinged());
    }
}

TEST_F(ActionRowWindow, noRingComesBackThatWasNotThere) {
    give("one", Qt::MouseFocusReason);
    setBusy(true);
    setBusy(false);
    EXPECT_TRUE(has("one"));
    EXPECT_FALSE(focusIsRinged());
}

TEST_F(ActionRowWindow, ringIsForgottenWhereTheFocusHasGoneElsewhere) {
    give("one", Qt::TabFocusReason);
    setBusy(true);
    give("two", Qt::TabFocusReason);
    setBusy(false);
    EXPECT_TRUE(has("two"));
    EXPECT_TRUE(focusIsRinged());
    give("one", Qt::MouseFocusReason);
    EXPECT_TRUE(has("one"));
    EXPECT_FALSE(focusIsRinged());
}

}  // namespace zelk
