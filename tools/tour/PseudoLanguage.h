// SPDX-License-Identifier: MIT
#pragma once

#include <QTranslator>

namespace zelk::tour {

/// Whether a context is one of Qt, whose texts, such as the names of keys, have translations of their own.
bool isOfQt(const char* context);

/// Translates every text into itself in brackets, with accents and at least 40% longer, so that a picture shows which
/// texts cannot be translated and which have no room for another language. Placeholders are kept.
class PseudoLanguage : public QTranslator {
public:
    static constexpr QChar opening = u'⟦';
    static constexpr QChar closing = u'⟧';

    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* text, const char* note, int count) const override;

    /// `text` in this language.
    static QString spelled(const QString& text);
};

}  // namespace zelk::tour
