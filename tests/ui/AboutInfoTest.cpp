// SPDX-License-Identifier: MIT
#include "ui/shell/AboutInfo.h"

#include <gtest/gtest.h>

namespace zelk {

namespace {

DeviceInfo device(const std::string& chip) {
    DeviceInfo info;
    info.osVersion = "macOS 15.4";
    info.chip = chip;
    return info;
}

QString version(const BundleInfo& bundle) {
    return AboutInfo(bundle, device("")).version;
}

}  // namespace

TEST(About, tellsNameVersionSystemAndChip) {
    const AboutInfo about({"Zelk Preview", "1.2", "34"}, device("Apple M3 Pro"));
    EXPECT_EQ(about.name, QStringLiteral("Zelk Preview"));
    EXPECT_EQ(about.version, QStringLiteral("1.2 (34)"));
    EXPECT_EQ(about.system, QStringLiteral("macOS 15.4"));
    EXPECT_EQ(about.chip, QStringLiteral("Apple M3 Pro"));
}

TEST(About, showsDashForMissingVersionKey) {
    EXPECT_EQ(version({}), QStringLiteral("— (—)"));
    EXPECT_EQ(version({std::nullopt, "1.2", std::nullopt}), QStringLiteral("1.2 (—)"));
    EXPECT_EQ(version({std::nullopt, std::nullopt, "34"}), QStringLiteral("— (34)"));
}

TEST(About, fallsBackToZelkWithoutBundleName) {
    EXPECT_EQ(AboutInfo({}, device("")).name, QStringLiteral("Zelk"));
}

TEST(About, unknownChipIsEmpty) {
    EXPECT_TRUE(AboutInfo({}, device("")).chip.isEmpty());
}

TEST(About, applicationBundleHasAVersion) {
    EXPECT_TRUE(applicationBundle().version.has_value());
}

}  // namespace zelk
