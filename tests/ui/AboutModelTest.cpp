// SPDX-License-Identifier: MIT
#include "ui/shell/AboutModel.h"

#include <gmock/gmock.h>

namespace zelk {

namespace {

using testing::ElementsAre;

DeviceInfo device(const std::string& chip) {
    DeviceInfo info;
    info.osVersion = "macOS 15.4";
    info.chip = chip;
    return info;
}

QString version(const BundleInfo& bundle) {
    return AboutModel(bundle, device("")).rows().front().value;
}

}  // namespace

TEST(About, showsNameVersionSystemAndChip) {
    const AboutModel about({"Zelk Preview", "1.2", "34"}, device("Apple M3 Pro"));
    EXPECT_EQ(about.name(), QStringLiteral("Zelk Preview"));
    EXPECT_THAT(about.rows(), ElementsAre(AboutRow{"Version", "1.2 (34)"}, AboutRow{"System", "macOS 15.4"},
                                          AboutRow{"Chip", "Apple M3 Pro"}));
}

TEST(About, showsDashForMissingVersionKey) {
    EXPECT_EQ(version({}), QStringLiteral("— (—)"));
    EXPECT_EQ(version({std::nullopt, "1.2", std::nullopt}), QStringLiteral("1.2 (—)"));
    EXPECT_EQ(version({std::nullopt, std::nullopt, "34"}), QStringLiteral("— (34)"));
}

TEST(About, fallsBackToZelkWithoutBundleName) {
    EXPECT_EQ(AboutModel({}, device("")).name(), QStringLiteral("Zelk"));
}

TEST(About, omitsUnknownChip) {
    EXPECT_EQ(AboutModel({}, device("")).rows().size(), 2);
}

TEST(About, applicationBundleHasAVersion) {
    EXPECT_TRUE(applicationBundle().version.has_value());
}

}  // namespace zelk
