// SPDX-License-Identifier: MIT
#include "platform/linux/vitals/ProcText.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <vector>

namespace zelk {
namespace {

using namespace std::string_view_literals;

/// Hostile texts for all parsers.
const std::vector<std::string>& hostileTexts() {
    static const std::vector<std::string> texts = [] {
        std::vector<std::string> all{"",
                                     "\n",
                                     ":",
                                     "=",
                                     "\"",
                                     "\\",
                                     "cpu",
                                     "cpu ",
                                     "cpu  1 2 3",
                                     "PRETTY_NAME=",
                                     "PRETTY_NAME=\"",
                                     "PRETTY_NAME='\\",
                                     "NAME=\"a\\",
                                     "PRETTY_NAME=\" (\"",
                                     "PRETTY_NAME=\"()\"",
                                     "MemTotal:",
                                     "MemTotal: -1 kB",
                                     "MemTotal: 99999999999999999999999 kB",
                                     std::string("\0\0\0", 3),
                                     std::string(100000, '\n'),
                                     std::string(100000, ':'),
                                     std::string(100000, '9'),
                                     std::string(100000, '\xFF')};
        std::mt19937 random(11);
        const std::string_view letters = "cpu 0129.:=\"'\\\n\t()kBMemTotal\0\xFF"sv;
        for (int i = 0; i < 2000; ++i) {
            std::string text;
            for (unsigned n = random() % 60; n > 0; --n) text += letters[random() % letters.size()];
            all.push_back(std::move(text));
        }
        return all;
    }();
    return texts;
}

TEST(ProcText, survivesHostileTexts) {
    for (const std::string& text : hostileTexts()) {
        for (const char c : tidied(text)) EXPECT_GE(static_cast<unsigned char>(c), ' ');
        (void)assignedValue(text, "PRETTY_NAME");
        (void)processorName(text);
        (void)chipOfDeviceTree(text);
        (void)systemName(text);
        (void)kernelVersionText(text);
        EXPECT_LE(memoryField(text, "MemTotal").value_or(0), std::uint64_t{1} << 60);
        (void)memoryCounts(text, 0);
        EXPECT_LT(zramMemory(text), std::uint64_t{1} << 60);
        EXPECT_GE(processorTicks(text).value_or(CPUTicks{}).idle, 0);
    }
}

TEST(Tidied, collapsesBlanksAndControlCharacters) {
    EXPECT_EQ(tidied("  Intel(R)   Xeon(R)\t\x01 CPU \n"), "Intel(R) Xeon(R) CPU");
    EXPECT_EQ(tidied("\n\t "), "");
    EXPECT_EQ(tidied("Raspberry Pi 4\0hidden"sv), "Raspberry Pi 4");
    EXPECT_EQ(tidied("Büro\x7F"), "Büro");
}

TEST(WholeNumber, acceptsDecimalNumbersOnly) {
    EXPECT_EQ(wholeNumber("87\n"), 87);
    EXPECT_EQ(wholeNumber(" -5 "), -5);
    EXPECT_EQ(wholeNumber("9223372036854775807"), std::numeric_limits<std::int64_t>::max());
    for (const char* text : {"", "\n", "8 7", "87%", "0x10", "+1", "9223372036854775808"})
        EXPECT_FALSE(wholeNumber(text).has_value()) << text;
}

TEST(AssignedValue, parsesPlainAndQuotedValues) {
    EXPECT_EQ(assignedValue("ID=debian\n", "ID"), "debian");
    EXPECT_EQ(assignedValue("NAME=\"Debian GNU/Linux\"\n", "NAME"), "Debian GNU/Linux");
    EXPECT_EQ(assignedValue("NAME='Single $quoted'", "NAME"), "Single $quoted");
    EXPECT_EQ(assignedValue(R"(NAME="a \"quoted\" \$ \\ one")", "NAME"), R"(a "quoted" $ \ one)");
    EXPECT_EQ(assignedValue(R"(NAME='back\slash')", "NAME"), R"(back\slash)");
    EXPECT_EQ(assignedValue("NAME=two words", "NAME"), "two");
    EXPECT_EQ(assignedValue("NAME=", "NAME"), "");
}

TEST(AssignedValue, lastAssignmentOfTheExactKeyWins) {
    const std::string text = "# NAME=comment\nXNAME=x\nNAMES=y\nname=z\n  NAME=first\r\nNAME=last\n";
    EXPECT_EQ(assignedValue(text, "NAME"), "last");
    EXPECT_FALSE(assignedValue(text, "ID").has_value());
}

TEST(ProcessorName, usesTheFirstProcessor) {
    EXPECT_EQ(
        processorName("processor\t: 0\nmodel\t\t: 158\nmodel name\t: Intel(R) Core(TM) i7-8700     CPU @ 3.20GHz\n\n"
                      "processor\t: 1\nmodel name\t: Another\n"),
        "Intel(R) Core(TM) i7-8700 CPU @ 3.20GHz");
}

TEST(ProcessorName, fallsBackToArmHardware) {
    EXPECT_EQ(processorName("processor\t: 0\nBogoMIPS\t: 108.00\nCPU implementer\t: 0x41\n\nHardware\t: BCM2835\n"
                            "Model\t\t: Raspberry Pi 4 Model B Rev 1.4\n"),
              "BCM2835");
}

TEST(ProcessorName, knowsKeysOfOtherArchitectures) {
    EXPECT_EQ(processorName("processor\t: 0\ncpu\t\t: POWER9, altivec supported\n"), "POWER9, altivec supported");
    EXPECT_EQ(processorName("cpu model\t\t: MIPS 74Kc V4.12\n"), "MIPS 74Kc V4.12");
}

TEST(ProcessorName, isEmptyWithoutAKnownKey) {
    EXPECT_EQ(processorName("processor\t: 0\nBogoMIPS\t: 50.00\nCPU part\t: 0xd0c\n"), "");
    EXPECT_EQ(processorName("model name\t:\n"), "");
}

TEST(ChipOfDeviceTree, usesPartNumberOfTheLastEntry) {
    EXPECT_EQ(chipOfDeviceTree("raspberrypi,4-model-b\0brcm,bcm2711\0"sv), "bcm2711");
    EXPECT_EQ(chipOfDeviceTree("apple,j293\0apple,t8103\0apple,arm-platform\0"sv), "arm-platform");
    EXPECT_EQ(chipOfDeviceTree("linux,dummy-virt\0"sv), "dummy-virt");
    EXPECT_EQ(chipOfDeviceTree("plain"sv), "plain");
    EXPECT_EQ(chipOfDeviceTree("\0\0"sv), "");
}

TEST(SystemName, dropsCodeNameFromPrettyName) {
    EXPECT_EQ(
        systemName("PRETTY_NAME=\"Debian GNU/Linux 12 (bookworm)\"\nNAME=\"Debian GNU/Linux\"\nVERSION_ID=\"12\"\n"),
        "Debian GNU/Linux 12");
    EXPECT_EQ(systemName("PRETTY_NAME=\"Ubuntu 22.04.3 LTS\"\n"), "Ubuntu 22.04.3 LTS");
    EXPECT_EQ(systemName("PRETTY_NAME=\"Arch Linux\"\n"), "Arch Linux");
    EXPECT_EQ(systemName("PRETTY_NAME=\"(odd)\"\n"), "(odd)");
}

TEST(SystemName, fallsBackToNameAndVersion) {
    EXPECT_EQ(systemName("NAME=Void\nVERSION_ID=3\n"), "Void 3");
    EXPECT_EQ(systemName("PRETTY_NAME=\"\"\nNAME=Void\n"), "Void");
    EXPECT_EQ(systemName("VERSION_ID=3\n"), "");
}

TEST(KernelVersionText, omitsPatchLevelZero) {
    EXPECT_EQ(kernelVersionText("6.1.5-7-amd64\n"), "Linux 6.1.5");
    EXPECT_EQ(kernelVersionText("6.1.0-18-amd64\n"), "Linux 6.1");
    EXPECT_EQ(kernelVersionText("6.18-rc1"), "Linux 6.18");
    EXPECT_EQ(kernelVersionText("6"), "");
    EXPECT_EQ(kernelVersionText("six.one"), "");
}

// Captured on a machine with free memory: nearly all memory of programs is on the inactive anonymous list.
constexpr std::string_view capturedMeminfo = R"(MemTotal:       24684084 kB
MemFree:        19065944 kB
MemAvailable:   22974184 kB
Buffers:          485208 kB
Cached:          3285280 kB
SwapCached:            0 kB
Active:          1187820 kB
Inactive:        3773692 kB
Active(anon):       1076 kB
Inactive(anon):  1198820 kB
Active(file):    1186744 kB
Inactive(file):  2574872 kB
Unevictable:       20100 kB
Mlocked:           19176 kB
SwapTotal:             0 kB
SwapFree:              0 kB
Zswap:              4000 kB
Zswapped:          12000 kB
Dirty:             95348 kB
AnonPages:       1211100 kB
Shmem:              8872 kB
KReclaimable:     454904 kB
Slab:             499428 kB
SReclaimable:     454904 kB
SUnreclaim:        44524 kB
KernelStack:        1904 kB
PageTables:         5640 kB
SecPageTables:         8 kB
Percpu:              664 kB
HugePages_Total:       1
Hugepagesize:       2048 kB
Hugetlb:            2048 kB
DirectMap4k:       26624 kB
)";

TEST(MemoryField, returnsBytesOfTheExactField) {
    EXPECT_EQ(memoryField(capturedMeminfo, "MemTotal"), 24684084ULL * 1024);
    EXPECT_EQ(memoryField(capturedMeminfo, "Zswap"), 4000ULL * 1024);
    EXPECT_FALSE(memoryField(capturedMeminfo, "Mem").has_value());
    EXPECT_FALSE(memoryField(capturedMeminfo, "HugePages_Total").has_value()) << "a count and not a size";
    EXPECT_FALSE(memoryField("MemTotal: -1 kB", "MemTotal").has_value());
    EXPECT_FALSE(memoryField("MemTotal: 18446744073709551616 kB", "MemTotal").has_value());
    EXPECT_FALSE(memoryField("MemTotal: 1125899906842625 kB", "MemTotal").has_value()) << "beyond any machine";
}

TEST(MemoryCounts, countsInactiveAnonymousMemoryAsActive) {
    const auto counts = memoryCounts(capturedMeminfo, 0);
    ASSERT_TRUE(counts.has_value());
    EXPECT_EQ(counts->active, 1076U + 1198820U);
}

TEST(MemoryCounts, countsUnreclaimableKernelMemoryAsWired) {
    const auto counts = memoryCounts(capturedMeminfo, 0);
    ASSERT_TRUE(counts.has_value());
    EXPECT_EQ(counts->wired, 20100U + 2048U + 44524U + 1904U + 5640U + 8U + 664U);
}

TEST(MemoryCounts, countsZswapAndZramAsCompressed) {
    const auto counts = memoryCounts(capturedMeminfo, 3 * 1024 * 1024);
    ASSERT_TRUE(counts.has_value());
    EXPECT_EQ(counts->compressor, 4000U + 3U * 1024U);
}

TEST(MemoryCounts, missingFieldsCountZero) {
    const auto counts = memoryCounts("Active(anon): 5 kB\nInactive(anon): 6 kB\n", 0);
    ASSERT_TRUE(counts.has_value());
    EXPECT_EQ(counts->active, 11U);
    EXPECT_EQ(counts->wired, 0U);
    EXPECT_EQ(counts->compressor, 0U);
}

TEST(MemoryCounts, areAbsentWithoutAnonymousMemory) {
    EXPECT_FALSE(memoryCounts("", 0).has_value());
    EXPECT_FALSE(memoryCounts("MemTotal: 5 kB\nActive(anon): 5 kB\n", 0).has_value());
}

TEST(MemoryCounts, countsReclaimableMemoryAsFree) {
    const std::uint64_t total = *memoryField(capturedMeminfo, "MemTotal");
    const MemoryStats stats = memoryFromPages(total, meminfoUnit, memoryCounts(capturedMeminfo, 0));
    EXPECT_EQ(stats.free, total - (1076 + 1198820 + 20100 + 2048 + 44524 + 1904 + 5640 + 8 + 664 + 4000) * 1024ULL);
}

TEST(MemoryCounts, largestFieldsDoNotOverflow) {
    std::string text;
    for (const char* field : {"Active(anon)", "Inactive(anon)", "Unevictable", "Hugetlb", "SUnreclaim", "KernelStack",
                              "PageTables", "SecPageTables", "Percpu", "Zswap"})
        text += std::string(field) + ": 1125899906842624 kB\n";
    EXPECT_EQ(memoryFromPages(1000, meminfoUnit, memoryCounts(text, 0)).used, 1000U);
}

TEST(ZramMemory, usesTheThirdColumn) {
    EXPECT_EQ(zramMemory("  40960  8192  12288  0  16384  0  0  0  0\n"), 12288U);
    EXPECT_EQ(zramMemory("1 2"), 0U);
    EXPECT_EQ(zramMemory("1 2 x"), 0U);
    EXPECT_EQ(zramMemory("1 2 18446744073709551615"), 0U);
}

TEST(ProcessorTicks, countsInterruptsAsSystemAndIoWaitAsIdle) {
    const auto ticks = processorTicks("cpu  100 20 30 4000 500 6 7 8 9 10\ncpu0 1 2 3 4 5 6 7 8 9 10\nintr 5\n");
    EXPECT_EQ(ticks, (CPUTicks{100, 30 + 6 + 7 + 8, 4000 + 500, 20}));
}

TEST(ProcessorTicks, acceptsFourColumns) {
    EXPECT_EQ(processorTicks("cpu 1 2 3 4\n"), (CPUTicks{1, 3, 4, 2}));
}

TEST(ProcessorTicks, areAbsentWithoutTotalLine) {
    EXPECT_FALSE(processorTicks("cpu0 1 2 3 4\n").has_value());
    EXPECT_FALSE(processorTicks("cpu 1 2 3\n").has_value());
    EXPECT_FALSE(processorTicks("cpu 1 2 -3 4\n").has_value());
    EXPECT_FALSE(processorTicks("").has_value());
}

TEST(VolumeOfBlocks, multipliesBlocksByTheirSize) {
    EXPECT_EQ(volumeOfBlocks(4096, 1000, 250), (VolumeInfo{4096000, 1024000, 1024000}));
}

TEST(VolumeOfBlocks, saturatesAtTheLargestSignedCount) {
    constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
    constexpr std::uint64_t largest = std::numeric_limits<std::uint64_t>::max();
    EXPECT_EQ(volumeOfBlocks(4096, largest, 1), (VolumeInfo{most, 4096, 4096}));
    EXPECT_EQ(volumeOfBlocks(1, largest, largest), (VolumeInfo{most, most, most}));
}

}  // namespace
}  // namespace zelk
