// SPDX-License-Identifier: MIT
// The application bundle of macOS, as far as it can be read on any system: its description as CMake made it in this
// build, its entitlements, and what other sources say about the same things.
#include <gmock/gmock.h>

#include <array>
#include <cstdio>
#include <string>

namespace zelk::house {
namespace {

struct Answer {
    int status = 0;
    std::string text;
};

Answer bundleCheck(const std::string& arguments) {
    const std::string line = "python3 '" ZELK_SOURCE_DIR "/tools/macos_bundle_check' " + arguments + " 2>&1";
    std::FILE* const pipe = popen(line.c_str(), "r");
    if (pipe == nullptr) return {-1, "no process"};
    Answer answer;
    std::array<char, 4096> text{};
    while (const std::size_t length = std::fread(text.data(), 1, text.size(), pipe))
        answer.text.append(text.data(), length);
    answer.status = pclose(pipe);
    return answer;
}

TEST(MacBundle, isDescribedAsTheSourcesSay) {
    const Answer answer = bundleCheck("--sources '" ZELK_BINARY_DIR "'");
    EXPECT_EQ(answer.status, 0) << answer.text;
    EXPECT_THAT(answer.text, testing::HasSubstr("agree"));
}

TEST(MacBundle, everyMistakeOfTheSelfTestIsFound) {
    const Answer answer = bundleCheck("--self-test");
    EXPECT_EQ(answer.status, 0) << answer.text;
    EXPECT_THAT(answer.text, testing::HasSubstr("mistakes, all found"));
}

TEST(MacBundle, releaseSignsFromTheInsideOutAndSkipsWhatItHasNoSecretsFor) {
    const Answer answer = bundleCheck("--rehearse");
    EXPECT_EQ(answer.status, 0) << answer.text;
    EXPECT_THAT(answer.text, testing::HasSubstr("is right"));
}

}  // namespace
}  // namespace zelk::house
