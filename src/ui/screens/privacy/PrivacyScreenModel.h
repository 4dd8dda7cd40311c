// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QString>
#include <QTimer>

#include "ui/controls/UndoBarModel.h"
#include "ui/screens/module/ModuleScreenModel.h"
#include "ui/screens/privacy/TraceRows.h"

namespace zelk {

class PrivacyModel;

/// The Privacy screen: PrivacyModel in words and rows. Main thread.
class PrivacyScreenModel : public zelk::ModuleScreenModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the main window")
    Q_PROPERTY(zelk::TraceRows* rows READ rows CONSTANT FINAL)
    Q_PROPERTY(bool nothing READ nothing NOTIFY tracesChanged FINAL)
    Q_PROPERTY(bool historyStays READ historyStays NOTIFY tracesChanged FINAL)
    Q_PROPERTY(QString selectedLine READ selectedLine NOTIFY selectionChanged FINAL)
    Q_PROPERTY(bool clearable READ clearable NOTIFY selectionChanged FINAL)
    Q_PROPERTY(zelk::UndoBarModel* undoBar READ undoBar CONSTANT FINAL)

public:
    /// `app` must outlive it.
    explicit PrivacyScreenModel(AppModel& app);

    TraceRows* rows() { return &rows_; }
    /// Whether no trace is shown.
    bool nothing() const { return rows_.rowCount() == 0; }
    /// Whether to say why no history of Firefox is offered.
    bool historyStays() const;
    /// The size of what is chosen, as a sentence.
    QString selectedLine() const;
    bool clearable() const;
    UndoBarModel* undoBar() { return &undoBar_; }
    /// Whether it looks again after a while.
    bool waitsForBrowsers() const { return again_.isActive(); }

public slots:
    void toggle(int row);
    void clearChosen();
    /// The view tells whether it is seen and whether its window is the active one. Looks for running browsers whenever
    /// one of them becomes true while it is seen: people go and quit them. A browser takes a while to end, so as long
    /// as it is seen that one is running, it looks again every two seconds.
    void watch(bool seen, bool active);

signals:
    void tracesChanged();
    void selectionChanged();

private:
    void followScan();
    void showTraces();
    void showRunning();

    PrivacyModel& privacy_;
    TraceRows rows_;
    UndoBarModel undoBar_;
    bool watched_ = false;
    bool active_ = false;
    QTimer again_;
};

}  // namespace zelk
