// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include <QImage>

#include "scan/FSNode.h"
#include "ui/controls/RowModel.h"

namespace zelk {

class LensWalk;

/// List model of the subfolders of the current folder with a positive size, largest first. There may be tens of
/// thousands, so values are computed on demand and changes are notified per row. Main thread.
class LensRows : public zelk::RowModel {
    Q_OBJECT
    QML_ANONYMOUS

public:
    enum Role { nameRole = Qt::UserRole, sizeRole, iconRole, tickedRole, drillableRole, spokenRole, infoRole };

    /// Returns the icon of a folder by its path.
    using IconOf = std::function<QImage(const std::string& path)>;

    /// `walk` must outlive it.
    LensRows(const LensWalk& walk, IconOf iconOf);

    /// Shows another current folder, with a reset.
    void show();
    /// Updates the rows of the same folder after removals.
    void follow();
    void tellTicked(int row);
    void tellAllTicked();

    /// The node of a row; null for invalid rows.
    NodeRef node(int row) const;
    /// The row of a node, or -1.
    int rowOf(const NodeRef& node) const;

private:
    struct Row {
        NodeRef node;
        std::int64_t bytes = 0;  ///< as currently displayed
    };

    void replaceBy(const std::vector<NodeRef>& nodes);
    bool isTicked(const Row& row) const;
    bool turnInto(const std::vector<NodeRef>& nodes);
    void tellSizes();

    const LensWalk& walk_;
    IconOf iconOf_;
    std::vector<Row> rows_;
};

}  // namespace zelk
