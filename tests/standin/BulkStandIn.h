// SPDX-License-Identifier: MIT
// Controls the stand-in for getattrlistbulk and records its calls. One per thread.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "standin/sys/attr.h"

namespace zelk {

struct BulkStandIn {
    struct Call {
        attrlist request;
        std::size_t size;
        std::uint64_t options;
        int result;
        int materialising;  ///< the thread's current policy
    };

    /// The result of the call with this number (from 0) instead of the real one: -1 with errno set to this value. 0 is
    /// a failure without an errno.
    std::function<std::optional<int>(std::size_t call)> failure;
    /// May modify the buffer after a call.
    std::function<void(std::size_t call, void* buffer, int count)> afterwards;

    std::vector<Call> calls;

    /// The calling thread's policy for dataless folders. -1: unsupported by the system.
    static int& materialising();

    /// The names of entries whose attributes are unavailable, as on file systems for which the kernel emulates the
    /// call: such a record has only a name. For all threads; do not change it while any thread reads.
    static std::set<std::string>& unasked();

    /// The calling thread's stand-in, which getattrlistbulk() uses.
    static BulkStandIn& here();
};

}  // namespace zelk
