// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>
#include <QVariantList>
#include <functional>
#include <vector>

#include "platform/Platform.h"
#include "state/DevCleanupModel.h"
#include "state/MainThreadQueue.h"
#include "ui/controls/RowModel.h"

namespace zelk {

/// List model of the items under review; does not change after construction. Main thread.
class DryRunRows : public zelk::RowModel {
    Q_OBJECT
    QML_ANONYMOUS

public:
    enum Role { symbolRole = Qt::UserRole, nameRole, folderRole, sizeRole, methodRole, spokenRole };

    explicit DryRunRows(std::vector<Reclaimable> items);

    const std::vector<Reclaimable>& items() const { return items_; }

private:
    const std::vector<Reclaimable> items_;
};

/// The sheet of a reviewed clean-up: review, progress and result. The items are fixed when it opens; nothing is touched
/// before confirm(). Main thread.
class DryRunModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by ReclaimScreenModel")
    Q_PROPERTY(bool review READ isReview NOTIFY phaseChanged FINAL)
    Q_PROPERTY(bool cleaning READ isCleaning NOTIFY phaseChanged FINAL)
    Q_PROPERTY(bool done READ isDone NOTIFY phaseChanged FINAL)
    Q_PROPERTY(bool closable READ closable NOTIFY phaseChanged FINAL)
    Q_PROPERTY(QString line READ line CONSTANT FINAL)
    Q_PROPERTY(zelk::DryRunRows* rows READ rows CONSTANT FINAL)
    Q_PROPERTY(bool hardDelete READ hardDelete WRITE setHardDelete NOTIFY hardDeleteChanged FINAL)
    Q_PROPERTY(QString confirmLabel READ confirmLabel NOTIFY hardDeleteChanged FINAL)
    Q_PROPERTY(double share READ share NOTIFY progressChanged FINAL)
    Q_PROPERTY(QString progress READ progress NOTIFY progressChanged FINAL)
    Q_PROPERTY(bool confirmable READ confirmable NOTIFY phaseChanged FINAL)
    Q_PROPERTY(QString result READ result NOTIFY phaseChanged FINAL)
    Q_PROPERTY(bool anySkipped READ anySkipped NOTIFY phaseChanged FINAL)
    Q_PROPERTY(bool emptyable READ emptyable NOTIFY phaseChanged FINAL)
    Q_PROPERTY(bool emptying READ emptyingTrash NOTIFY phaseChanged FINAL)

public:
    /// What the owner does: `dismiss` closes the sheet, `rescan` follows once a clean-up has finished.
    struct Actions {
        std::function<void()> dismiss;
        std::function<void()> rescan;
    };

    /// `model` and the services must outlive it, and also an emptying of the Trash that is still running when it is
    /// destroyed.
    DryRunModel(DevCleanupModel& model, std::vector<Reclaimable> items, const Platform& platform, Actions actions);

    bool isReview() const { return phase_ == Phase::review; }
    bool isCleaning() const { return phase_ == Phase::cleaning; }
    bool isDone() const { return phase_ == Phase::done; }
    /// Whether the sheet may be closed now.
    bool closable() const { return !isCleaning() && !emptyingTrash_; }

    QString line() const;
    DryRunRows* rows() { return &rows_; }
    bool hardDelete() const { return hardDelete_; }
    /// Ignored after the review.
    void setHardDelete(bool hardDelete);
    QString confirmLabel() const;
    /// The finished share of the clean-up, 0 to 1.
    double share() const;
    /// share() for screen readers: "12 of 40".
    QString progress() const;
    bool confirmable() const { return isReview() && !rows_.items().empty(); }

    QString result() const;
    bool anySkipped() const;
    /// The items that could not be cleaned, in order of failure: maps with `name` (the path) and `reason`. Computed on
    /// each call; there may be thousands.
    Q_INVOKABLE QVariantList skipped() const;
    bool emptyingTrash() const { return emptyingTrash_; }
    bool trashEmptied() const { return trashEmptied_; }
    /// Whether to offer emptying the Trash.
    bool emptyable() const { return isDone() && !trashEmptied_; }

public slots:
    // All are ignored once the sheet was closed.

    /// Closes the sheet without a clean-up.
    void cancel();
    void confirm();
    void emptyTrash();
    /// Closes the sheet after a clean-up.
    void finish();
    /// cancel() or finish(), depending on the phase.
    void close();

signals:
    void phaseChanged();
    void hardDeleteChanged();
    /// Throttled to a rate that screen readers can follow.
    void progressChanged();

private:
    enum class Phase { review, cleaning, done };

    DevCleanupModel& model_;
    Platform platform_;
    Actions actions_;
    DryRunRows rows_;
    Phase phase_ = Phase::review;
    bool hardDelete_ = false;
    bool emptyingTrash_ = false;
    bool trashEmptied_ = false;
    bool left_ = false;  // while it fades out, the sheet still receives presses
    MainThreadQueue mainThread_;
};

}  // namespace zelk
