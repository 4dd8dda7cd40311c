// SPDX-License-Identifier: MIT
#include "TranslationRules.h"

#include <gmock/gmock.h>

namespace zelk::house {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

Message entry(const char* source, const QStringList& translations) {
    Message message;
    message.source = QString::fromUtf8(source);
    message.translations = translations;
    message.isNumbered = translations.size() > 1;
    return message;
}

std::vector<std::string> wrongWith(const char* source, const char* translation) {
    std::vector<std::string> wrong;
    for (const QString& one : checkMessage(entry(source, {QString::fromUtf8(translation)}), 2))
        wrong.push_back(one.toStdString());
    return wrong;
}

std::vector<std::string> marksOf(const char* translation) {
    std::vector<std::string> wrong;
    for (const QString& one : checkGermanMarks(entry("", {QString::fromUtf8(translation)})))
        wrong.push_back(one.toStdString());
    return wrong;
}

TEST(TranslationRules, readFilesOfLinguist) {
    const auto file = readTranslations(R"(<?xml version="1.0" encoding="utf-8"?>
        <!DOCTYPE TS>
        <TS version="2.1" language="de"><context><name>zelk::A</name>
        <message><source>Save &amp; go</source><comment>a button</comment><translation>Los</translation></message>
        <message numerus="yes"><source>%n files</source><translation type="unfinished">
            <numerusform>%n Datei</numerusform><numerusform></numerusform></translation></message>
        </context></TS>)");
    ASSERT_TRUE(file.has_value());
    EXPECT_EQ(file->language, QStringLiteral("de"));
    ASSERT_THAT(file->messages, SizeIs(2));
    EXPECT_EQ(file->messages[0].context, QStringLiteral("zelk::A"));
    EXPECT_EQ(file->messages[0].source, QStringLiteral("Save & go"));
    EXPECT_EQ(file->messages[0].comment, QStringLiteral("a button"));
    EXPECT_EQ(file->messages[0].translations, QStringList(QStringLiteral("Los")));
    EXPECT_TRUE(file->messages[1].isNumbered);
    EXPECT_EQ(file->messages[1].state, QStringLiteral("unfinished"));
    EXPECT_EQ(file->messages[1].translations, QStringList({QStringLiteral("%n Datei"), QString()}));
}

TEST(TranslationRules, readNothingElse) {
    EXPECT_FALSE(readTranslations("").has_value());
    EXPECT_FALSE(readTranslations("<html/>").has_value());
    EXPECT_FALSE(readTranslations("<TS><context>").has_value());
}

TEST(TranslationRules, wantTheSamePlaceholders) {
    EXPECT_THAT(wrongWith("%1 of %2", "%2 davon %1"), IsEmpty());
    EXPECT_THAT(wrongWith("%1 of %2", "%1 von %1"), ElementsAre(HasSubstr("other placeholders")));
    EXPECT_THAT(wrongWith("%1 of %2", "%1"), ElementsAre(HasSubstr("other placeholders")));
    EXPECT_THAT(wrongWith("%n of them", "%1 davon"), ElementsAre(HasSubstr("other placeholders")));
    EXPECT_THAT(wrongWith("%L1 files", "%1 Dateien"), ElementsAre(HasSubstr("other placeholders")));
    EXPECT_THAT(wrongWith("100% of it", "100% davon"), IsEmpty());
}

TEST(TranslationRules, wantEveryPluralForm) {
    const QString one = QStringLiteral("%n Datei");
    const QString many = QStringLiteral("%n Dateien");
    EXPECT_TRUE(checkMessage(entry("%n files", {one, many}), 2).isEmpty());
    EXPECT_FALSE(checkMessage(entry("%n files", {one, many}), 3).isEmpty());
    EXPECT_FALSE(checkMessage(entry("%n files", {one, QString()}), 2).isEmpty());
    EXPECT_FALSE(checkMessage(entry("%n files", {one, QStringLiteral("Dateien")}), 2).isEmpty());
}

TEST(TranslationRules, wantNothingUnfinished) {
    for (const char* state : {"unfinished", "vanished", "obsolete"}) {
        Message message = entry("Undo", {QStringLiteral("Rückgängig")});
        EXPECT_TRUE(checkMessage(message, 2).isEmpty());
        message.state = QString::fromLatin1(state);
        EXPECT_THAT(checkMessage(message, 2), Contains(message.state));
    }
    EXPECT_THAT(wrongWith("Undo", ""), ElementsAre("empty"));
}

TEST(TranslationRules, wantTheSameEnds) {
    EXPECT_THAT(wrongWith("failed: ", "fehlgeschlagen: "), IsEmpty());
    EXPECT_THAT(wrongWith("failed: ", "fehlgeschlagen:"), ElementsAre(HasSubstr("other blanks")));
    EXPECT_THAT(wrongWith("Reading…", "Liest"), ElementsAre(HasSubstr("“…”")));
    EXPECT_THAT(wrongWith("It is done.", "Fertig"), ElementsAre(HasSubstr("too few")));
    EXPECT_THAT(wrongWith("done", "Fertig."), ElementsAre(HasSubstr("too many")));
}

TEST(TranslationRules, wantGermanMarks) {
    EXPECT_THAT(marksOf("„Müll“ – bei %1\u00a0%, los geht’s\u00a0…"), IsEmpty());
    for (const char* text : {"\"Müll\"", "“Müll”", "“Müll", "Los geht's", "Müll — weg", "Liest...", "Liest …", "Liest…",
                             "zu 5 % voll", "Müll & Rest", "wenn du willst"})
        EXPECT_THAT(marksOf(text), testing::Not(IsEmpty())) << text;
}

}  // namespace
}  // namespace zelk::house
