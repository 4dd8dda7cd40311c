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

/// Renders the symbol at `pixels` x `pixels` with all its shapes in `color`; null if there is no such symbol. The line
/// width matches text of `weight`; filled symbols have no lines. Recent images are cached. Safe from any thread.
QImage tintedSymbol(const QString& name, const QColor& color, int pixels, int weight = QFont::Normal);

/// Whether the symbol points along the reading direction or pictures a page of text, and so is mirrored where that
/// begins at the right. Clocks, turning arrows, tools, logos and a terminal's prompt look the same everywhere.
bool isDirectedSymbol(const QString& name);

/// A square symbol. Tinted on the CPU rather than by a shader, so that it looks the same with every renderer. Hidden
/// from screen readers: the control around it has the name.
class SymbolItem : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString name READ name MEMBER name_ NOTIFY changed FINAL REQUIRED)
    Q_PROPERTY(QColor color READ color MEMBER color_ NOTIFY changed FINAL REQUIRED)
    Q_PROPERTY(qreal size READ size MEMBER size_ NOTIFY changed FINAL REQUIRED)
    Q_PROPERTY(int weight READ weight MEMBER weight_ NOTIFY changed FINAL)

public:
    explicit SymbolItem(QQuickItem* parent = nullptr);

    QString name() const { return name_; }
    QColor color() const { return color_; }
    /// The side length including the margin of the symbol's grid.
    qreal size() const { return size_; }
    /// The weight of its lines, like that of a font.
    int weight() const { return weight_; }

    void paint(QPainter* painter) override;

signals:
    void changed();

private:
    QString name_;
    QColor color_;
    qreal size_ = 0;
    int weight_ = QFont::Normal;
};

}  // namespace zelk
