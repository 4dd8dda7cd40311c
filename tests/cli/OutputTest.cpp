// SPDX-License-Identifier: MIT
#include "cli/Output.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <poll.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <thread>
#include <vector>

namespace zelk::cli {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Taken {
    std::vector<std::size_t> pieces;
    std::string bytes;
    int answer = 0;

    Output::Take take() {
        return [this](std::string_view piece) {
            pieces.push_back(piece.size());
            bytes += piece;
            return answer;
        };
    }
};

const auto goesOn = [] { return false; };

TEST(Output, handsOnLargePiecesInOrder) {
    Taken taken;
    Output output(taken.take());
    for (int at = 0; at < 20'000; ++at) output.write("0123456789");
    EXPECT_EQ(output.finish(), 0);
    EXPECT_EQ(taken.bytes.size(), 200'000U);
    for (std::size_t at = 0; at < taken.bytes.size(); ++at)
        ASSERT_EQ(taken.bytes[at], static_cast<char>('0' + at % 10));
    EXPECT_THAT(taken.pieces, ElementsAre(65530, 65530, 65530, 3410));
}

TEST(Output, passesALargePieceOnWhole) {
    Taken taken;
    Output output(taken.take());
    output.write("a");
    output.write(std::string(65536, 'b'));
    output.write(std::string(65535, 'c'));
    output.write("d");
    EXPECT_EQ(output.finish(), 0);
    EXPECT_EQ(taken.bytes, "a" + std::string(65536, 'b') + std::string(65535, 'c') + "d");
    EXPECT_THAT(taken.pieces, ElementsAre(1, 65536, 65536));
}

TEST(Output, handsOnNothingOfNothing) {
    Taken taken;
    Output output(taken.take());
    output.write("");
    EXPECT_EQ(output.finish(), 0);
    EXPECT_THAT(taken.pieces, IsEmpty());
}

TEST(Output, keepsItsFirstFailureAndHandsOnNoMore) {
    Taken taken;
    Output output(taken.take());
    taken.answer = ENOSPC;
    output.write(std::string(70'000, 'a'));
    taken.answer = EIO;
    output.write(std::string(70'000, 'a'));
    EXPECT_EQ(output.finish(), ENOSPC);
    EXPECT_EQ(taken.pieces.size(), 1U);
}

TEST(Output, tellsAFailureOfTheLastPiece) {
    Taken taken;
    taken.answer = EPIPE;
    Output output(taken.take());
    output.write("a");
    EXPECT_EQ(output.finish(), EPIPE);
}

TEST(WriteAll, tellsTheReason) {
    const int full = ::open("/dev/full", O_WRONLY);
    ASSERT_GE(full, 0);
    EXPECT_EQ(writeAll(full, "a", goesOn), ENOSPC);
    ::close(full);
    EXPECT_EQ(writeAll(full, "a", goesOn), EBADF);
    EXPECT_EQ(writeAll(full, "", goesOn), 0);
}

TEST(WriteAll, writesNothingOnceItIsStopped) {
    std::array<int, 2> ends{};
    ASSERT_EQ(::pipe(ends.data()), 0);
    EXPECT_EQ(writeAll(ends[1], "a", [] { return true; }), ECANCELED);
    ::close(ends[1]);
    char byte;
    EXPECT_EQ(::read(ends[0], &byte, 1), 0);
    ::close(ends[0]);
}

TEST(WriteAll, waitsForRoomInAPipeThatDoesNotBlock) {
    std::array<int, 2> ends{};
    ASSERT_EQ(::pipe(ends.data()), 0);
    ::fcntl(ends[1], F_SETFL, O_NONBLOCK);
    const std::string bytes(1'000'000, 'x');
    std::size_t read = 0;
    std::thread reader([&] {
        std::array<char, 4096> buffer;
        for (ssize_t got = 0; (got = ::read(ends[0], buffer.data(), buffer.size())) > 0;)
            read += static_cast<std::size_t>(got);
    });
    EXPECT_EQ(writeAll(ends[1], bytes, goesOn), 0);
    ::close(ends[1]);
    reader.join();
    ::close(ends[0]);
    EXPECT_EQ(read, bytes.size());
}

}  // namespace
}  // namespace zelk::cli
