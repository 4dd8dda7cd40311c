// SPDX-License-Identifier: MIT
#include "platform/ByteFormat.h"

#include <gtest/gtest.h>

#include <limits>
#include <utility>
#include <vector>

namespace zelk {
namespace {

using Rows = std::vector<std::pair<std::int64_t, std::string>>;

void expectTexts(const Rows& rows) {
    for (const auto& [count, text] : rows) EXPECT_EQ(byteText(count), text) << count;
}

TEST(ByteFormat, formatsZeroAsANumber) {
    EXPECT_EQ(byteText(0), "0 bytes");
}

TEST(ByteFormat, usesSingularForOneByte) {
    EXPECT_EQ(byteText(1), "1 byte");
}

TEST(ByteFormat, countsBytesBelowAThousand) {
    expectTexts({{2, "2 bytes"}, {499, "499 bytes"}, {900, "900 bytes"}, {999, "999 bytes"}});
}

TEST(ByteFormat, formatsKilobytesWithoutDecimals) {
    expectTexts({{1000, "1 KB"},
                 {1023, "1 KB"},
                 {1024, "1 KB"},
                 {1300, "1 KB"},
                 {1500, "2 KB"},
                 {1536, "2 KB"},
                 {1600, "2 KB"},
                 {5500, "6 KB"},
                 {11999, "12 KB"},
                 {12345, "12 KB"},
                 {900000, "900 KB"}});
}

TEST(ByteFormat, formatsMegabytesWithUpToOneDecimal) {
    expectTexts({{1000000, "1 MB"},
                 {1048576, "1 MB"},
                 {5500000, "5.5 MB"},
                 {10485760, "10.5 MB"},
                 {1300000, "1.3 MB"},
                 {12345678, "12.3 MB"},
                 {123456789, "123.5 MB"},
                 {550000000, "550 MB"},
                 {999900000, "999.9 MB"}});
}

TEST(ByteFormat, formatsGigabytesAndAboveWithUpToTwoDecimals) {
    expectTexts({{1000000000, "1 GB"},
                 {1234567898, "1.23 GB"},
                 {12345678987, "12.35 GB"},
                 {123456789012, "123.46 GB"},
                 {1000000000000, "1 TB"},
                 {1234567890123456, "1.23 PB"},
                 {std::numeric_limits<std::int64_t>::max(), "9.22 EB"}});
}

TEST(ByteFormat, dropsTrailingZerosOnly) {
    expectTexts({{1100000000, "1.1 GB"}, {1010000000, "1.01 GB"}, {20000000, "20 MB"}, {100000000000, "100 GB"}});
}

// Inferred from the rows above, not checked on a Mac.
TEST(ByteFormat, roundingToAThousandTakesTheNextUnit) {
    expectTexts({{999499, "999 KB"},
                 {999500, "1 MB"},
                 {999949999, "999.9 MB"},
                 {999950000, "1 GB"},
                 {999994999999, "999.99 GB"},
                 {999995000000, "1 TB"}});
}

// Also inferred.
TEST(ByteFormat, roundsHalvesAwayFromZero) {
    expectTexts({{2500, "3 KB"}, {1250000, "1.3 MB"}, {1125000000, "1.13 GB"}});
}

TEST(ByteFormat, usesTheGivenDecimalSeparator) {
    EXPECT_EQ(byteText(1300000, ","), "1,3 MB");
    EXPECT_EQ(byteText(1234567898, "\u066B"), "1\u066B23 GB");
    EXPECT_EQ(byteText(1000000, ","), "1 MB");
}

TEST(ByteFormat, formatsNegativeCountAsZero) {
    EXPECT_EQ(byteText(-1), "0 bytes");
    EXPECT_EQ(byteText(std::numeric_limits<std::int64_t>::min()), "0 bytes");
}

TEST(MemoryText, formatsWholeBinaryGigabytes) {
    constexpr std::uint64_t gigabyte = std::uint64_t{1} << 30;
    EXPECT_EQ(memoryText(0), "0 GB");
    EXPECT_EQ(memoryText(8 * gigabyte), "8 GB");
    EXPECT_EQ(memoryText(16'000'000'000), "15 GB");
    EXPECT_EQ(memoryText(16'539'832'320), "15 GB");
    EXPECT_EQ(memoryText(std::numeric_limits<std::uint64_t>::max()), "17179869184 GB");
}

TEST(MemoryText, roundsHalfAGigabyteUp) {
    constexpr std::uint64_t half = std::uint64_t{1} << 29;
    EXPECT_EQ(memoryText(half - 1), "0 GB");
    EXPECT_EQ(memoryText(half), "1 GB");
    EXPECT_EQ(memoryText(3 * half), "2 GB");
}

}  // namespace
}  // namespace zelk
