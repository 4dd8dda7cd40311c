// SPDX-License-Identifier: MIT
// The rules that tools/accessibility_walk holds every screen against.
#include <gmock/gmock.h>

#include <array>
#include <cstdio>
#include <string>

namespace zelk::house {
namespace {

TEST(AccessibilityWalk, findsEveryFaultOfItsSelfTest) {
    std::FILE* const pipe = popen("python3 '" ZELK_SOURCE_DIR "/tools/accessibility_walk' --self-test 2>&1", "r");
    ASSERT_NE(pipe, nullptr);
    std::string said;
    std::array<char, 4096> text{};
    while (const std::size_t length = std::fread(text.data(), 1, text.size(), pipe)) said.append(text.data(), length);
    EXPECT_EQ(pclose(pipe), 0) << said;
    EXPECT_THAT(said, testing::HasSubstr("faults, all found"));
}

}  // namespace
}  // namespace zelk::house
