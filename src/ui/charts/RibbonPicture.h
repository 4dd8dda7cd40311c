// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QList>
#include <QString>
#include <cstdint>
#include <vector>

#include "ui/controls/Drawn.h"

namespace zelk {

/// One section of a storage ribbon and its line in the legend.
struct RibbonSegment {
    Q_GADGET
    QML_VALUE_TYPE(ribbonSegment)
    Q_PROPERTY(QString label MEMBER label FINAL)
    Q_PROPERTY(qint64 bytes MEMBER bytes FINAL)
    Q_PROPERTY(QString bytesText MEMBER bytesText FINAL)
    Q_PROPERTY(QColor color MEMBER color FINAL)

public:
    QString label;
    qint64 bytes = 0;
    QString bytesText;
    QColor color;

    bool operator==(const RibbonSegment&) const = default;
};

/// The widths of the sections in their order and, last, of the free space: each its share of all bytes, a count below 0
/// being none. Where there are no bytes at all, all is free.
std::vector<double> ribbonWidths(const std::vector<std::int64_t>& bytes, std::int64_t freeBytes, double width);

/// The sections side by side, round at the outer ends and a hair apart.
void drawRibbon(Canvas& canvas, QSizeF size, const QList<RibbonSegment>& segments, std::int64_t freeBytes,
                const QColor& freeColor);

/// The bar of a storage ribbon. StorageRibbon is what a screen shows.
class RibbonPicture : public zelk::Drawn {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QList<zelk::RibbonSegment> segments READ segments WRITE setSegments NOTIFY segmentsChanged FINAL)
    Q_PROPERTY(double freeBytes READ freeBytes WRITE setFreeBytes NOTIFY freeBytesChanged FINAL)
    Q_PROPERTY(QColor freeColor READ freeColor WRITE setFreeColor NOTIFY freeColorChanged FINAL)

public:
    using Drawn::Drawn;

    QList<RibbonSegment> segments() const { return segments_; }
    void setSegments(const QList<RibbonSegment>& segments);
    /// A whole number; QML knows none of this size.
    double freeBytes() const { return freeBytes_; }
    void setFreeBytes(double freeBytes);
    QColor freeColor() const { return freeColor_; }
    void setFreeColor(const QColor& freeColor);

signals:
    void segmentsChanged();
    void freeBytesChanged();
    void freeColorChanged();

protected:
    void draw(Canvas& canvas) const override;

private:
    QList<RibbonSegment> segments_;
    double freeBytes_ = 0;
    QColor freeColor_;
};

}  // namespace zelk
