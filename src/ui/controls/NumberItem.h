// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QElapsedTimer>
#include <QFont>
#include <QLocale>
#include <QQuickPaintedItem>
#include <QString>
#include <QVariantAnimation>
#include <limits>
#include <vector>

#include "state/UserLocale.h"

namespace zelk {

class TextScale;

/// A piece of a number's text and where it starts, in points from the left.
struct FigurePiece {
    QString text;  ///< one digit, or a run of anything else
    double x;
    double width;
    bool fromRight = false;  ///< words around a number in a text from right to left, and their figures

    bool operator==(const FigurePiece&) const = default;
};

/// Splits a text into pieces in which every digit has the same width, the mean of all ten, so that an animated number
/// does not jitter. (Fonts offer tabular figures as a feature, which Qt before 6.7 cannot switch on.) Where the
/// application reads from right to left, the parts of the text follow each other from the right, and only isolated ones
/// (see DisplayText.h) are split into digits. The pieces are in the order from left to right in any case.
std::vector<FigurePiece> layOutFigure(const QString& text, const QFont& font);

/// Paints a number in a line of text; its implicit size is that of the text. Animates to a new value from the number on
/// screen, decelerating; jumps to it while invisible or without a duration. AnimatedNumber.qml adds the theme and the
/// accessible name. Main thread.
class NumberItem : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY valueChanged FINAL)
    Q_PROPERTY(Format format MEMBER format_ NOTIFY wordsChanged FINAL)
    Q_PROPERTY(QString phrase MEMBER phrase_ NOTIFY wordsChanged FINAL)
    Q_PROPERTY(QString text READ text NOTIFY textChanged FINAL)
    Q_PROPERTY(QColor color READ color MEMBER color_ NOTIFY styleChanged FINAL REQUIRED)
    Q_PROPERTY(int pixelSize READ pixelSize MEMBER pixelSize_ NOTIFY styleChanged FINAL REQUIRED)
    Q_PROPERTY(bool bold MEMBER bold_ NOTIFY styleChanged FINAL)
    Q_PROPERTY(int duration MEMBER duration_ NOTIFY timingChanged FINAL)
    Q_PROPERTY(int interval READ interval MEMBER interval_ NOTIFY timingChanged FINAL)

public:
    enum Format {
        Bytes,    ///< "1.2 GB"; below 0 it is "0 bytes"
        Count,    ///< a whole number in the digit groups of the locale
        Percent,  ///< 62 is "62%"
    };
    Q_ENUM(Format)

    explicit NumberItem(QQuickItem* parent = nullptr);

    static QString write(double value, Format format, const QLocale& locale = userLocale());

    /// NaN without a value: then the phrase is shown alone, unchanged.
    double value() const { return value_; }
    void setValue(double value);
    /// The line with the final value, from the moment that value is set.
    const QString& text() const { return text_; }

    QColor color() const { return color_; }
    /// At the normal text size; drawn multiplied by TextScale.
    int pixelSize() const { return pixelSize_; }
    /// Minimum milliseconds between two texts of an animation; 0 for one per frame. The final text is never delayed.
    int interval() const { return interval_; }

    /// The line on screen now.
    const QString& shown() const { return shown_; }

    void paint(QPainter* painter) override;

signals:
    void valueChanged();
    void wordsChanged();
    void textChanged();
    void styleChanged();
    void timingChanged();

protected:
    void componentComplete() override;
    void itemChange(ItemChange change, const ItemChangeData& value) override;

private:
    bool canRun() const;
    void advance(double share);
    void settle();
    void reword();
    void show();
    QString lineOf(double number) const;
    void layOut();
    QFont font() const;

    double value_ = std::numeric_limits<double>::quiet_NaN();
    Format format_ = Bytes;
    // The text around the number, which stands in the place of "%1"; empty for the number alone. Where it has plural
    // forms, it is the one for the value.
    QString phrase_;
    QString text_;
    QColor color_;
    int pixelSize_ = 13;
    bool bold_ = false;
    int duration_ = 0;  // milliseconds of a run; 0 makes it jump, in the middle of a run too
    int interval_ = 0;
    double origin_ = 0;         // where the animation began
    double position_ = value_;  // where it is now
    QVariantAnimation run_;
    QString shown_;
    QElapsedTimer sinceShown_;
    const TextScale* scale_ = nullptr;  // the engine's
    std::vector<FigurePiece> pieces_;
};

}  // namespace zelk
