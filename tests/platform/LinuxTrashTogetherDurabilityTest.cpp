// SPDX-License-Identifier: MIT
// Threads that trash at the same time share flushes. No item may move before its own info file, and the name of that,
// have been flushed.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <map>
#include <regex>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "fakes/TestFiles.h"
#include "fakes/TracedProgram.h"
#include "fakes/TrashContent.h"
#include "zoo/TempFolder.h"
#include "zoo/Zoo.h"

namespace zelk {
namespace {

/// A call of one of several threads, from the line of strace that it begins in to the one that it ends in.
struct Span {
    std::string text;
    std::size_t begin = 0;
    std::size_t end = 0;
};

/// strace tells a call during which another thread was seen in two lines.
std::vector<Span> spansOf(const std::string& log) {
    static const std::regex begun(R"(^(\d+) +(.*) <unfinished \.\.\.>$)");
    static const std::regex resumed(R"(^(\d+) +<\.\.\. \w+ resumed>(.*)$)");
    static const std::regex whole(R"(^(\d+) +(.*)$)");
    std::vector<Span> spans;
    std::map<std::string, Span> open;
    std::istringstream lines(log);
    std::smatch found;
    std::size_t number = 0;
    for (std::string line; std::getline(lines, line); ++number) {
        if (std::regex_match(line, found, begun)) {
            open[found[1]] = {found[2], number, number};
        } else if (std::regex_match(line, found, resumed)) {
            Span& span = open[found[1]];
            span.text += found[2];
            span.end = number;
            spans.push_back(std::exchange(span, {}));
        } else if (std::regex_match(line, found, whole)) {
            spans.push_back({found[2], number, number});
        }
    }
    return spans;
}

bool isCall(const Span& span, const std::string& call, const std::string& part) {
    return span.text.starts_with(call) && span.text.find(part) != std::string::npos;
}

/// Whether a successful call lies between the two.
bool isBetween(const std::vector<Span>& spans, const Span& first, const Span& last, const std::string& call,
               const std::string& part) {
    return std::any_of(spans.begin(), spans.end(), [&](const Span& span) {
        return isCall(span, call, part) && span.text.ends_with(" = 0") && span.begin > first.end &&
               span.end < last.begin;
    });
}

TEST(TrashingTogether, flushesEachInfoAndItsNameBeforeTheItemMoves) {
    const zoo::TempFolder temp(zoo::TempFolder::Medium::memory);
    const std::string home = temp / "home";
    const std::string trash = home + "/.local/share/Trash";
    const std::string log = temp / "log";
    zoo::makeFolder(home);
    constexpr std::size_t items = 40;
    fakes::Arguments arguments{"strace", "-f", "-qq", "-y", "-o", log, "-e", "trace=openat,fsync,?renameat2,write"};
    arguments.insert(arguments.end(), {ZELK_TRASH_WRITER, "together", home});
    for (std::size_t number = 0; number < items; ++number) {
        arguments.push_back(temp / ("items/item" + std::to_string(number) + ".txt"));
        fakes::writeFile((zoo::makeFolder(temp / "items"), arguments.back()), "content");
    }
    ASSERT_EQ(fakes::runProgram(arguments), 0);
    EXPECT_EQ(fakes::restorable(trash).size(), items);

    const std::vector<Span> spans = spansOf(fakes::fileContent(log));
    for (std::size_t number = 0; number < items; ++number) {
        const std::string name = "item" + std::to_string(number) + ".txt";
        const std::string info = name + ".trashinfo";
        const auto written = std::find_if(spans.begin(), spans.end(),
                                          [&](const Span& span) { return isCall(span, "write(", "/" + info + ">"); });
        const auto moved = std::find_if(spans.begin(), spans.end(), [&](const Span& span) {
            return isCall(span, "renameat2(", "\"" + name + "\"");
        });
        ASSERT_TRUE(written != spans.end() && moved != spans.end()) << name;
        EXPECT_TRUE(isBetween(spans, *written, *moved, "fsync(", "/info/" + info + ">")) << name;
        EXPECT_TRUE(isBetween(spans, *written, *moved, "fsync(", "/Trash/info>")) << name;
    }
}

}  // namespace
}  // namespace zelk
