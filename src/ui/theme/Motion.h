// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>

namespace zelk {

class DesktopSettings;

/// Durations of animations, one instance per QML engine. With reduced motion they are 0 and nothing repeats. Follows
/// the desktop's setting until setReduced() is called. Main thread.
class Motion : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool reduced READ reduced WRITE setReduced NOTIFY changed FINAL)
    Q_PROPERTY(int quick READ quick NOTIFY changed FINAL)
    Q_PROPERTY(int gentle READ gentle NOTIFY changed FINAL)
    Q_PROPERTY(int count READ count NOTIFY changed FINAL)
    Q_PROPERTY(int follow READ follow NOTIFY changed FINAL)
    Q_PROPERTY(int reveal READ reveal NOTIFY changed FINAL)
    Q_PROPERTY(int readable READ readable CONSTANT FINAL)
    Q_PROPERTY(int turn READ turn CONSTANT FINAL)

public:
    explicit Motion(QObject* parent = nullptr);
    /// `desktop` must outlive it.
    explicit Motion(const DesktopSettings& desktop, QObject* parent = nullptr);

    bool reduced() const { return reduced_; }
    /// Overrides the desktop's setting from now on.
    void setReduced(bool reduced);

    /// Milliseconds, for feedback to input: hover, press, focus.
    int quick() const { return reduced_ ? 0 : 120; }
    /// Milliseconds, for a transition from one view to another.
    int gentle() const { return reduced_ ? 0 : 260; }
    /// Milliseconds, for a number that counts to its next value.
    int count() const { return reduced_ ? 0 : 500; }
    /// Milliseconds, for a number that a survey changes many times a second.
    int follow() const { return reduced_ ? 0 : 250; }
    /// Milliseconds, for the result of a survey, which counts up from zero.
    int reveal() const { return reduced_ ? 0 : 900; }
    /// Minimum milliseconds between two texts of a changing number, so that it is readable: twelve texts a second.
    int readable() const { return 80; }
    /// Milliseconds per revolution of the scan button's decoration, which stands still with reduced motion.
    int turn() const { return 1400; }

signals:
    void changed();

private:
    void apply(bool reduced);

    const DesktopSettings& desktop_;
    bool reduced_ = false;
};

}  // namespace zelk
