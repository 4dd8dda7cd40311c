// SPDX-License-Identifier: MIT
#include "state/AdminRunner.h"

#include <utility>

#include "system/PrivilegedCommands.h"

namespace zelk {

AdminRunner::AdminRunner(const Platform& platform, MainThreadQueue::Sender mainThread)
    : platform_(platform), mainThread_(std::move(mainThread)) {}

void AdminRunner::run(const std::string& line, Done done) {
    platform_.tasks.runApart(TaskPriority::userInitiated,
                             [platform = platform_, mainThread = mainThread_, line, done = std::move(done)] {
                                 mainThread.post([done, text = PrivilegedCommands(platform).run(line)] { done(text); });
                             });
}

void AdminRunner::runAdmin(const std::string& line, Done done) {
    platform_.tasks.runApart(
        TaskPriority::userInitiated, [platform = platform_, mainThread = mainThread_, line, done = std::move(done)] {
            mainThread.post([done, text = PrivilegedCommands(platform).runAdmin(line)] { done(text); });
        });
}

}  // namespace zelk
