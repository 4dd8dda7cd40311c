// SPDX-License-Identifier: MIT
#pragma once

#include <QSocketNotifier>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "ui/shell/MeetingPoint.h"

namespace zelk {

/// A folder of this user that goes when the machine is shut down. It is held by a lock, which the kernel releases with
/// the process, however that ends; a socket in it takes what other processes ask.
class FolderMeetingPoint : public MeetingPoint {
public:
    struct Place {
        std::string parent;
        std::string name;
        bool shared =
            false;  ///< whether the parent belongs to everybody, as /tmp does; otherwise it must be this user's
    };

    /// `patience`, in milliseconds, is how long an answer may take.
    explicit FolderMeetingPoint(Place place, int patience = 5000);
    ~FolderMeetingPoint() override;

    /// In the runtime folder, and among the temporary files, since not every start is told of the former: that of
    /// another user's shell is not, and the toolkit makes a missing one after the first start has looked for it.
    static std::vector<Place> usualPlaces();

    Claim claim() override;
    Answer call(const Activation& by) override;
    void serve(Handler handler) override { handler_ = std::move(handler); }
    void announce() override;

private:
    void receive() const;

    Place place_;
    int patience_;
    int folder_ = -1;  // its descriptor has the lock
    int listening_ = -1;
    std::unique_ptr<QSocketNotifier> notifier_;
    Handler handler_;
};

}  // namespace zelk
