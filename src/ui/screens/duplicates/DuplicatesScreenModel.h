// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QString>

#include "ui/controls/UndoBarModel.h"
#include "ui/screens/duplicates/DuplicateRows.h"
#include "ui/screens/module/ModuleScreenModel.h"

namespace zelk {

class DuplicatesModel;

/// The Duplicates screen: DuplicatesModel in words and rows. Main thread.
class DuplicatesScreenModel : public zelk::ModuleScreenModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the main window")
    Q_PROPERTY(bool nothing READ nothing NOTIFY groupsChanged FINAL)
    Q_PROPERTY(QString summary READ summary NOTIFY groupsChanged FINAL)
    Q_PROPERTY(zelk::DuplicateRows* rows READ rows CONSTANT FINAL)
    Q_PROPERTY(zelk::UndoBarModel* undoBar READ undoBar CONSTANT FINAL)

public:
    /// `app` must outlive it.
    explicit DuplicatesScreenModel(AppModel& app);

    /// Whether there is no set.
    bool nothing() const;
    /// The number of sets and what can be recovered; without a set what the screen is about.
    QString summary() const;
    DuplicateRows* rows() { return &rows_; }
    UndoBarModel* undoBar() { return &undoBar_; }

public slots:
    /// Does what the button of this row does: keepFirst() for a head, reveal() for a path.
    void press(int row);
    /// Moves all files of the set in this row but the first to the Trash.
    void keepFirst(int row);
    void reveal(int row);

signals:
    /// The last set has left the list; before groupsChanged().
    void emptied();
    void groupsChanged();

private:
    void followPhase();
    void followProgress();

    AppModel& app_;
    DuplicatesModel& duplicates_;
    DuplicateRows rows_;
    UndoBarModel undoBar_;
};

}  // namespace zelk
