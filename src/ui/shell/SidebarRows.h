// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QString>
#include <span>
#include <vector>

#include "state/Screen.h"
#include "ui/controls/RowModel.h"

namespace zelk {

class AppModel;

/// Modules under a common title; the first group has none.
struct SidebarGroup {
    QString title;
    std::vector<Screen> screens;
};

/// The modules of the sidebar in order, without those in the footer.
const std::vector<SidebarGroup>& sidebarGroups();

/// List model of a part of the sidebar, one row per module. A group's title belongs to its first row. Main thread.
class SidebarRows : public zelk::RowModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Part of SidebarModel")

public:
    enum Role { headingRole = Qt::UserRole, titleRole, symbolRole, tintRole, selectedRole, nameRole };

    /// `app` must outlive it.
    SidebarRows(AppModel& app, std::span<const SidebarGroup> groups);

    Screen screenAt(int row) const { return rows_[static_cast<std::size_t>(row)].screen; }

public slots:
    /// Opens the module of a row; ignores invalid rows.
    void press(int row);

private:
    std::size_t size() const override { return rows_.size(); }
    QVariant value(std::size_t at, int role) const override;

    struct Row {
        QString heading;  ///< empty on all but the first row of a titled group
        Screen screen;
    };

    void followSelection();

    AppModel& app_;
    std::vector<Row> rows_;
    Screen selected_;
};

}  // namespace zelk
