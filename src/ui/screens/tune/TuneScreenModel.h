// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QString>

#include "ui/controls/UndoBarModel.h"
#include "ui/screens/module/ModuleScreenModel.h"
#include "ui/screens/tune/AgentRows.h"

namespace zelk {

class TuneModel;

/// The Tune screen: TuneModel in words and rows. Main thread.
class TuneScreenModel : public zelk::ModuleScreenModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the main window")
    Q_PROPERTY(QString pressure READ pressure NOTIFY memoryChanged FINAL)
    Q_PROPERTY(double used READ used NOTIFY memoryChanged FINAL)
    Q_PROPERTY(double free READ free NOTIFY memoryChanged FINAL)
    Q_PROPERTY(double total READ total NOTIFY memoryChanged FINAL)
    Q_PROPERTY(bool busy READ busy NOTIFY busyChanged FINAL)
    Q_PROPERTY(QString output READ output NOTIFY outputChanged FINAL)
    Q_PROPERTY(QString heading READ heading NOTIFY agentsChanged FINAL)
    Q_PROPERTY(QString search READ search WRITE setSearch NOTIFY searchChanged FINAL)
    Q_PROPERTY(bool nothing READ nothing NOTIFY nothingChanged FINAL)
    Q_PROPERTY(zelk::AgentRows* rows READ rows CONSTANT FINAL)
    Q_PROPERTY(bool removing READ removing NOTIFY selectionChanged FINAL)
    Q_PROPERTY(QString removeLabel READ removeLabel NOTIFY selectionChanged FINAL)
    Q_PROPERTY(zelk::UndoBarModel* undoBar READ undoBar CONSTANT FINAL)

public:
    /// `app` must outlive it.
    explicit TuneScreenModel(AppModel& app);

    QString pressure() const;
    // Of the memory, in bytes.
    double used() const;
    double free() const;
    double total() const;
    bool busy() const;
    /// What the last command answered, its lines separated by line feeds; empty before the first.
    QString output() const;
    QString heading() const;
    QString search() const;
    void setSearch(const QString& search);
    /// Whether no item is shown.
    bool nothing() const { return nothing_; }
    AgentRows* rows() { return &rows_; }
    /// Whether the ticked items can be removed.
    bool removing() const;
    QString removeLabel() const;
    UndoBarModel* undoBar() { return &undoBar_; }

public slots:
    void freeMemory();
    void flushDNS();
    void refreshMemory();
    void toggle(int row);
    void chooseAll();
    void chooseNone();
    void removeChosen();

signals:
    void memoryChanged();
    void busyChanged();
    void outputChanged();
    void agentsChanged();
    void searchChanged();
    void nothingChanged();
    void selectionChanged();

private:
    void followScan();
    void showAgents();

    TuneModel& tune_;
    AgentRows rows_;
    UndoBarModel undoBar_;
    bool nothing_ = true;
};

}  // namespace zelk
