// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include <QTest>

#include "ViewFixture.h"

namespace zelk {

namespace {

constexpr const char* searchBoard = R"(
import QtQuick
import Zelk.Controls

FocusScope {
    id: board

    property string told
    property int escapes: 0

    focus: true
    Keys.onEscapePressed: board.escapes++

    Item {
        objectName: "start"
        width: 20
        height: 20
        focus: true
        activeFocusOnTab: true
        Accessible.role: Accessible.Pane
        Accessible.name: "Start"
    }
    SearchField {
        objectName: "field"
        x: 40
        y: 40
        hint: "Search"
        onSearched: words => board.told += "[" + words + "]"
    }
}
)";

class SearchFieldView : public ViewFixture {
protected:
    SearchFieldView() {
        show(QString::fromUtf8(searchBoard), {400, 160});
        find("start")->forceActiveFocus();
    }
    ~SearchFieldView() override { close(); }

    QQuickItem& field() { return *find("field"); }
    std::string text() { return field().property("text").toString().toStdString(); }
    std::string told() {
        const std::string all = view().property("told").toString().toStdString();
        view().setProperty("told", QString());
        return all;
    }
    void type(const std::string& words) {
        for (const char letter : words) QTest::keyClick(&window(), letter);
        settle();
    }
    bool isRinged() {
        for (QQuickItem* item : seen())
            if (QString::fromLatin1(item->metaObject()->className()).startsWith(QStringLiteral("FocusRing")))
                return true;
        return false;
    }
};

}  // namespace

TEST_F(SearchFieldView, showsSymbolAndHintWhileEmpty) {
    EXPECT_EQ(seenTexts(), std::vector<std::string>{"Search"});
    ASSERT_NE(symbol("magnifyingglass"), nullptr);
    EXPECT_EQ(symbol("xmark.circle.fill"), nullptr);
    press(Qt::Key_Tab);
    type("ab");
    EXPECT_EQ(seenTexts(), std::vector<std::string>{});
    EXPECT_NE(symbol("xmark.circle.fill"), nullptr);
}

TEST_F(SearchFieldView, tabReachesItWithRing) {
    EXPECT_FALSE(isRinged());
    press(Qt::Key_Tab);
    EXPECT_TRUE(field().hasActiveFocus());
    EXPECT_TRUE(isRinged());
    press(Qt::Key_Tab);
    EXPECT_EQ(focusName(), "Start") << "the clear button is no stop";
    EXPECT_FALSE(isRinged());
}

TEST_F(SearchFieldView, tellsEveryTypedText) {
    press(Qt::Key_Tab);
    type("ab");
    EXPECT_EQ(told(), "[a][ab]");
    press(Qt::Key_Backspace);
    EXPECT_EQ(told(), "[a]");
    EXPECT_EQ(text(), "a");
}

TEST_F(SearchFieldView, doesNotTellTextsThatAreSet) {
    field().setProperty("text", QStringLiteral("given"));
    settle();
    EXPECT_EQ(told(), "");
}

TEST_F(SearchFieldView, escapeClearsAndThenGoesOn) {
    press(Qt::Key_Tab);
    type("ab");
    told();
    press(Qt::Key_Escape);
    EXPECT_EQ(text(), "");
    EXPECT_EQ(told(), "[]");
    EXPECT_EQ(view().property("escapes").toInt(), 0);
    EXPECT_TRUE(field().hasActiveFocus());
    press(Qt::Key_Escape);
    EXPECT_EQ(told(), "");
    EXPECT_EQ(view().property("escapes").toInt(), 1);
}

TEST_F(SearchFieldView, buttonClearsAndGivesTheFocus) {
    press(Qt::Key_Tab);
    type("ab");
    find("start")->forceActiveFocus();
    told();
    EXPECT_EQ(nameOf(find("clearSearch")), "Clear");
    click("clearSearch");
    EXPECT_EQ(text(), "");
    EXPECT_EQ(told(), "[]");
    EXPECT_TRUE(field().hasActiveFocus());
    EXPECT_EQ(find("clearSearch"), nullptr);
}

TEST_F(SearchFieldView, findSelectsWhatIsThere) {
    field().setProperty("text", QStringLiteral("old"));
    QMetaObject::invokeMethod(&field(), "find");
    settle();
    EXPECT_TRUE(field().hasActiveFocus());
    type("n");
    EXPECT_EQ(text(), "n");
}

TEST_F(SearchFieldView, isSearchFieldForScreenReaders) {
    QAccessibleInterface* control = QAccessible::queryAccessibleInterface(&field());
    ASSERT_NE(control, nullptr);
    EXPECT_EQ(control->role(), QAccessible::EditableText);
    EXPECT_EQ(control->text(QAccessible::Name), QStringLiteral("Search"));
    EXPECT_TRUE(control->state().searchEdit);
    field().setProperty("text", QStringLiteral("given"));
    EXPECT_EQ(control->text(QAccessible::Name), QStringLiteral("Search"));
}

TEST_F(SearchFieldView, clickGivesFocus) {
    click("field");
    EXPECT_TRUE(field().hasActiveFocus());
}

TEST_F(SearchFieldView, typesInTheFaceOfAllTexts) {
    const QString face = QGuiApplication::font().family();
    ASSERT_EQ(face, QStringLiteral("Inter"));
    EXPECT_EQ(field().property("font").value<QFont>().family(), face);
}

TEST_F(SearchFieldView, growsWithTexts) {
    const QSizeF normal = field().size();
    singleton<TextScale>("TextScale").setFactor(1.5);
    settle();
    EXPECT_EQ(field().width(), normal.width() * 1.5);
    EXPECT_GT(field().height(), normal.height());
    expectNoTextClipped();
    singleton<TextScale>("TextScale").setFactor(1);
}

}  // namespace zelk
