// SPDX-License-Identifier: MIT
#include "scan/FileType.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

namespace zelk {
namespace {

const std::map<FileType, std::vector<std::string>> extensionsOfTypes{
    {FileType::video, {"mp4", "mov", "m4v", "avi", "mkv", "webm", "flv", "wmv", "mpg", "mpeg", "3gp", "m2ts", "ts"}},
    {FileType::audio, {"mp3", "m4a", "wav", "aac", "flac", "aiff", "aif", "ogg", "wma", "caf"}},
    {FileType::image,
     {"jpg", "jpeg", "png", "gif", "heic", "heif", "tiff", "tif", "bmp", "webp", "raw", "cr2", "cr3", "nef", "arw",
      "dng", "psd", "svg"}},
    {FileType::archive, {"zip", "tar", "gz", "tgz", "bz2", "xz", "7z", "rar", "zst", "pkg", "xip"}},
    {FileType::diskImage, {"dmg", "iso", "sparseimage", "sparsebundle", "img", "cdr"}},
    {FileType::document,
     {"pdf", "doc", "docx", "xls", "xlsx", "ppt", "pptx", "pages", "numbers", "key", "txt", "md", "rtf", "csv", "epub",
      "json", "xml"}},
};

std::string upperCase(std::string text) {
    for (char& c : text) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return text;
}

TEST(FileType, classifiesEveryExtensionInAnyCase) {
    std::size_t rows = 0;
    for (const auto& [type, extensions] : extensionsOfTypes) {
        for (const std::string& extension : extensions) {
            EXPECT_EQ(classifyName("a." + extension).type, type) << extension;
            EXPECT_EQ(classifyName("a.b." + upperCase(extension)).type, type) << extension;
            EXPECT_EQ(classifyName("a." + extension + "q").type, FileType::other) << extension;
            ++rows;
        }
    }
    EXPECT_EQ(rows, 75U);
}

TEST(FileType, rawValuesAreTheEnumeratorNames) {
    const std::vector<std::string> names{"video", "audio", "image", "archive", "diskImage", "document", "other"};
    ASSERT_EQ(allFileTypes.size(), names.size());
    for (std::size_t i = 0; i < names.size(); ++i) {
        EXPECT_EQ(rawValue(allFileTypes[i]), names[i]);
        EXPECT_EQ(fileTypeFromRawValue(names[i]), allFileTypes[i]);
    }
}

TEST(FileType, rejectsUnknownRawValue) {
    for (const char* text : {"", "Video", "disk image", "others"}) EXPECT_FALSE(fileTypeFromRawValue(text)) << text;
}

TEST(FileExtension, isLowerCasedAfterTheLastDot) {
    EXPECT_EQ(fileExtension("archive.tar.GZ"), "gz");
    EXPECT_EQ(fileExtension(".tar.gz"), "gz");
    EXPECT_EQ(fileExtension("a.b c"), "b c");
}

TEST(FileExtension, isEmptyWithoutADotAfterAName) {
    for (const char* name : {"", "name", ".zshrc", ".png", "name.", ".", "..", "a.."})
        EXPECT_EQ(fileExtension(name), "") << name;
}

TEST(FileType, leadingDotIsNotAnExtension) {
    EXPECT_EQ(classifyName(".png").type, FileType::other);
    EXPECT_EQ(classifyName("a.PNG").type, FileType::image);
    EXPECT_EQ(classifyName("archive.tar.gz").type, FileType::archive);
    EXPECT_EQ(classifyName("name.").type, FileType::other);
}

TEST(FileType, diskImageListDiffersFromDiskImageType) {
    const std::set<std::string> listed{"dmg", "iso", "img", "qcow2", "vmdk", "vdi", "raw", "sparseimage"};
    for (const std::string& extension : listed) {
        EXPECT_TRUE(classifyName("a." + extension).canBeDiskImage) << extension;
        EXPECT_TRUE(classifyName("a." + upperCase(extension)).canBeDiskImage) << extension;
    }
    for (const auto& [type, extensions] : extensionsOfTypes) {
        for (const std::string& extension : extensions) {
            EXPECT_EQ(classifyName("a." + extension).canBeDiskImage, listed.contains(extension)) << extension;
        }
    }
    for (const char* name : {"a.qcow2", "a.vmdk", "a.vdi"}) EXPECT_EQ(classifyName(name).type, FileType::other) << name;
    EXPECT_EQ(classifyName("a.raw").type, FileType::image);
    for (const char* name : {"a.cdr", "a.sparsebundle"}) {
        EXPECT_EQ(classifyName(name).type, FileType::diskImage) << name;
        EXPECT_FALSE(classifyName(name).canBeDiskImage) << name;
    }
}

TEST(FileType, nonAsciiExtensionsAreOther) {
    for (const char* name : {"a.m\xC3\xA9", "a.\xFF\xFE", "a.p\0ng", "a.\xC4\xB0so"})
        EXPECT_EQ(classifyName(name).type, FileType::other) << name;
}

TEST(FileType, kelvinSignIsK) {
    EXPECT_EQ(fileExtension("film.M\xE2\x84\xAAV"), "mkv");
    EXPECT_EQ(classifyName("film.M\xE2\x84\xAAV").type, FileType::video);
}

TEST(FileType, veryLongExtensionIsOther) {
    EXPECT_EQ(classifyName("a." + std::string(250, 'x')).type, FileType::other);
    EXPECT_EQ(classifyName("a." + std::string(200, '\xE2')).type, FileType::other);
}

TEST(TypeTotals, doesNotContainTypeWithoutFiles) {
    TypeTotals totals;
    EXPECT_TRUE(totals.empty());
    totals[FileType::audio].count = 1;
    EXPECT_FALSE(totals.empty());
    EXPECT_TRUE(totals.contains(FileType::audio));
    EXPECT_FALSE(totals.contains(FileType::video));
}

}  // namespace
}  // namespace zelk
