// SPDX-License-Identifier: MIT
#include "system/SnapperList.h"

#include <gmock/gmock.h>

namespace zelk {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

/// A list of the configuration "root" with these entries.
std::string snapperList(const std::string& entries) {
    return "{\"root\": [" + entries + "]}";
}

/// An entry that says in every way that it may go, with `from` replaced by `to`.
std::string snapperEntry(const std::string& from = {}, const std::string& to = {}) {
    std::string text =
        R"({"subvolume":"/","number":7,"default":false,"active":false,"type":"single","pre-number":null,)"
        R"("date":"2026-11-22 00:09:10","user":"root","used-space":null,"cleanup":"number",)"
        R"("description":"before the change","userdata":null})";
    const std::size_t at = from.empty() ? std::string::npos : text.find(from);
    EXPECT_TRUE(from.empty() || at != std::string::npos) << from;
    if (at != std::string::npos) text.replace(at, from.size(), to);
    return text;
}

LocalSnapshot readEntry(const std::string& from = {}, const std::string& to = {}) {
    const auto all = parseSnapperList(snapperList(snapperEntry(from, to)), "root");
    EXPECT_TRUE(all && all->size() == 1) << to;
    return all && all->size() == 1 ? all->front() : LocalSnapshot();
}

bool isSkipped(const std::string& from, const std::string& to) {
    const auto all = parseSnapperList(snapperList(snapperEntry(from, to)), "root");
    return all && all->empty();
}

TEST(SnapperConfigs, areFoundByTheirSubvolume) {
    const char* const json = R"({"configs":[{"config":"home","subvolume":"/home"},{"config":"root","subvolume":"/"}]})";
    EXPECT_THAT(snapperConfig(json, "/"), Optional(std::string("root")));
    EXPECT_THAT(snapperConfig(json, "/home"), Optional(std::string("home")));
    EXPECT_EQ(snapperConfig(json, "/srv"), std::nullopt);
    EXPECT_EQ(snapperConfig(json, ""), std::nullopt);
}

TEST(SnapperConfigs, firstOfTwoIsTaken) {
    EXPECT_THAT(snapperConfig(R"({"configs":[{"config":"a","subvolume":"/"},{"config":"b","subvolume":"/"}]})", "/"),
                Optional(std::string("a")));
}

TEST(SnapperConfigs, areAbsentInAnythingElse) {
    for (const char* json :
         {"", "null", "[]", "{}", "7", "{\"configs\":{}}", "{\"configs\":[]}", "{\"configs\":[7]}",
          R"({"configs":[{"config":7,"subvolume":"/"}]})", R"({"configs":[{"config":"root","subvolume":["/"]}]})",
          R"({"configs":[{"config":"root"}]})", R"({"configs":[{"config":"root","subvolume":"/"}])",
          R"([{"config":"root","subvolume":"/"}])", "No permissions."})
        EXPECT_EQ(snapperConfig(json, "/"), std::nullopt) << json;
}

TEST(SnapperLists, mapEveryField) {
    EXPECT_EQ(readEntry(), (LocalSnapshot{"before the change", 1'795'306'150.0, false, true, "root/7"}));
}

TEST(SnapperLists, keepTheOrderAndLeaveOutTheCurrentState) {
    const std::string text = snapperList(snapperEntry("\"number\":7", "\"number\":0") + "," +
                                         snapperEntry("\"number\":7", "\"number\":9") + "," + snapperEntry());
    const auto all = parseSnapperList(text, "root");
    ASSERT_TRUE(all);
    ASSERT_EQ(all->size(), 2U);
    EXPECT_EQ((*all)[0].uuid, "root/9");
    EXPECT_EQ((*all)[1].uuid, "root/7");
}

TEST(SnapperLists, nameIsTypeAndNumberWithoutDescription) {
    EXPECT_EQ(readEntry("\"before the change\"", "\"\"").name, "single 7");
    EXPECT_EQ(readEntry("\"before the change\"", "null").name, "single 7");
    EXPECT_EQ(readEntry("\"before the change\"", "[1]").name, "single 7");
    EXPECT_EQ(readEntry(",\"description\":\"before the change\"", "").name, "single 7");
}

TEST(SnapperLists, pairsAroundAChangeAreUpdates) {
    EXPECT_TRUE(readEntry("\"single\"", "\"pre\"").isOSUpdate);
    EXPECT_TRUE(readEntry("\"single\"", "\"post\"").isOSUpdate);
    for (const char* type : {"\"single\"", "\"\"", "\"Pre\"", "\"pre-post\""})
        EXPECT_FALSE(readEntry("\"single\"", type).isOSUpdate) << type;
}

TEST(SnapperLists, anyCleanupMakesPurgeable) {
    for (const char* cleanup : {"\"timeline\"", "\"empty-pre-post\"", "\"mine\""})
        EXPECT_TRUE(readEntry("\"number\",\"description\"", std::string(cleanup) + ",\"description\"").purgeable)
            << cleanup;
}

TEST(SnapperLists, whatIsNotClearlyFreeIsPinned) {
    const std::pair<const char*, const char*> changes[] = {
        {"\"cleanup\":\"number\"", "\"cleanup\":\"\""},
        {"\"cleanup\":\"number\"", "\"cleanup\":null"},
        {"\"cleanup\":\"number\"", "\"cleanup\":true"},
        {"\"cleanup\":\"number\"", "\"cleanup\":[\"number\"]"},
        {"\"cleanup\":\"number\",", ""},
        {"\"default\":false", "\"default\":true"},
        {"\"default\":false", "\"default\":null"},
        {"\"default\":false", "\"default\":\"false\""},
        {"\"default\":false,", ""},
        {"\"active\":false", "\"active\":true"},
        {"\"active\":false", "\"active\":0"},
        {"\"active\":false,", ""},
        {"\"userdata\":null", "\"userdata\":{\"important\":\"yes\"}"},
        {"\"userdata\":null", "\"userdata\":{\"important\":true}"},
        {"\"userdata\":null", "\"userdata\":{\"important\":null}"},
        {"\"userdata\":null", "\"userdata\":\"important=yes\""},
        {"\"userdata\":null", "\"userdata\":[]"},
        {",\"userdata\":null", ""},
    };
    for (const auto& [from, to] : changes) {
        EXPECT_FALSE(readEntry(from, to).purgeable) << to;
        EXPECT_EQ(readEntry(from, to).uuid, "root/7") << to;
    }
}

TEST(SnapperLists, otherUserDataPinsNothing) {
    for (const char* userdata : {"{}", R"({"important":"no"})", R"({"important":"Yes"})", R"({"Important":"yes"})",
                                 R"({"by":{"important":"yes"}})"})
        EXPECT_TRUE(readEntry("\"userdata\":null", "\"userdata\":" + std::string(userdata)).purgeable) << userdata;
}

TEST(SnapperLists, datesAreInUniversalTime) {
    const auto date = [](const std::string& text) { return readEntry("2026-11-22 00:09:10", text).date; };
    EXPECT_EQ(date("1970-01-01 00:00:00"), 0.0);
    EXPECT_EQ(date("2024-02-29 23:59:59"), 1'709'251'199.0);
    EXPECT_EQ(date("1969-12-31 23:59:59"), -1.0);
    for (const char* text : {"", "2026-11-22", "2026-11-22T00:09:10", "2026-11-22 00:09:10Z", "2026-11-22 00:09",
                             "2026-13-22 00:09:10", "2026-11-31 00:09:10", "2023-02-29 00:09:10", "2026-11-00 00:09:10",
                             "2026-11-22 24:09:10", "2026-11-22 00:60:10", "2026-11-22 00:09:60", "2026-11-22 -1:09:10",
                             "2026-11-22 00:09:1x", "Sun Nov 22 00:09:10 2026"})
        EXPECT_EQ(date(text), std::nullopt) << text;
    EXPECT_EQ(readEntry("\"2026-11-22 00:09:10\"", "1763769600").date, std::nullopt);
}

TEST(SnapperLists, unusableNumbersAreSkipped) {
    for (const char* number : {"0", "-7", "7.0", "7e0", "\"7\"", "null", "true", "[7]", "{}", "4294967296",
                               "18446744073709551616", "99999999999999999999999999"})
        EXPECT_TRUE(isSkipped("\"number\":7", "\"number\":" + std::string(number))) << number;
    EXPECT_TRUE(isSkipped("\"number\":7,", ""));
    EXPECT_EQ(readEntry("\"number\":7", "\"number\":4294967295").uuid, "root/4294967295");
}

TEST(SnapperLists, unusableTypesAreSkipped) {
    for (const char* type : {"null", "1", "[\"single\"]"}) EXPECT_TRUE(isSkipped("\"single\"", type)) << type;
    EXPECT_TRUE(isSkipped("\"type\":\"single\",", ""));
}

TEST(SnapperLists, otherEntriesStayWhenOneIsUnusable) {
    const auto all = parseSnapperList(snapperList("7,null,[],\"x\",{}," + snapperEntry()), "root");
    ASSERT_TRUE(all);
    EXPECT_EQ(all->size(), 1U);
}

TEST(SnapperLists, areAbsentInAnythingElse) {
    for (const std::string& json :
         {std::string(), std::string("null"), std::string("[]"), std::string("{\"root\":{}}"),
          std::string("{\"home\":[]}"), std::string("No permissions."), snapperList(snapperEntry()) + "x",
          "[" + snapperList(snapperEntry()) + "]", std::string("{\"root\":[1e999]}")})
        EXPECT_EQ(parseSnapperList(json, "root"), std::nullopt) << json;
    EXPECT_THAT(parseSnapperList("{\"root\":[]}", "root"), Optional(IsEmpty()));
}

TEST(SnapperLists, truncatedTextGivesNothing) {
    const std::string whole = snapperList(snapperEntry() + "," + snapperEntry("\"number\":7", "\"number\":8"));
    for (std::size_t length = 0; length < whole.size(); ++length)
        EXPECT_EQ(parseSnapperList(whole.substr(0, length), "root"), std::nullopt) << length;
    EXPECT_TRUE(parseSnapperList(whole, "root"));
}

TEST(SnapperLists, surviveDeepNesting) {
    const std::string deep(1'000'000, '[');
    EXPECT_EQ(parseSnapperList(deep, "root"), std::nullopt);
    const std::string closed = "{\"root\":" + deep + std::string(1'000'000, ']') + "}";
    EXPECT_THAT(parseSnapperList(closed, "root"), Optional(IsEmpty()));
}

TEST(SnapperLists, descriptionInAnotherEncodingHidesNothing) {
    const auto all = parseSnapperList(snapperList(snapperEntry("before", "f\xFCr")), "root");
    ASSERT_TRUE(all && all->size() == 1);
    EXPECT_EQ(all->front().name, "f?r the change");
    EXPECT_EQ(readEntry("before", "für").name, "für the change");
}

}  // namespace
}  // namespace zelk
