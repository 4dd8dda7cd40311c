// SPDX-License-Identifier: MIT
#include "MirrorCheck.h"

#include <gmock/gmock.h>
#include <QGuiApplication>

#include "ViewFixture.h"
#include "fakes/RightToLeft.h"

namespace zelk::tour {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class MirrorCheckWindow : public ViewFixture {
protected:
    ~MirrorCheckWindow() override { close(); }

    /// The findings in a mirrored window of 300 by 200 with these items.
    std::vector<std::string> findings(const char* items) {
        show(QStringLiteral("import QtQuick\nimport QtQuick.Templates as T\nimport Zelk.Controls\n"
                            "Window { LayoutMirroring.enabled: ReadingDirection.mirrored;"
                            " LayoutMirroring.childrenInherit: true\n%1 }")
                 .arg(QString::fromUtf8(items)),
             {300, 200});
        check.look(window(), QStringLiteral("here"));
        std::vector<std::string> lines;
        for (const QString& line : check.findings()) lines.push_back(line.toStdString());
        return lines;
    }

    /// A list of 30 rows, five of which are in sight, with a bar in each that stands there.
    static const char* rowsWith(const char* place) {
        static QByteArray list;
        list = QByteArray(R"(ListView {
            objectName: "list"; width: 300; height: 200; topMargin: 30; model: 30; reuseItems: true; clip: true
            delegate: Item {
                required property int index
                width: 300; height: 40
                ListView.onPooled: visible = false
                ListView.onReused: visible = true
                Rectangle { objectName: "bar" + index; width: 20; height: 20; )") +
               place + "} } }";
        return list.constData();
    }

    const fakes::RightToLeft direction;
    MirrorCheck check;
};

}  // namespace

TEST_F(MirrorCheckWindow, acceptsWhatIsMirrored) {
    EXPECT_THAT(findings(R"(
        Rectangle { anchors.left: parent.left; anchors.leftMargin: 12; width: 20; height: 20 }
        Row { anchors.fill: parent; Rectangle { width: 30; height: 9 } Rectangle { width: 50; height: 9 } }
        Rectangle { anchors.centerIn: parent; width: 41; height: 20 }
        Label { width: 300; text: "start" })"),
                IsEmpty());
    EXPECT_EQ(check.compared(), 5);
}

TEST_F(MirrorCheckWindow, findsWhatStaysAtItsPlace) {
    EXPECT_THAT(findings(R"(Rectangle { objectName: "bar"; x: 12; width: 20; height: 20 })"),
                ElementsAre("not mirrored: QQuickRectangle \"bar\" is at 12, not at 268, in here"));
}

TEST_F(MirrorCheckWindow, findsControlsThatPaintNothingThemselves) {
    EXPECT_THAT(findings(R"(IconButton { x: 7; width: 30; height: 30; symbol: "plus"; text: "Add" })"),
                ElementsAre(HasSubstr("IconButton \"Add\" is at 7, not at 263"), HasSubstr("HoverOverlay"),
                            HasSubstr("SymbolItem \"plus\"")));
}

TEST_F(MirrorCheckWindow, findsWhatHasAnotherWidth) {
    EXPECT_THAT(findings(R"(Rectangle { objectName: "bar"; anchors.left: parent.left; height: 9
                                        width: ReadingDirection.mirrored ? 50 : 60 })"),
                ElementsAre("not mirrored: QQuickRectangle \"bar\" is 50 wide, not 60, in here"));
}

TEST_F(MirrorCheckWindow, findsTextsAtTheWrongSide) {
    EXPECT_THAT(findings(R"(Text { width: 300; text: "by its letters" })"),
                ElementsAre("not mirrored: QQuickText \"by its letters\" has a text at the wrong side, in here"));
}

TEST_F(MirrorCheckWindow, findsWhatIsSeenFromOneSideOnly) {
    EXPECT_THAT(
        findings(R"(Rectangle { objectName: "bar"; anchors.fill: parent; visible: ReadingDirection.mirrored })"),
        ElementsAre("not mirrored: QQuickRectangle \"bar\" is not seen from left to right, in here"));
}

TEST_F(MirrorCheckWindow, findsWhatIsSeenFromTheOtherSideOnly) {
    EXPECT_THAT(
        findings(R"(Rectangle { objectName: "bar"; anchors.fill: parent; visible: !ReadingDirection.mirrored })"),
        ElementsAre("not mirrored: QQuickRectangle \"bar\" is seen from left to right only, in here"));
}

TEST_F(MirrorCheckWindow, acceptsTextsThatFillTheirPlace) {
    EXPECT_THAT(findings(R"(Text { anchors.left: parent.left; text: "by its letters" })"), IsEmpty());
    EXPECT_EQ(check.compared(), 1);
}

TEST_F(MirrorCheckWindow, findsTextsOfSeveralLinesAtTheWrongSide) {
    EXPECT_THAT(findings(R"(Text { anchors.left: parent.left; text: "by its\nletters" })"),
                ElementsAre(HasSubstr("has a text at the wrong side")));
}

TEST_F(MirrorCheckWindow, recognisesRowsThatAListMakesAnew) {
    EXPECT_THAT(findings(rowsWith("anchors.left: parent.left")), IsEmpty());
    EXPECT_EQ(check.compared(), 5) << "those in sight";
    find("list")->setProperty("currentIndex", 3);
    settle();
    check.look(window(), QStringLiteral("there"));
    EXPECT_EQ(check.findings(), QStringList());
    EXPECT_EQ(check.compared(), 10);
}

TEST_F(MirrorCheckWindow, findsWhatStaysAtItsPlaceInRows) {
    EXPECT_THAT(findings(rowsWith("x: 7")),
                ElementsAre(HasSubstr("\"bar0\" is at 7, not at 273"), HasSubstr("\"bar1\""), HasSubstr("\"bar2\""),
                            HasSubstr("\"bar3\""), HasSubstr("\"bar4\"")));
}

TEST_F(MirrorCheckWindow, leavesListsScrolledAsTheyWere) {
    findings(rowsWith("anchors.left: parent.left"));
    QQuickItem* list = find("list");
    for (const double place : {-30.0, 0.0, 130.0, 990.0}) {
        list->setProperty("contentY", place);
        settle();
        check.look(window(), QStringLiteral("there"));
        EXPECT_EQ(list->property("contentY").toDouble(), place);
        EXPECT_EQ(list->property("originY").toDouble(), 0);
    }
    EXPECT_EQ(check.findings(), QStringList());
    EXPECT_NE(find("bar25"), nullptr);
}

TEST_F(MirrorCheckWindow, toleratesRoundingOnly) {
    EXPECT_THAT(findings(R"(Rectangle { x: 128.6; width: 41; height: 20 })"), IsEmpty()) << "1.8 beside its place";
    EXPECT_THAT(findings(R"(Rectangle { x: 128.4; width: 41; height: 20 })"), ElementsAre(HasSubstr("is at 128.4")));
}

TEST_F(MirrorCheckWindow, comparesAMenuWithinItself) {
    EXPECT_THAT(findings(R"(
        Item { id: home; width: 10; height: 10 }
        MenuPanel { parent: home; x: 20; Component.onCompleted: open()
                    MenuRow { text: "One"; shortcutText: "Ctrl+1" } })"),
                IsEmpty());
    EXPECT_THAT(findings(R"(
        Item { id: home; width: 10; height: 10 }
        MenuPanel { parent: home; x: 20; Component.onCompleted: open()
                    MenuRow { text: "One"; Rectangle { objectName: "mark"; width: 5; height: 5 } } })"),
                ElementsAre(HasSubstr("\"mark\" is at")));
}

TEST_F(MirrorCheckWindow, letsOutputOfCommandsBeAtTheLeft) {
    EXPECT_THAT(findings(R"(PrintedText { width: 300; text: "done" })"), IsEmpty());
    EXPECT_EQ(window().contentItem()->childItems().constFirst()->property("effectiveHorizontalAlignment").toInt(),
              static_cast<int>(Qt::AlignLeft));
}

TEST_F(MirrorCheckWindow, leavesTheWindowAsItWas) {
    findings(R"(Rectangle { objectName: "bar"; anchors.left: parent.left; width: 20; height: 20 })");
    EXPECT_EQ(QGuiApplication::layoutDirection(), Qt::RightToLeft);
    EXPECT_EQ(find("bar")->x(), 280);
}

TEST_F(MirrorCheckWindow, reportsEachFindingOnce) {
    findings(R"(Rectangle { x: 12; width: 20; height: 20 })");
    check.look(window(), QStringLiteral("there"));
    EXPECT_EQ(check.findings().size(), 1);
    EXPECT_EQ(check.compared(), 2);
}

}  // namespace zelk::tour
