// SPDX-License-Identifier: MIT
#include "platform/linux/apps/HostQuestion.h"

#include <unistd.h>

#include "platform/linux/apps/HostAnswer.h"

namespace zelk {

std::optional<RunningApplications> askHost(ChildProcess& processes, const std::vector<std::string>& locales) {
    // Killed with the spawner, if it hangs there; and our working directory need not exist on the host.
    const std::vector<std::string> words{"--host",   "--watch-bus", "--directory=/",           "/bin/sh", "-c",
                                         hostScript, "sh",          std::to_string(::getuid())};
    const ChildOutcome outcome = processes.run(
        hostSpawner, words,
        {.inheritsInput = false, .errorsWithOutput = false, .readsWhileRunning = true, .limit = hostLimit});
    if (outcome.launchFailure || outcome.exitStatus != 0) return std::nullopt;
    const std::optional<HostAnswer> answer = parseHostAnswer(outcome.output);
    if (!answer) return std::nullopt;
    return runningApplicationsOf(*answer, locales);
}

}  // namespace zelk
