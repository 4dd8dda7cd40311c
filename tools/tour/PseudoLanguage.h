// SPDX-License-Identifier: MIT
#pragma once

#include <QTranslator>

namespace zelk::tour {

/// Whether a context is one of Qt, whose texts, such as the names of keys, have translations of their own.
bool isOfQt(const char* context);

/// Translates every text into itself in brackets, with accents and at least 40% longer, so that a picture shows which
/// texts cannot be translated and which have no room for another language. From right to left it is spelled in Hebrew
/// letters instead, which the fonts of every system have, and mirrors the application as such a translation does; there
/// the letters themselves are wider. Placeholders are kept.
class PseudoLanguage : public QTranslator {
public:
    static constexpr QChar opening = u'⟦';
    static constexpr QChar closing = u'⟧';

    explicit PseudoLanguage(Qt::LayoutDirection direction = Qt::LeftToRight) : direction_(direction) {}

    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* text, const char* note, int count) const override;

    /// `text` in this language.
    static QString spelled(const QString& text, Qt::LayoutDirection direction = Qt::LeftToRight);

private:
    const Qt::LayoutDirection direction_;
};

}  // namespace zelk::tour
