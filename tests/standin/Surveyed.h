// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <variant>

#include "platform/posix/PosixClock.h"
#include "scan/ScanEngine.h"

namespace zelk {

/// How a survey of `root` ends.
inline update::Finished surveyed(DirectoryService& directories, const std::string& root) {
    PosixClock clock;
    const auto queue = std::make_shared<UpdateQueue>();
    ScanEngine(directories, clock).runHere(queue, {root});
    for (const ScanUpdate& update : queue->takeAll().updates) {
        if (const auto* finished = std::get_if<update::Finished>(&update)) return *finished;
    }
    ADD_FAILURE() << "the survey has no end";
    return {};
}

}  // namespace zelk
