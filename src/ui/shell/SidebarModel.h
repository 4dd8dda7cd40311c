// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>

#include "ui/shell/SidebarRows.h"

namespace zelk {

/// The rows and switches of the sidebar. The AppModel owns the selected module; whether the sidebar is collapsed lasts
/// as long as the window. Main thread.
class SidebarModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the main window")
    Q_PROPERTY(zelk::SidebarRows* modules READ modules CONSTANT FINAL)
    Q_PROPERTY(zelk::SidebarRows* foot READ foot CONSTANT FINAL)
    Q_PROPERTY(bool collapsed READ collapsed WRITE setCollapsed NOTIFY collapsedChanged FINAL)
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
    void setCollapsed(bool collapsed);
    /// In points.
    int width() const { return collapsed_ ? collapsedWidth : openWidth; }

    bool developer() const;
    void setDeveloper(bool developer);

public slots:
    void toggleCollapsed() { setCollapsed(!collapsed_); }

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
