// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QString>
#include <string>
#include <vector>

#include "system/BackgroundItems.h"
#include "ui/controls/RowModel.h"
#include "ui/theme/DesktopIcons.h"

namespace zelk {

class TuneModel;

/// List model of background items. Icons are read when a row is shown. Main thread.
class AgentRows : public zelk::RowModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Part of TuneScreenModel")

public:
    enum Role {
        labelRole = Qt::UserRole,
        placeRole,  ///< the path
        iconRole,
        removableRole,
        tickedRole,
        noteRole,    ///< what is special about an item that is not removable; often empty
        markRole,    ///< whose it is, of an item of the system
        reasonRole,  ///< why it is not removable, as a sentence; empty if it is
        spokenRole
    };

    /// Both must outlive it.
    AgentRows(const TuneModel& tune, Workspace& workspace);

    /// Shows these items in this order. Delegates of rows that stay are kept.
    void show(std::vector<Agent> agents);
    void tellTicks() { allRowsChanged({tickedRole}); }

    /// The path of the item in this row, in bytes; empty for invalid rows.
    std::string pathAt(int row) const;

private:
    std::size_t size() const override { return agents_.size(); }
    QVariant value(std::size_t row, int role) const override;

    static QString markOf(const Agent& agent);

    const TuneModel& tune_;
    mutable DesktopIcons icons_;
    std::vector<Agent> agents_;
};

}  // namespace zelk
