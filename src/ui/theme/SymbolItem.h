// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QFont>
#include <QImage>
#include <QQuickPaintedItem>
#include <QString>

namespace zelk {

/// The SVG resource of a symbol; exists for every name that a screen uses.
QString symbolFile(const QString& name);

/// The symbol in `pixels` x `pixels`, every covered point in `color`; a null image if there is no such symbol. Its
/// lines are as heavy as a text of this weight is beside one of QFont::Normal; a filled symbol has none. The last
/// pictures are kept, so that asking again costs nothing. From any thread.
QImage tintedSymbol(const QString& name, const QColor& color, int pixels, int weight = QFont::Normal);

/// A square symbol. Tinted on the CPU rather than by a shader, so that it looks the same with every renderer. Hidden
/// from screen readers: the control around it has the name.
class SymbolItem : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged FINAL REQUIRED)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged FINAL REQUIRED)
    Q_PROPERTY(qreal size READ size WRITE setSize NOTIFY sizeChanged FINAL REQUIRED)
    Q_PROPERTY(int weight READ weight WRITE setWeight NOTIFY weightChanged FINAL)

public:
    explicit SymbolItem(QQuickItem* parent = nullptr);

    QString name() const { return name_; }
    void setName(const QString& name);
    QColor color() const { return color_; }
    void setColor(const QColor& color);
    /// The side length including the margin of the symbol's grid.
    qreal size() const { return size_; }
    void setSize(qreal size);
    /// Of its lines, as that of a font.
    int weight() const { return weight_; }
    void setWeight(int weight);

    void paint(QPainter* painter) override;

signals:
    void nameChanged();
    void colorChanged();
    void sizeChanged();
    void weightChanged();

private:
    QString name_;
    QColor color_;
    qreal size_ = 0;
    int weight_ = QFont::Normal;
};

}  // namespace zelk
