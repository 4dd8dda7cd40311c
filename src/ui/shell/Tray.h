// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <memory>
#include <utility>

namespace zelk {

/// The desktop's tray for status items. Some desktops have none, and it may appear and disappear at run time, with a
/// panel or an extension. Main thread.
class Tray : public QObject {
    Q_OBJECT

public:
    bool isThere() const { return there_; }
    /// Starts watching for a tray, once. Querying the desktop takes time.
    virtual void look() = 0;

signals:
    void changed();

protected:
    void setThere(bool there) {
        if (std::exchange(there_, there) != there) emit changed();
    }

private:
    bool there_ = false;
};

/// The tray of the running desktop.
std::unique_ptr<Tray> desktopTray();

}  // namespace zelk
