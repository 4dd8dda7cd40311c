// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QUrl>
#include <QVariantMap>

#include "ui/navigation/SidebarModel.h"
#include "ui/shell/AppCommands.h"
#include "ui/shell/DetailPages.h"
#include "ui/shell/QuitQuestion.h"

namespace zelk {

class FirstRunModel;

/// What the main window is made of. It owns nothing. Main thread.
class RootModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the main window")
    Q_PROPERTY(QString title READ title CONSTANT FINAL)
    Q_PROPERTY(zelk::SidebarModel* sidebar READ sidebar CONSTANT FINAL)
    Q_PROPERTY(zelk::DetailPages* pages READ pages CONSTANT FINAL)
    Q_PROPERTY(zelk::AppCommands* commands READ commands CONSTANT FINAL)
    Q_PROPERTY(zelk::QuitQuestion* quitQuestion READ quitQuestion CONSTANT FINAL)
    Q_PROPERTY(bool menusInWindow READ menusInWindow CONSTANT FINAL)
    Q_PROPERTY(bool filled READ filled NOTIFY filledChanged FINAL)
    Q_PROPERTY(bool firstRun READ firstRun NOTIFY firstRunChanged FINAL)
    Q_PROPERTY(QUrl firstRunView READ firstRunView CONSTANT FINAL)

public:
    /// All must outlive it; `firstRun` may be absent, and then nothing stands before the window.
    RootModel(SidebarModel& sidebar, DetailPages& pages, AppCommands& commands, QuitQuestion& quitQuestion,
              FirstRunModel* firstRun);

    QString title() const;
    SidebarModel* sidebar() { return &sidebar_; }
    DetailPages* pages() { return &pages_; }
    AppCommands* commands() { return &commands_; }
    QuitQuestion* quitQuestion() { return &quitQuestion_; }
    /// Where the system has no menu bar of its own.
    bool menusInWindow() const;

    /// Whether the window has shown its first frame and has its contents.
    bool filled() const { return filled_; }
    void fill();

    /// Whether a sheet of the first run has been asked for.
    bool firstRun() const { return firstRunShown_; }
    QUrl firstRunView() const;
    Q_INVOKABLE QVariantMap firstRunGiven() const;

signals:
    void filledChanged();
    void firstRunChanged();

private:
    void followFirstRun();

    SidebarModel& sidebar_;
    DetailPages& pages_;
    AppCommands& commands_;
    QuitQuestion& quitQuestion_;
    FirstRunModel* firstRun_;
    bool filled_ = false;
    bool firstRunShown_ = false;
};

}  // namespace zelk
