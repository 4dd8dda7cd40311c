// SPDX-License-Identifier: MIT
#include "ui/controls/FigureText.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>
#include <QQmlEngine>
#include <algorithm>
#include <cmath>

#include "ui/controls/FigureRun.h"
#include "ui/theme/TextScale.h"

namespace zelk {

std::vector<FigurePiece> layOutFigure(const QString& text, const QFont& font) {
    const QFontMetricsF metrics(font);
    double cell = 0;
    for (char16_t digit = u'0'; digit <= u'9'; ++digit) cell += metrics.horizontalAdvance(QChar(digit)) / 10;

    std::vector<FigurePiece> pieces;
    double x = 0;
    for (qsizetype at = 0; at < text.size();) {
        qsizetype end = at + 1;
        const bool digit = text.at(at).isDigit();
        while (!digit && end < text.size() && !text.at(end).isDigit()) ++end;
        const QString piece = text.mid(at, end - at);
        const double width = digit ? cell : metrics.horizontalAdvance(piece);
        pieces.push_back({piece, x, width});
        x += width;
        at = end;
    }
    return pieces;
}

FigureText::FigureText(QQuickItem* parent) : QQuickPaintedItem(parent) {
    run_.setStartValue(0.0);
    run_.setEndValue(1.0);
    run_.setEasingCurve(QEasingCurve::OutCubic);
    connect(&run_, &QVariantAnimation::valueChanged, this,
            [this](const QVariant& share) { show(figureBetween(origin_, text_, share.toDouble())); });
    layOut();
}

void FigureText::componentComplete() {
    QQuickPaintedItem::componentComplete();
    QQmlEngine* engine = qmlEngine(this);
    if (engine == nullptr) return;
    auto* scale = engine->singletonInstance<TextScale*>(qmlTypeId("Zelk.Controls", 1, 0, "TextScale"));
    if (scale == nullptr) return;
    scale_ = scale;
    connect(scale, &TextScale::factorChanged, this, &FigureText::layOut);
    layOut();
}

/// What comes into sight again, perhaps in a row that shows something else by then, does not run to its end there.
void FigureText::itemChange(ItemChange change, const ItemChangeData& value) {
    QQuickPaintedItem::itemChange(change, value);
    if (change == ItemVisibleHasChanged && !value.boolValue) settle();
}

void FigureText::setText(const QString& text) {
    if (text == text_) return;
    text_ = text;
    if (duration_ > 0 && isComponentComplete() && isVisible()) {
        run_.stop();
        origin_ = shown_;
        run_.setDuration(duration_);
        run_.start();
    } else {
        settle();
    }
    emit textChanged();
}

void FigureText::setDuration(int duration) {
    if (duration == duration_) return;
    duration_ = duration;
    if (duration == 0) settle();
    emit durationChanged();
}

void FigureText::settle() {
    run_.stop();
    show(text_);
}

void FigureText::show(const QString& text) {
    if (text == shown_) return;
    shown_ = text;
    layOut();
}

void FigureText::setColor(const QColor& color) {
    if (color == color_) return;
    color_ = color;
    update();
    emit colorChanged();
}

void FigureText::setPixelSize(int pixelSize) {
    if (pixelSize == pixelSize_) return;
    pixelSize_ = pixelSize;
    layOut();
    emit pixelSizeChanged();
}

void FigureText::setBold(bool bold) {
    if (bold == bold_) return;
    bold_ = bold;
    layOut();
    emit boldChanged();
}

QFont FigureText::font() const {
    QFont font = QGuiApplication::font();
    const int pixels = std::max(1, static_cast<int>(std::lround(pixelSize_ * (scale_ ? scale_->factor() : 1.0))));
    font.setPixelSize(pixels);
    font.setWeight(bold_ ? QFont::Bold : QFont::Medium);
    // Large and bold, the face wants its letters a little closer.
    if (bold_) font.setLetterSpacing(QFont::AbsoluteSpacing, -0.02 * pixels);
    return font;
}

void FigureText::layOut() {
    pieces_ = layOutFigure(shown_, font());
    const double width = pieces_.empty() ? 0 : pieces_.back().x + pieces_.back().width;
    setImplicitSize(std::ceil(width), std::ceil(QFontMetricsF(font()).height()));
    update();
}

void FigureText::paint(QPainter* painter) {
    painter->setRenderHint(QPainter::TextAntialiasing);
    painter->setFont(font());
    painter->setPen(color_);
    const QFontMetricsF metrics(font());
    for (const FigurePiece& piece : pieces_) {
        const double inset = (piece.width - metrics.horizontalAdvance(piece.text)) / 2;
        painter->drawText(QPointF(piece.x + inset, metrics.ascent()), piece.text);
    }
}

}  // namespace zelk

#include "moc_FigureText.cpp"
