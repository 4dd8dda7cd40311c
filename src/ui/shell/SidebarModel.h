// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>

#include "ui/shell/SidebarRows.h"

namespace zelk {

/// All that the sidebar says. Which module is chosen is the AppModel's; whether the sidebar is folded up is its own and
/// forgotten with the window. Main thread.
class SidebarModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the main window")
    Q_PROPERTY(QString appName READ appName CONSTANT FINAL)
    Q_PROPERTY(QString accessibleName READ accessibleName CONSTANT FINAL)
    Q_PROPERTY(zelk::SidebarRows* modules READ modules CONSTANT FINAL)
    Q_PROPERTY(zelk::SidebarRows* foot READ foot CONSTANT FINAL)
    Q_PROPERTY(bool collapsed READ collapsed WRITE setCollapsed NOTIFY collapsedChanged FINAL)
    Q_PROPERTY(int width READ width NOTIFY collapsedChanged FINAL)
    Q_PROPERTY(QString collapseHelp READ collapseHelp NOTIFY collapsedChanged FINAL)
    Q_PROPERTY(QString collapseSymbol READ collapseSymbol CONSTANT FINAL)
    Q_PROPERTY(QString developerLabel READ developerLabel CONSTANT FINAL)
    Q_PROPERTY(QString developerHelp READ developerHelp CONSTANT FINAL)
    Q_PROPERTY(bool developer READ developer WRITE setDeveloper NOTIFY developerChanged FINAL)

public:
    static constexpr int openWidth = 234;
    static constexpr int collapsedWidth = 60;

    /// `app` must outlive it.
    explicit SidebarModel(AppModel& app);

    QString appName() const;
    QString accessibleName() const;
    SidebarRows* modules() { return &modules_; }
    /// The tools and the settings, which belong to no group.
    SidebarRows* foot() { return &foot_; }

    bool collapsed() const { return collapsed_; }
    void setCollapsed(bool collapsed);
    /// In points.
    int width() const { return collapsed_ ? collapsedWidth : openWidth; }
    QString collapseHelp() const;
    QString collapseSymbol() const;

    QString developerLabel() const;
    QString developerHelp() const;
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
