// SPDX-License-Identifier: MIT
#include "ui/screens/lens/FileIcons.h"

#include <algorithm>
#include <cstring>

#include "ui/theme/SymbolItem.h"

namespace zelk {

namespace {

constexpr qsizetype keptBytes = 8 * 1024 * 1024;

/// The usual folder colour of desktops; visible in both themes and on a bubble.
const QColor folderColor(90, 172, 245);

QImage imageOf(const IconPixels& pixels) {
    QImage image(pixels.side, pixels.side, QImage::Format_ARGB32_Premultiplied);
    const auto side = static_cast<std::size_t>(pixels.side);
    for (std::size_t y = 0; y < side; ++y)
        std::memcpy(image.scanLine(static_cast<int>(y)), &pixels.argb[y * side], side * sizeof pixels.argb[0]);
    return image;
}

}  // namespace

FileIcons::FileIcons(Workspace& workspace, const ZelkTheme& theme)
    : workspace_(workspace), theme_(&theme), images_(keptBytes) {}

QImage FileIcons::image(const std::string& path, bool isDirectory, int side) {
    const QImage desktops = desktopImage(path, isDirectory, side);
    if (!desktops.isNull()) return desktops;
    return isDirectory ? tintedSymbol(QStringLiteral("folder.fill"), folderColor, side)
                       : tintedSymbol(QStringLiteral("doc"), theme_->inkSoft, side);
}

QImage FileIcons::desktopImage(const std::string& path, bool isDirectory, int side) {
    QByteArray key = QByteArray::number(side) + (isDirectory ? '/' : '.') + QByteArray::fromStdString(path);
    if (const QImage* known = images_.object(key)) return *known;
    const std::optional<IconPixels> pixels = workspace_.icon(path, isDirectory, side);
    const QImage image = pixels ? imageOf(*pixels) : QImage();
    images_.insert(key, new QImage(image), std::max<qsizetype>(image.sizeInBytes(), key.size()));
    return image;
}

}  // namespace zelk
