// SPDX-License-Identifier: MIT
// What makes a translation right, apart from its words.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

namespace zelk::house {

/// An entry of translations/zelk_LANGUAGE.ts.
struct Message {
    QString context;
    QString source;
    QString comment;           ///< what tells it from an entry of the same text; often empty
    bool isNumbered = false;   ///< it has plural forms
    QStringList translations;  ///< one, or one for each plural form
    QString state;             ///< "unfinished", "vanished" or "obsolete"; empty if it is done
};

struct TranslationFile {
    QString language;
    std::vector<Message> messages;
};

/// Absent if it is not such a file.
std::optional<TranslationFile> readTranslations(const QByteArray& text);

/// "%1", "%L2", "%n" and so on, in order of their names, each as often as it occurs.
QStringList placeholdersOf(const QString& text);

/// What is wrong with an entry, in words; empty if nothing is. `forms` is how many plural forms the language has.
QStringList checkMessage(const Message& message, int forms);

/// What is wrong in the way of the language: in German, marks that are English.
QStringList checkGermanMarks(const Message& message);

}  // namespace zelk::house
