// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fakes/FakePlatform.h"
#include "reclaim/DuplicateFinder.h"

namespace zelk {

/// Searches and removes duplicates on a machine in memory.
class DuplicatesFixture : public testing::Test {
protected:
    using Strings = std::vector<std::string>;
    using Sets = std::vector<Strings>;

    static constexpr std::int64_t minimum = 2'000'000;

    void add(const std::string& path, char letter, std::size_t size = minimum) {
        machine.files.addFile(path, std::string(size, letter));
    }
    DuplicateFinder finder() { return DuplicateFinder(machine.platform()); }
    std::vector<DuplicateGroup> find(const Strings& roots = {"/home/me"}) { return finder().find(roots, minimum); }
    /// The paths of each group.
    Sets sets(const Strings& roots = {"/home/me"}) {
        Sets paths;
        for (const DuplicateGroup& group : find(roots)) paths.push_back(group.paths);
        return paths;
    }

    fakes::FakePlatform machine;
};

}  // namespace zelk
