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

/// Paints a number in a line of text; its implicit size is that of the text. A new value in sight is run to, fast at
/// first, from the number on screen; out of sight, or without a duration, it is there at once. AnimatedNumber.qml adds
/// the theme and the name for a screen reader. Main thread.
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

    /// Not a number where there is none: then the phrase stands alone, as it is.
    double value() const { return value_; }
    void setValue(double value);
    /// The line with its last value, from the moment at which that is set.
    const QString& text() const { return text_; }

    QColor color() const { return color_; }
    /// At the normal text size: what is drawn is as much larger as the person reads.
    int pixelSize() const { return pixelSize_; }
    /// Milliseconds between two texts of a run, at least; 0 for a text with every frame. The last one is never late.
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
    double origin_ = 0;         // where the run began
    double position_ = value_;  // where it is now
    QVariantAnimation run_;
    QString shown_;
    QElapsedTimer sinceShown_;
    const TextScale* scale_ = nullptr;  // the engine's
    std::vector<FigurePiece> pieces_;
};

}  // namespace zelk
