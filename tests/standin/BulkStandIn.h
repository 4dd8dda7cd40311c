// SPDX-License-Identifier: MIT
// What a test can make the stand-in for getattrlistbulk do, and what it saw. One per thread.
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
        int materialising;  ///< the thread's policy at the moment
    };

    /// What the call with this number (from 0) is to answer in place of the truth: -1, with errno set to it. 0 is the
    /// failure that names no error.
    std::function<std::optional<int>(std::size_t call)> failure;
    /// May change what a call leaves in the buffer.
    std::function<void(std::size_t call, void* buffer, int count)> afterwards;

    std::vector<Call> calls;

    /// The calling thread's policy for folders that are not on the disk. -1: the system knows of none.
    static int& materialising();

    /// The names of entries that cannot be asked, as where a call that the file system lacks is made up by the kernel:
    /// such a record has the name and nothing else. For all threads; not to be changed while any reads.
    static std::set<std::string>& unasked();

    /// The calling thread's, which getattrlistbulk() looks at.
    static BulkStandIn& here();
};

}  // namespace zelk
