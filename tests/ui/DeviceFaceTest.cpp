// SPDX-License-Identifier: MIT
#include "ui/screens/overview/SurveyScreenModel.h"

#include <gtest/gtest.h>

namespace zelk {

namespace {

const QLocale english(QLocale::English, QLocale::UnitedStates);
constexpr std::uint64_t gibibyte = std::uint64_t{1} << 30;

DeviceInfo machine() {
    return {"Studio", "Quad Core 9", 8, 16 * gibibyte, "Linux 6.1", "Model1,1"};
}

DeviceFace faceOf(const DeviceInfo& device, const std::optional<VolumeInfo>& volume = std::nullopt) {
    return DeviceFace::of(device, volume, english);
}

}  // namespace

TEST(DeviceHeader, listsChipCoresMemoryAndSystemInOrder) {
    const DeviceFace face = faceOf(machine());
    EXPECT_EQ(face.name, QStringLiteral("Studio"));
    EXPECT_EQ(face.detail, QStringLiteral("Quad Core 9  ·  8 cores  ·  16 GB  ·  Linux 6.1"));
}

TEST(DeviceHeader, omitsEmptyPartsWithTheirSeparators) {
    DeviceInfo device = machine();
    device.chip.clear();
    EXPECT_EQ(faceOf(device).detail, QStringLiteral("8 cores  ·  16 GB  ·  Linux 6.1"));
    device.osVersion.clear();
    EXPECT_EQ(faceOf(device).detail, QStringLiteral("8 cores  ·  16 GB"));
    device.chip = "Quad Core 9";
    EXPECT_EQ(faceOf(device).detail, QStringLiteral("Quad Core 9  ·  8 cores  ·  16 GB"));
}

TEST(DeviceHeader, roundsMemoryToWholeGibibytes) {
    DeviceInfo device{"Studio", "", 1, 0, "", ""};
    const auto detailWith = [&](std::uint64_t bytes) {
        device.memoryBytes = bytes;
        return faceOf(device).detail.toStdString();
    };
    EXPECT_EQ(detailWith(16'000'000'000), "1 cores  ·  15 GB");
    EXPECT_EQ(detailWith(gibibyte * 3 / 2), "1 cores  ·  2 GB");
    EXPECT_EQ(detailWith(gibibyte * 3 / 2 - 1), "1 cores  ·  1 GB");
    EXPECT_EQ(detailWith(0), "1 cores  ·  0 GB");
}

TEST(DeviceHeader, showsFreeAndTotalOfVolume) {
    const DeviceFace face = faceOf(machine(), VolumeInfo{500'000'000'000, 123'456'000'000, 200'000'000'000});
    EXPECT_EQ(face.freeBytes, 123.456e9);
    EXPECT_EQ(face.totalText, QStringLiteral("of 500 GB"));
}

TEST(DeviceHeader, showsNoVolumeTextsWithoutVolume) {
    const DeviceFace face = faceOf(machine());
    EXPECT_EQ(face.freeBytes, 0);
    EXPECT_EQ(face.totalText, QString());
}

TEST(DeviceHeader, emptyVolumeShowsZeroBytes) {
    EXPECT_EQ(faceOf(machine(), VolumeInfo{0, 0, 0}).totalText, QStringLiteral("of 0 bytes"));
}

TEST(DeviceHeader, showsPetabytes) {
    const DeviceFace face = faceOf(machine(), VolumeInfo{1'000'000'000'000'000, 999'999'999'999'999, 0});
    EXPECT_EQ(face.totalText, QStringLiteral("of 1 PB"));
    EXPECT_EQ(face.freeBytes, 999'999'999'999'999.0);
}

TEST(DeviceHeader, formatsNumbersInUserLocale) {
    const DeviceFace face =
        DeviceFace::of(machine(), VolumeInfo{1'500'000'000, 1'250'000'000, 0}, QLocale(QLocale::German));
    EXPECT_EQ(face.totalText, QStringLiteral("of 1,5 GB"));
}

TEST(DeviceHeader, repairsInvalidComputerName) {
    DeviceInfo device = machine();
    device.computerName = "caf\xe9\n";
    EXPECT_EQ(faceOf(device).name, QString::fromUtf8("caf\xef\xbf\xbd\xe2\x90\x8a"));
}

}  // namespace zelk
