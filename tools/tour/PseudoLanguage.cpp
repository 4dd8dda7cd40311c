// SPDX-License-Identifier: MIT
#include "PseudoLanguage.h"

#include <QRegularExpression>
#include <cmath>

namespace zelk::tour {

namespace {

constexpr double growth = 0.4;

QChar accented(QChar letter) {
    static const QString plain = QStringLiteral("aeiouyAEIOUYcnsz");
    static const QString accents = QStringLiteral("áéíóúýÁÉÍÓÚÝçñšž");
    const qsizetype place = plain.indexOf(letter);
    return place < 0 ? letter : accents[place];
}

bool isVowel(QChar letter) {
    return QStringLiteral("aeiouAEIOU").contains(letter);
}

}  // namespace

bool isOfQt(const char* context) {
    return context[0] == 'Q' && context[1] >= 'A' && context[1] <= 'Z';
}

QString PseudoLanguage::translate(const char* context, const char* text, const char*, int) const {
    if (isOfQt(context)) return {};
    return spelled(QString::fromUtf8(text));
}

QString PseudoLanguage::spelled(const QString& text) {
    if (text.isEmpty()) return {};
    static const QRegularExpression placeholder(QStringLiteral("%(L?\\d{1,2}|n)"));
    auto missing = static_cast<qsizetype>(std::ceil(growth * static_cast<double>(text.size())));
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
        spelling += accented(text[place]);
        if (missing > 0 && isVowel(text[place])) {
            spelling += accented(text[place].toLower());
            --missing;
        }
        ++place;
    }
    if (missing > 0) spelling += QString(missing, u'~');
    return spelling + closing;
}

}  // namespace zelk::tour
