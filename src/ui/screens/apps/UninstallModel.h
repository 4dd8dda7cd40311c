// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>
#include <cstdint>
#include <vector>

#include "reclaim/AppEntry.h"
#include "state/AppsModel.h"
#include "ui/screens/apps/UninstallRows.h"

namespace zelk {

/// The sheet that lists what goes with an application and asks before it goes. Main thread.
class UninstallModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Part of AppsScreenModel")
    Q_PROPERTY(bool open READ isOpen NOTIFY openChanged FINAL)
    Q_PROPERTY(bool loading READ loading NOTIFY changed FINAL)
    Q_PROPERTY(QString title READ title NOTIFY changed FINAL)
    Q_PROPERTY(QString line READ line NOTIFY changed FINAL)
    Q_PROPERTY(QString agreement READ agreement NOTIFY changed FINAL)
    Q_PROPERTY(bool confirmable READ confirmable NOTIFY changed FINAL)
    Q_PROPERTY(bool undoable READ undoable NOTIFY changed FINAL)
    Q_PROPERTY(zelk::UninstallRows* rows READ rows CONSTANT FINAL)

public:
    /// `apps` must outlive it.
    explicit UninstallModel(AppsModel& apps);

    /// Opens the sheet, whose leftovers come when they are measured. Its texts stay valid while it closes.
    void ask(const AppEntry& app);

    bool isOpen() const { return open_; }
    /// Whether its leftovers are still being measured.
    bool loading() const { return loading_; }
    QString title() const;
    /// What happens to which part, or why nothing does.
    QString line() const;
    /// The label of the button that agrees.
    QString agreement() const;
    bool confirmable() const;
    /// Whether all of it goes to the Trash, so that Return may agree.
    bool undoable() const { return goesToTrash(app_.kind); }
    UninstallRows* rows() { return &rows_; }

public slots:
    void confirm();
    void cancel();

signals:
    void openChanged();
    void changed();

private:
    void take(int number, const AppsModel::Preparation& preparation);
    void close();
    QString total() const;

    AppsModel& apps_;
    UninstallRows rows_;
    AppEntry app_;
    std::vector<AppsModel::Leftover> leftovers_;
    AppObstacle obstacle_;
    bool open_ = false;
    bool loading_ = false;
    int asked_ = 0;  ///< how often; an answer to an earlier question comes too late
};

}  // namespace zelk
