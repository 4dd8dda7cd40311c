// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QTimer>
#include <cstddef>
#include <memory>
#include <vector>

#include "reclaim/MainThreadCalls.h"
#include "reclaim/Removal.h"

namespace zelk {

/// All that is being taken away at the moment, by whatever part of the application: who wants to end it asks here
/// first, and here is where a stop is asked for. Main thread.
class RemovalsModel : public QObject {
    Q_OBJECT

public:
    struct Progress {
        std::size_t done = 0;
        std::size_t items = 0;
        bool operator==(const Progress&) const = default;
    };

    RemovalsModel();

    /// A removal of so many items, which is under way until each of them has been noted. Without items it never is.
    std::shared_ptr<Removal> begin(std::size_t items);
    bool underWay() const { return !running_.empty(); }
    /// Of all that is under way.
    Progress progress() const;

    /// No further item begins: neither of what is under way nor of what is begun until all of that has ended.
    void stop();
    bool stopping() const { return stopping_; }

signals:
    /// The first began or the last ended.
    void underWayChanged();
    /// Items were tried since the last time. Twice a second and no more: it may be read out.
    void progressChanged();

private:
    void end(const Removal& removal);
    void tellProgress();

    std::vector<std::shared_ptr<Removal>> running_;
    Progress told_;
    bool stopping_ = false;
    QTimer timer_;
    MainThreadCalls calls_;
};

}  // namespace zelk
