// SPDX-License-Identifier: MIT
#include "system/CommandText.h"

#include "platform/Translation.h"
#include "platform/Utf8.h"

namespace zelk {

namespace {

std::string readableOutput(const ChildOutcome& outcome) {
    return isUtf8(outcome.output) ? outcome.output : std::string();
}

std::string launchFailureText(const std::string& reason) {
    return translated("Command", "failed: ") + reason;
}

}  // namespace

std::string refusedAnswer() {
    return translated("Command", "cancelled or failed: ");
}

std::string textOfRun(const ChildOutcome& outcome) {
    if (outcome.launchFailure) return launchFailureText(*outcome.launchFailure);
    if (outcome.exitStatus != 0) return translated("Command", "cancelled");
    const std::string output = readableOutput(outcome);
    return output.empty() ? translated("Command", "done") : output;
}

std::string textOfAdminRun(const ChildOutcome& outcome) {
    if (outcome.launchFailure) return launchFailureText(*outcome.launchFailure);
    const std::string output = readableOutput(outcome);
    return outcome.exitStatus == 0 ? output : refusedAnswer() + output;
}

}  // namespace zelk
