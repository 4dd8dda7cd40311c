// SPDX-License-Identifier: MIT
#include "zoo/Child.h"

#include <grp.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdlib>

namespace zelk::zoo {

namespace {

constexpr unsigned nobody = 65534;

bool dropPower() {
    if (geteuid() != 0) return true;
    return setgroups(0, nullptr) == 0 && setgid(nobody) == 0 && setuid(nobody) == 0;
}

[[noreturn]] void runChild(int answer, const std::function<std::string()>& body) {
    if (!dropPower()) _exit(2);
    const std::string text = body();
    for (std::size_t at = 0; at < text.size();) {
        const ssize_t wrote = write(answer, text.data() + at, text.size() - at);
        if (wrote < 0) _exit(3);
        at += static_cast<std::size_t>(wrote);
    }
    _exit(testing::Test::HasFailure() ? 4 : 0);
}

}  // namespace

std::string inPowerlessChild(const std::function<std::string()>& body) {
    std::array<int, 2> answer{};
    EXPECT_EQ(pipe(answer.data()), 0);
    const pid_t child = fork();
    if (child == 0) {
        close(answer[0]);
        runChild(answer[1], body);
    }
    close(answer[1]);
    std::string text;
    std::array<char, 4096> part{};
    for (ssize_t got; (got = read(answer[0], part.data(), part.size())) > 0;)
        text.append(part.data(), static_cast<std::size_t>(got));
    close(answer[0]);
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "the child ended with status " << status;
    return text;
}

}  // namespace zelk::zoo
