// SPDX-License-Identifier: MIT
#include "state/SettingsPreferences.h"

#include <gtest/gtest.h>

#include <QDir>

#include "fakes/Environment.h"
#include "fakes/TestFiles.h"
#include "zoo/TempFolder.h"

namespace zelk {
namespace {

class SettingsPreferencesTest : public testing::Test {
protected:
    QString file() const { return QString::fromStdString(folder / "preferences.conf"); }

    const zoo::TempFolder folder;
};

TEST_F(SettingsPreferencesTest, unsetFlagIsFalse) {
    EXPECT_FALSE(SettingsPreferences(file()).flag(didOnboardKey));
}

TEST_F(SettingsPreferencesTest, flagPersistsAcrossRuns) {
    SettingsPreferences(file()).setFlag(didOnboardKey, true);
    EXPECT_TRUE(SettingsPreferences(file()).flag(didOnboardKey));
    EXPECT_FALSE(SettingsPreferences(file()).flag("zelk/another"));
}

TEST_F(SettingsPreferencesTest, flagIsWrittenImmediately) {
    SettingsPreferences setting(file());
    setting.setFlag(didOnboardKey, true);
    EXPECT_EQ(fakes::fileContent(folder / "preferences.conf"), "[zelk]\ndidOnboard=true\n");
}

TEST_F(SettingsPreferencesTest, flagCanBeCleared) {
    SettingsPreferences preferences(file());
    preferences.setFlag(didOnboardKey, true);
    preferences.setFlag(didOnboardKey, false);
    EXPECT_FALSE(preferences.flag(didOnboardKey));
    EXPECT_FALSE(SettingsPreferences(file()).flag(didOnboardKey));
}

TEST_F(SettingsPreferencesTest, unreadableFileReadsAsEmpty) {
    fakes::writeFile(folder / "preferences.conf", "[zelk\n\xff\xfe%zz=\n");
    EXPECT_FALSE(SettingsPreferences(file()).flag(didOnboardKey));
}

TEST_F(SettingsPreferencesTest, failedWriteIsSilent) {
    fakes::writeFile(folder / "file", "in the way of a folder");
    SettingsPreferences preferences(QString::fromStdString(folder / "file/preferences.conf"));
    preferences.setFlag(didOnboardKey, true);
    EXPECT_TRUE(preferences.flag(didOnboardKey));  // as far as this run goes
    EXPECT_EQ(fakes::namesIn(folder.path()), std::set<std::string>{"file"});
    EXPECT_EQ(fakes::fileContent(folder / "file"), "in the way of a folder");
}

TEST_F(SettingsPreferencesTest, doesNotCreateMissingHome) {
    const fakes::EnvironmentVariable home("HOME", folder / "home");
    const QString kept = QString::fromStdString(folder / "home/.config/preferences.conf");
    {
        SettingsPreferences preferences(kept);
        preferences.setFlag(didOnboardKey, true);
        EXPECT_TRUE(preferences.flag(didOnboardKey));  // as far as this run goes
    }
    EXPECT_TRUE(fakes::namesIn(folder.path()).empty());
    SettingsPreferences preferences(kept);
    preferences.setFlag(didOnboardKey, false);
    QDir().mkpath(QDir::homePath());  // one that comes later
    preferences.setFlag(didOnboardKey, true);
    EXPECT_TRUE(preferences.flag(didOnboardKey));
    EXPECT_TRUE(SettingsPreferences(kept).flag(didOnboardKey));
}

TEST_F(SettingsPreferencesTest, keepsFlagsOutsideMissingHome) {
    const fakes::EnvironmentVariable home("HOME", folder / "home");
    SettingsPreferences(file()).setFlag(didOnboardKey, true);
    EXPECT_TRUE(SettingsPreferences(file()).flag(didOnboardKey));
}

#ifdef __linux__
TEST_F(SettingsPreferencesTest, userPreferencesAreInConfigurationFolder) {
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QString::fromStdString(folder.path()));
    SettingsPreferences().setFlag(didOnboardKey, true);
    EXPECT_EQ(fakes::fileContent(folder / "Zelk/Zelk.conf"), "[zelk]\ndidOnboard=true\n");
    EXPECT_TRUE(SettingsPreferences().flag(didOnboardKey));
}
#endif

}  // namespace
}  // namespace zelk
