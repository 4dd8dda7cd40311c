// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <vector>

#include "reclaim/AppEntry.h"
#include "ui/controls/RowModel.h"
#include "ui/theme/DesktopIcons.h"

namespace zelk {

class AppsModel;

/// List model of applications. Icons are read when a row is shown. Main thread.
class AppRows : public zelk::RowModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Part of AppsScreenModel")

public:
    enum Role {
        iconRole = Qt::UserRole,
        nameRole,
        detailRole,     ///< what it is called, or what it and its data take
        reasonRole,     ///< why it stays; empty if it may go
        kindRole,       ///< how it came here; empty where there is but one way
        sizeRole,       ///< of it and its data, with unit; empty if nobody knows
        removableRole,  ///< whether it has a button
        busyRole,       ///< whether it is being removed
        spokenRole,
        uninstallRole  ///< the accessible name of its button
    };

    /// Both must outlive it.
    AppRows(const AppsModel& apps, Workspace& workspace);

    /// Shows these in this order. Delegates of rows that stay are kept.
    void show(std::vector<AppEntry> apps);
    void tellBusy() { allRowsChanged({busyRole, spokenRole}); }

    /// The application in this row; nullptr for invalid rows. Valid until the next show().
    const AppEntry* at(int row) const;

private:
    std::size_t size() const override { return rows_.size(); }
    QVariant value(std::size_t row, int role) const override;

    const AppsModel& apps_;
    mutable DesktopIcons icons_;
    std::vector<AppEntry> rows_;
};

}  // namespace zelk
