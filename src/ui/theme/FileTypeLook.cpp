// SPDX-License-Identifier: MIT
#include "ui/theme/FileTypeLook.h"

#include <array>
#include <cstddef>

namespace zelk {

FileTypeLook lookOf(FileType type, const ZelkTheme& theme) {
    static const std::array<FileTypeLook, allFileTypes.size()> looks{{
        {"Video", {232, 91, 196}, "film"},
        {"Audio", {167, 123, 255}, "music.note"},
        {"Photos", {86, 194, 245}, "photo"},
        {"Archives", {245, 166, 35}, "doc.zipper"},
        {"Disk images", {255, 107, 94}, "opticaldiscdrive"},
        {"Documents", {50, 199, 123}, "doc.text"},
        {"Other", {}, "doc"},
    }};
    FileTypeLook look = looks[static_cast<std::size_t>(type)];
    if (!look.color.isValid()) look.color = withOpacity(theme.inkSoft, 0.5);
    return look;
}

}  // namespace zelk
