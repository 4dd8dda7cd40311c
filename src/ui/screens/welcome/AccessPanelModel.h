// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QTimer>
#include <chrono>
#include <functional>

namespace zelk {

class Workspace;

/// The panel that asks for access to the whole drive. For as long as it is on the screen it looks again and again
/// whether the access has come, without a limit. Main thread; a look takes a few system calls.
class AccessPanelModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Part of FirstRunModel")
    Q_PROPERTY(bool shown READ shown WRITE setShown NOTIFY shownChanged FINAL)

public:
    /// Between two looks.
    static constexpr std::chrono::milliseconds pollInterval{1'500};

    /// `accessGranted` looks whether the access is there. `workspace` must outlive it.
    AccessPanelModel(std::function<bool()> accessGranted, Workspace& workspace,
                     std::chrono::milliseconds interval = pollInterval);

    /// Whether the panel is on the screen: the view says so.
    bool shown() const { return shown_; }
    void setShown(bool shown);
    /// Whether it looks again.
    bool polling() const { return poll_.isActive(); }
    std::chrono::milliseconds interval() const { return poll_.intervalAsDuration(); }

public slots:
    /// Shows where the access is granted.
    void openSettings();
    /// Nobody remembers it: the next start asks again.
    void continueWithoutIt();
    /// One look; the timer's.
    void look();

signals:
    void shownChanged();
    /// The panel is done: the access has come, or is done without.
    void granted();

private:
    void finish();

    std::function<bool()> accessGranted_;
    Workspace& workspace_;
    QTimer poll_;
    bool shown_ = false;
};

}  // namespace zelk
