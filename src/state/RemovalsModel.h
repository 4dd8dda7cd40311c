// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QTimer>
#include <cstddef>
#include <memory>
#include <vector>

#include "reclaim/Removal.h"
#include "state/MainThreadQueue.h"

namespace zelk {

/// Every removal that is running, whichever part of the application started it. Quitting asks here first, and a stop is
/// requested here. Owned by AppModel; main thread only. Nothing fails.
class RemovalsModel : public QObject {
    Q_OBJECT

public:
    struct Progress {
        std::size_t done = 0;
        std::size_t items = 0;
        bool operator==(const Progress&) const = default;
    };

    RemovalsModel();

    /// Registers a removal of so many items, which ends when each of them was counted. Without items it is not
    /// registered.
    std::shared_ptr<Removal> begin(std::size_t items);
    bool underWay() const { return !running_.empty(); }
    /// The sum over all running removals.
    Progress progress() const;

    /// No further item begins, neither of the running removals nor of one that is added before all of them have ended.
    void stop();
    bool stopping() const { return stopping_; }

signals:
    /// The first one began or the last one ended.
    void underWayChanged();
    /// More items were tried. At most twice a second, because it may be spoken.
    void progressChanged();

private:
    void end(const Removal& removal);
    void tellProgress();

    std::vector<std::shared_ptr<Removal>> running_;
    Progress signalled_;
    bool stopping_ = false;
    QTimer timer_;
    MainThreadQueue mainThread_;
};

}  // namespace zelk
