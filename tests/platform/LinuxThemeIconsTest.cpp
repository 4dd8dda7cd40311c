// SPDX-License-Identifier: MIT
#include "platform/linux/apps/ThemeIcons.h"

#include <gtest/gtest.h>

#include <QColor>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QIcon>
#include <QImage>
#include <QStringList>
#include <algorithm>

#include "zoo/TempFolder.h"

namespace zelk {
namespace {

constexpr std::uint32_t red = 0xffff0000;
constexpr std::uint32_t green = 0xff00ff00;
constexpr std::uint32_t blue = 0xff0000ff;

bool isAll(const std::optional<IconPixels>& icon, int side, std::uint32_t color) {
    return icon && icon->side == side && icon->argb.size() == static_cast<std::size_t>(side * side) &&
           std::all_of(icon->argb.begin(), icon->argb.end(), [&](std::uint32_t pixel) { return pixel == color; });
}

/// A desktop with an icon theme of three icons of 16 x 16.
class LinuxThemeIconsTest : public testing::Test {
protected:
    LinuxThemeIconsTest() {
        QIcon::setThemeSearchPaths({root});
        QIcon::setThemeName(QStringLiteral("own"));
        QDir().mkpath(root + QStringLiteral("/own/16"));
        QFile index(root + QStringLiteral("/own/index.theme"));
        EXPECT_TRUE(index.open(QFile::WriteOnly));
        index.write("[Icon Theme]\nName=Own\nDirectories=16\n\n[16]\nSize=16\nType=Fixed\n");
        put("folder", red);
        put("video-mp4", green);
        put("text-x-generic", blue);
    }
    void put(const char* name, std::uint32_t color) {
        QImage image(16, 16, QImage::Format_ARGB32_Premultiplied);
        image.fill(QColor::fromRgba(color));
        EXPECT_TRUE(image.save(fileOf(name)));
    }
    QString fileOf(const char* name) const { return root + QStringLiteral("/own/16/%1.png").arg(QLatin1String(name)); }

    const zoo::TempFolder folder;
    const QString root = QString::fromStdString(folder.path());
    int count = 3;
    char ownName[5] = "test";
    char option[10] = "-platform";
    char platform[10] = "offscreen";
    char* words[4] = {ownName, option, platform, nullptr};
    QGuiApplication application{count, words};
    ThemeIcons icons;
};

TEST_F(LinuxThemeIconsTest, useTheFileNameNotItsContent) {
    EXPECT_TRUE(isAll(icons.icon("/not/there/holiday.mp4", false, 16), 16, green));
    EXPECT_TRUE(isAll(icons.icon("/not/there/HOLIDAY.MP4", false, 16), 16, green));
}

TEST_F(LinuxThemeIconsTest, useFolderIconWhateverTheName) {
    EXPECT_TRUE(isAll(icons.icon("/home/me/holiday.mp4", true, 16), 16, red));
    EXPECT_TRUE(isAll(icons.icon("/", true, 16), 16, red));
}

TEST_F(LinuxThemeIconsTest, fallBackToTheGenericIcon) {
    EXPECT_TRUE(isAll(icons.icon("/home/me/notes.txt", false, 16), 16, blue));
}

TEST_F(LinuxThemeIconsTest, areAbsentWithoutSpecificAndGenericIcon) {
    EXPECT_EQ(icons.icon("/home/me/song.flac", false, 16), std::nullopt);
    EXPECT_EQ(icons.icon("/home/me/of no known type", false, 16), std::nullopt);
}

TEST_F(LinuxThemeIconsTest, centerSmallerIconInTheSquare) {
    EXPECT_TRUE(isAll(icons.icon("/a", true, 48), 48, red));
    EXPECT_TRUE(isAll(icons.icon("/a", true, 1), 1, red));
    EXPECT_EQ(icons.icon("/a", true, 0), std::nullopt);
}

TEST_F(LinuxThemeIconsTest, loadIconOfATypeOnce) {
    ASSERT_TRUE(isAll(icons.icon("/home/me/a.mp4", false, 16), 16, green));
    ASSERT_TRUE(QFile::remove(fileOf("video-mp4")));
    EXPECT_TRUE(isAll(icons.icon("/home/me/b.mp4", false, 16), 16, green));
}

TEST_F(LinuxThemeIconsTest, acceptNamesThatAreNotUtf8) {
    EXPECT_TRUE(isAll(icons.icon("/home/\xff/\xc3.mp4", false, 16), 16, green));
    EXPECT_TRUE(isAll(icons.icon("/home/me/a\nb.mp4", false, 16), 16, green));
    EXPECT_EQ(icons.icon("", false, 16), std::nullopt);
}

TEST_F(LinuxThemeIconsTest, ofEntriesAreNamedInTheTheme) {
    EXPECT_TRUE(isAll(icons.entryIcon("folder", 16), 16, red));
    EXPECT_TRUE(isAll(icons.entryIcon("video-mp4", 16), 16, green));
    EXPECT_EQ(icons.entryIcon("nothing-of-this-name", 16), std::nullopt);
    EXPECT_EQ(icons.entryIcon("", 16), std::nullopt);
    EXPECT_EQ(icons.entryIcon("folder", 0), std::nullopt);
}

TEST_F(LinuxThemeIconsTest, ofEntriesMayBeAPicture) {
    EXPECT_TRUE(isAll(icons.entryIcon(fileOf("folder").toStdString(), 16), 16, red));
    EXPECT_EQ(icons.entryIcon(root.toStdString(), 16), std::nullopt);
    EXPECT_EQ(icons.entryIcon("/not/there.png", 16), std::nullopt);
    EXPECT_EQ(icons.entryIcon("own/16/folder.png", 16), std::nullopt) << "relative to nothing";
}

TEST_F(LinuxThemeIconsTest, ofEntriesAreNoLargePictures) {
    const QString large = root + QStringLiteral("/large.png");
    ASSERT_TRUE(QFile::copy(fileOf("folder"), large));
    QFile file(large);
    ASSERT_TRUE(file.resize((qint64{4} << 20) + 1));
    EXPECT_EQ(icons.entryIcon(large.toStdString(), 16), std::nullopt);
    ASSERT_TRUE(file.resize(qint64{4} << 20));
    ThemeIcons others;
    EXPECT_TRUE(isAll(others.entryIcon(large.toStdString(), 16), 16, red));
}

TEST_F(LinuxThemeIconsTest, ofEntriesAreLoadedOnce) {
    ASSERT_TRUE(isAll(icons.entryIcon(fileOf("folder").toStdString(), 16), 16, red));
    ASSERT_TRUE(QFile::remove(fileOf("folder")));
    EXPECT_TRUE(isAll(icons.entryIcon(fileOf("folder").toStdString(), 16), 16, red));
}

TEST(LinuxThemeIconsAlone, areAbsentWithoutAGuiApplication) {
    ThemeIcons icons;
    EXPECT_EQ(icons.entryIcon("folder", 16), std::nullopt);
    EXPECT_EQ(icons.icon("/home/me", true, 16), std::nullopt);
}

}  // namespace
}  // namespace zelk
