// SPDX-License-Identifier: MIT
#include "platform/linux/apps/ThemeIcons.h"

#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QIcon>
#include <QImage>
#include <QMimeDatabase>
#include <QPainter>
#include <QPixmap>

namespace zelk {

namespace {

constexpr qint64 largestPicture = qint64{4} << 20;
const QString unthemedPictures = QStringLiteral("/usr/share/pixmaps/");

/// Uses the file name only, never the content, which may be on a slow disk.
QMimeType typeOf(const std::string& path) {
    const QMimeDatabase types;
    const QString name = QString::fromStdString(path.substr(path.rfind('/') + 1));
    const QList<QMimeType> found = types.mimeTypesForFileName(name);
    return found.isEmpty() ? types.mimeTypeForName(QStringLiteral("application/octet-stream")) : found.first();
}

QIcon themed(const QString& name, const QString& otherwise) {
    const QIcon icon = QIcon::fromTheme(name);
    return icon.isNull() ? QIcon::fromTheme(otherwise) : icon;
}

/// Centers the icon in the square, scaled down if it is larger.
std::optional<IconPixels> pixelsOf(const QIcon& icon, int side) {
    const QPixmap found = icon.pixmap(QSize(side, side), 1);
    if (found.isNull()) return std::nullopt;
    QImage square(side, side, QImage::Format_ARGB32_Premultiplied);
    square.fill(Qt::transparent);
    QPainter painter(&square);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    QRect place(QPoint(), found.size().scaled(square.size(), Qt::KeepAspectRatio));
    place.moveCenter(square.rect().center());
    painter.drawPixmap(place, found);
    painter.end();

    IconPixels pixels{side, {}};
    pixels.argb.reserve(static_cast<std::size_t>(side) * static_cast<std::size_t>(side));
    for (int y = 0; y < side; ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(square.constScanLine(y));
        pixels.argb.insert(pixels.argb.end(), line, line + side);
    }
    return pixels;
}

bool isDrawable(int side) {
    return qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr && side >= 1;
}

QIcon iconOfFile(const QString& path) {
    const QFileInfo file(path);
    return file.isFile() && file.size() <= largestPicture ? QIcon(path) : QIcon();
}

QIcon iconOfEntry(const QString& nameOrPath) {
    if (nameOrPath.startsWith(u'/')) return iconOfFile(nameOrPath);
    if (nameOrPath.isEmpty() || nameOrPath.contains(u'/')) return {};
    if (QIcon icon = QIcon::fromTheme(nameOrPath); !icon.isNull()) return icon;
    // Some entries name the picture with its extension, against the rules.
    for (const char* extension : {".svg", ".png", ".xpm", ""})
        if (QIcon icon = iconOfFile(unthemedPictures + nameOrPath + QLatin1String(extension)); !icon.isNull())
            return icon;
    return {};
}

}  // namespace

std::optional<IconPixels> ThemeIcons::entryIcon(const std::string& nameOrPath, int side) {
    if (!isDrawable(side)) return std::nullopt;
    const auto [known, isNew] = entries_.try_emplace({nameOrPath, side});
    if (isNew) known->second = pixelsOf(iconOfEntry(QFile::decodeName(QByteArray::fromStdString(nameOrPath))), side);
    return known->second;
}

std::optional<IconPixels> ThemeIcons::icon(const std::string& path, bool isDirectory, int side) {
    if (!isDrawable(side)) return std::nullopt;
    QString name = QStringLiteral("folder");
    QString otherwise = name;
    if (!isDirectory) {
        const QMimeType type = typeOf(path);
        name = type.iconName();
        otherwise = type.genericIconName();
    }
    const auto [known, isNew] = known_.try_emplace({name.toStdString(), side});
    if (isNew) known->second = pixelsOf(themed(name, otherwise), side);
    return known->second;
}

}  // namespace zelk
