// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>

namespace zelk {

class DesktopSettings;

/// Whether things move, and for how long, as QML reads it: one per engine. With reduced motion every duration is 0 and
/// nothing repeats. It starts with the desktop's setting and follows it until somebody says otherwise. Main thread.
class Motion : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool reduced READ reduced WRITE setReduced NOTIFY changed FINAL)
    Q_PROPERTY(int quick READ quick NOTIFY changed FINAL)
    Q_PROPERTY(int gentle READ gentle NOTIFY changed FINAL)
    Q_PROPERTY(int count READ count NOTIFY changed FINAL)
    Q_PROPERTY(int turn READ turn CONSTANT FINAL)

public:
    explicit Motion(QObject* parent = nullptr);
    /// `desktop` must outlive it.
    explicit Motion(const DesktopSettings& desktop, QObject* parent = nullptr);

    bool reduced() const { return reduced_; }
    /// From now on the desktop is not asked any more.
    void setReduced(bool reduced);

    /// Milliseconds. For what answers the hand: hover, press, focus.
    int quick() const { return reduced_ ? 0 : 120; }
    /// Milliseconds. For one face that takes the place of another.
    int gentle() const { return reduced_ ? 0 : 260; }
    /// Milliseconds. For a figure that runs to its next value.
    int count() const { return reduced_ ? 0 : 500; }
    /// Milliseconds of one turn of the scan button's decoration, which stands still with reduced motion.
    int turn() const { return 1400; }

signals:
    void changed();

private:
    void apply(bool reduced);

    const DesktopSettings& desktop_;
    bool reduced_ = false;
};

}  // namespace zelk
