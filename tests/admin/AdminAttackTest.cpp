// SPDX-License-Identifier: MIT
// Ten thousand random and hostile argument lists, judged by zelk-admin and by a model in another language. Only lists
// that both refuse are given to the program itself, and not as root.
#include <gmock/gmock.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "admin/AdminCommand.h"
#include "fakes/InChild.h"
#include "platform/posix/PosixChildProcess.h"
#include "zoo/TempFolder.h"

namespace zelk {
namespace {

using Words = std::vector<std::string>;

struct JudgedList {
    Words arguments;
    bool accepted = false;
    bool dropsCaches = false;
    std::vector<Words> programs;
};

class Reader {
public:
    explicit Reader(std::string_view bytes) : rest_(bytes) {}

    bool atEnd() const { return rest_.empty(); }
    std::uint32_t number() {
        std::uint32_t value = 0;
        for (unsigned byte = 0; byte < 4; ++byte)
            value |= static_cast<std::uint32_t>(static_cast<unsigned char>(rest_.at(byte))) << (8 * byte);
        rest_.remove_prefix(4);
        return value;
    }
    Words texts() {
        Words words(number());
        for (std::string& word : words) {
            const std::uint32_t length = number();
            word = rest_.substr(0, length);
            rest_.remove_prefix(length);
        }
        return words;
    }

private:
    std::string_view rest_;
};

const std::vector<JudgedList>& judgedLists() {
    static const std::vector<JudgedList> lists = [] {
        const ChildOutcome model = PosixChildProcess().run(
            "/usr/bin/env", {"python3", ZELK_SOURCE_DIR "/tests/admin/admin_model.py", "13", "10000"},
            {false, true, true});
        EXPECT_EQ(model.exitStatus, 0) << model.output;
        std::vector<JudgedList> all;
        for (Reader reader(model.output); model.exitStatus == 0 && !reader.atEnd();) {
            JudgedList& list = all.emplace_back();
            list.arguments = reader.texts();
            list.accepted = reader.number() == 1;
            list.dropsCaches = reader.number() == 1;
            list.programs.resize(reader.number());
            for (Words& program : list.programs) program = reader.texts();
        }
        return all;
    }();
    return lists;
}

std::string spelled(const Words& words) {
    std::string text;
    for (const std::string& word : words) text += "<" + word.substr(0, 300) + ">";
    return text;
}

TEST(AdminAttack, agreesWithTheModel) {
    ASSERT_EQ(judgedLists().size(), 10'000U);
    std::size_t accepted = 0;
    std::size_t longest = 0;
    for (const JudgedList& list : judgedLists()) {
        const AdminCommand command = adminCommand(list.arguments);
        ASSERT_EQ(command.refusal.empty(), list.accepted) << spelled(list.arguments);
        ASSERT_EQ(command.dropsCaches, list.dropsCaches) << spelled(list.arguments);
        ASSERT_EQ(command.programs, list.programs) << spelled(list.arguments);
        if (!list.accepted) {
            ASSERT_TRUE(command.refusal.ends_with('.')) << command.refusal;
            ASSERT_TRUE(std::ranges::none_of(command.refusal, [](char c) { return c < ' ' || c > '~'; }));
        }
        accepted += list.accepted;
        for (const std::string& word : list.arguments) longest = std::max(longest, word.size());
    }
    // Enough of both kinds.
    EXPECT_GT(accepted, 1'000U);
    EXPECT_LT(accepted, 5'000U);
    EXPECT_GE(longest, 100'000U);
}

/// Lists that both refuse, and that a process can be given.
std::vector<Words> refusedLists(std::size_t most) {
    std::vector<Words> refused{{}, {""}};
    std::size_t longOnes = 0;
    for (const JudgedList& list : judgedLists()) {
        if (list.accepted || adminCommand(list.arguments).refusal.empty()) continue;
        std::size_t bytes = 0;
        for (const std::string& word : list.arguments) bytes = std::max(bytes, word.size());
        if (bytes > 128 * 1024 - 1) continue;  // no process gets a longer one
        if (bytes >= 100'000 ? ++longOnes > 10 : refused.size() >= most) continue;
        refused.push_back(list.arguments);
    }
    return refused;
}

/// The program where an ordinary user can start it, and an environment of somebody who means ill.
class AdminProgram : public testing::Test {
protected:
    AdminProgram() {
        std::filesystem::copy_file(ZELK_ADMIN, program);
        fakes::giveToOrdinaryUser(folder.path());
    }

    static void forgeEnvironment() {
        for (const auto& [name, value] :
             std::vector<std::pair<const char*, const char*>>{{"PATH", "."},
                                                              {"IFS", "-"},
                                                              {"ENV", "/tmp/x"},
                                                              {"BASH_ENV", "/tmp/x"},
                                                              {"LANG", "\xff"},
                                                              {"LC_ALL", "tlh"},
                                                              {"HOME", "/nowhere"},
                                                              {"TMPDIR", "/nowhere"},
                                                              {"POSIXLY_CORRECT", "1"},
                                                              {"PKEXEC_UID", "0\n0"},
                                                              {"DEBIAN_FRONTEND", "readline"},
                                                              {"SNAPPER", "$(id)"}})
            ::setenv(name, value, 1);
    }
    /// Runs `check` as an ordinary user; false without that.
    template <class Check>
    static bool asNobody(Check check) {
        return fakes::asOrdinaryUser([&] { return ::geteuid() != 0 && check(); });
    }

    const zoo::TempFolder folder;
    const std::string program = folder / "zelk-admin";
};

TEST_F(AdminProgram, refusesWithOneSentence) {
    const std::vector<Words> lists = refusedLists(300);
    ASSERT_GE(lists.size(), 300U);
    EXPECT_TRUE(asNobody([&] {
        forgeEnvironment();
        for (const Words& list : lists) {
            const ChildOutcome outcome = PosixChildProcess().run(program, list, {false, true, true});
            if (!outcome.launchFailure && outcome.exitStatus == 64 &&
                outcome.output == adminCommand(list).refusal + "\n")
                continue;
            std::fprintf(stderr, "%s: %d %s\n", spelled(list).c_str(), outcome.exitStatus, outcome.output.c_str());
            return false;
        }
        return true;
    }));
}

TEST_F(AdminProgram, saysItOnTheErrorStream) {
    EXPECT_TRUE(asNobody([&] {
        const ChildOutcome outcome = PosixChildProcess().run(program, {"reboot"}, {true, false, false});
        return outcome.exitStatus == 64 && outcome.output.empty();
    }));
}

TEST_F(AdminProgram, doesNothingWithoutRoot) {
    EXPECT_TRUE(asNobody([&] {
        const ChildOutcome outcome = PosixChildProcess().run(program, {"free-memory"});
        return outcome.exitStatus == 77 && outcome.output == "zelk-admin does this as root only.\n";
    }));
}

int statusWithoutName(const std::string& program, bool closesStreams) {
    const pid_t child = ::fork();
    if (child == 0) {
        for (int descriptor = closesStreams ? 0 : 3; descriptor < 3; ++descriptor) ::close(descriptor);
        char* none[] = {nullptr};
        ::execve(program.c_str(), none, none);
        ::_exit(1);
    }
    int status = 0;
    while (::waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST_F(AdminProgram, survivesAListWithoutEvenAName) {
    EXPECT_TRUE(asNobody([&] { return statusWithoutName(program, false) == 64; }));
    EXPECT_TRUE(asNobody([&] { return statusWithoutName(program, true) == 64; }));
}

}  // namespace
}  // namespace zelk
