// SPDX-License-Identifier: MIT
// A list that reuses its rows for other data.
#include <gmock/gmock.h>

#include <QAccessible>
#include <algorithm>
#include <map>
#include <set>

#include "ViewFixture.h"
#include "ui/controls/NumberItem.h"

namespace zelk {

namespace {

/// A hundred rows, each with a check box and an animated figure; the first fifty are checked.
constexpr const char* listBoard = R"(
import QtQuick
import Zelk.Controls

RowList {
    objectName: "list"
    name: "Numbers"
    model: 100
    delegate: ListRow {
        id: row

        required property int index

        implicitHeight: 40

        CheckBox {
            objectName: "tick"
            text: row.index
            on: row.index < 50
        }
        AnimatedNumber {
            objectName: "figure"
            x: 100
            value: row.index
            format: NumberItem.Count
            phrase: "%1 KB"
        }
    }
}
)";

class RowListWindow : public ViewFixture {
protected:
    RowListWindow() {
        singleton<Motion>("Motion").setReduced(false);
        show(QString::fromUtf8(listBoard), {300, 400});
    }

    /// The list keeps its current row even when it is scrolled out of view.
    static bool isInTheWindow(const QQuickItem* item) { return item->mapToScene({}).y() >= 0; }
    /// The figures of the visible rows, from top to bottom.
    std::vector<std::string> figures() {
        std::map<double, std::string> byPlace;
        for (QQuickItem* item : seen())
            if (const auto* figure = qobject_cast<NumberItem*>(item); figure != nullptr && isInTheWindow(item))
                byPlace.emplace(item->mapToScene({}).y(), figure->shown().toStdString());
        std::vector<std::string> texts;
        for (auto& [y, text] : byPlace) texts.push_back(std::move(text));
        return texts;
    }
    /// The background colours of the visible check boxes.
    std::set<std::string> checkBoxColors() {
        std::set<std::string> colors;
        for (QQuickItem* item : seen()) {
            if (item->objectName() != QStringLiteral("tick") || !isInTheWindow(item)) continue;
            const auto* ground = item->property("background").value<QQuickItem*>()->childItems().constFirst();
            colors.insert(ground->property("color").value<QColor>().name(QColor::HexArgb).toStdString());
        }
        return colors;
    }
    std::string themeColor(const char* name) {
        return singleton<Theme>("Theme").property(name).value<QColor>().name(QColor::HexArgb).toStdString();
    }
};

}  // namespace

TEST_F(RowListWindow, reusedRowShowsItsOwnDataAtOnce) {
    ASSERT_EQ(figures().front(), "0 KB");
    ASSERT_THAT(checkBoxColors(), testing::ElementsAre(themeColor("accent")));
    std::set<QQuickItem*> before;
    for (QQuickItem* item : seen())
        if (item->objectName() == QStringLiteral("tick")) before.insert(item);

    find("list")->setProperty("contentY", 100 * 40 - 400);
    window().grabWindow();
    std::vector<std::string> expected;
    for (int at = 90; at < 100; ++at) expected.push_back(std::to_string(at) + " KB");
    EXPECT_EQ(figures(), expected);
    EXPECT_THAT(checkBoxColors(), testing::ElementsAre(themeColor("surfaceHi")));
    const std::vector<QQuickItem*> now = seen();
    EXPECT_TRUE(std::any_of(now.begin(), now.end(), [&](QQuickItem* item) {
        return before.contains(item) && isInTheWindow(item);
    })) << "no row was reused";
}

TEST_F(RowListWindow, screenReaderVisitsRowsTopDownAfterScrolling) {
    auto* content = find("list")->property("contentItem").value<QQuickItem*>();
    QAccessibleInterface* list = QAccessible::queryAccessibleInterface(find("list"));
    const auto shownRows = [&] {
        std::vector<int> numbers;
        for (int child = 0; child < list->childCount(); ++child) {
            const auto* row = qobject_cast<QQuickItem*>(list->child(child)->object());
            if (row->parentItem() == content && row->isVisible()) numbers.push_back(row->property("index").toInt());
        }
        return numbers;
    };
    const auto sorted = [](const std::vector<int>& numbers) { return std::is_sorted(numbers.begin(), numbers.end()); };
    for (const int top : {0, 90, 30, 31, 0, 60}) {
        SCOPED_TRACE(top);
        QMetaObject::invokeMethod(find("list"), "positionViewAtIndex", Q_ARG(int, top), Q_ARG(int, 0));
        // Rows are created and moved over several turns of the event loop.
        settle();
        runUntil([&] { return shownRows().size() >= 10 && sorted(shownRows()); });
    }
}

TEST_F(RowListWindow, lastRowBringsTheMarginBelowIt) {
    QQuickItem* list = find("list");
    const auto y = [list] { return list->property("contentY").toReal(); };
    list->setProperty("bottomMargin", 20);
    list->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_End);
    EXPECT_EQ(y(), 100 * 40 + 20 - 400);
    press(Qt::Key_Up);
    EXPECT_EQ(y(), 100 * 40 + 20 - 400) << "it is in sight";
    press(Qt::Key_Home);
    EXPECT_EQ(y(), 0);
    list->setProperty("model", 3);
    press(Qt::Key_End);
    EXPECT_EQ(y(), 0) << "all rows are in sight";
}

}  // namespace zelk
