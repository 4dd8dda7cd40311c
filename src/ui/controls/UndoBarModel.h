// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>

#include "state/RemovalUndo.h"

namespace zelk {

class AppModel;

/// Tells the undo bar of a screen about its last removal: that items went to the Trash, or what an undo restored, what
/// it did not, and why. Shown until dismiss(), the next removal that can be undone or an emptying of the Trash; what a
/// survey has found, until a survey or any other removal too. Main thread.
class UndoBarModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the model of a screen")
    Q_PROPERTY(bool shown READ shown NOTIFY changed FINAL)
    Q_PROPERTY(bool undoable READ undoable NOTIFY changed FINAL)
    Q_PROPERTY(QString text READ text NOTIFY changed FINAL)
    Q_PROPERTY(QString details READ details NOTIFY changed FINAL)
    Q_PROPERTY(QString spoken READ spoken NOTIFY changed FINAL)

public:
    /// `source` is the kind of removal that this screen starts. `app` must outlive the model.
    UndoBarModel(AppModel& app, RemovalUndo::Source source);

    bool shown() const { return state_ != State::hidden; }
    /// Whether undo() has anything to restore.
    bool undoable() const;
    QString text() const { return text_; }
    /// Why items were not restored, a line each: the first three reasons and the number of others. May be empty.
    QString details() const { return details_; }
    /// text() and details() as sentences for a screen reader.
    QString spoken() const;

public slots:
    void undo();
    void dismiss();

signals:
    void changed();

private:
    enum class State { hidden, offered, restoring, ended };

    void show(State state, const QString& text, const QString& details = {});
    void showOffer();
    void showOutcome(const RemovalUndo::Outcome& outcome);
    void hideUnlessRestoring();

    AppModel& app_;
    RemovalUndo& removal_;
    const RemovalUndo::Source source_;
    State state_ = State::hidden;
    QString text_;
    QString details_;
    bool offeredMeanwhile_ = false;  ///< another removal ended during the undo
};

}  // namespace zelk
