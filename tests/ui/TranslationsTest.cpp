// SPDX-License-Identifier: MIT
#include "ui/shell/Translations.h"

#include <gmock/gmock.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "MarkedLanguage.h"
#include "platform/Translation.h"

namespace zelk {
namespace {

/// A folder with translations of no content, and another one.
class ChosenLanguage : public testing::Test {
protected:
    ChosenLanguage() {
        for (const char* name : {"zelk_de.qm", "zelk_pt_BR.qm"})
            EXPECT_TRUE(QFile(QDir(folder.path()).filePath(QLatin1String(name))).open(QIODevice::WriteOnly));
    }

    std::string chosen(const QStringList& languages) {
        return chosenLanguage(languages, {elsewhere.path(), folder.path()}).toStdString();
    }

    QTemporaryDir folder;
    QTemporaryDir elsewhere;
};

TEST_F(ChosenLanguage, isTheFirstThatIsThere) {
    EXPECT_EQ(chosen({QStringLiteral("de")}), "de");
    EXPECT_EQ(chosen({QStringLiteral("fr-FR"), QStringLiteral("fr"), QStringLiteral("de-DE")}), "de");
    EXPECT_EQ(chosen({QStringLiteral("fr-FR")}), "");
    EXPECT_EQ(chosen({}), "");
}

TEST_F(ChosenLanguage, isThatOfAnyCountryWhereTheCountryHasNone) {
    EXPECT_EQ(chosen({QStringLiteral("de-AT")}), "de");
    EXPECT_EQ(chosen({QStringLiteral("de-Latn-CH")}), "de");
    EXPECT_EQ(chosen({QStringLiteral("pt-BR")}), "pt_BR");
    EXPECT_EQ(chosen({QStringLiteral("pt-PT")}), "");
}

TEST_F(ChosenLanguage, isEnglishForThoseWhoPreferIt) {
    EXPECT_EQ(chosen({QStringLiteral("en-US"), QStringLiteral("de-DE")}), "");
    EXPECT_EQ(chosen({QStringLiteral("C"), QStringLiteral("de")}), "");
    EXPECT_EQ(chosen({QStringLiteral("den")}), "") << "a language of Canada";
}

TEST(TranslationFolders, lieBesideTheProgram) {
    const QStringList folders = translationFolders();
    ASSERT_FALSE(folders.isEmpty());
    EXPECT_EQ(QDir::cleanPath(folders.last()),
              QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../share/zelk/translations")));
}

TEST(Translations, areShownWhileTheyLive) {
    const auto undo = [] { return QCoreApplication::translate("UndoBar", "Undo").toStdString(); };
    EXPECT_EQ(undo(), "Undo");
    {
        const Translations german({QStringLiteral("de-DE")}, {tour::builtTranslations()});
        EXPECT_EQ(german.language().toStdString(), "de");
        EXPECT_EQ(undo(), "Rückgängig");
        EXPECT_EQ(
            QCoreApplication::translate("zelk::UndoBarModel", "%n items were restored.", nullptr, 3).toStdString(),
            "3 Objekte wurden wiederhergestellt.");
        EXPECT_EQ(translated("Command", "cancelled"), "abgebrochen") << "of a layer without Qt";
    }
    EXPECT_EQ(undo(), "Undo");
    EXPECT_EQ(translated("Command", "cancelled"), "cancelled");
}

TEST(Translations, areNotReadOfAFileThatIsNone) {
    QTemporaryDir folder;
    EXPECT_TRUE(QFile(QDir(folder.path()).filePath(QStringLiteral("zelk_de.qm"))).open(QIODevice::WriteOnly));
    const Translations german({QStringLiteral("de")}, {folder.path(), tour::builtTranslations()});
    EXPECT_EQ(QCoreApplication::translate("UndoBar", "Undo").toStdString(), "Rückgängig") << "of the next folder";
}

TEST(MarkedLanguage, marksItsTextsAndKeepsWhatItLacks) {
    tour::MarkedLanguage marked(QStringLiteral("de"));
    ASSERT_TRUE(marked.isLoaded());
    const QString mark(tour::MarkedLanguage::mark);
    EXPECT_EQ(marked.translate("UndoBar", "Undo", nullptr, -1), mark + QStringLiteral("Rückgängig") + mark);
    EXPECT_TRUE(marked.translate("UndoBar", "Redo", nullptr, -1).isEmpty());
    EXPECT_TRUE(marked.translate("QShortcut", "Ctrl", nullptr, -1).isEmpty());
    EXPECT_TRUE(marked.translate("UndoBar", "", nullptr, -1).isEmpty());
    EXPECT_EQ(marked.takeMissing(), QStringList(QStringLiteral("UndoBar: Redo")));
    EXPECT_TRUE(marked.takeMissing().isEmpty());
}

TEST(MarkedLanguage, showsNothingWhereItOnlyListens) {
    tour::MarkedLanguage listening(QStringLiteral("de"), false);
    EXPECT_TRUE(listening.translate("UndoBar", "Undo", nullptr, -1).isEmpty());
    EXPECT_TRUE(listening.takeMissing().isEmpty());
}

TEST(MarkedLanguage, isNotLoadedWithoutAFile) {
    EXPECT_FALSE(tour::MarkedLanguage(QStringLiteral("xx")).isLoaded());
}

}  // namespace
}  // namespace zelk
