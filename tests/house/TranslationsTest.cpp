// SPDX-License-Identifier: MIT
// The translations of this repository, held against its sources.
#include <gmock/gmock.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <map>

#include "TranslationRules.h"

namespace zelk::house {
namespace {

using testing::HasSubstr;

const QDir& translations() {
    static const QDir folder(QStringLiteral(ZELK_SOURCE_DIR "/translations"));
    return folder;
}

QByteArray contentOf(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

void write(const QString& path, const QByteArray& content) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    file.write(content);
}

TranslationFile german() {
    const auto file = readTranslations(contentOf(translations().filePath(QStringLiteral("zelk_de.ts"))));
    EXPECT_TRUE(file.has_value());
    return file.value_or(TranslationFile());
}

/// Nothing else reads as in English: names, formats, and words that both languages have.
bool isSameInGerman(const QString& text) {
    static const QStringList same{
        // Names of programs and of their parts.
        QStringLiteral("AppImage"), QStringLiteral("Arc"), QStringLiteral("Brave"), QStringLiteral("Chrome"),
        QStringLiteral("Chromium"), QStringLiteral("Edge"), QStringLiteral("Firefox"), QStringLiteral("GNOME Web"),
        QStringLiteral("Safari"), QStringLiteral("Time Machine"), QStringLiteral("macOS"),
        QStringLiteral("iCloud Drive"), QStringLiteral("iOS DeviceSupport"), QStringLiteral("node_modules"),
        QStringLiteral("Xcode DerivedData"), QStringLiteral("Python __pycache__"), QStringLiteral("Python .venv"),
        QStringLiteral("Rust target"), QStringLiteral("Next / Turbo / Vercel"),
        // Words.
        QStringLiteral("Audio"), QStringLiteral("CPU"), QStringLiteral("Cookies"), QStringLiteral("Downloads"),
        QStringLiteral("System"), QStringLiteral("Version"), QStringLiteral("normal"),
        // Formats.
        QStringLiteral(", "), QStringLiteral("%1, %2"), QStringLiteral("%1 · %2")};
    return same.contains(text);
}

/// What `tools/translations check` says of these files, and its status.
struct Checked {
    int status = -1;
    std::string said;
};

Checked check(const QString& sources, const QString& files) {
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LUPDATE"), QStringLiteral(ZELK_LUPDATE));
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(ZELK_SOURCE_DIR "/tools/translations"), {QStringLiteral("check"), sources, files});
    EXPECT_TRUE(process.waitForFinished(-1));
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1, process.readAll().toStdString()};
}

/// A folder with one source and its translation.
class TranslatedSource : public testing::Test {
protected:
    Checked checkOf(const QByteArray& source) {
        QDir(folder.path()).mkdir(QStringLiteral("src"));
        write(folder.filePath(QStringLiteral("src/A.cpp")), source);
        write(folder.filePath(QStringLiteral("zelk_de.ts")), R"(<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>A</name>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
</context>
</TS>
)");
        return check(folder.filePath(QStringLiteral("src")), folder.path());
    }

    QTemporaryDir folder;
};

TEST_F(TranslatedSource, isComplete) {
    const Checked checked = checkOf(R"(auto a = QCoreApplication::translate("A", "Undo");)");
    EXPECT_EQ(checked.status, 0) << checked.said;
}

TEST_F(TranslatedSource, lacksATextOfAnySpelling) {
    for (const char* source :
         {R"(ZELK_TEXT("A", "Redo"))", R"(translated("A", "Redo"))", R"(QT_TRANSLATE_NOOP("A", "Redo"))"}) {
        const Checked checked =
            checkOf(QByteArray(R"(auto a = QCoreApplication::translate("A", "Undo"); auto b = )") + source + ";");
        EXPECT_NE(checked.status, 0) << source;
        EXPECT_THAT(checked.said, HasSubstr("texts are missing")) << source;
        EXPECT_THAT(checked.said, HasSubstr("Redo")) << source;
    }
}

TEST_F(TranslatedSource, hasATextThatIsGone) {
    const Checked checked = checkOf("int a;");
    EXPECT_NE(checked.status, 0);
    EXPECT_THAT(checked.said, HasSubstr("that no source has"));
}

TEST_F(TranslatedSource, hasATextThatNobodyWouldFind) {
    const Checked checked = checkOf(R"(auto a = QCoreApplication::translate("A", "Undo");
        void Nobody::f() { tr("Redo"); })");
    EXPECT_NE(checked.status, 0);
    EXPECT_THAT(checked.said, HasSubstr("where these texts belong"));
}

TEST(Translations, holdEveryTextOfTheSources) {
    const Checked checked = check(QStringLiteral(ZELK_SOURCE_DIR "/src"), translations().path());
    EXPECT_EQ(checked.status, 0) << checked.said;
}

TEST(Translations, keepPlaceholdersAndEnds) {
    const TranslationFile file = german();
    EXPECT_EQ(file.language, QStringLiteral("de"));
    EXPECT_GT(file.messages.size(), 700U);
    for (const Message& message : file.messages)
        for (const QString& wrong : checkMessage(message, 2))
            ADD_FAILURE() << message.context.toStdString() << ": " << message.source.toStdString() << ": "
                          << wrong.toStdString();
}

TEST(Translations, haveGermanMarks) {
    for (const Message& message : german().messages)
        for (const QString& wrong : checkGermanMarks(message)) ADD_FAILURE() << wrong.toStdString();
}

TEST(Translations, areNotTheEnglishText) {
    std::map<QString, bool> seen;
    for (const Message& message : german().messages) {
        const bool same = message.translations.contains(message.source);
        if (same) seen[message.source] = true;
        EXPECT_TRUE(!same || isSameInGerman(message.source)) << message.source.toStdString();
    }
    EXPECT_GT(seen.size(), 20U);
}

}  // namespace
}  // namespace zelk::house
