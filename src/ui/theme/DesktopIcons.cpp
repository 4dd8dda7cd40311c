// SPDX-License-Identifier: MIT
#include "ui/theme/DesktopIcons.h"

#include <algorithm>
#include <optional>

#include "ui/theme/SymbolItem.h"

namespace zelk {

namespace {

constexpr qsizetype keptBytes = 8 * 1024 * 1024;

/// Our own symbol, in a colour that is visible on the ground of both themes, and on a bubble. That of folders is usual
/// on desktops.
QImage ownIcon(DesktopIcons::Of kind, int side) {
    switch (kind) {
        case DesktopIcons::Of::folders:
            return tintedSymbol(QStringLiteral("folder.fill"), QColor(90, 172, 245), side);
        case DesktopIcons::Of::programs:
            return tintedSymbol(QStringLiteral("gearshape"), QColor(139, 134, 152), side);
        case DesktopIcons::Of::applications:
            return tintedSymbol(QStringLiteral("square.grid.2x2"), QColor(167, 123, 255), side);
    }
    return {};
}

QImage imageOf(const IconPixels& pixels) {
    return QImage(reinterpret_cast<const uchar*>(pixels.argb.data()), pixels.side, pixels.side,
                  QImage::Format_ARGB32_Premultiplied)
        .copy();
}

}  // namespace

DesktopIcons::DesktopIcons(Workspace& workspace, Of kind) : workspace_(workspace), kind_(kind), images_(keptBytes) {}

QImage DesktopIcons::image(const std::string& path, int side) {
    const QImage desktops = desktopImage(path, side);
    return desktops.isNull() ? ownIcon(kind_, side) : desktops;
}

QImage DesktopIcons::desktopImage(const std::string& path, int side) {
    QByteArray key = QByteArray::number(side) + '/' + QByteArray::fromStdString(path);
    if (const QImage* known = images_.object(key)) return *known;
    const std::optional<IconPixels> pixels = kind_ == Of::applications
                                                 ? workspace_.entryIcon(path, side)
                                                 : workspace_.icon(path, kind_ == Of::folders, side);
    const QImage image = pixels ? imageOf(*pixels) : QImage();
    images_.insert(key, new QImage(image), std::max<qsizetype>(image.sizeInBytes(), key.size()));
    return image;
}

}  // namespace zelk
