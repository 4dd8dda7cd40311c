// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ChildProcess.h"

namespace zelk {

class PosixChildProcess : public ChildProcess {
public:
    ChildOutcome run(const std::string& executable, const std::vector<std::string>&) override {
        return {executable + " cannot be started yet", 0, {}};
    }
};

}  // namespace zelk
