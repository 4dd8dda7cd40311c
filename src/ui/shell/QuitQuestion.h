// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <functional>

namespace zelk {

class RemovalsModel;

/// Handles all requests to quit: at once if nothing is being removed, else after asking, so that a removal is not cut
/// off silently. The question closes itself when the removal ends. Main thread.
class QuitQuestion : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the main window")
    Q_PROPERTY(bool asked READ asked NOTIFY changed FINAL)
    Q_PROPERTY(bool shown READ shown NOTIFY changed FINAL)
    Q_PROPERTY(bool asking READ asking NOTIFY changed FINAL)
    Q_PROPERTY(bool stopping READ stopping NOTIFY changed FINAL)

public:
    /// `removals` must outlive it. `quit` ends the application.
    QuitQuestion(RemovalsModel& removals, std::function<void()> quit);

    /// Whether a removal is running, so that quitting has to wait.
    bool holds() const;
    /// Quits, or asks how to.
    void quit();
    /// Quits without asking: starts no further item and quits when those under way have ended.
    void quitUnasked();
    /// Goes on if it would quit when the removal ends, since the application is wanted again. Returns false if it is
    /// ending already; a question stays open.
    bool stay();
    /// Call when the session ends. Returns whether to hold the session up for an answer.
    bool endSession(bool mayAsk);

    /// Whether there has been a question yet.
    bool asked() const { return asked_; }
    /// Whether the sheet is open: during the question, and until the last items have ended.
    bool shown() const { return asking() || stopping(); }
    bool asking() const { return way_ == Way::asking; }
    bool stopping() const { return way_ == Way::stopping; }

public slots:
    // The answers. Ignored unless asking().

    /// Continues the removal and does not quit.
    void cancel();
    /// Quits when everything is removed.
    void finishFirst();
    /// Starts no further item, and quits when those under way have ended.
    void stopNow();

signals:
    void changed();

private:
    enum class Way { none, asking, finishing, stopping };

    void follow();
    void leave();
    void go(Way way);

    RemovalsModel& removals_;
    std::function<void()> quit_;
    Way way_ = Way::none;
    bool asked_ = false;
    bool left_ = false;  ///< the application was told to end, which it does when its events are handled
};

}  // namespace zelk
