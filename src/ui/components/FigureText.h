// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QFont>
#include <QQuickPaintedItem>
#include <QString>
#include <vector>

namespace zelk {

/// A piece of a figure and where it starts, in points from the left.
struct FigurePiece {
    QString text;  ///< one digit, or a run of anything else
    double x;
    double width;

    bool operator==(const FigurePiece&) const = default;
};

/// Cuts a text into pieces that give every digit the same width, the mean of all ten, so that a running figure stands
/// still. (The fonts have such digits as a feature, which the older versions of the toolkit cannot switch on.)
std::vector<FigurePiece> layOutFigure(const QString& text, const QFont& font);

/// A line of text whose figures change while one looks. Its implicit size is that of the text.
class FigureText : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged FINAL REQUIRED)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged FINAL REQUIRED)
    Q_PROPERTY(int pixelSize READ pixelSize WRITE setPixelSize NOTIFY pixelSizeChanged FINAL REQUIRED)
    Q_PROPERTY(bool bold READ bold WRITE setBold NOTIFY boldChanged FINAL)

public:
    explicit FigureText(QQuickItem* parent = nullptr);

    QString text() const { return text_; }
    void setText(const QString& text);
    QColor color() const { return color_; }
    void setColor(const QColor& color);
    int pixelSize() const { return pixelSize_; }
    void setPixelSize(int pixelSize);
    bool bold() const { return bold_; }
    void setBold(bool bold);

    void paint(QPainter* painter) override;

signals:
    void textChanged();
    void colorChanged();
    void pixelSizeChanged();
    void boldChanged();

private:
    void layOut();
    QFont font() const;

    QString text_;
    QColor color_;
    int pixelSize_ = 13;
    bool bold_ = false;
    std::vector<FigurePiece> pieces_;
};

}  // namespace zelk
