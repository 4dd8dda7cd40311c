// SPDX-License-Identifier: MIT
#include "state/SurveyHistory.h"

#include <gmock/gmock.h>

#include <limits>

#include "fakes/FakePlatform.h"

namespace zelk {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::Optional;
using testing::Pair;

constexpr std::int64_t leastInteger = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t greatestInteger = std::numeric_limits<std::int64_t>::max();
constexpr double yearTwoThousandOne = 978307200;

SurveyRecord sample() {
    SurveyRecord record;
    record.date = 1753000000.25;
    record.totalScanned = 123456789012;
    record.used = 400000000000;
    record.free = 100000000000;
    record.reclaimable = 5000000000;
    record.types = {{"video", 1000}, {"archive", 2000}};
    record.folders = SizeByPath{{"/home/me", 30000000}, {"/home/me/Movies & \"more\"", 20000000}};
    return record;
}

/// One record with these fields added to the usual ones or replacing them.
std::string recordWith(const std::string& fields) {
    return "[{" + fields + "}]";
}

const std::string required =
    R"("date":774692800.25,"totalScanned":1,"used":2,"free":3,"reclaimable":4,"types":{"video":5})";

SurveyRecord decodeOne(const std::string& json) {
    const auto records = decodeHistory(json);
    EXPECT_TRUE(records && records->size() == 1) << json;
    return records && records->size() == 1 ? records->front() : SurveyRecord();
}

// The JSON text.

TEST(HistoryFile, roundTrips) {
    SurveyRecord bare = sample();
    bare.folders.reset();
    bare.types.clear();
    SurveyRecord empty = sample();
    empty.folders = SizeByPath{};
    const std::vector<SurveyRecord> records{sample(), bare, empty, SurveyRecord{}};
    EXPECT_THAT(decodeHistory(encodeHistory(records)), Optional(records));
    EXPECT_THAT(decodeHistory(encodeHistory({})), Optional(IsEmpty()));
    EXPECT_EQ(encodeHistory({}), "[]");
}

TEST(HistoryFile, datesCountSecondsSince2001) {
    SurveyRecord record;
    record.date = yearTwoThousandOne + 42.5;
    EXPECT_THAT(encodeHistory({record}), HasSubstr("\"date\":42.5"));
    EXPECT_EQ(decodeOne(recordWith(required)).date, 1753000000.25);
}

TEST(HistoryFile, omitsAbsentFolders) {
    SurveyRecord record = sample();
    record.folders.reset();
    EXPECT_THAT(encodeHistory({record}), Not(HasSubstr("folders")));
}

TEST(HistoryFile, readsCompactJSONOfMac) {
    const SurveyRecord record = decodeOne(
        R"([{"folders":{"\/Users\/me\/Movies":50000000,"\/Users\/me":70000000},"used":400,"types":{"video":7},)"
        R"("totalScanned":123,"free":100,"reclaimable":0,"date":774692800}])");
    EXPECT_EQ(record.date, 1753000000);
    EXPECT_EQ(record.totalScanned, 123);
    EXPECT_EQ(record.used, 400);
    EXPECT_EQ(record.free, 100);
    EXPECT_EQ(record.reclaimable, 0);
    EXPECT_THAT(record.types, ElementsAre(Pair("video", 7)));
    EXPECT_THAT(record.folders, Optional(ElementsAre(Pair("/Users/me", 70000000), Pair("/Users/me/Movies", 50000000))));
}

TEST(HistoryFile, readsPrettyJSON) {
    const SurveyRecord record = decodeOne(R"(
        [
          {
            "reclaimable" : 4 ,
            "types" : { "video" : 5 } ,
            "date" : 7.746928e8 ,
            "free" : 3 ,
            "used" : 2 ,
            "folders" : { } ,
            "totalScanned" : 1
          }
        ]
    )");
    EXPECT_EQ(record.date, 1753000000);
    EXPECT_EQ(record.totalScanned, 1);
    EXPECT_THAT(record.folders, Optional(IsEmpty()));
}

TEST(HistoryFile, acceptsIntegersWithZeroFraction) {
    const SurveyRecord record =
        decodeOne(R"([{"date":5.0,"totalScanned":1.0,"used":2.00,"free":-3.0,"reclaimable":4e3,"types":{"a.0":5.0}}])");
    EXPECT_EQ(record.date, yearTwoThousandOne + 5);
    EXPECT_EQ(record.totalScanned, 1);
    EXPECT_EQ(record.used, 2);
    EXPECT_EQ(record.free, -3);
    EXPECT_EQ(record.reclaimable, 4000);
    EXPECT_THAT(record.types, ElementsAre(Pair("a.0", 5)));
}

TEST(HistoryFile, keepsZeroFractionsInsideStrings) {
    const SurveyRecord record = decodeOne(recordWith(required + R"(,"folders":{"/v1.0":1,"/a\"1.0":2,"/a\\":3.0})"));
    EXPECT_THAT(record.folders, Optional(ElementsAre(Pair("/a\"1.0", 2), Pair("/a\\", 3), Pair("/v1.0", 1))));
}

TEST(HistoryFile, keepsEveryIntegerExactly) {
    for (const std::int64_t value : {std::int64_t{9007199254740993}, std::int64_t{-9007199254740993}, greatestInteger,
                                     greatestInteger - 1, leastInteger, std::int64_t{0}, std::int64_t{-1}}) {
        SurveyRecord record = sample();
        record.totalScanned = record.used = record.free = record.reclaimable = value;
        record.types = {{"video", value}};
        record.folders = SizeByPath{{"/a", value}};
        EXPECT_THAT(decodeHistory(encodeHistory({record})), Optional(ElementsAre(record)));
        for (const char* fraction : {"", ".0", ".000"}) {
            const std::string text = R"("folders":{"/a":)" + std::to_string(value) + fraction + "}";
            EXPECT_THAT(decodeOne(recordWith(required + "," + text)).folders, Optional(ElementsAre(Pair("/a", value))))
                << text;
        }
    }
}

TEST(HistoryFile, requiresEveryKeyButFolders) {
    const std::vector<std::string> fields{R"("date":1)", R"("totalScanned":1)", R"("used":1)",
                                          R"("free":1)", R"("reclaimable":1)",  R"("types":{})"};
    for (std::size_t missing = 0; missing <= fields.size(); ++missing) {
        std::string text;
        for (std::size_t i = 0; i < fields.size(); ++i) {
            if (i != missing) text += (text.empty() ? "" : ",") + fields[i];
        }
        EXPECT_EQ(decodeHistory(recordWith(text)).has_value(), missing == fields.size()) << text;
    }
}

TEST(HistoryFile, requiresTypeOfEveryKey) {
    const std::vector<std::pair<std::string, std::vector<std::string>>> wrong{
        {"date", {"null", "\"1\"", "true", "[]", "{}"}},
        {"totalScanned", {"null", "\"1\"", "true", "[1]", "{}", "1.5", "1e30", "9223372036854775808"}},
        {"used", {"null", "\"1\"", "false", "0.5", "-9300000000000000000"}},
        {"free", {"null", "\"\"", "-0.5"}},
        {"reclaimable", {"null", "\"1\"", "1.0000001"}},
        {"types", {"null", "1", "[]", "\"a\"", R"({"a":null})", R"({"a":"1"})", R"({"a":1.5})", R"({"a":{}})"}},
        {"folders", {"1", "[]", "\"a\"", "false", R"({"a":null})", R"({"a":"1"})", R"({"a":1.5})"}},
    };
    for (const auto& [key, values] : wrong) {
        for (const std::string& value : values) {
            // Of a key that occurs twice the last one counts.
            const std::string text = recordWith(required + ",\"" + key + "\":" + value);
            EXPECT_EQ(decodeHistory(text), std::nullopt) << text;
        }
    }
}

TEST(HistoryFile, nullFoldersAreAbsent) {
    EXPECT_EQ(decodeOne(recordWith(required + R"(,"folders":null)")).folders, std::nullopt);
    EXPECT_EQ(decodeOne(recordWith(required)).folders, std::nullopt);
}

TEST(HistoryFile, ignoresUnknownKeys) {
    EXPECT_EQ(decodeOne(recordWith(required + R"(,"later":{"a":[1]})")).used, 2);
}

TEST(HistoryFile, rejectsFileWithOneInvalidRecord) {
    EXPECT_EQ(decodeHistory("[{" + required + "},{}]"), std::nullopt);
    EXPECT_EQ(decodeHistory("[{" + required + "},null]"), std::nullopt);
    EXPECT_EQ(decodeHistory("[{" + required + "},7]"), std::nullopt);
}

TEST(HistoryFile, rejectsAnythingButListOfRecords) {
    const std::string whole = "[{" + required + "}]";
    const std::string deep(100000, '[');
    for (const std::string& text :
         {std::string(), std::string("null"), std::string("{}"), std::string("7"), "{" + required + "}", whole + "]",
          whole + whole, "[{" + required + "},]", deep, std::string("\0\0\0\0", 4), std::string("[\"\xff\"]")}) {
        EXPECT_EQ(decodeHistory(text), std::nullopt) << text.substr(0, 100);
    }
    for (std::size_t length = 0; length < whole.size(); ++length) {
        EXPECT_EQ(decodeHistory(whole.substr(0, length)), std::nullopt) << length;
    }
    EXPECT_NE(decodeHistory(whole), std::nullopt);
}

TEST(HistoryFile, rejectsInvalidNumbers) {
    for (const char* number : {"1.0.0", "1.5.0", "01.0", "1.0e", "+1.0", "1.0-0", "1..0", "NaN", "Infinity", "1,0"}) {
        EXPECT_EQ(decodeHistory(recordWith(required + R"(,"used":)" + number)), std::nullopt) << number;
    }
}

TEST(HistoryFile, survivesInvalidDates) {
    const double infinity = std::numeric_limits<double>::infinity();
    for (const double date : {std::numeric_limits<double>::quiet_NaN(), infinity, -infinity}) {
        SurveyRecord record = sample();
        record.date = date;
        const auto records = decodeHistory(encodeHistory({sample(), record}));
        ASSERT_TRUE(records);
        record.date = yearTwoThousandOne;
        EXPECT_THAT(*records, ElementsAre(sample(), record));
    }
}

TEST(HistoryFile, keepsEveryDigitOfDates) {
    for (const char* date :
         {"774692800.123456789", "0", "0.1", "-978307200", "-978307199.9", "1e17", "-576460752303423617",
          "1.7976931348623157e308", "-1.7976931348623157e308", "5e-324", "123456789012345678"}) {
        const auto first = decodeHistory(R"([{"date":)" + std::string(date) +
                                         R"(,"totalScanned":1,"used":2,"free":3,"reclaimable":4,"types":{}}])");
        ASSERT_TRUE(first) << date;
        EXPECT_EQ(decodeHistory(encodeHistory(*first)), first) << date;
    }
    EXPECT_EQ(
        decodeHistory(recordWith(R"("date":1e400,"totalScanned":1,"used":2,"free":3,"reclaimable":4,"types":{})")),
        std::nullopt);
}

// Paths as keys.

TEST(HistoryPaths, roundTripAnyBytes) {
    SizeByPath folders;
    std::int64_t size = 0;
    for (const char* path : {"/plain",
                             "/home/J\xc3\xbcrgen",
                             "/home/J\xfcrgen",
                             "/home/J%FCrgen",
                             "/\xff",
                             "/\xfe",
                             "/\xff\xfe",
                             "/\xef\xbf\xbd",
                             "file:///%FF",
                             "file:///plain",
                             "file://",
                             "/a\nb",
                             "/a\"b\\c",
                             "/a/\x01",
                             "/\xed\xa0\x80",
                             "/\xc0\xaf",
                             "",
                             "\xef\xbb\xbf/bom",
                             "/\xf0\x9f\x93\x81",
                             "/e\xcc\x81",
                             "/\xc3\xa9",
                             "/\xff/%/ /+/?#"}) {
        folders.emplace(path, ++size);
    }
    folders.emplace(std::string("/a\0b", 4), ++size);
    SurveyRecord record = sample();
    record.folders = folders;
    record.types = folders;
    const auto records = decodeHistory(encodeHistory({record}));
    EXPECT_THAT(records, Optional(ElementsAre(record)));
}

TEST(HistoryPaths, encodeNonUtf8AsFileURLs) {
    SurveyRecord record;
    record.folders = SizeByPath{{"/home/me/\xff \xc3\xa4", 1}, {"/home/me/\xc3\xa4", 2}};
    const std::string json = encodeHistory({record});
    EXPECT_THAT(json, HasSubstr("\"file:///home/me/%FF%20%C3%A4\":1"));
    EXPECT_THAT(json, HasSubstr("\"/home/me/\xc3\xa4\":2"));
}

TEST(HistoryPaths, keepLookalikeFileURLsAsTheyAre) {
    const auto folders =
        decodeOne(
            recordWith(required + R"(,"folders":{"file:///plain":1,"file:///%ff":2,"file:///%F":3,"file:///%FF":4})"))
            .folders;
    EXPECT_THAT(folders, Optional(ElementsAre(Pair("/\xff", 4), Pair("file:///%F", 3), Pair("file:///%ff", 2),
                                              Pair("file:///plain", 1))));
}

// The file.

class StoredHistory : public testing::Test {
protected:
    StoredHistory() {
        locations.applicationSupportPath = "/home/me/support";
        files.addFolder("/home/me");
    }

    static SurveyRecord numbered(int number) {
        SurveyRecord record = sample();
        record.totalScanned = number;
        return record;
    }

    const std::string path = "/home/me/support/Zelk/history.json";
    fakes::FakeFileManager files;
    fakes::FakeLocations locations;
    SurveyHistory history{files, locations};
};

TEST_F(StoredHistory, createsItsFolderInApplicationSupport) {
    EXPECT_EQ(history.location(), path);
    EXPECT_TRUE(files.exists("/home/me/support/Zelk"));
}

TEST_F(StoredHistory, isReadWithoutCreatingAnything) {
    EXPECT_THAT(history.load(), IsEmpty());
    EXPECT_FALSE(files.exists("/home/me/support"));
    history.appendHistory(sample());
    const std::size_t before = files.calls().size();
    EXPECT_THAT(history.load(), ElementsAre(sample()));
    for (std::size_t at = before; at < files.calls().size(); ++at) EXPECT_EQ(files.calls()[at].operation, "read");
}

TEST_F(StoredHistory, doesNotCreateMissingHome) {
    files.erase("/home/me");
    EXPECT_EQ(history.location(), path);
    EXPECT_THAT(history.appendHistory(sample()), ElementsAre(sample()));
    EXPECT_FALSE(files.exists("/home/me"));
    EXPECT_THAT(history.load(), IsEmpty());
    files.addFolder("/home/me");
    history.appendHistory(sample());
    EXPECT_THAT(history.load(), ElementsAre(sample()));
}

TEST_F(StoredHistory, isKeptOutsideMissingHome) {
    files.erase("/home/me");
    locations.applicationSupportPath = "/data/support";
    history.appendHistory(sample());
    EXPECT_FALSE(files.exists("/home/me"));
    EXPECT_THAT(history.load(), ElementsAre(sample()));
}

TEST_F(StoredHistory, hasLocationEvenIfFolderCannotBeCreated) {
    files.failing = [](const auto& call) { return call.operation == "createDirectories"; };
    EXPECT_EQ(history.location(), path);
    EXPECT_THAT(history.appendHistory(sample()), ElementsAre(sample()));
    EXPECT_THAT(history.load(), IsEmpty());
}

TEST_F(StoredHistory, withoutApplicationSupportNeitherLoadsNorSaves) {
    locations.applicationSupportPath.reset();
    EXPECT_EQ(history.location(), std::nullopt);
    EXPECT_THAT(history.load(), IsEmpty());
    EXPECT_THAT(history.appendHistory(sample()), ElementsAre(sample()));
    EXPECT_THAT(files.calls(), IsEmpty());
}

TEST_F(StoredHistory, isEmptyAtFirst) {
    EXPECT_THAT(history.load(), IsEmpty());
}

TEST_F(StoredHistory, growsByOneRecordEachTime) {
    EXPECT_THAT(history.appendHistory(numbered(1)), ElementsAre(numbered(1)));
    EXPECT_THAT(history.appendHistory(numbered(2)), ElementsAre(numbered(1), numbered(2)));
    EXPECT_THAT(history.load(), ElementsAre(numbered(1), numbered(2)));
}

TEST_F(StoredHistory, keepsSixtyAndDropsOldest) {
    for (int i = 1; i <= 60; ++i) history.appendHistory(numbered(i));
    EXPECT_EQ(history.load().size(), 60u);
    const std::vector<SurveyRecord> returned = history.appendHistory(numbered(61));
    ASSERT_EQ(returned.size(), 60u);
    EXPECT_EQ(returned.front(), numbered(2));
    EXPECT_EQ(returned.back(), numbered(61));
    EXPECT_EQ(history.load(), returned);
}

TEST_F(StoredHistory, loadsLongFileWholeAndTrimsOnAppend) {
    std::vector<SurveyRecord> many;
    for (int i = 1; i <= 100; ++i) many.push_back(numbered(i));
    files.addFile(path, encodeHistory(many));
    EXPECT_EQ(history.load(), many);
    const std::vector<SurveyRecord> returned = history.appendHistory(numbered(101));
    ASSERT_EQ(returned.size(), 60u);
    EXPECT_EQ(returned.front(), numbered(42));
    EXPECT_EQ(history.load(), returned);
}

TEST_F(StoredHistory, appendReadsFileAgain) {
    history.appendHistory(numbered(1));
    files.addFile(path, encodeHistory({numbered(7), numbered(8)}));
    EXPECT_THAT(history.appendHistory(numbered(9)), ElementsAre(numbered(7), numbered(8), numbered(9)));
}

TEST_F(StoredHistory, corruptFileIsEmptyAndReplacedOnAppend) {
    files.addFile(path, "[{\"date\":1");
    EXPECT_THAT(history.load(), IsEmpty());
    EXPECT_THAT(history.appendHistory(sample()), ElementsAre(sample()));
    EXPECT_THAT(history.load(), ElementsAre(sample()));
}

TEST_F(StoredHistory, unreadableFileIsEmpty) {
    files.addFile(path, encodeHistory({sample()}));
    files.failing = [](const auto& call) { return call.operation == "read"; };
    EXPECT_THAT(history.load(), IsEmpty());
}

TEST_F(StoredHistory, appendReturnsHistoryEvenIfWriteFails) {
    history.appendHistory(numbered(1));
    files.failing = [](const auto& call) { return call.operation == "replaceDurably"; };
    EXPECT_THAT(history.appendHistory(numbered(2)), ElementsAre(numbered(1), numbered(2)));
    EXPECT_THAT(history.load(), ElementsAre(numbered(1)));
}

}  // namespace
}  // namespace zelk
