// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>
#include <QString>
#include <optional>
#include <vector>

#include "ui/charts/BubbleDrawing.h"
#include "ui/controls/RowModel.h"

namespace zelk {

/// A bubble as an accessible node.
struct BubbleNode {
    QString name;  ///< its label, size and share of the map
    QString note;  ///< the description; may be empty
    QRectF box;    ///< in the chart's points
    bool selected = false;

    bool operator==(const BubbleNode&) const = default;
};

/// The nodes of all circles, by index.
std::vector<BubbleNode> bubbleNodes(const std::vector<PackedCircle>& circles, const ShownSlices& slices);

/// List model of the nodes. A new layout changes rows in place and creates only the missing ones. Main thread.
class BubbleNodes : public zelk::RowModel {
    Q_OBJECT

public:
    enum Role { nameRole = Qt::UserRole, noteRole, boxRole, selectedRole, currentRole };

    explicit BubbleNodes(QObject* parent = nullptr)
        : RowModel({"name", "note", "box", "selected", "current"}, parent) {}

    void show(std::vector<BubbleNode> nodes);
    /// The row with visible focus, if any.
    void setCurrent(std::optional<std::size_t> current);

private:
    std::size_t size() const override { return nodes_.size(); }
    QVariant value(std::size_t row, int role) const override;

    std::vector<BubbleNode> nodes_;
    std::optional<std::size_t> current_;
};

}  // namespace zelk
