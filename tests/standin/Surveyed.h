// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <variant>

#include "platform/posix/PosixClock.h"
#include "platform/posix/ThreadCount.h"
#include "scan/ScanEngine.h"

namespace zelk {

/// The final updates of a survey of `root`.
inline update::Finished surveyed(DirectoryService& directories, const std::string& root) {
    PosixClock clock;
    const auto queue = std::make_shared<UpdateQueue>();
    ScanEngine(directories, clock).runHere(queue, {root});
    // A late worker finds nothing to do, but still uses the services.
    EXPECT_TRUE(drainThreads(1e6));
    for (const ScanUpdate& update : queue->takeAll().updates) {
        if (const auto* finished = std::get_if<update::Finished>(&update)) return *finished;
    }
    ADD_FAILURE() << "the survey has no end";
    return {};
}

}  // namespace zelk
