// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>
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

/// List model of a part of the sidebar, one row per module. A group's title belongs to its first row. Main thread.
class SidebarRows : public zelk::RowModel {
    Q_OBJECT
    QML_ANONYMOUS

public:
    enum Role { headingRole = Qt::UserRole, titleRole, symbolRole, tintRole, selectedRole, nameRole };

    /// `app` must outlive it.
    SidebarRows(AppModel& app, const std::vector<SidebarGroup>& groups);

    Screen screenAt(int row) const { return rows_[static_cast<std::size_t>(row)].screen; }

public slots:
    /// Opens the module of a row; ignores invalid rows.
    void press(int row);

private:
    struct Row {
        QString heading;  ///< empty on all but the first row of a titled group
        Screen screen;
    };

    void followSelection();

    AppModel& app_;
    std::vector<Row> rows_;
    Screen selected_;
};

/// The rows and switches of the sidebar. The AppModel owns the selected module; whether the sidebar is collapsed lasts
/// as long as the window. Main thread.
class SidebarModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the main window")
    Q_PROPERTY(zelk::SidebarRows* modules READ modules CONSTANT FINAL)
    Q_PROPERTY(zelk::SidebarRows* foot READ foot CONSTANT FINAL)
    Q_PROPERTY(bool collapsed READ collapsed NOTIFY collapsedChanged FINAL)
    Q_PROPERTY(int width READ width NOTIFY collapsedChanged FINAL)
    Q_PROPERTY(bool developer READ developer WRITE setDeveloper NOTIFY developerChanged FINAL)

public:
    static constexpr int openWidth = 234;
    static constexpr int collapsedWidth = 60;

    /// `app` must outlive it.
    explicit SidebarModel(AppModel& app);

    SidebarRows* modules() { return &modules_; }
    /// Tools and settings, which belong to no group.
    SidebarRows* foot() { return &foot_; }

    bool collapsed() const { return collapsed_; }
    /// In points.
    int width() const { return collapsed_ ? collapsedWidth : openWidth; }

    bool developer() const;
    void setDeveloper(bool developer);

public slots:
    void toggleCollapsed();

signals:
    void collapsedChanged();
    void developerChanged();

private:
    AppModel& app_;
    SidebarRows modules_;
    SidebarRows foot_;
    bool collapsed_ = false;
};

}  // namespace zelk
