// SPDX-License-Identifier: MIT
#include "ui/controls/NumberItem.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>
#include <QQmlEngine>
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <utility>

#include "ui/theme/DisplayText.h"
#include "ui/theme/ReadingDirection.h"
#include "ui/theme/TextScale.h"

namespace zelk {

namespace {

/// The nearest integer there is.
std::int64_t nearestInteger(double value) {
    constexpr double end = 0x1p63;
    if (value >= end) return std::numeric_limits<std::int64_t>::max();
    if (value < -end) return std::numeric_limits<std::int64_t>::min();
    return std::llround(value);
}

/// A part of a text from right to left: isolated by marks, which are left out, or what is between such.
struct TextPart {
    QString text;
    bool isIsolated;
};

std::vector<TextPart> partsOf(const QString& text) {
    std::vector<TextPart> parts;
    int depth = 0;
    for (const QChar character : text) {
        const QChar::Direction kind = character.direction();
        if (kind == QChar::DirLRI || kind == QChar::DirRLI || kind == QChar::DirFSI) {
            ++depth;
        } else if (kind == QChar::DirPDI) {
            depth = std::max(depth - 1, 0);
        } else {
            const bool isIsolated = depth > 0;
            if (parts.empty() || parts.back().isIsolated != isIsolated) parts.push_back({{}, isIsolated});
            parts.back().text += character;
        }
    }
    return parts;
}

/// Appends pieces to the right of those that there are.
class FigureLine {
public:
    explicit FigureLine(const QFont& font) : metrics_(font) {
        for (char16_t digit = u'0'; digit <= u'9'; ++digit) cell_ += metrics_.horizontalAdvance(QChar(digit)) / 10;
    }

    void addFigure(const QString& text) {
        for (qsizetype at = 0; at < text.size();) {
            qsizetype end = at + 1;
            const bool digit = text.at(at).isDigit();
            while (!digit && end < text.size() && !text.at(end).isDigit()) ++end;
            const QString piece = text.mid(at, end - at);
            add(piece, digit ? cell_ : metrics_.horizontalAdvance(piece), false);
            at = end;
        }
    }
    void addWords(const QString& text) { add(text, metrics_.horizontalAdvance(text), true); }

    std::vector<FigurePiece> pieces;

private:
    void add(const QString& piece, double width, bool fromRight) {
        pieces.push_back({piece, end_, width, fromRight});
        end_ += width;
    }

    const QFontMetricsF metrics_;
    double cell_ = 0;
    double end_ = 0;
};

}  // namespace

std::vector<FigurePiece> layOutFigure(const QString& text, const QFont& font) {
    FigureLine line(font);
    if (!readsFromRight()) {
        line.addFigure(text);
        return line.pieces;
    }
    std::vector<TextPart> parts = partsOf(text);
    std::ranges::reverse(parts);
    for (const TextPart& part : parts) {
        if (part.isIsolated && !part.text.isRightToLeft())
            line.addFigure(part.text);
        else
            line.addWords(part.text);
    }
    return line.pieces;
}

NumberItem::NumberItem(QQuickItem* parent) : QQuickPaintedItem(parent), run_(this) {
    run_.setStartValue(0.0);
    run_.setEndValue(1.0);
    run_.setEasingCurve(QEasingCurve::OutCubic);
    connect(&run_, &QVariantAnimation::valueChanged, this,
            [this](const QVariant& share) { advance(share.toDouble()); });
    connect(this, &NumberItem::wordsChanged, this, &NumberItem::reword);
    connect(this, &NumberItem::styleChanged, this, &NumberItem::layOut);
    connect(this, &NumberItem::timingChanged, this, [this] {
        if (duration_ == 0) settle();
    });
    layOut();
}

QString NumberItem::write(double value, Format format, const QLocale& locale) {
    const std::int64_t number = nearestInteger(value);
    switch (format) {
        case Bytes:
            return byteFigure(number, locale);
        case Count:
            return groupedFigure(number, locale);
        case Percent:
            return percentFigure(number, locale);
    }
    return {};
}

void NumberItem::componentComplete() {
    QQuickPaintedItem::componentComplete();
    QQmlEngine* engine = qmlEngine(this);
    if (engine == nullptr) return;
    auto* scale = engine->singletonInstance<TextScale*>(qmlTypeId("Zelk.Controls", 1, 0, "TextScale"));
    if (scale == nullptr) return;
    scale_ = scale;
    connect(scale, &TextScale::factorChanged, this, &NumberItem::layOut);
    layOut();
}

/// What comes into sight again, perhaps in a row that shows something else by then, does not run to its end there.
void NumberItem::itemChange(ItemChange change, const ItemChangeData& value) {
    QQuickPaintedItem::itemChange(change, value);
    if (change == ItemVisibleHasChanged && !value.boolValue) settle();
}

bool NumberItem::canRun() const {
    return duration_ > 0 && isComponentComplete() && isVisible() && !std::isnan(position_) && !std::isnan(value_);
}

void NumberItem::setValue(double value) {
    if (value == value_ || (std::isnan(value) && std::isnan(value_))) return;
    value_ = value;
    run_.stop();
    if (canRun()) {
        origin_ = position_;
        run_.setDuration(duration_);
        run_.start();
    } else {
        settle();
    }
    reword();
    emit valueChanged();
}

/// The position advances with every frame even where the text does not change, otherwise a target that changes all the
/// time would never be approached.
void NumberItem::advance(double share) {
    position_ = share < 1 ? origin_ + (value_ - origin_) * share : value_;
    const bool tooSoon = interval_ > 0 && sinceShown_.isValid() && !sinceShown_.hasExpired(interval_);
    if (share >= 1 || !tooSoon) show();
}

void NumberItem::settle() {
    run_.stop();
    position_ = value_;
    show();
}

/// Applies a new format or phrase at once; a running animation uses it from its next step.
void NumberItem::reword() {
    if (run_.state() == QAbstractAnimation::Stopped) show();
    const QString text = lineOf(value_);
    if (std::exchange(text_, text) != text) emit textChanged();
}

void NumberItem::show() {
    const QString line = lineOf(position_);
    if (line == shown_) return;
    shown_ = line;
    sinceShown_.start();
    layOut();
}

QString NumberItem::lineOf(double number) const {
    if (std::isnan(number)) return phrase_;
    const QString figure = write(number, format_);
    return phrase_.isEmpty() ? figure : QString(phrase_).replace(QStringLiteral("%1"), figure);
}

QFont NumberItem::font() const {
    QFont font = QGuiApplication::font();
    const int pixels = std::max(1, static_cast<int>(std::lround(pixelSize_ * (scale_ ? scale_->factor() : 1.0))));
    font.setPixelSize(pixels);
    font.setWeight(bold_ ? QFont::Bold : QFont::Medium);
    // Large and bold, the face wants its letters a little closer.
    if (bold_) font.setLetterSpacing(QFont::AbsoluteSpacing, -0.02 * pixels);
    return font;
}

void NumberItem::layOut() {
    pieces_ = layOutFigure(shown_, font());
    const double width = pieces_.empty() ? 0 : pieces_.back().x + pieces_.back().width;
    setImplicitSize(std::ceil(width), std::ceil(QFontMetricsF(font()).height()));
    update();
}

void NumberItem::paint(QPainter* painter) {
    painter->setRenderHint(QPainter::TextAntialiasing);
    painter->setFont(font());
    painter->setPen(color_);
    const QFontMetricsF metrics(font());
    for (const FigurePiece& piece : pieces_) {
        const double inset = (piece.width - metrics.horizontalAdvance(piece.text)) / 2;
        if (readsFromRight()) painter->setLayoutDirection(piece.fromRight ? Qt::RightToLeft : Qt::LeftToRight);
        painter->drawText(QPointF(piece.x + inset, metrics.ascent()), piece.text);
    }
}

}  // namespace zelk

#include "moc_NumberItem.cpp"
