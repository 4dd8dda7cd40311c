// SPDX-License-Identifier: MIT
#pragma once

#include <QMutex>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QTranslator>

namespace zelk::tour {

/// Where the build keeps the compiled translations, for a program of its own.
QString builtTranslations();

/// A real language: puts an invisible mark around each of its texts, so that TextCheck knows them, and keeps which
/// texts it was asked for in vain. Safe from any thread once it is loaded.
class MarkedLanguage : public QTranslator {
public:
    /// Of no width.
    static constexpr QChar mark = QChar(0x2063);

    /// A language of builtTranslations(), as "de". Without `shown` it translates nothing and only keeps what it lacks.
    explicit MarkedLanguage(const QString& language, bool shown = true);

    /// Whether there is such a language.
    bool isLoaded() const { return loaded_; }
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* text, const char* note, int count) const override;

    /// "CONTEXT: TEXT" of each text that it did not have, once, and forgets them. Those of Qt are not among them.
    QStringList takeMissing();

private:
    const bool shown_;
    bool loaded_;
    mutable QMutex mutex_;
    mutable QSet<QString> missing_;
};

}  // namespace zelk::tour
