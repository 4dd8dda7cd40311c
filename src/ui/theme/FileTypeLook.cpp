// SPDX-License-Identifier: MIT
#include "ui/theme/FileTypeLook.h"

#include <array>
#include <cstddef>

namespace zelk {

FileTypeLook lookOf(FileType type) {
    static const std::array<FileTypeLook, allFileTypes.size()> looks{{
        {FileTypeLook::tr("Video"), {232, 91, 196}, "film"},
        {FileTypeLook::tr("Audio"), {167, 123, 255}, "music.note"},
        {FileTypeLook::tr("Photos"), {86, 194, 245}, "photo"},
        {FileTypeLook::tr("Archives"), {245, 166, 35}, "doc.zipper"},
        {FileTypeLook::tr("Disk images"), {255, 107, 94}, "opticaldiscdrive"},
        {FileTypeLook::tr("Documents"), {50, 199, 123}, "doc.text"},
        {FileTypeLook::tr("Other"), {}, "doc"},
    }};
    return looks[static_cast<std::size_t>(type)];
}

FileTypeLook lookOf(FileType type, const ZelkTheme& theme) {
    FileTypeLook look = lookOf(type);
    if (!look.color.isValid()) look.color = withOpacity(theme.inkSoft, 0.5);
    return look;
}

}  // namespace zelk

#include "moc_FileTypeLook.cpp"
