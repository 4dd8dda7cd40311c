// SPDX-License-Identifier: MIT
#include <utility>

#include "ui/shell/SingleInstance.h"
#include "ui/shell/linux/BusMeetingPoint.h"
#include "ui/shell/linux/FolderMeetingPoint.h"

namespace zelk {

Activation activationOfThisStart() {
    return {qEnvironmentVariable("XDG_ACTIVATION_TOKEN"), qEnvironmentVariable("DESKTOP_STARTUP_ID")};
}

std::vector<std::unique_ptr<MeetingPoint>> meetingPoints() {
    std::vector<std::unique_ptr<MeetingPoint>> points;
    points.push_back(std::make_unique<BusMeetingPoint>());
    for (FolderMeetingPoint::Place& place : FolderMeetingPoint::usualPlaces())
        points.push_back(std::make_unique<FolderMeetingPoint>(std::move(place)));
    return points;
}

}  // namespace zelk
