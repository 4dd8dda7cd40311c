// SPDX-License-Identifier: MIT
#include "PseudoLanguage.h"

#include <QRegularExpression>
#include <cmath>
#include <cstring>

namespace zelk::tour {

namespace {

constexpr double growth = 0.4;
constexpr double growthFromRight = 0.2;

QChar accented(QChar letter) {
    static const QString plain = QStringLiteral("aeiouyAEIOUYcnsz");
    static const QString accents = QStringLiteral("áéíóúýÁÉÍÓÚÝçñšž");
    const qsizetype place = plain.indexOf(letter);
    return place < 0 ? letter : accents[place];
}

/// The letter, or an arrow that points onward, as a translator would write it from right to left.
QChar fromRight(QChar letter) {
    static const QString plain = QStringLiteral("abcdefghijklmnopqrstuvwxyz→←");
    static const QString hebrew = QStringLiteral("אבצדעפגהיחקלמנופךרסטםשתזךז←→");
    const qsizetype place = plain.indexOf(letter.toLower());
    return place < 0 ? letter : hebrew[place];
}

bool isVowel(QChar letter) {
    return QStringLiteral("aeiouAEIOU").contains(letter);
}

}  // namespace

bool isOfQt(const char* context) {
    return context[0] == 'Q' && context[1] >= 'A' && context[1] <= 'Z';
}

QString PseudoLanguage::translate(const char* context, const char* text, const char*, int) const {
    // By its translation of this text Qt knows the direction of a language.
    if (direction_ == Qt::RightToLeft && std::strcmp(text, "QT_LAYOUT_DIRECTION") == 0) return QStringLiteral("RTL");
    if (isOfQt(context)) return {};
    return spelled(QString::fromUtf8(text), direction_);
}

QString PseudoLanguage::spelled(const QString& text, Qt::LayoutDirection direction) {
    if (text.isEmpty()) return {};
    static const QRegularExpression placeholder(QStringLiteral("%(L?\\d{1,2}|n)"));
    const bool mirrored = direction == Qt::RightToLeft;
    const double more = mirrored ? growthFromRight : growth;
    const auto letter = [&](QChar plain) { return mirrored ? fromRight(plain) : accented(plain); };
    auto missing = static_cast<qsizetype>(std::ceil(more * static_cast<double>(text.size())));
    QString spelling(1, opening);
    for (qsizetype place = 0; place < text.size();) {
        const QRegularExpressionMatch kept = placeholder.match(text, place, QRegularExpression::NormalMatch,
                                                               QRegularExpression::AnchorAtOffsetMatchOption);
        if (kept.hasMatch()) {
            spelling += kept.captured();
            place += kept.capturedLength();
            continue;
        }
        // Words grow inside, so that lines can break where they would in a real language.
        spelling += letter(text[place]);
        if (missing > 0 && isVowel(text[place])) {
            spelling += letter(text[place].toLower());
            --missing;
        }
        ++place;
    }
    if (missing > 0) spelling += QString(missing, u'~');
    return spelling + closing;
}

}  // namespace zelk::tour
