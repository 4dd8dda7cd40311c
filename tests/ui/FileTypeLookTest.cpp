// SPDX-License-Identifier: MIT
#include "ui/theme/FileTypeLook.h"

#include <gtest/gtest.h>

namespace zelk {

TEST(FileTypeLook, givesEachTypeNameColourAndSymbol) {
    struct Expected {
        FileType type;
        const char* name;
        QColor color;
        const char* symbol;
    };
    const Expected table[] = {
        {FileType::video, "Video", {232, 91, 196}, "film"},
        {FileType::audio, "Audio", {167, 123, 255}, "music.note"},
        {FileType::image, "Photos", {86, 194, 245}, "photo"},
        {FileType::archive, "Archives", {245, 166, 35}, "doc.zipper"},
        {FileType::diskImage, "Disk images", {255, 107, 94}, "opticaldiscdrive"},
        {FileType::document, "Documents", {50, 199, 123}, "doc.text"},
    };
    for (const ZelkTheme* theme : {&ZelkTheme::dark(), &ZelkTheme::light()})
        for (const Expected& expected : table) {
            const FileTypeLook look = lookOf(expected.type, *theme);
            EXPECT_EQ(look.name.toStdString(), expected.name);
            EXPECT_EQ(look.color, expected.color) << expected.name;
            EXPECT_EQ(look.symbol.toStdString(), expected.symbol);
        }
}

TEST(FileTypeLook, otherIsSoftInkAtHalfOpacity) {
    for (const ZelkTheme* theme : {&ZelkTheme::dark(), &ZelkTheme::light()}) {
        const FileTypeLook look = lookOf(FileType::other, *theme);
        EXPECT_EQ(look.name, QStringLiteral("Other"));
        EXPECT_EQ(look.symbol, QStringLiteral("doc"));
        QColor expected = theme->inkSoft;
        expected.setAlphaF(0.5F);
        EXPECT_EQ(look.color, expected);
    }
    EXPECT_NE(lookOf(FileType::other, ZelkTheme::dark()).color, lookOf(FileType::other, ZelkTheme::light()).color);
}

TEST(FileTypeLook, onlyOtherNeedsTheTheme) {
    for (const FileType type : allFileTypes) {
        const FileTypeLook look = lookOf(type);
        EXPECT_EQ(look.color.isValid(), type != FileType::other);
        EXPECT_EQ(look.name, lookOf(type, ZelkTheme::dark()).name);
        EXPECT_EQ(look.symbol, lookOf(type, ZelkTheme::dark()).symbol);
    }
}

}  // namespace zelk
