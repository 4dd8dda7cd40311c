// SPDX-License-Identifier: MIT
// A home with a Trash and a folder of items, and the program that works on them under strace.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fakes/TracedProgram.h"
#include "zoo/TempFolder.h"

namespace zelk {

class TracedTrash : public testing::Test {
protected:
    /// `calls` are the system calls to trace, in the form of strace's "trace=".
    explicit TracedTrash(const std::string& calls) : program(calls, temp / "log", "/trash-writer-begins") {}

    std::vector<fakes::CallPosition> positions() const {
        const std::vector<fakes::CallPosition> all = program.positions();
        EXPECT_FALSE(all.empty()) << "strace cannot trace a program here";
        return all;
    }

    const zoo::TempFolder temp{zoo::TempFolder::Medium::memory};
    const std::string home = temp / "home";
    const std::string trash = home + "/.local/share/Trash";
    const std::string items = temp / "items";
    const std::string item = items + "/item.txt";
    const fakes::TracedProgram program;
};

}  // namespace zelk
