// SPDX-License-Identifier: MIT
// Shows a bubble chart between two buttons and records the actions that it requests.
#pragma once

#include <QTest>
#include <algorithm>
#include <functional>

#include "ViewFixture.h"
#include "ui/charts/BubbleModel.h"
#include "ui/charts/BubblePicture.h"

namespace zelk {

inline BubbleSlice sliceOf(const std::string& id, std::int64_t bytes) {
    BubbleSlice slice;
    slice.id = id;
    slice.label = QString::fromStdString(id);
    slice.bytes = bytes;
    slice.color = QColor(124, 92, 255);
    return slice;
}

inline std::vector<PackItem> itemsOf(const std::vector<BubbleSlice>& slices) {
    std::vector<PackItem> items;
    for (const BubbleSlice& slice : slices) items.push_back({slice.id, slice.bytes});
    return items;
}

class BubbleChartFixture : public ViewFixture {
protected:
    BubbleChartFixture() {
        bubbles.setSlices(first);
        show();
        tour::restPointer(window());  // a pointer that is already at its target would send no move
    }
    ~BubbleChartFixture() override { close(); }

    void show() {
        ViewFixture::show(QStringLiteral(R"(
import QtQuick
import Zelk.Charts
import Zelk.Controls

FocusScope {
    id: board

    required property BubbleModel model

    focus: true

    Button {
        objectName: "before"
        text: "Before"
        focus: true
        visible: board.height > 300
    }
    BubbleChart {
        objectName: "chart"
        anchors.fill: parent
        model: board.model
        name: "Map of Library"
    }
    Button {
        anchors.right: parent.right
        text: "After"
        visible: board.height > 300
    }
}
)"),
                          {600, 400}, {{QStringLiteral("model"), QVariant::fromValue(&bubbles)}});
    }

    BubblePicture& chart() { return dynamic_cast<BubblePicture&>(*find("chart")); }
    const PackedCircle& circle(const std::string& id) {
        const auto& all = chart().packed();
        return *std::find_if(all.begin(), all.end(), [&](const PackedCircle& one) { return one.id == id; });
    }
    QPoint middleOf(const std::string& id) { return QPointF(circle(id).center.x, circle(id).center.y).toPoint(); }
    /// A point outside of every bubble.
    static constexpr QPoint nowhere{300, 6};

    void pointAt(QPoint point) {
        QTest::mouseMove(&window(), point);
        settle();
    }
    void clickAt(QPoint point) {
        tour::clickAt(window(), point);
        settle();
    }
    void tabTo() {
        press(Qt::Key_Tab);
        ASSERT_EQ(window().activeFocusItem(), &chart());
    }
    std::string currentID() { return chart().current() ? chart().packed()[*chart().current()].id : std::string(); }
    std::string tipText() {
        const BubbleTip& tip = chart().tip();
        return tip.shown ? (tip.label + u'|' + tip.line).toStdString() : std::string();
    }
    /// The accessible children that stand for bubbles, in the order in which a screen reader meets them.
    std::vector<QAccessibleInterface*> nodes() {
        std::vector<QAccessibleInterface*> found;
        QAccessibleInterface* map = QAccessible::queryAccessibleInterface(&chart());
        for (int at = 0; at < map->childCount(); ++at)
            if (map->child(at)->role() == QAccessible::ListItem) found.push_back(map->child(at));
        return found;
    }
    std::vector<std::string> nodeNames() {
        std::vector<std::string> names;
        for (const QAccessibleInterface* node : nodes()) names.push_back(node->text(QAccessible::Name).toStdString());
        return names;
    }
    std::vector<BubbleSlice> slicesWith(const std::function<void(std::vector<BubbleSlice>&)>& change) {
        std::vector<BubbleSlice> slices = bubbles.slices();
        change(slices);
        return slices;
    }

    std::vector<std::string> actions;
    BubbleModel bubbles{{[this](const BubbleSlice& slice) { actions.push_back("tap " + slice.id); },
                         [this](const BubbleSlice& slice) { actions.push_back("tick " + slice.id); },
                         [this] { actions.emplace_back("leave"); }}};
    const std::vector<BubbleSlice> first{sliceOf("node_modules", 1'200'000'000), sliceOf("Caches", 600'000'000),
                                         sliceOf("Logs", 200'000'000), sliceOf("empty", 0),
                                         sliceOf("crumbs", 1'000'000)};
};

}  // namespace zelk
