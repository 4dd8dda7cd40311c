// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QFont>
#include <QQuickPaintedItem>
#include <QString>
#include <QVariantAnimation>
#include <vector>

namespace zelk {

class TextScale;

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

/// A line of text whose figures change while one looks. Its implicit size is that of what it shows. Where it is given
/// time for it, a figure in sight runs to its next value; `text` is the last one at once.
class FigureText : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged FINAL REQUIRED)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged FINAL REQUIRED)
    Q_PROPERTY(int pixelSize READ pixelSize WRITE setPixelSize NOTIFY pixelSizeChanged FINAL REQUIRED)
    Q_PROPERTY(bool bold READ bold WRITE setBold NOTIFY boldChanged FINAL)
    Q_PROPERTY(int duration READ duration WRITE setDuration NOTIFY durationChanged FINAL)

public:
    explicit FigureText(QQuickItem* parent = nullptr);

    QString text() const { return text_; }
    void setText(const QString& text);
    QColor color() const { return color_; }
    void setColor(const QColor& color);
    /// At the normal text size: what is drawn is as much larger as the person reads.
    int pixelSize() const { return pixelSize_; }
    void setPixelSize(int pixelSize);
    bool bold() const { return bold_; }
    void setBold(bool bold);
    /// Milliseconds that a figure runs; 0 makes it jump.
    int duration() const { return duration_; }
    void setDuration(int duration);

    /// What is on screen now.
    const QString& shown() const { return shown_; }

    void paint(QPainter* painter) override;

signals:
    void textChanged();
    void colorChanged();
    void pixelSizeChanged();
    void boldChanged();
    void durationChanged();

protected:
    void componentComplete() override;
    void itemChange(ItemChange change, const ItemChangeData& value) override;

private:
    void settle();
    void show(const QString& text);
    void layOut();
    QFont font() const;

    QString text_;
    QString shown_;
    QColor color_;
    int pixelSize_ = 13;
    bool bold_ = false;
    int duration_ = 0;
    QString origin_;  // where the run began
    QVariantAnimation run_;
    const TextScale* scale_ = nullptr;  // the engine's
    std::vector<FigurePiece> pieces_;
};

}  // namespace zelk
