// SPDX-License-Identifier: MIT
// Work that one thread has in hand and others may help with.
#pragma once

#include <cstddef>

namespace zelk {

/// Work in parts that depend on nothing of each other, such as reading the status of a thousand files.
class SharedWork {
public:
    virtual ~SharedWork() = default;
    /// How many parts there are.
    virtual std::size_t parts() const = 0;
    /// Does the part `index`, counted from 0: called at most once for each, on any thread, several at a time. Throws
    /// nothing.
    virtual void run(std::size_t index) = 0;
};

/// The threads that may help whoever has this.
class Helpers {
public:
    virtual ~Helpers() = default;
    /// Runs the parts of `work` here and on whichever threads have nothing else to do, and returns when none of them is
    /// at it any more. False if it was cancelled: then some parts were left out.
    virtual bool run(SharedWork& work) = 0;
};

}  // namespace zelk
