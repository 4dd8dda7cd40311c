// SPDX-License-Identifier: MIT
// The real zelk-survey, on real folders.
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <sysexits.h>

#include <algorithm>
#include <array>
#include <nlohmann/json.hpp>

#include "NcduReader.h"
#include "RanProgram.h"
#include "state/SurveyHistory.h"
#include "zoo/Scan.h"

namespace zelk::cli {
namespace {

using nlohmann::json;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class Program : public RanProgram {};

TEST_F(Program, countsTheZooInEveryFormAsOthersDo) {
    zoo::makeZoo(place, temp / "outside", 60);
    const zoo::Count count = zoo::countedIndependently(place);
    ASSERT_GT(count.bytes, 1'000'000);

    const Ran ran = run({"--json", place, "--ncdu", temp / "export"});
    EXPECT_EQ(ran.status, 0);
    const json all = json::parse(ran.output);
    EXPECT_EQ(all.at("version"), 1);
    EXPECT_EQ(all.at("bytes"), count.bytes);
    EXPECT_EQ(all.at("files"), count.files);
    EXPECT_EQ(all.at("foldersRead"), count.folders);
    EXPECT_EQ(all.at("foldersUnreadable"), count.blocked);
    EXPECT_EQ(all.at("roots").at(0).at("bytes"), count.bytes);

    const NcduFile file = readNcdu(fakes::fileContent(temp / "export"));
    EXPECT_EQ(file.total(), count.bytes);
    EXPECT_EQ(file.entries[0].name, place);
    const Ran streamed = run({"--ncdu", "-", place});
    EXPECT_EQ(streamed.status, 0);
    EXPECT_EQ(readNcdu(streamed.output).total(), count.bytes);
    EXPECT_EQ(readNcdu(streamed.output).entries.size(), file.entries.size());
}

TEST_F(Program, keepsTheBytesOfTheNamesOnTheDisk) {
    const std::string name = "\xFF\x01\"\\\n\x7F\xC3";
    zoo::makeFile(place + "/" + name + "/file", 5000);
    EXPECT_TRUE(readNcdu(run({"--ncdu", "-", place}).output).has(name));
    EXPECT_THAT(run({place}).output, HasSubstr("  \\xFF\\x01\"\\\\n\\x7F\\xC3\n"));
    EXPECT_THAT(run({"--json", place}).output, HasSubstr("/%FF%01%22%5C%0A%7F%C3\",\"pathEscaped\":true"));
}

TEST_F(Program, printsATableForPeople) {
    zoo::allocateFile(place + "/a/large.iso", 3 << 20);
    zoo::allocateFile(place + "/p/node_modules/x", 1 << 20);
    const Ran ran = run({place});
    EXPECT_EQ(ran.status, 0);
    EXPECT_EQ(ran.errors, "");
    EXPECT_EQ(ran.output, "4.2 MB in 2 files and 4 folders\n\nIn " + place + R"(
     3.1 MB   75 %  a
       1 MB   25 %  p

Types
     3.1 MB   75 %            1  Disk images
       1 MB   25 %            1  Other

Largest files
     3.1 MB  )" + place + "/a/large.iso\n       1 MB  " +
                              place + R"(/p/node_modules/x

Can be had again: 1 MB
       1 MB  regenerates  node_modules
)");
    EXPECT_THAT(run({"--top", "1", place}).output, HasSubstr("(1 more)"));
}

TEST_F(Program, takesRelativeRootsAndNamesEachOnce) {
    zoo::makeFile(place + "/sub/file", 5000);
    const Ran ran =
        run({"--json", "sub", "./sub/", place + "/sub", ".."}, [&] { EXPECT_EQ(::chdir(place.c_str()), 0); });
    const json all = json::parse(ran.output);
    ASSERT_EQ(all.at("roots").size(), 2U);
    EXPECT_EQ(all.at("roots").at(0).at("path"), place + "/sub");
    EXPECT_EQ(all.at("roots").at(1).at("path"), temp.path());
}

TEST_F(Program, surveysAFolderThatLooksLikeAnOption) {
    zoo::makeFile(place + "/--json/file", 5000);
    const Ran ran = run({"--", "--json"}, [&] { EXPECT_EQ(::chdir(place.c_str()), 0); });
    EXPECT_EQ(ran.status, 0);
    EXPECT_THAT(ran.output, HasSubstr("In " + place + "/--json\n"));
}

TEST_F(Program, leavesNoTrace) {
    zoo::makeFile(place + "/file", 5000);
    const auto modified = std::filesystem::last_write_time(home);
    EXPECT_EQ(run({place}).status, 0);
    EXPECT_EQ(run({"--json", home}).status, 0);
    EXPECT_THAT(fakes::namesIn(home), IsEmpty());
    EXPECT_EQ(std::filesystem::last_write_time(home), modified);
    EXPECT_THAT(fakes::namesIn(place), ElementsAre("file"));
}

#ifdef __linux__
// Loading such a library takes more memory than a survey, and more time than one of a small folder.
TEST_F(Program, loadsNoLibraryThatASurveyHasNoUseFor) {
    const Ran ran = run({place}, [] { ::setenv("LD_TRACE_LOADED_OBJECTS", "1", 1); });
    EXPECT_THAT(ran.output, HasSubstr("libc"));
    for (const char* library : {"Qt", "icu", "glib", "crypto", "plist"})
        EXPECT_THAT(ran.output, Not(HasSubstr(library)));
}
#endif

TEST_F(Program, tellsWhatHasGrownSinceTheRecord) {
    zoo::allocateFile(place + "/grown/file", 90'112'000);
    SurveyRecord record;
    record.date = 1'750'000'000;
    record.totalScanned = 30'000'000;
    record.folders = SizeByPath{{place, 30'000'000}, {place + "/grown", 30'000'000}};
    const std::string history = home + "/.local/share/Zelk/history.json";
    zoo::makeFile(history);
    fakes::writeFile(history, encodeHistory({record}));
    EXPECT_THAT(run({place}).output, HasSubstr("\nSince 2025-06-15 15:06: 60.1 MB more\n"
                                               "    +60.1 MB    90.1 MB       " +
                                               place +
                                               "\n"
                                               "    +60.1 MB    90.1 MB       " +
                                               place + "/grown\n"));
    const json growth = json::parse(run({"--json", place}).output).at("growth");
    EXPECT_EQ(growth.at("since"), 1'750'000'000);
    EXPECT_EQ(growth.at("grew").size(), 2U);
    EXPECT_EQ(fakes::fileContent(history), encodeHistory({record}));
    EXPECT_THAT(run({place + "/grown"}).output, Not(HasSubstr("Since")));
}

TEST_F(Program, tellsFoldersThatItCannotRead) {
    zoo::makeUnreadable(place);
    fakes::giveToOrdinaryUser(home);
    // A copy, since the user may not reach the build folder.
    std::filesystem::copy_file(program, temp / "program");
    program = temp / "program";
    const auto asUser = [&] {
        if (::geteuid() == 0 && (::setgid(fakes::ordinaryUser) != 0 || ::setuid(fakes::ordinaryUser) != 0))
            ::_exit(125);
    };
    const Ran table = run({place}, asUser);
    EXPECT_EQ(table.status, 0);
    EXPECT_EQ(table.errors, "");
    EXPECT_THAT(table.output, HasSubstr("\n3 folders could not be read.\n"));

    const Ran report = run({"--json", place}, asUser);
    EXPECT_EQ(report.status, 0);
    EXPECT_EQ(report.errors, "zelk-survey: 3 folders could not be read.\n");
    EXPECT_EQ(json::parse(report.output).at("unreadable").size(), 3U);

    const Ran exported = run({"--ncdu", "-", place}, asUser);
    EXPECT_EQ(exported.status, 0);
    EXPECT_EQ(exported.errors, "zelk-survey: 3 folders could not be read.\n");
    const NcduFile file = readNcdu(exported.output);
    EXPECT_EQ(std::ranges::count_if(file.entries, [](const NcduEntry& entry) { return entry.readError; }), 3);
    EXPECT_TRUE(file.named("none").readError);

    const Ran closed = run({place + "/none"}, asUser);
    EXPECT_EQ(closed.status, EX_NOINPUT);
    EXPECT_EQ(closed.errors, "zelk-survey: " + place + "/none cannot be surveyed: Permission denied.\n");
    EXPECT_EQ(closed.output, "");
}

TEST_F(Program, refusesRootsThatCannotBeSurveyedBeforeItBegins) {
    zoo::makeFile(place + "/file", 1);
    const Ran missing = run({place, place + "/missing\n"});
    EXPECT_EQ(missing.status, EX_NOINPUT);
    EXPECT_EQ(missing.output, "");
    EXPECT_EQ(missing.errors, "zelk-survey: " + place + "/missing\\n cannot be surveyed: No such file or directory.\n");
    const Ran file = run({"--ncdu", temp / "export", place + "/file"});
    EXPECT_EQ(file.status, EX_NOINPUT);
    EXPECT_EQ(file.errors, "zelk-survey: " + place + "/file is no folder.\n");
    EXPECT_FALSE(std::filesystem::exists(temp / "export"));
}

TEST_F(Program, tellsHowItIsCalled) {
    for (const std::vector<std::string>& words : std::vector<std::vector<std::string>>{{}, {"--bad"}, {"--top"}}) {
        const Ran ran = run(words);
        EXPECT_EQ(ran.status, EX_USAGE);
        EXPECT_EQ(ran.output, "");
        EXPECT_THAT(ran.errors, HasSubstr("\nusage: zelk-survey [--top N] [--json] [--ncdu FILE] [--] ROOT...\n"));
        EXPECT_TRUE(ran.errors.starts_with("zelk-survey: ")) << ran.errors;
    }
    const Ran help = run({"--help"});
    EXPECT_EQ(help.status, 0);
    EXPECT_EQ(help.errors, "");
    EXPECT_TRUE(help.output.starts_with("usage: zelk-survey [--top N] [--json] [--ncdu FILE] [--] ROOT...\n\n"));
    for (const char* option : {"--top N", "--json", "--ncdu FILE", "--help", "--version"})
        EXPECT_THAT(help.output, HasSubstr(std::string("\n  ") + option + " "));
    EXPECT_EQ(run({"--version"}).output, "zelk-survey " ZELK_VERSION "\n");
    EXPECT_EQ(run({"--version"}).status, 0);
}

TEST_F(Program, isWithoutANameStillItself) {
    zoo::makeFolder(place);
    const pid_t child = ::fork();
    if (child == 0) {
        char* const none[] = {nullptr};
        ::execv(program.c_str(), none);
        ::_exit(127);
    }
    const int status = ended(child).status;
    EXPECT_EQ(status, EX_USAGE);
}

// What cannot be written.

class Unwritable : public RanProgram {
protected:
    Unwritable() { zoo::makeFile(place + "/file", 5000); }

    const std::vector<std::vector<std::string>> forms{
        {place}, {"--json", place}, {"--ncdu", "-", place}, {"--help"}, {"--version"}};
};

TEST_F(Unwritable, fullDiskIsAFailure) {
    for (const auto& words : forms) {
        const Ran ran = run(words, [] { redirect(1, "/dev/full", O_WRONLY); });
        EXPECT_EQ(ran.status, EX_IOERR) << words[0];
        EXPECT_EQ(ran.errors, "zelk-survey: Standard output cannot be written: No space left on device.\n");
    }
}

TEST_F(Unwritable, closedPipeIsAFailure) {
    for (const auto& words : forms) {
        const Ran ran = run(words, [] {
            int ends[2];
            if (::pipe(ends) != 0) ::_exit(126);
            ::dup2(ends[1], 1);
            ::close(ends[0]);
            ::close(ends[1]);
        });
        EXPECT_EQ(ran.status, EX_IOERR) << words[0];
        EXPECT_EQ(ran.errors, "zelk-survey: Standard output cannot be written: Broken pipe.\n");
    }
}

TEST_F(Unwritable, closedStandardOutputIsAFailureAndTakesNoOtherFile) {
    for (const auto& words : forms) {
        const Ran ran = run(words, [] { ::close(1); });
        EXPECT_EQ(ran.status, EX_IOERR) << words[0];
        EXPECT_EQ(ran.errors, "zelk-survey: Standard output cannot be written: Bad file descriptor.\n");
    }
    EXPECT_EQ(run({"--ncdu", temp / "export", place}, [] { ::close(1); }).status, EX_IOERR);
    EXPECT_NO_THROW(readNcdu(fakes::fileContent(temp / "export")));
}

TEST_F(Unwritable, closedStandardErrorTakesNoOtherFile) {
    EXPECT_EQ(run({place}, [] { ::close(0), ::close(2); }).status, 0);
    EXPECT_EQ(run({"--bad"}, [] { ::close(0), ::close(2); }).status, EX_USAGE);
}

TEST_F(Unwritable, exportIsToldBeforeTheSurvey) {
    for (const auto& [path, reason] : std::vector<std::pair<std::string, std::string>>{
             {temp / "missing/export", "No such file or directory"}, {place, "Is a directory"}}) {
        const Ran ran = run({"--ncdu", path, place + "/missing"});
        EXPECT_EQ(ran.status, EX_IOERR);
        EXPECT_EQ(ran.errors, "zelk-survey: " + path + " cannot be written: " + reason + ".\n");
    }
}

TEST_F(Unwritable, exportToAFullDeviceIsAFailureWithoutATable) {
    const Ran ran = run({"--ncdu", "/dev/full", place});
    EXPECT_EQ(ran.status, EX_IOERR);
    EXPECT_EQ(ran.output, "");
    EXPECT_EQ(ran.errors, "zelk-survey: /dev/full cannot be written: No space left on device.\n");
}

TEST_F(Unwritable, exportWithoutRoomLeavesTheOldOne) {
    for (int folder = 0; folder < 100; ++folder)
        zoo::makeFolder(place + "/" + std::string(200, 'n') + std::to_string(folder));
    fakes::writeFile(temp / "export", "old");
    const Ran ran = run({"--ncdu", temp / "export", place}, [] {
        const rlimit limit{8'000, 8'000};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    });
    EXPECT_EQ(ran.status, EX_IOERR);
    EXPECT_EQ(ran.errors, "zelk-survey: " + (temp / "export") + " cannot be written: File too large.\n");
    EXPECT_EQ(ran.output, "");
    EXPECT_EQ(fakes::fileContent(temp / "export"), "old");
    for (const std::string& name : fakes::namesIn(temp.path())) EXPECT_FALSE(name.starts_with(".zelk")) << name;
}

TEST_F(Unwritable, exportIntoStandardOutputItselfIsRefused) {
    const Ran ran = run({"--ncdu", temp / "output", place});
    EXPECT_EQ(ran.status, EX_USAGE);
    EXPECT_EQ(ran.output, "");
    EXPECT_EQ(ran.errors, "zelk-survey: " + (temp / "output") +
                              " is where standard output goes; --ncdu - writes the export there.\n");
}

// Signals and terminals.

TEST_F(Program, endsAtASignalWhileNobodyReadsItsOutput) {
    zoo::makeFile(place + "/file", 5000);
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
        // Fills the pipe to standard output, which nobody reads: there it waits.
        int ends[2];
        ASSERT_EQ(::pipe(ends), 0);
        ::fcntl(ends[1], F_SETFL, O_NONBLOCK);
        const std::string much(4096, 'x');
        while (::write(ends[1], much.data(), much.size()) > 0) {
        }
        ::fcntl(ends[1], F_SETFL, 0);
        const pid_t child = start({"--ncdu", temp / "export", place}, [&] {
            ::dup2(ends[1], 1);
            ::close(ends[0]);
        });
        // Once the export is there, only the table is missing.
        EXPECT_TRUE(waitUntil(child, [&] { return std::filesystem::exists(temp / "export"); }));
        ::kill(child, number);
        const Ran ran = ended(child);
        EXPECT_EQ(ran.status, 128 + number);
        EXPECT_EQ(ran.errors, "");
        ::close(ends[0]);
        ::close(ends[1]);
        std::filesystem::remove(temp / "export");
    }
}

#ifdef __linux__  // only there the system tells which signals a process handles
TEST_F(Program, endsAtASignalWhileItWaitsForTheReaderOfAPipe) {
    zoo::makeFile(place + "/file", 5000);
    ASSERT_EQ(::mkfifo((temp / "pipe").c_str(), 0600), 0);
    const pid_t child = start({"--ncdu", temp / "pipe", place});
    // From when it handles the signal on; until then that would kill it.
    const auto handlesIt = [&] {
        const std::string status = fakes::fileContent("/proc/" + std::to_string(child) + "/status");
        const std::size_t at = status.find("SigCgt:");
        return at != std::string::npos && (std::stoull(status.substr(at + 7), nullptr, 16) >> (SIGINT - 1) & 1) != 0;
    };
    EXPECT_TRUE(waitUntil(child, handlesIt));
    ::kill(child, SIGINT);
    const Ran ran = ended(child);
    EXPECT_EQ(ran.status, 130);
    EXPECT_EQ(ran.output, "");
    EXPECT_EQ(ran.errors, "");
}
#endif

TEST_F(Program, goesOnWhereSignalsAreIgnored) {
    zoo::makeFile(place + "/file", 5000);
    const Ran ran = run({place}, [] {
        ::signal(SIGINT, SIG_IGN);
        ::raise(SIGINT);
    });
    EXPECT_EQ(ran.status, 0);
}

/// What a terminal as the standard error of the program receives.
class OnTerminal : public RanProgram {
protected:
    OnTerminal() { zoo::makeWide(wide.path(), 21'000, 0); }

    const zoo::TempFolder wide{zoo::TempFolder::Medium::memory};

    std::string seenWith(const char* terminal) {
        const int master = ::posix_openpt(O_RDWR | O_NOCTTY);
        EXPECT_EQ(::grantpt(master), 0);
        EXPECT_EQ(::unlockpt(master), 0);
        const std::string name = ::ptsname(master);
        const int slave = ::open(name.c_str(), O_RDWR | O_NOCTTY);
        const Ran ran = run({wide.path()}, [&] {
            ::dup2(slave, 2);
            if (terminal != nullptr) ::setenv("TERM", terminal, 1);
        });
        EXPECT_EQ(ran.status, 0);
        EXPECT_TRUE(ran.output.starts_with("0 bytes in 21,000 files and 1 folder\n")) << ran.output;
        EXPECT_THAT(ran.output, Not(HasSubstr("\x1B")));
        // The system hands it over a moment later; the end comes once nobody has the other side open.
        ::close(slave);
        std::string seen;
        std::array<char, 4096> buffer;
        for (ssize_t got = 0; (got = ::read(master, buffer.data(), buffer.size())) > 0;)
            seen.append(buffer.data(), static_cast<std::size_t>(got));
        ::close(master);
        return seen;
    }
};

TEST_F(OnTerminal, progressIsShownAndErased) {
    const std::string seen = seenWith("xterm");
    EXPECT_TRUE(seen.starts_with("\r\x1B[K21,001 items, 0 bytes  ")) << seen;
    EXPECT_TRUE(seen.ends_with("\r\x1B[K")) << seen;
}

TEST_F(OnTerminal, progressIsNotShownWhereNoLineCanBeErased) {
    EXPECT_EQ(seenWith("dumb"), "");
    EXPECT_EQ(seenWith(""), "");
    EXPECT_EQ(seenWith(nullptr), "");
}

TEST_F(OnTerminal, noOtherOutputHasProgress) {
    const Ran ran = run({wide.path()}, [] { ::setenv("TERM", "xterm", 1); });
    EXPECT_EQ(ran.errors, "");
}

}  // namespace
}  // namespace zelk::cli
