// SPDX-License-Identifier: MIT
#include "cli/JsonReport.h"

#include <gmock/gmock.h>

#include <nlohmann/json.hpp>

#include <algorithm>

#include "SampleSurvey.h"
#include "cli/JsonWriter.h"

namespace zelk::cli {
namespace {

using nlohmann::json;
using testing::ElementsAre;

json reported(const Survey& survey) {
    const std::string text = written([&](Output& output) { writeJson(output, survey, "1.2.3"); });
    EXPECT_TRUE(text.ends_with("}\n"));
    return json::parse(text);
}

std::vector<std::string> pathsIn(const json& list) {
    std::vector<std::string> paths;
    for (const json& one : list) paths.push_back(one.at("path"));
    return paths;
}

TEST(JsonReport, namesItsVersionFirst) {
    const std::string text = written([&](Output& output) { writeJson(output, smallSurvey(), "1.2.3"); });
    EXPECT_TRUE(text.starts_with("{\"version\":1,\"program\":\"zelk-survey\",\"programVersion\":\"1.2.3\",")) << text;
}

TEST(JsonReport, hasTheTotals) {
    const json all = reported(smallSurvey());
    EXPECT_EQ(all.at("date"), 1'750'000'000.75);
    EXPECT_EQ(all.at("bytes"), 10'000'000);
    EXPECT_EQ(all.at("files"), 1213);
    EXPECT_EQ(all.at("foldersRead"), 4);
    EXPECT_EQ(all.at("foldersUnreadable"), 1);
    EXPECT_THAT(pathsIn(all.at("unreadable")), ElementsAre("/home/me/closed"));
    EXPECT_FALSE(all.contains("growth"));
}

TEST(JsonReport, hasTheRootsAndTheFoldersRightBelowThemLargestFirst) {
    Survey survey = smallSurvey();
    FSNode& second = addFolder(*survey.tree, "/srv");
    addFolder(second, "b", 9'000'000, 1);
    addFolder(second, "a", 9'000'000, 1);
    settle(survey);
    const json all = reported(survey);
    EXPECT_EQ(all.at("roots"), json::parse(R"([{"path":"/home/me","bytes":10000000,"ownFiles":2,"ownBytes":500000},
                                               {"path":"/srv","bytes":18000000,"ownFiles":0,"ownBytes":0}])"));
    EXPECT_THAT(pathsIn(all.at("folders")),
                ElementsAre("/home/me/Docs", "/home/me/Music", "/home/me/closed", "/srv/a", "/srv/b"));
    EXPECT_EQ(all.at("folders").at(1).at("bytes"), 3'000'000);
    EXPECT_EQ(all.at("folders").at(1).at("ownFiles"), 1);
    EXPECT_EQ(all.at("folders").at(1).at("ownBytes"), 1'000'000);
}

TEST(JsonReport, hasTheTypesAndTheFiles) {
    Survey survey = smallSurvey();
    survey.insights.typeTotals[FileType::diskImage] = {123, 4};
    survey.insights.topFiles = {{"/home/me/a.iso", 120, 1.5, FileType::diskImage},
                                {"/home/me/b", 3, 0, FileType::other}};
    survey.insights.diskImages = {{"/home/me/a.iso", 120, 1.5, FileType::diskImage}};
    const json all = reported(survey);
    EXPECT_EQ(all.at("types"), json::parse(R"({"diskImage":{"bytes":123,"files":4}})"));
    EXPECT_EQ(all.at("largestFiles").at(0),
              json::parse(R"({"path":"/home/me/a.iso","bytes":120,"modified":1.5,"type":"diskImage"})"));
    EXPECT_THAT(pathsIn(all.at("largestFiles")), ElementsAre("/home/me/a.iso", "/home/me/b"));
    EXPECT_THAT(pathsIn(all.at("diskImages")), ElementsAre("/home/me/a.iso"));
}

TEST(JsonReport, hasWhatCanBeHadAgain) {
    Survey survey = smallSurvey();
    survey.reclaimables = {
        {"/p/node_modules", "/p/node_modules", 10, "node_modules", ReclaimSafety::regenerates, ReclaimMethod::trash(),
         5, 2},
        {"/n", "/n", 30, "npm_cache", ReclaimSafety::safe, ReclaimMethod::command("/usr/bin/env", {"npm", "x"}), 6, 2},
        {"/q/node_modules", "/q/node_modules", 15, "node_modules", ReclaimSafety::regenerates, ReclaimMethod::trash(),
         5, 2}};
    const json all = reported(survey);
    EXPECT_EQ(all.at("reclaimables").size(), 3U);
    EXPECT_EQ(all.at("reclaimables").at(1), json::parse(R"({"path":"/n","bytes":30,"category":"npm_cache",
        "safety":"safe","method":"/usr/bin/env npm x","modified":6})"));
    const json& categories = all.at("categories");
    ASSERT_EQ(categories.size(), 2U);
    EXPECT_EQ(categories.at(0).at("category"), "npm_cache");
    EXPECT_EQ(categories.at(0).at("bytes"), 30);
    EXPECT_EQ(categories.at(1).at("category"), "node_modules");
    EXPECT_EQ(categories.at(1).at("name"), "node_modules");
    EXPECT_EQ(categories.at(1).at("safety"), "regenerates");
    EXPECT_EQ(categories.at(1).at("bytes"), 25);
}

TEST(JsonReport, hasWhatChanged) {
    Survey survey = smallSurvey();
    survey.growth = Growth{1'700'000'000.5, 77, {{{"/g", 1, 2}}, {{"/a", 0, 3}}, {{"/o", 4, 0}}}};
    EXPECT_EQ(reported(survey).at("growth"), json::parse(R"({"since":1700000000.5,"bytesBefore":77,
        "grew":[{"path":"/g","bytesBefore":1,"bytes":2}],
        "appeared":[{"path":"/a","bytesBefore":0,"bytes":3}],
        "gone":[{"path":"/o","bytesBefore":4,"bytes":0}]})"));
}

TEST(JsonReport, hasWhatItTook) {
    Survey survey = smallSurvey();
    survey.phases = {1.25, 0.5};
    survey.classify = 0.1;
    EXPECT_EQ(reported(survey).at("seconds"), json::parse(R"({"walk":1.25,"rollUp":0.5,"classify":0.1})"));
}

TEST(JsonReport, escapesPathsThatAreNoText) {
    Survey survey = emptySurvey();
    FSNode& root = addFolder(*survey.tree, "/a\n\"\\é");
    addFolder(root, "\xFF b").setUnreadable();
    settle(survey);
    const json all = reported(survey);
    EXPECT_EQ(all.at("roots").at(0).at("path"), "/a\n\"\\é");
    EXPECT_FALSE(all.at("roots").at(0).contains("pathEscaped"));
    for (const char* list : {"folders", "unreadable"}) {
        EXPECT_EQ(all.at(list).at(0).at("path"), "/a%0A%22%5C%C3%A9/%FF%20b");
        EXPECT_EQ(all.at(list).at(0).at("pathEscaped"), true);
    }
}

TEST(JsonReport, hasAnEmptyListIfEveryFolderWasRead) {
    Survey survey = emptySurvey();
    addFolder(*survey.tree, "/a", 1, 1);
    settle(survey);
    EXPECT_EQ(reported(survey).at("unreadable"), json::array());
}

TEST(JsonReport, findsUnreadableFoldersInTreesOfAnyDepth) {
    Survey survey = emptySurvey();
    FSNode* folder = &addFolder(*survey.tree, "/deep");
    for (int level = 0; level < 100'000; ++level) folder = &addFolder(*folder, "d");
    folder->setUnreadable();
    settle(survey);
    EXPECT_EQ(pathsIn(reported(survey).at("unreadable")).at(0).size(), 5U + 2 * 100'000);
}

TEST(JsonReport, isHandedOnInPieces) {
    Survey survey = emptySurvey();
    FSNode& root = addFolder(*survey.tree, "/wide");
    for (int at = 0; at < 50'000; ++at) addFolder(root, std::to_string(at));
    settle(survey);
    std::size_t largest = 0;
    std::size_t all = 0;
    Output output([&](std::string_view piece) {
        largest = std::max(largest, piece.size());
        all += piece.size();
        return 0;
    });
    writeJson(output, survey, "1");
    EXPECT_EQ(output.finish(), 0);
    EXPECT_GT(all, 2'000'000U);
    EXPECT_LE(largest, 65'536U);
}

TEST(JsonWriter, separatesValuesByCommas) {
    EXPECT_EQ(written([](Output& output) {
                  JsonWriter writer(output);
                  writer.open('{').key("a").open('[').close(']').key("b").open('[').number(std::int64_t{1});
                  writer.number(-2.5).boolean(true).boolean(false).open('{').close('}').close(']');
                  writer.key("c").text("").close('}');
              }),
              R"({"a":[],"b":[1,-2.5,true,false,{}],"c":""})");
}

TEST(JsonWriter, keepsNumbersExactly) {
    const std::string text = written([](Output& output) {
        JsonWriter writer(output);
        writer.open('[').number(INT64_MIN).number(INT64_MAX).number(1753000000.2500002).number(0.1).close(']');
    });
    const json all = json::parse(text);
    EXPECT_EQ(all.at(0), INT64_MIN);
    EXPECT_EQ(all.at(1), INT64_MAX);
    EXPECT_EQ(all.at(2), 1753000000.2500002);
    EXPECT_EQ(all.at(3), 0.1);
}

TEST(JsonWriter, writesTextThatAnyParserReadsBack) {
    std::string every;
    for (char c = 1; c < 127; ++c) every += c;
    every += "\x7F\u0080é日😀";
    every += std::string(1, '\0');
    EXPECT_EQ(json::parse(written([&](Output& output) { JsonWriter(output).text(every); })), every);
}

}  // namespace
}  // namespace zelk::cli
