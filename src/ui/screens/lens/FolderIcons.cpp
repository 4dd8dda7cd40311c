// SPDX-License-Identifier: MIT
#include "ui/screens/lens/FolderIcons.h"

#include <algorithm>

#include "ui/theme/SymbolItem.h"

namespace zelk {

namespace {

constexpr qsizetype keptBytes = 8 * 1024 * 1024;

/// The usual folder colour of desktops; visible in both themes and on a bubble.
const QColor folderColor(90, 172, 245);

QImage imageOf(const IconPixels& pixels) {
    return QImage(reinterpret_cast<const uchar*>(pixels.argb.data()), pixels.side, pixels.side,
                  QImage::Format_ARGB32_Premultiplied)
        .copy();
}

}  // namespace

FolderIcons::FolderIcons(Workspace& workspace) : workspace_(workspace), images_(keptBytes) {}

QImage FolderIcons::image(const std::string& path, int side) {
    const QImage desktops = desktopImage(path, side);
    return desktops.isNull() ? tintedSymbol(QStringLiteral("folder.fill"), folderColor, side) : desktops;
}

QImage FolderIcons::desktopImage(const std::string& path, int side) {
    QByteArray key = QByteArray::number(side) + '/' + QByteArray::fromStdString(path);
    if (const QImage* known = images_.object(key)) return *known;
    const std::optional<IconPixels> pixels = workspace_.icon(path, true, side);
    const QImage image = pixels ? imageOf(*pixels) : QImage();
    images_.insert(key, new QImage(image), std::max<qsizetype>(image.sizeInBytes(), key.size()));
    return image;
}

}  // namespace zelk
