// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QString>

#include "ui/controls/UndoBarModel.h"
#include "ui/screens/apps/AppRows.h"
#include "ui/screens/apps/UninstallModel.h"
#include "ui/screens/module/ModuleScreenModel.h"

namespace zelk {

class AppsModel;

/// The Apps screen: AppsModel in words and rows, and the sheet that asks. Main thread.
class AppsScreenModel : public zelk::ModuleScreenModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the main window")
    Q_PROPERTY(bool nothing READ nothing NOTIFY appsChanged FINAL)
    Q_PROPERTY(QString line READ line NOTIFY appsChanged FINAL)
    Q_PROPERTY(int order READ order NOTIFY orderChanged FINAL)
    Q_PROPERTY(bool removing READ removing NOTIFY removingChanged FINAL)
    Q_PROPERTY(bool told READ told NOTIFY toldChanged FINAL)
    Q_PROPERTY(QString ending READ ending NOTIFY endingChanged FINAL)
    Q_PROPERTY(QString reason READ reason NOTIFY endingChanged FINAL)
    Q_PROPERTY(zelk::AppRows* rows READ rows CONSTANT FINAL)
    Q_PROPERTY(zelk::UninstallModel* sheet READ sheet CONSTANT FINAL)
    Q_PROPERTY(zelk::UndoBarModel* undoBar READ undoBar CONSTANT FINAL)

public:
    /// `app` must outlive it.
    explicit AppsScreenModel(AppModel& app);

    /// Whether there are no applications.
    bool nothing() const;
    /// How many there are.
    QString line() const;
    /// The place of the current order among the segments.
    int order() const;
    /// Whether one is being removed, so that no other can be.
    bool removing() const;
    /// Whether there is something to tell of the last removal.
    bool told() const;
    QString ending() const;
    QString reason() const;
    AppRows* rows() { return &rows_; }
    UninstallModel* sheet() { return &sheet_; }
    UndoBarModel* undoBar() { return &undoBar_; }

public slots:
    void sort(int order);
    /// Asks before the application in this row is removed; ignores one that may not go.
    void uninstall(int row);
    void forgetEnding();

signals:
    void appsChanged();
    void orderChanged();
    void removingChanged();
    void endingChanged();
    /// After endingChanged(), so that what appears has its words already.
    void toldChanged();
    /// Another order was chosen.
    void rearranged();

private:
    void followScan();
    void showApps();

    AppsModel& apps_;
    AppRows rows_;
    UninstallModel sheet_;
    UndoBarModel undoBar_;
};

}  // namespace zelk
