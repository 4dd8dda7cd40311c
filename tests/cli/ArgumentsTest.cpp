// SPDX-License-Identifier: MIT
#include "cli/Arguments.h"

#include <gmock/gmock.h>

#include <random>

namespace zelk::cli {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Words = std::vector<std::string>;

Arguments accepted(const Words& words) {
    Arguments arguments = parseArguments(words);
    EXPECT_EQ(arguments.refusal, "");
    return arguments;
}

TEST(Arguments, surveysItsRootsByDefaultAsATableOfTenRows) {
    const Arguments arguments = accepted({"/a", "b/c"});
    EXPECT_EQ(arguments.action, Arguments::Action::survey);
    EXPECT_THAT(arguments.roots, ElementsAre("/a", "b/c"));
    EXPECT_EQ(arguments.top, 10U);
    EXPECT_FALSE(arguments.json);
    EXPECT_EQ(arguments.ncdu, std::nullopt);
    EXPECT_FALSE(arguments.exportsToOutput());
}

TEST(Arguments, takesOptionsBeforeBetweenAndBehindRoots) {
    const Arguments arguments = accepted({"--json", "/a", "--top", "3", "/b", "--ncdu", "file"});
    EXPECT_THAT(arguments.roots, ElementsAre("/a", "/b"));
    EXPECT_TRUE(arguments.json);
    EXPECT_EQ(arguments.top, 3U);
    EXPECT_EQ(arguments.ncdu, "file");
    EXPECT_FALSE(arguments.exportsToOutput());
}

TEST(Arguments, takesValuesBehindAnEqualsSign) {
    const Arguments arguments = accepted({"--top=7", "--ncdu=a=b", "/a"});
    EXPECT_EQ(arguments.top, 7U);
    EXPECT_EQ(arguments.ncdu, "a=b");
}

TEST(Arguments, takesAValueThatLooksLikeAnOption) {
    EXPECT_EQ(accepted({"--ncdu", "--json", "/a"}).ncdu, "--json");
    EXPECT_FALSE(accepted({"--ncdu", "--json", "/a"}).json);
    EXPECT_EQ(accepted({"--ncdu", "--", "/a"}).ncdu, "--");
    EXPECT_THAT(accepted({"--ncdu", "--", "/a"}).roots, ElementsAre("/a"));
}

TEST(Arguments, takesEverythingBehindTwoDashesForARoot) {
    EXPECT_THAT(accepted({"--", "--json", "-", "--", "--top"}).roots, ElementsAre("--json", "-", "--", "--top"));
    EXPECT_FALSE(accepted({"--", "--json"}).json);
    EXPECT_THAT(accepted({"/a", "--", "-b"}).roots, ElementsAre("/a", "-b"));
}

TEST(Arguments, takesASingleDashForARootAndForStandardOutput) {
    EXPECT_THAT(accepted({"-"}).roots, ElementsAre("-"));
    EXPECT_TRUE(accepted({"--ncdu", "-", "/a"}).exportsToOutput());
    EXPECT_TRUE(accepted({"--ncdu=-", "/a"}).exportsToOutput());
    EXPECT_FALSE(accepted({"--ncdu", "./-", "/a"}).exportsToOutput());
}

TEST(Arguments, keepsTheBytesOfPaths) {
    EXPECT_THAT(accepted({"\xFF\n"}).roots, ElementsAre("\xFF\n"));
    EXPECT_EQ(accepted({"--ncdu", "\xFF", "/a"}).ncdu, "\xFF");
}

TEST(Arguments, takesEveryWholeNumberOfRows) {
    EXPECT_EQ(accepted({"--top", "0", "/a"}).top, 0U);
    EXPECT_EQ(accepted({"--top", "007", "/a"}).top, 7U);
    EXPECT_EQ(accepted({"--top", "18446744073709551615", "/a"}).top, UINT64_MAX);
}

TEST(Arguments, refusesWhatIsNoWholeNumber) {
    for (const std::string number :
         {"", " 1", "1 ", "+1", "-1", "1.5", "1e3", "0x10", "18446744073709551616", "ten", "1\n", "\xD9\xA1"}) {
        const std::string refusal = parseArguments({"--top", number, "/a"}).refusal;
        EXPECT_TRUE(refusal.starts_with("--top needs a whole number, and \"")) << number << ": " << refusal;
    }
    EXPECT_EQ(parseArguments({"--top=", "/a"}).refusal, "--top needs a whole number, and \"\" is none.");
    EXPECT_EQ(parseArguments({"--top", "\x1B[2J", "/a"}).refusal,
              "--top needs a whole number, and \"\\x1B[2J\" is none.");
}

TEST(Arguments, refusesToBeWithoutRoots) {
    for (const Words& words : std::vector<Words>{{}, {"--"}, {"--json"}, {"--top", "3"}, {"--ncdu", "/a"}})
        EXPECT_EQ(parseArguments(words).refusal, "No folder is named.");
}

TEST(Arguments, refusesEmptyWords) {
    EXPECT_EQ(parseArguments({""}).refusal, "An empty word names no folder.");
    EXPECT_EQ(parseArguments({"/a", "--", ""}).refusal, "An empty word names no folder.");
    EXPECT_EQ(parseArguments({"--ncdu", "", "/a"}).refusal, "An empty word names no file.");
    EXPECT_EQ(parseArguments({"--ncdu=", "/a"}).refusal, "An empty word names no file.");
}

TEST(Arguments, refusesUnknownOptionsAndShowsThemVisibly) {
    for (const std::string word : {"-j", "-h", "--jsonx", "--Json", "--js", "---", "--=", "-json", "--jso\n"})
        EXPECT_TRUE(parseArguments({word, "/a"}).refusal.starts_with("There is no option \"")) << word;
    EXPECT_EQ(parseArguments({"--\x1B[31m\xFF", "/a"}).refusal, "There is no option \"--\\x1B[31m\\xFF\".");
}

TEST(Arguments, refusesMissingValuesAndThoseThatNobodyTakes) {
    EXPECT_EQ(parseArguments({"/a", "--top"}).refusal, "--top needs a value.");
    EXPECT_EQ(parseArguments({"/a", "--ncdu"}).refusal, "--ncdu needs a value.");
    EXPECT_EQ(parseArguments({"--json=1", "/a"}).refusal, "--json takes no value.");
    EXPECT_EQ(parseArguments({"--help="}).refusal, "--help takes no value.");
    EXPECT_EQ(parseArguments({"--version=2"}).refusal, "--version takes no value.");
}

TEST(Arguments, refusesValuesThatAreGivenTwice) {
    EXPECT_EQ(parseArguments({"--top", "1", "--top=1", "/a"}).refusal, "--top is given twice.");
    EXPECT_EQ(parseArguments({"--ncdu", "a", "--ncdu", "a", "/a"}).refusal, "--ncdu is given twice.");
    EXPECT_TRUE(accepted({"--json", "--json", "/a"}).json);
}

TEST(Arguments, refusesTwoReportsOnStandardOutput) {
    EXPECT_EQ(parseArguments({"--json", "--ncdu", "-", "/a"}).refusal,
              "--json and --ncdu - would both write to standard output.");
    EXPECT_EQ(parseArguments({"--ncdu", "-", "/a", "--json"}).refusal,
              "--json and --ncdu - would both write to standard output.");
}

TEST(Arguments, endsAtTheFirstQuestionOrMistake) {
    EXPECT_EQ(accepted({"--help"}).action, Arguments::Action::help);
    EXPECT_EQ(accepted({"--version"}).action, Arguments::Action::version);
    EXPECT_EQ(accepted({"/a", "--version", "--help", "--bad", ""}).action, Arguments::Action::version);
    EXPECT_EQ(parseArguments({"--bad", "--help"}).refusal, "There is no option \"--bad\".");
    EXPECT_EQ(parseArguments({"--bad", "--worse"}).refusal, "There is no option \"--bad\".");
    EXPECT_EQ(accepted({"--", "--help"}).action, Arguments::Action::survey);
}

// Words put together from all that means something: whatever comes in, a survey has roots and one report at most on
// standard output, and a refusal is one printable sentence.
TEST(Arguments, holdsWhatItPromisesForAnyWords) {
    const Words pieces{"--", "-",       "--top", "--top=", "--ncdu",     "--ncdu=", "--json", "--help",  "--version",
                       "3",  "--json=", "/a",    "",       "\xFF\x1B\n", "--top=4", "-x",     "--ncdu=-"};
    std::mt19937 random(7);
    std::size_t surveys = 0;
    for (int round = 0; round < 20'000; ++round) {
        Words words(random() % 7);
        for (std::string& word : words) word = pieces[random() % pieces.size()];
        const Arguments arguments = parseArguments(words);
        if (!arguments.refusal.empty()) {
            ASSERT_TRUE(arguments.refusal.ends_with('.'));
            for (const char c : arguments.refusal) ASSERT_TRUE(c >= ' ' && c <= '~') << arguments.refusal;
        } else if (arguments.action == Arguments::Action::survey) {
            ++surveys;
            ASSERT_FALSE(arguments.roots.empty());
            ASSERT_FALSE(arguments.json && arguments.exportsToOutput());
            for (const std::string& root : arguments.roots) ASSERT_FALSE(root.empty());
        }
    }
    EXPECT_GT(surveys, 1000U);
}

}  // namespace
}  // namespace zelk::cli
