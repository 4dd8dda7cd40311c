// SPDX-License-Identifier: MIT
#include "system/UnitFile.h"

#include <gtest/gtest.h>

namespace zelk {
namespace {

std::string programOf(const std::string& command) {
    return parseUnitFile("[Service]\nExecStart=" + command + "\n").program;
}

TEST(UnitFile, parsesDescriptionAndProgram) {
    const UnitFile unit = parseUnitFile(
        "[Unit]\nDescription=Sync of files\nAfter=network.target\n\n[Service]\nType=simple\n"
        "ExecStart=/usr/bin/sync-files --all\n\n[Install]\nWantedBy=default.target\n");
    EXPECT_EQ(unit.description, "Sync of files");
    EXPECT_EQ(unit.program, "/usr/bin/sync-files");
}

TEST(UnitFile, timerHasNoProgram) {
    const UnitFile unit = parseUnitFile("[Unit]\nDescription=Every day\n[Timer]\nOnCalendar=daily\n");
    EXPECT_EQ(unit.description, "Every day");
    EXPECT_EQ(unit.program, "");
}

TEST(UnitFile, keysCountInTheirOwnSectionOnly) {
    const UnitFile unit = parseUnitFile(
        "Description=None\nExecStart=/none\n[Unit]\nExecStart=/unit\n[Service]\nDescription=Service\n[Install]\n"
        "Description=Install\nExecStart=/install\n");
    EXPECT_EQ(unit.description, "");
    EXPECT_EQ(unit.program, "");
    EXPECT_EQ(parseUnitFile("[Service]\nExecStartPre=/before\nexecstart=/small\nExecStart=/it\n").program, "/it");
}

TEST(UnitFile, stripsPrefixesOfProgram) {
    for (const char* prefix : {"", "@", "-", ":", "+", "!", "!!", "|", "-+", "@-:"})
        EXPECT_EQ(programOf(prefix + std::string("/usr/bin/x y")), "/usr/bin/x") << prefix;
    EXPECT_EQ(programOf("/usr/bin/a-b+c"), "/usr/bin/a-b+c");
    EXPECT_EQ(programOf("-"), "");
}

TEST(UnitFile, unquotesProgram) {
    EXPECT_EQ(programOf(R"("/opt/My App/run" --name "a b")"), "/opt/My App/run");
    EXPECT_EQ(programOf(R"('/opt/My App/run' x)"), "/opt/My App/run");
    EXPECT_EQ(programOf(R"(-"/opt/My App/run" x)"), "/opt/My App/run");
    EXPECT_EQ(programOf(R"("/opt/it's")"), "/opt/it's");
    EXPECT_EQ(programOf(R"("/opt/a\"b")"), "/opt/a\"b");
    EXPECT_EQ(programOf(R"(/opt/My\sApp)"), "/opt/My App");
    EXPECT_EQ(programOf(R"(/opt/a\\b)"), "/opt/a\\b");
    EXPECT_EQ(programOf("\"/opt/open to the end"), "/opt/open to the end");
}

TEST(UnitFile, joinsContinuedLines) {
    EXPECT_EQ(parseUnitFile("[Service]\nExecStart=\\\n  /usr/bin/x \\\n  --all\nRestart=no\n").program, "/usr/bin/x");
    EXPECT_EQ(parseUnitFile("[Unit]\nDescription=a\\\n  b\\\n# between\n; too\n  c\n").description, "a b c");
    // A backslash on the last line continues nothing.
    EXPECT_EQ(parseUnitFile("[Unit]\nDescription=a\\").description, "a");
}

TEST(UnitFile, ignoresCommentsAndBlankLines) {
    const UnitFile unit = parseUnitFile(
        "# Description=no\n\n[Unit]\n  ; Description=no\n\r\n  Description = Yes  \r\n#ExecStart=/no\n[Service]\n"
        "no equals sign\n=no key\nExecStart\t=\t/yes\r\n");
    EXPECT_EQ(unit.description, "Yes");
    EXPECT_EQ(unit.program, "/yes");
}

TEST(UnitFile, firstCommandCountsUntilAnEmptyOneResetsIt) {
    EXPECT_EQ(parseUnitFile("[Service]\nExecStart=/a\nExecStart=/b\n").program, "/a");
    EXPECT_EQ(parseUnitFile("[Service]\nExecStart=/a\nExecStart=\nExecStart=/b\n").program, "/b");
    EXPECT_EQ(parseUnitFile("[Service]\nExecStart=/a\nExecStart=\n").program, "");
}

TEST(UnitFile, lastDescriptionWins) {
    EXPECT_EQ(parseUnitFile("[Unit]\nDescription=a\n[Service]\n[Unit]\nDescription=b\n").description, "b");
}

TEST(UnitFile, ignoresDescriptionThatIsNotUtf8) {
    EXPECT_EQ(parseUnitFile("[Unit]\nDescription=a\nDescription=\xff\n").description, "a");
}

TEST(UnitFile, keepsSpecifiers) {
    EXPECT_EQ(programOf("%h/bin/x"), "%h/bin/x");
}

TEST(UnitFile, anythingElseIsEmpty) {
    for (const char* text : {"", "\n", "\\", "[", "[Unit", "=", "[Unit]\nDescription", "[Service]\nExecStart="}) {
        EXPECT_EQ(parseUnitFile(text).description, "") << text;
        EXPECT_EQ(parseUnitFile(text).program, "") << text;
    }
}

}  // namespace
}  // namespace zelk
