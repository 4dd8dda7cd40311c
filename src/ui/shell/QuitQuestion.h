// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>
#include <functional>

namespace zelk {

class RemovalsModel;

/// The one way out of the application: at once where nothing is being removed, and else by a question, so that nothing
/// is left half done without a word. The question goes by itself when there is nothing to wait for any more. Main
/// thread.
class QuitQuestion : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the main window")
    Q_PROPERTY(bool asked READ asked NOTIFY changed FINAL)
    Q_PROPERTY(bool shown READ shown NOTIFY changed FINAL)
    Q_PROPERTY(bool asking READ asking NOTIFY changed FINAL)
    Q_PROPERTY(bool stopping READ stopping NOTIFY changed FINAL)
    Q_PROPERTY(QString note READ note NOTIFY changed FINAL)

public:
    /// `removals` must outlive it; `quit` ends the application.
    QuitQuestion(RemovalsModel& removals, std::function<void()> quit);

    /// Whether something is being removed, so that ending has to wait.
    bool holds() const;
    /// Ends the application, or asks how.
    void quit();
    /// Ends the application where nobody can be asked: nothing more begins, and what has begun ends first.
    void quitUnasked();
    /// The session ends and takes the application along. Whether it is to be held for an answer.
    bool endSession(bool mayAsk);

    /// Whether there was ever a question.
    bool asked() const { return asked_; }
    /// It stays while the last items end.
    bool shown() const { return asking() || stopping(); }
    bool asking() const { return way_ == Way::asking; }
    bool stopping() const { return way_ == Way::stopping; }
    QString note() const;

public slots:
    // The answers. Each does nothing while nothing is asked.

    /// Nothing is stopped, and nobody quits.
    void cancel();
    /// Ends the application when all is removed.
    void finishFirst();
    /// No further item begins; when those under way have ended, so does the application.
    void stopNow();

signals:
    void changed();

private:
    enum class Way { none, asking, finishing, stopping };

    void follow();
    void go(Way way);

    RemovalsModel& removals_;
    std::function<void()> quit_;
    Way way_ = Way::none;
    bool asked_ = false;
};

}  // namespace zelk
