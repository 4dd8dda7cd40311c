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

/// A section of a storage ribbon and its legend entry.
struct RibbonSegment {
    Q_GADGET
    QML_VALUE_TYPE(ribbonSegment)
    Q_PROPERTY(QString label MEMBER label FINAL)
    Q_PROPERTY(QString bytesText MEMBER bytesText FINAL)
    Q_PROPERTY(QColor color MEMBER color FINAL)

public:
    QString label;
    qint64 bytes = 0;
    QString bytesText;
    QColor color;  ///< if invalid, that of the picture's `otherColor`

    bool operator==(const RibbonSegment&) const = default;
};

/// The widths of the sections in order, followed by that of the free space, proportional to the bytes. Negative counts
/// are 0. If all are 0, the whole width is free.
std::vector<double> ribbonWidths(const std::vector<std::int64_t>& bytes, std::int64_t freeBytes, double width);

/// The bar of a storage ribbon: sections side by side in reading order, with rounded outer corners. Used by
/// StorageRibbon.
class RibbonPicture : public zelk::Drawn {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QList<zelk::RibbonSegment> segments MEMBER segments_ NOTIFY changed FINAL)
    // A double, since QML has no 64-bit integer.
    Q_PROPERTY(double freeBytes MEMBER freeBytes_ NOTIFY changed FINAL)
    Q_PROPERTY(QColor otherColor MEMBER otherColor_ NOTIFY changed FINAL)
    Q_PROPERTY(QColor freeColor MEMBER freeColor_ NOTIFY changed FINAL)

public:
    using Drawn::Drawn;

protected:
    void draw(QPainter& painter) override;
    bool isDirected() const override { return true; }

private:
    QList<zelk::RibbonSegment> segments_;
    double freeBytes_ = 0;
    QColor otherColor_;
    QColor freeColor_;
};

}  // namespace zelk
