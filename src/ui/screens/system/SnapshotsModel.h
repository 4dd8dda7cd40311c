// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "reclaim/Removal.h"
#include "state/MainThreadQueue.h"
#include "system/SnapshotSource.h"
#include "ui/screens/system/SnapshotRows.h"

namespace zelk {

class AppModel;

/// The local snapshots of the volume at "/", and their removal. On macOS the system asks for the administrator before
/// anything is removed. snapper does not ask the users whom it permits, so here a question comes first. Main thread.
class SnapshotsModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Part of SystemScreenModel")
    Q_PROPERTY(zelk::SnapshotRows* rows READ rows CONSTANT FINAL)
    Q_PROPERTY(bool loading READ loading NOTIFY changed FINAL)
    Q_PROPERTY(bool acting READ acting NOTIFY changed FINAL)
    Q_PROPERTY(bool nothing READ nothing NOTIFY changed FINAL)
    Q_PROPERTY(bool listed READ listed NOTIFY changed FINAL)
    Q_PROPERTY(bool thinnable READ thinnable NOTIFY changed FINAL)
    Q_PROPERTY(QString note READ note NOTIFY changed FINAL)
    Q_PROPERTY(QString more READ more NOTIFY changed FINAL)
    Q_PROPERTY(QString output READ output NOTIFY outputChanged FINAL)
    Q_PROPERTY(bool asking READ asking NOTIFY askingChanged FINAL)
    Q_PROPERTY(QString question READ question NOTIFY questionChanged FINAL)
    Q_PROPERTY(QString consequence READ consequence NOTIFY questionChanged FINAL)
    Q_PROPERTY(QString agreement READ agreement NOTIFY questionChanged FINAL)

public:
    /// `app` must outlive it. A removal that is running when it goes ends without it.
    explicit SnapshotsModel(AppModel& app);
    ~SnapshotsModel() override;

    SnapshotRows* rows() { return &rows_; }
    const std::vector<LocalSnapshot>& snapshots() const { return listing_.snapshots; }
    /// Whether a list is awaited.
    bool loading() const { return loading_; }
    /// Whether a removal is running, or waits for its administrator, or for the list that comes after it.
    bool acting() const { return acting_; }
    /// Whether there are no snapshots. False if somebody else may see some.
    bool nothing() const;
    /// Whether there are rows.
    bool listed() const { return !listing_.snapshots.empty(); }
    bool thinnable() const;
    /// What to know about the list; empty without one.
    QString note() const;
    /// How many snapshots have no row yet; empty if all have one.
    QString more() const;

    /// The answer to the last removal, as it came.
    const std::optional<std::string>& lastActionOutput() const { return lastActionOutput_; }
    /// The same for display: every kind of line end breaks the line. Empty without an answer.
    QString output() const;

    /// Whether the question is open. Its texts stay valid while its sheet closes.
    bool asking() const { return asking_; }
    QString question() const;
    QString consequence() const;
    QString agreement() const;

public slots:
    /// Lists the snapshots again in a task. Of two lists the one that was asked for later stays, whichever comes first.
    void reload();
    /// Has the system free some space by removing snapshots of its choice.
    void thin();
    /// Removes the snapshot in this row if it may go; ignores invalid rows.
    void remove(int row);
    /// Gives more snapshots a row. There may be thousands, which all at once would hold up the window.
    void showMore();
    /// The answers to the question.
    void confirm();
    void cancel();

signals:
    void changed();
    void outputChanged();
    void askingChanged();
    void questionChanged();

private:
    /// A removal of one snapshot, or thinning.
    struct Action {
        std::optional<LocalSnapshot> snapshot;
        SnapshotListing before;  ///< what was listed when it began
        std::string answer;
        int listedBy = 0;  ///< the reload that will say what became of it; 0 until it has ended
    };

    void request(Action action);
    bool stands(const Action& action) const;
    void act(Action action);
    void askAdministrator(const std::string& line);
    void finish(const std::string& answer);
    void endRemoval();
    void take(int number, SnapshotListing listing);
    void showRows();
    void showOutput(std::optional<std::string> output);
    std::string outcomeOf(const Action& action) const;

    AppModel& app_;
    SnapshotRows rows_;
    SnapshotListing listing_;
    bool loading_ = false;
    bool acting_ = false;
    bool asking_ = false;
    int begun_ = 0;     ///< reloads
    int shown_ = 0;     ///< the reload whose list is shown
    std::size_t most_;  ///< of the rows
    Action asked_;
    Action action_;
    std::shared_ptr<Removal> removal_;  ///< while the command runs
    std::optional<std::string> lastActionOutput_;
    MainThreadQueue mainThread_;
};

}  // namespace zelk
