// SPDX-License-Identifier: MIT
#include "ui/shell/Translations.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibraryInfo>
#include <algorithm>

#include "platform/Translation.h"

namespace zelk {

namespace {

QString fileOf(const QString& language) {
    return QStringLiteral("zelk_%1.qm").arg(language);
}

bool isSource(const QString& language) {
    return language == QStringLiteral("en") || language == QStringLiteral("C") || language == QStringLiteral("POSIX");
}

bool isThere(const QString& language, const QStringList& folders) {
    return std::any_of(folders.begin(), folders.end(), [&](const QString& folder) {
        return QFileInfo::exists(QDir(folder).filePath(fileOf(language)));
    });
}

std::string inUsersLanguage(const char* context, const char* text) {
    return QCoreApplication::translate(context, text).toStdString();
}

}  // namespace

QStringList translationFolders() {
    const QDir own(QCoreApplication::applicationDirPath());
    QStringList folders;
#ifdef Q_OS_MACOS
    folders += own.filePath(QStringLiteral("../Resources/translations"));
#endif
    folders += own.filePath(QStringLiteral("../share/zelk/translations"));
    return folders;
}

QString chosenLanguage(const QStringList& languages, const QStringList& folders) {
    for (QString language : languages) {
        language.replace(u'-', u'_');
        // From the variety of a country to the language that all of them share.
        for (;;) {
            if (isSource(language)) return {};
            if (isThere(language, folders)) return language;
            const qsizetype end = language.lastIndexOf(u'_');
            if (end < 0) break;
            language.truncate(end);
        }
    }
    return {};
}

Translations::Translations(const QStringList& languages, const QStringList& folders)
    : language_(chosenLanguage(languages, folders)) {
    setTranslation(inUsersLanguage);
    if (language_.isEmpty()) return;
    // What Qt says itself, in dialogs and of keys, stays English where its translations are not installed.
    if (toolkit_.load(QStringLiteral("qtbase_") + language_, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&toolkit_);
    for (const QString& folder : folders) {
        if (!own_.load(fileOf(language_), folder)) continue;
        QCoreApplication::installTranslator(&own_);
        break;
    }
}

Translations::~Translations() {
    setTranslation(nullptr);
}

}  // namespace zelk
