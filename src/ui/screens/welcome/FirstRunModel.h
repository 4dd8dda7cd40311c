// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QEasingCurve>
#include <QList>
#include <QObject>
#include <QString>
#include <QTimer>
#include <chrono>
#include <functional>

namespace zelk {

class Preferences;
class Workspace;

/// A page of the welcome sheet.
struct IntroPage {
    Q_GADGET
    QML_VALUE_TYPE(introPage)
    Q_PROPERTY(QString symbol MEMBER symbol FINAL)
    Q_PROPERTY(QColor tint MEMBER tint FINAL)
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(QString body MEMBER body FINAL)

public:
    QString symbol;
    QColor tint;
    QString title;
    QString body;

    bool operator==(const IntroPage&) const = default;
};

/// The welcome pages and the current one. Main thread.
class WelcomeModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Part of FirstRunModel")
    Q_PROPERTY(QList<zelk::IntroPage> pages READ pages CONSTANT FINAL)
    Q_PROPERTY(int page READ page NOTIFY pageChanged FINAL)
    Q_PROPERTY(bool backShown READ backShown NOTIFY pageChanged FINAL)
    Q_PROPERTY(bool onLastPage READ onLastPage NOTIFY pageChanged FINAL)
    Q_PROPERTY(QString title READ title NOTIFY pageChanged FINAL)
    Q_PROPERTY(int turnTime READ turnTime CONSTANT FINAL)
    Q_PROPERTY(QEasingCurve turnEasing READ turnEasing CONSTANT FINAL)
    Q_PROPERTY(QString position READ position NOTIFY pageChanged FINAL)

public:
    explicit WelcomeModel(QObject* parent = nullptr);

    const QList<IntroPage>& pages() const { return pages_; }
    int page() const { return page_; }
    bool backShown() const { return page_ > 0; }
    bool onLastPage() const { return page_ + 1 == pages_.size(); }
    /// The title of the current page.
    QString title() const { return pages_[page_].title; }
    /// "Page 1 of 4", for screen readers, which cannot see the dots.
    QString position() const;
    /// The duration in milliseconds and the easing of the transition between pages: a spring without overshoot.
    int turnTime() const;
    QEasingCurve turnEasing() const;

public slots:
    /// Goes to the next page; nothing on the last.
    void next();
    /// Goes to the previous page; nothing on the first.
    void back();
    /// The primary button: goes to the next page, or finishes after the last.
    void pressPrimary();
    /// Finishes from any page.
    void skip() { emit finished(); }

signals:
    void pageChanged();
    void finished();

private:
    void show(int page);

    const QList<IntroPage> pages_;
    int page_ = 0;
};

/// The sheets shown at start-up: the welcome pages once per installation, and the request for access at every start
/// without access to the whole drive. Never both at the same time. While the request is visible, it checks periodically
/// whether access has been granted, which takes a few system calls. Main thread.
class FirstRunModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the shell")
    Q_PROPERTY(bool started READ started NOTIFY changed FINAL)
    Q_PROPERTY(bool showWelcome READ showWelcome NOTIFY changed FINAL)
    Q_PROPERTY(bool showOnboarding READ showOnboarding NOTIFY changed FINAL)
    Q_PROPERTY(zelk::WelcomeModel* welcome READ welcome CONSTANT FINAL)
    Q_PROPERTY(bool polling READ polling WRITE setPolling FINAL)

public:
    /// The interval between two checks.
    static constexpr std::chrono::milliseconds pollInterval{1'500};

    /// `preferences` and `workspace` must outlive it. `accessGranted` checks whether the whole drive can be read;
    /// called on the main thread, and not before start().
    FirstRunModel(Preferences& preferences, std::function<bool()> accessGranted, Workspace& workspace,
                  std::chrono::milliseconds interval = pollInterval);

    /// Call when the main window is shown.
    void start();

    /// Whether there has been a sheet to show.
    bool started() const { return started_; }
    bool showWelcome() const { return showWelcome_; }
    bool showOnboarding() const { return showOnboarding_; }
    WelcomeModel* welcome() { return &welcome_; }

    /// Whether the periodic check is active; set by the view while the request is visible.
    bool polling() const { return poll_.isActive(); }
    void setPolling(bool polling);
    std::chrono::milliseconds interval() const { return poll_.intervalAsDuration(); }

public slots:
    /// Opens the system settings where access is granted.
    void openAccessSettings();
    /// Not stored: the next start asks again.
    void continueWithoutAccess();

signals:
    void changed();

private:
    void finishWelcome();
    void checkAccess();
    void show(bool welcome, bool onboarding);

    Preferences& preferences_;
    std::function<bool()> accessGranted_;
    Workspace& workspace_;
    WelcomeModel welcome_;
    QTimer poll_;
    bool started_ = false;
    bool showWelcome_ = false;
    bool showOnboarding_ = false;
};

}  // namespace zelk
