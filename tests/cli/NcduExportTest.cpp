// SPDX-License-Identifier: MIT
#include "cli/NcduExport.h"

#include <gmock/gmock.h>

#include <cerrno>

#include "NcduReader.h"
#include "SampleSurvey.h"

namespace zelk::cli {
namespace {

std::string exported(const Survey& survey) {
    return written([&](Output& output) { writeNcduExport(output, survey, "1.2.3"); });
}

TEST(NcduExport, isWrittenToTheByte) {
    EXPECT_EQ(exported(smallSurvey()),
              "[1,2,{\"progname\":\"zelk-survey\",\"progver\":\"1.2.3\",\"timestamp\":1750000000},"
              "[{\"name\":\"/home/me\"},{\"name\":\"(2 files)\",\"dsize\":500000},"
              "[{\"name\":\"Music\"},{\"name\":\"(1 file)\",\"dsize\":1000000},"
              "[{\"name\":\"Old\"},{\"name\":\"(1200 files)\",\"dsize\":2000000}]],"
              "[{\"name\":\"Docs\"},{\"name\":\"(10 files)\",\"dsize\":6500000}],"
              "[{\"name\":\"closed\",\"read_error\":true}]]]\n");
}

TEST(NcduExport, hasTheTotalOfTheSurvey) {
    const Survey survey = smallSurvey();
    const NcduFile file = readNcdu(exported(survey));
    EXPECT_EQ(file.major, 1);
    EXPECT_EQ(file.minor, 2);
    EXPECT_EQ(file.header.at("progname"), "zelk-survey");
    EXPECT_EQ(file.header.at("timestamp"), "1750000000");
    EXPECT_EQ(file.total(), survey.stats.totalBytes);
    EXPECT_EQ(file.named("Old").depth, 2U);
    EXPECT_TRUE(file.named("closed").readError);
    EXPECT_FALSE(file.named("Docs").readError);
}

TEST(NcduExport, hasAnEntryForFilesThatTakeNoSpaceAndNoneForNoFiles) {
    Survey survey = emptySurvey();
    FSNode& root = addFolder(*survey.tree, "/a");
    addFolder(root, "full", 0, 3);
    addFolder(root, "empty");
    settle(survey);
    const NcduFile file = readNcdu(exported(survey));
    ASSERT_EQ(file.entries.size(), 4U);
    EXPECT_EQ(file.entries[2].name, "(3 files)");
    EXPECT_EQ(file.entries[2].dsize, 0);
    EXPECT_FALSE(file.entries[2].isFolder);
}

TEST(NcduExport, keepsEveryByteOfAName) {
    Survey survey = emptySurvey();
    FSNode& root = addFolder(*survey.tree, "/\xFF\"root\\");
    std::string all;
    for (unsigned byte = 1; byte < 256; ++byte) {
        const std::string name{'x', static_cast<char>(byte)};
        addFolder(root, name);
        all += static_cast<char>(byte);
    }
    addFolder(root, all);
    settle(survey);
    const std::string bytes = exported(survey);
    const NcduFile file = readNcdu(bytes);
    ASSERT_EQ(file.entries.size(), 257U);
    EXPECT_EQ(file.entries[0].name, "/\xFF\"root\\");
    for (unsigned byte = 1; byte < 256; ++byte)
        EXPECT_EQ(file.entries[byte].name, (std::string{'x', static_cast<char>(byte)}));
    EXPECT_EQ(file.entries[256].name, all);
    // Raw, but for those that must not be.
    EXPECT_NE(bytes.find("\"x\xFF\""), std::string::npos);
    EXPECT_NE(bytes.find("\"x\\u001f\""), std::string::npos);
    EXPECT_NE(bytes.find("\"x\\u007f\""), std::string::npos);
    EXPECT_NE(bytes.find("\"x~\""), std::string::npos);
}

TEST(NcduExport, putsSeveralRootsBelowTheFolderAroundThem) {
    struct Case {
        std::vector<std::string> roots;
        std::string around;
        std::vector<std::string> names;
    };
    for (const Case& one :
         {Case{{"/home/a/x", "/home/b"}, "/home", {"a/x", "b"}}, Case{{"/home/a", "/home/ab"}, "/home", {"a", "ab"}},
          Case{{"/usr", "/usr/lib"}, "/", {"usr", "usr/lib"}},
          Case{{"/usr/lib/x", "/usr/lib"}, "/usr", {"lib/x", "lib"}}, Case{{"/usr", "/home"}, "/", {"usr", "home"}},
          Case{{"/", "/home"}, "/", {"/", "home"}}, Case{{"/home", "/"}, "/", {"home", "/"}}}) {
        Survey survey = emptySurvey();
        for (const std::string& root : one.roots) addFolder(*survey.tree, root, 100, 1);
        settle(survey);
        const NcduFile file = readNcdu(exported(survey));
        ASSERT_EQ(file.entries.size(), 1 + 2 * one.names.size());
        EXPECT_EQ(file.entries[0].name, one.around);
        EXPECT_EQ(file.total(), survey.stats.totalBytes);
        for (std::size_t at = 0; at < one.names.size(); ++at) {
            EXPECT_EQ(file.entries[1 + 2 * at].name, one.names[at]);
            EXPECT_EQ(file.entries[1 + 2 * at].depth, 1U);
        }
    }
}

TEST(NcduExport, takesTreesOfAnyDepth) {
    constexpr std::size_t depth = 100'000;
    Survey survey = emptySurvey();
    FSNode* folder = &addFolder(*survey.tree, "/deep", 1, 1);
    for (std::size_t level = 1; level < depth; ++level) folder = &addFolder(*folder, "d", 1, 1);
    folder->setUnreadable();
    settle(survey);
    const NcduFile file = readNcdu(exported(survey));
    ASSERT_EQ(file.entries.size(), 2 * depth);
    EXPECT_EQ(file.total(), static_cast<std::int64_t>(depth));
    EXPECT_EQ(file.entries[2 * depth - 2].depth, depth - 1);
    EXPECT_TRUE(file.entries[2 * depth - 2].readError);
}

TEST(NcduExport, handsOnNothingMoreAfterAFailure) {
    Survey survey = emptySurvey();
    FSNode& root = addFolder(*survey.tree, "/wide");
    for (int at = 0; at < 100'000; ++at) addFolder(root, "a rather long name of a folder");
    std::size_t pieces = 0;
    Output output([&](std::string_view) {
        ++pieces;
        return ENOSPC;
    });
    writeNcduExport(output, survey, "1");
    EXPECT_EQ(output.finish(), ENOSPC);
    EXPECT_EQ(pieces, 1U);
}

TEST(NcduReaderItself, refusesWhatIsNotTheFormat) {
    const std::string good = exported(smallSurvey());
    EXPECT_NO_THROW(readNcdu(good));
    for (std::size_t at = 0; at < good.size(); ++at) EXPECT_ANY_THROW(readNcdu(good.substr(0, at))) << at;
    EXPECT_ANY_THROW(readNcdu("[1,2,{},[{\"name\":\"\n\"}]]\n"));
    EXPECT_ANY_THROW(readNcdu("[1,2,{},[{\"name\":\"\\n\"}]]\n"));
    EXPECT_ANY_THROW(readNcdu("[1,2,{},[{\"size\":1}]]\n"));
    EXPECT_ANY_THROW(readNcdu("[1,2,{},{\"name\":\"a\"}]\n"));
}

}  // namespace
}  // namespace zelk::cli
