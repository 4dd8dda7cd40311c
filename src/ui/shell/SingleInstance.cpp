// SPDX-License-Identifier: MIT
#include "ui/shell/SingleInstance.h"

#include <QPointer>
#include <cstdio>
#include <cstdlib>
#include <utility>

#include "ui/shell/Shell.h"

namespace zelk {

namespace {

// Whoever held a point may have ended just before it was asked, and another have come. More than once or twice in a row
// is unlikely; without a limit something that always answers so would keep this process here.
constexpr int mostAttempts = 20;

constexpr const char* runningAlready = "Zelk is running already.\n";
constexpr const char* silent =
    "Zelk is running already, but does not answer. If it does not come back, end it before you start it again.\n";

}  // namespace

SingleInstance::SingleInstance() : SingleInstance(meetingPoints(), activationOfThisStart()) {}

SingleInstance::SingleInstance(std::vector<std::unique_ptr<MeetingPoint>> points, const Activation& by) {
    for (std::unique_ptr<MeetingPoint>& point : points) {
        if (take(*point, by)) held_.push_back(std::move(point));
        if (!exitStatus_) continue;
        held_.clear();
        return;
    }
}

/// Whether this process holds the point now. If another does, the exit status is set.
bool SingleInstance::take(MeetingPoint& point, const Activation& by) {
    for (int attempt = 0; attempt < mostAttempts; ++attempt) {
        const MeetingPoint::Claim claim = point.claim();
        if (claim == MeetingPoint::Claim::held) return true;
        if (claim == MeetingPoint::Claim::impossible) return false;
        const MeetingPoint::Answer answer = point.call(by);
        if (answer == MeetingPoint::Answer::gone) continue;
        if (answer == MeetingPoint::Answer::silent) break;
        if (answer == MeetingPoint::Answer::starting) std::fputs(runningAlready, stderr);
        exitStatus_ = EXIT_SUCCESS;
        return false;
    }
    std::fputs(silent, stderr);
    exitStatus_ = EXIT_FAILURE;
    return false;
}

void SingleInstance::serve(Shell& shell) {
    const auto comeForward = [shell = QPointer<Shell>(&shell)](const Activation& by) {
        return shell != nullptr && shell->comeForward(by);
    };
    for (const std::unique_ptr<MeetingPoint>& point : held_) {
        point->serve(comeForward);
        QObject::connect(&shell, &Shell::complete, &shell, [&point = *point] { point.announce(); });
    }
}

}  // namespace zelk
