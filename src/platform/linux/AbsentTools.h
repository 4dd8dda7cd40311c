// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ChildProcess.h"

namespace zelk {

/// Stands for the tools of the host in a sandbox that has none of them: each fails to launch and says so. What a
/// runtime has by the name of one is another program, which knows nothing of the host, so it is not started either.
class AbsentTools : public ChildProcess {
public:
    using ChildProcess::run;
    ChildOutcome run(const std::string& executable, const std::vector<std::string>& arguments,
                     const ChildStreams& streams) override;
};

}  // namespace zelk
