// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QImage>
#include <QQuickPaintedItem>
#include <QString>

namespace zelk {

/// The SVG resource of a symbol; it exists for every name that a screen uses.
QString symbolFile(const QString& name);

/// The symbol in `pixels` x `pixels`, every covered point in `color`; a null image if there is no such symbol. The
/// last pictures are kept, so that asking again costs nothing. From any thread.
QImage tintedSymbol(const QString& name, const QColor& color, int pixels);

/// A symbol on screen, square, tinted here and not by a shader, so that it looks the same in every renderer. It says
/// nothing to a screen reader: the control that it stands on does.
class SymbolItem : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged FINAL REQUIRED)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged FINAL REQUIRED)
    Q_PROPERTY(qreal size READ size WRITE setSize NOTIFY sizeChanged FINAL REQUIRED)

public:
    explicit SymbolItem(QQuickItem* parent = nullptr);

    QString name() const { return name_; }
    void setName(const QString& name);
    QColor color() const { return color_; }
    void setColor(const QColor& color);
    /// The side of its grid, of which the symbols leave a rim free.
    qreal size() const { return size_; }
    void setSize(qreal size);

    void paint(QPainter* painter) override;

signals:
    void nameChanged();
    void colorChanged();
    void sizeChanged();

private:
    QString name_;
    QColor color_;
    qreal size_ = 0;
};

}  // namespace zelk
