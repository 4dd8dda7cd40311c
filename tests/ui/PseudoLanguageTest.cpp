// SPDX-License-Identifier: MIT
#include "PseudoLanguage.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cstring>

#include "TextCheck.h"
#include "ViewFixture.h"
#include "fakes/RightToLeft.h"

namespace zelk::tour {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(PseudoLanguage, bracketsAccentsAndLengthens) {
    EXPECT_EQ(PseudoLanguage::spelled(QStringLiteral("Empty Trash")), QStringLiteral("⟦Éémptý Tráášh~~~⟧"));
    EXPECT_EQ(PseudoLanguage::spelled(QStringLiteral("Reclaim")), QStringLiteral("⟦Rééçlááíím⟧"));
}

TEST(PseudoLanguage, growsByAtLeastFortyPercent) {
    for (const char* text : {"A", "Lens", "Rhythm", "Run Survey", "Moved to the Trash"})
        EXPECT_GE(PseudoLanguage::spelled(QString::fromLatin1(text)).size() - 2,
                  1.4 * static_cast<double>(std::strlen(text)))
            << text;
}

TEST(PseudoLanguage, keepsPlaceholders) {
    const QString text = PseudoLanguage::spelled(QStringLiteral("%1 of %L2 in %n folders, 100% of %10"));
    for (const char* placeholder : {"%1 ", "%L2 ", "%n ", "%10"})
        EXPECT_TRUE(text.contains(QLatin1String(placeholder))) << placeholder << " in " << text.toStdString();
}

TEST(PseudoLanguage, leavesEmptyTextsEmpty) {
    EXPECT_TRUE(PseudoLanguage::spelled({}).isEmpty());
}

TEST(PseudoLanguage, translatesWhereverItIsInstalled) {
    PseudoLanguage language;
    QCoreApplication::installTranslator(&language);
    const QString text = QCoreApplication::translate("Anywhere", "%n files", nullptr, 3);
    QCoreApplication::removeTranslator(&language);
    EXPECT_TRUE(text.startsWith(QStringLiteral("⟦3 "))) << text.toStdString();
    EXPECT_EQ(QCoreApplication::translate("ScreenLook", "Lens"), QStringLiteral("Lens"));
}

TEST(PseudoLanguage, leavesTextsOfQtAlone) {
    const PseudoLanguage language;
    EXPECT_TRUE(language.translate("QShortcut", "Ctrl", nullptr, -1).isEmpty());
    EXPECT_FALSE(language.translate("QuitSheet", "Quit", nullptr, -1).isEmpty());
}

TEST(PseudoLanguage, isSpelledInHebrewLettersFromRightToLeft) {
    const QString text = PseudoLanguage::spelled(QStringLiteral("Review %1 → %n"), Qt::RightToLeft);
    EXPECT_TRUE(text.isRightToLeft()) << text.toStdString();
    EXPECT_TRUE(text.contains(QStringLiteral("%1 ← %n"))) << "an arrow points onward: " << text.toStdString();
    EXPECT_FALSE(std::any_of(text.begin(), text.end(), [](QChar letter) { return letter.isUpper(); }));
    EXPECT_GE(text.size() - 2, 14 * 1.2);
    EXPECT_TRUE(PseudoLanguage::spelled({}, Qt::RightToLeft).isEmpty());
}

TEST(PseudoLanguage, saysItsDirection) {
    EXPECT_EQ(PseudoLanguage(Qt::RightToLeft).translate("QGuiApplication", "QT_LAYOUT_DIRECTION", nullptr, -1),
              QStringLiteral("RTL"));
    EXPECT_TRUE(PseudoLanguage().translate("QGuiApplication", "QT_LAYOUT_DIRECTION", nullptr, -1).isEmpty());
}

class TextCheckWindow : public ViewFixture {
protected:
    ~TextCheckWindow() override { close(); }

    /// The findings in a window of 300 by 200 with these items.
    std::vector<std::string> findings(const char* items) {
        show(QStringLiteral("import QtQuick\nItem { %1 }").arg(QString::fromUtf8(items)), {300, 200});
        check.look(window(), QStringLiteral("here"));
        std::vector<std::string> lines;
        for (const QString& line : check.findings()) lines.push_back(line.toStdString());
        return lines;
    }

    TextCheck check;
};

TEST_F(TextCheckWindow, findsTextsThatAreNotTranslated) {
    EXPECT_THAT(findings(R"(Text { text: "Lens" } Text { text: "⟦Léns⟧" } Text { text: "⟦Léns⟧ 3" })"),
                ElementsAre("not translated: Lens, in here", "not translated: ⟦Léns⟧ 3, in here"));
    EXPECT_EQ(check.translated(), 1);
}

TEST_F(TextCheckWindow, acceptsFiguresPathsAndAllowedNames) {
    check.allow(QStringLiteral("Movies"));
    EXPECT_THAT(findings(R"(
        Text { text: "Movies" } Text { text: "1,234" } Text { text: "1.2 GB" } Text { text: "390,7 MB  +277 MB" } Text { text: "62%" } Text { text: "Ctrl+1" }
        Text { text: "/usr/lib" } Text { text: "~/Library" } Text { text: "…s/Caches" } Text { text: " " } Text { text: "·" })"),
                IsEmpty());
}

TEST_F(TextCheckWindow, findsFiguresWithWords) {
    EXPECT_THAT(findings(R"(Text { text: "3 files" } Text { text: "GB" })"),
                ElementsAre("not translated: 3 files, in here", "not translated: GB, in here"));
}

TEST_F(TextCheckWindow, findsElidedTexts) {
    EXPECT_THAT(findings(R"(Text { width: 40; elide: Text.ElideRight; text: "⟦Móóvéd tóó théé Tráášh⟧" })"),
                ElementsAre("elided: ⟦Móóvéd tóó théé Tráášh⟧, in here"));
}

TEST_F(TextCheckWindow, acceptsFiguresBetweenTranslatedTexts) {
    check.allow(QStringLiteral("Debian"));
    EXPECT_THAT(findings(R"(Text { text: "⟦2 íítééms~⟧ · 82 KB · Debian" } Text { text: "⟦2 íítééms~⟧ · two" })"),
                ElementsAre("not translated: ⟦2 íítééms~⟧ · two, in here"));
}

TEST_F(TextCheckWindow, forgivesLargeTextsThatHaveNoRoom) {
    findings(R"(Item {})");
    show(QStringLiteral("import QtQuick\nText { text: '⟦Móóvéd⟧'; elide: Text.ElideRight }"), {30, 20});
    check.look(window(), QStringLiteral("large"), false);
    EXPECT_TRUE(check.findings().isEmpty());
    check.look(window(), QStringLiteral("small"));
    EXPECT_EQ(check.findings(), QStringList(QStringLiteral("elided: ⟦Móóvéd⟧, in small")));
}

TEST_F(TextCheckWindow, findsTextsWiderThanTheirPlace) {
    EXPECT_THAT(findings(R"(Text { width: 40; text: "⟦Móóvéd tóó théé Tráášh⟧" })"),
                ElementsAre("wider than its place: ⟦Móóvéd tóó théé Tráášh⟧, in here"));
}

TEST_F(TextCheckWindow, findsTextsCutOffAtTheSide) {
    EXPECT_THAT(
        findings(
            R"(Text { x: 280; text: "⟦Móóvéd⟧" } Item { clip: true; width: 20; height: 40; Text { text: "⟦Léns⟧" } })"),
        ElementsAre("cut off at the side: ⟦Móóvéd⟧, in here", "cut off at the side: ⟦Léns⟧, in here"));
}

TEST_F(TextCheckWindow, ignoresTextsOutOfSight) {
    EXPECT_THAT(findings(R"(
        Text { visible: false; text: "hidden" } Item { opacity: 0; Text { text: "faded" } }
        Text { y: 300; text: "below" } Item { clip: true; width: 20; height: 20; Text { y: 30; text: "scrolled" } })"),
                IsEmpty());
}

TEST_F(TextCheckWindow, reportsEachFindingOnce) {
    findings(R"(Text { text: "Lens" })");
    check.look(window(), QStringLiteral("there"));
    EXPECT_EQ(check.findings().size(), 1);
}

TEST_F(TextCheckWindow, findsPartsThatAreNotIsolatedFromRightToLeft) {
    const char* items =
        R"(Text { text: "⟦מחיקה 3 GB⟧" } Text { text: "⟦מחיקה \u20683 GB\u2069⟧" } Text { text: "⟦מחיקה 3⟧" })";
    EXPECT_THAT(findings(items), IsEmpty());
    const fakes::RightToLeft direction;
    EXPECT_THAT(findings(items), ElementsAre("not isolated: ⟦מחיקה 3 GB⟧, in here"));
}

TEST_F(TextCheckWindow, findsLinesOfNoDirectionFromRightToLeft) {
    const fakes::RightToLeft direction;
    EXPECT_THAT(findings(R"(Text { text: "\u20683 GB\u2069 · \u20684 GB\u2069" } Text { text: "\u20683 GB\u2069" }
                            Text { text: "\u200F\u20683 GB\u2069 · \u20685 GB\u2069" })"),
                ElementsAre("of no direction: 3 GB · 4 GB, in here"));
}

TEST_F(TextCheckWindow, ignoresMarksAroundNames) {
    check.allow(QStringLiteral("\u2068Movies\u2069"));
    EXPECT_THAT(
        findings(R"(Text { text: "\u2068Movies\u2069" } Text { text: "Movies" } Text { text: "\u20681.2 GB\u2069" })"),
        IsEmpty());
}

}  // namespace
}  // namespace zelk::tour
