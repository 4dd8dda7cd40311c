// SPDX-License-Identifier: MIT
#include "zoo/TempFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <stdexcept>

#include "zoo/RemoveTree.h"

namespace zelk::zoo {

namespace {

std::string placeOn(TempFolder::Medium medium) {
    if (medium == TempFolder::Medium::memory && access("/dev/shm", W_OK) == 0) return "/dev/shm";
    const char* const given = std::getenv("TMPDIR");
    return given != nullptr ? given : "/tmp";
}

}  // namespace

TempFolder::TempFolder(Medium medium) : path_(placeOn(medium) + "/zelk-zoo-XXXXXX") {
    if (mkdtemp(path_.data()) == nullptr) throw std::runtime_error("no folder can be made at " + path_);
    chmod(path_.c_str(), 0755);  // tests of permissions access it as another user
}

TempFolder::~TempFolder() {
    EXPECT_TRUE(removeTree(path_)) << path_;
}

}  // namespace zelk::zoo
