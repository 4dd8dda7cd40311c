// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <memory>

namespace zelk {

/// Where a desktop keeps the status items of its applications. Some have none, and it may come and go: with an
/// extension that is switched, with a panel that ends. Main thread.
class Tray : public QObject {
    Q_OBJECT

public:
    bool isThere() const { return there_; }
    /// Begins to look, once; asking the desktop takes time.
    virtual void look() = 0;

signals:
    void changed();

protected:
    void setThere(bool there) {
        if (there == there_) return;
        there_ = there;
        emit changed();
    }

private:
    bool there_ = false;
};

/// That of the desktop on which the application runs.
std::unique_ptr<Tray> desktopTray();

}  // namespace zelk
