// SPDX-License-Identifier: MIT
#include "ui/theme/SymbolItem.h"

#include <QCache>
#include <QFile>
#include <QHash>
#include <QMutex>
#include <QPainter>
#include <QSvgRenderer>
#include <algorithm>
#include <array>
#include <cmath>

#include "ui/theme/ReadingDirection.h"

namespace zelk {

namespace {

/// The key of a cached image.
struct Tinting {
    QString name;
    QRgb color;
    int pixels;
    int weight;

    bool operator==(const Tinting&) const = default;
};

size_t qHash(const Tinting& tinting, size_t seed = 0) {
    return qHashMulti(seed, tinting.name, tinting.color, tinting.pixels, tinting.weight);
}

constexpr std::array directedSymbols{
    "arrow.down.right", "arrow.right.circle.fill", "arrow.up.right", "chevron.left", "chevron.right",
    "doc.text",         "heart.text.square",       "list.star",      "sidebar.left"};

/// Caches recent images, so that a list with the same symbol in every row reads its file once.
class DrawnSymbols {
public:
    template <typename Draw>
    QImage take(const Tinting& tinting, Draw draw) {
        const QMutexLocker lock(&mutex_);  // items paint on the render threads of their windows
        if (const QImage* image = images_.object(tinting)) return *image;
        const QImage image = draw(tinting);
        if (!image.isNull()) images_.insert(tinting, new QImage(image), image.sizeInBytes());
        return image;
    }

private:
    QMutex mutex_;
    QCache<Tinting, QImage> images_{4 * 1024 * 1024};
};

/// The SVG of the symbol with lines of this weight: from normal to bold they grow by one of the grid's 24 units.
QByteArray drawingOf(const QString& name, int weight) {
    constexpr double normalStroke = 1.75;
    QFile file(symbolFile(name));
    if (!file.open(QIODevice::ReadOnly)) {
        qWarning("there is no symbol %s", qPrintable(file.fileName()));
        return {};
    }
    const double stroke = normalStroke + static_cast<double>(weight - QFont::Normal) / (QFont::Bold - QFont::Normal);
    const auto attribute = [](double width) { return "stroke-width=\"" + QByteArray::number(width) + '"'; };
    return file.readAll().replace(attribute(normalStroke), attribute(stroke));
}

QImage drawTinted(const Tinting& tinting) {
    if (tinting.name.isEmpty() || tinting.pixels < 1) return {};
    QSvgRenderer renderer(drawingOf(tinting.name, tinting.weight));
    if (!renderer.isValid()) return {};
    QImage image(tinting.pixels, tinting.pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), QColor::fromRgba(tinting.color));
    return image;
}

}  // namespace

QString symbolFile(const QString& name) {
    return QStringLiteral(":/Zelk/Controls/symbols/%1.svg").arg(name);
}

QImage tintedSymbol(const QString& name, const QColor& color, int pixels, int weight) {
    static DrawnSymbols drawn;
    return drawn.take({name, color.rgba(), pixels, weight}, drawTinted);
}

bool isDirectedSymbol(const QString& name) {
    return std::ranges::any_of(directedSymbols, [&](const char* directed) { return name == QLatin1String(directed); });
}

SymbolItem::SymbolItem(QQuickItem* parent) : QQuickPaintedItem(parent) {
    connect(this, &SymbolItem::changed, this, [this] {
        setImplicitSize(size_, size_);
        update();
    });
}

void SymbolItem::paint(QPainter* painter) {
    const qreal scale = painter->deviceTransform().m11();
    const int pixels = static_cast<int>(std::lround(boundingRect().width() * scale));
    const QImage image = tintedSymbol(name_, color_, pixels, weight_);
    const bool turned = readsFromRight() && isDirectedSymbol(name_);
    painter->drawImage(boundingRect(), turned ? image.mirrored(true, false) : image);
}

}  // namespace zelk

#include "moc_SymbolItem.cpp"
