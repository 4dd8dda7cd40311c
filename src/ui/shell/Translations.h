// SPDX-License-Identifier: MIT
#pragma once

#include <QLocale>
#include <QString>
#include <QStringList>
#include <QTranslator>

namespace zelk {

/// Where translations are looked for, best first: beside the installed program, in the tree it was built in, or in its
/// bundle, all of them relative to its own folder.
QStringList translationFolders();

/// The language to show texts in: of the user's (as "de-AT", best first) the first that is English or that has a
/// translation in one of the folders. Returns the latter as its file calls it ("de"), and an empty text for English,
/// the language of the sources.
QString chosenLanguage(const QStringList& languages, const QStringList& folders);

/// Shows all texts, those of Qt and of the layers below too, in the user's language. To be made after the application
/// object and before the first text; until it goes, texts stay in this language. Main thread.
class Translations {
public:
    explicit Translations(const QStringList& languages = QLocale::system().uiLanguages(),
                          const QStringList& folders = translationFolders());
    ~Translations();
    Translations(const Translations&) = delete;
    Translations& operator=(const Translations&) = delete;

    /// See chosenLanguage().
    const QString& language() const { return language_; }

private:
    QString language_;
    QTranslator toolkit_;
    QTranslator own_;
};

}  // namespace zelk
