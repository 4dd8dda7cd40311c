// SPDX-License-Identifier: MIT
// Records that become unwanted, in every state of their write.
#include <gmock/gmock.h>

#include "fakes/FakePlatform.h"
#include "state/SurveyHistory.h"

namespace zelk {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::Optional;

class WithdrawnRecords : public testing::Test {
protected:
    WithdrawnRecords() {
        locations.applicationSupportPath = "/home/me/support";
        files.addFolder("/home/me");
    }

    static SurveyRecord numbered(int number) {
        SurveyRecord record;
        record.totalScanned = number;
        record.folders = SizeByPath{{"/home/me", number}};
        return record;
    }

    /// Appends a record that is wanted for as long as `wanted` is true.
    std::optional<std::vector<SurveyRecord>> appendWhile(const bool& wanted, const SurveyRecord& record) {
        return history.appendHistoryIf([&wanted] { return wanted; }, record);
    }

    /// Sixty records, the oldest of which the next one displaces.
    void fillUp() {
        for (int i = 1; i <= 60; ++i) history.appendHistory(numbered(i));
        full = history.load();
        ASSERT_EQ(full.size(), 60u);
    }

    static constexpr bool no = false;
    static constexpr bool yes = true;
    const std::string path = "/home/me/support/Zelk/history.json";
    fakes::FakeFileManager files;
    fakes::FakeLocations locations;
    SurveyHistory history{files, locations};
    std::vector<SurveyRecord> full;
};

TEST_F(WithdrawnRecords, unwantedBeforeWriteIsNeitherWrittenNorReturned) {
    history.appendHistory(numbered(1));
    files.forgetCalls();
    EXPECT_EQ(appendWhile(no, numbered(2)), std::nullopt);
    EXPECT_THAT(files.pathsOf("replaceDurably"), IsEmpty());
    EXPECT_THAT(history.load(), ElementsAre(numbered(1)));
}

TEST_F(WithdrawnRecords, isAskedRightBeforeWrite) {
    bool wanted = true;
    files.failing = [&](const auto& call) {
        if (call.operation == "read") wanted = false;
        return false;
    };
    EXPECT_EQ(appendWhile(wanted, numbered(1)), std::nullopt);
    EXPECT_EQ(files.content(path), std::nullopt);
}

TEST_F(WithdrawnRecords, settleRemovesUnwantedRecord) {
    bool wanted = true;
    history.appendHistory(numbered(1));
    EXPECT_THAT(appendWhile(wanted, numbered(2)), Optional(ElementsAre(numbered(1), numbered(2))));
    wanted = false;
    history.settle();
    EXPECT_THAT(history.load(), ElementsAre(numbered(1)));
}

TEST_F(WithdrawnRecords, nextAppendRemovesUnwantedRecord) {
    bool wanted = true;
    appendWhile(wanted, numbered(1));
    wanted = false;
    EXPECT_THAT(appendWhile(yes, numbered(2)), Optional(ElementsAre(numbered(2))));
    EXPECT_THAT(history.load(), ElementsAre(numbered(2)));
}

TEST_F(WithdrawnRecords, secondUnwantedRecordLeavesNothing) {
    bool wanted = true;
    appendWhile(wanted, numbered(1));
    wanted = false;
    EXPECT_EQ(appendWhile(no, numbered(2)), std::nullopt);
    history.settle();
    EXPECT_THAT(history.load(), IsEmpty());
}

TEST_F(WithdrawnRecords, recordUnwantedDuringItsWriteLeavesNothing) {
    bool first = true;
    bool second = true;
    appendWhile(first, numbered(1));
    first = false;
    files.failing = [&](const auto& call) {
        if (call.operation == "replaceDurably") second = false;
        return false;
    };
    appendWhile(second, numbered(2));
    history.settle();
    EXPECT_THAT(history.load(), IsEmpty());
}

TEST_F(WithdrawnRecords, retriesRemovalAfterFailedWrite) {
    bool wanted = true;
    appendWhile(wanted, numbered(1));
    wanted = false;
    files.failing = [](const auto& call) { return call.operation == "replaceDurably"; };
    history.settle();
    EXPECT_THAT(appendWhile(yes, numbered(2)), Optional(ElementsAre(numbered(2))));
    EXPECT_THAT(history.load(), ElementsAre(numbered(1)));
    files.failing = nullptr;
    history.settle();
    EXPECT_THAT(history.load(), IsEmpty());
}

TEST_F(WithdrawnRecords, retriesRemovalAfterFailedRead) {
    bool wanted = true;
    appendWhile(wanted, numbered(1));
    wanted = false;
    files.failing = [](const auto& call) { return call.operation == "read"; };
    history.settle();
    files.failing = nullptr;
    EXPECT_THAT(history.load(), ElementsAre(numbered(1)));
    history.settle();
    EXPECT_THAT(history.load(), IsEmpty());
}

TEST_F(WithdrawnRecords, settleRestoresDroppedRecords) {
    fillUp();
    bool wanted = true;
    appendWhile(wanted, numbered(61));
    EXPECT_THAT(history.load(), Not(full));
    wanted = false;
    history.settle();
    EXPECT_EQ(history.load(), full);
    history.settle();
    EXPECT_EQ(history.load(), full);
}

TEST_F(WithdrawnRecords, settleRestoresDroppedRecordsAfterTwoUnwanted) {
    fillUp();
    bool wanted = true;
    appendWhile(wanted, numbered(61));
    wanted = false;
    EXPECT_EQ(appendWhile(no, numbered(62)), std::nullopt);
    history.settle();
    EXPECT_EQ(history.load(), full);
}

TEST_F(WithdrawnRecords, nextAppendDropsOldestOnce) {
    fillUp();
    bool first = true;
    bool second = true;
    appendWhile(first, numbered(61));
    first = false;
    appendWhile(second, numbered(62));
    EXPECT_EQ(history.load().front(), numbered(2));
    EXPECT_EQ(history.load().back(), numbered(62));
    second = false;
    history.settle();
    EXPECT_EQ(history.load(), full);
}

TEST_F(WithdrawnRecords, equalOlderRecordStays) {
    bool wanted = true;
    history.appendHistory(numbered(1));
    history.appendHistory(numbered(2));
    appendWhile(wanted, numbered(1));
    wanted = false;
    history.settle();
    EXPECT_THAT(history.load(), ElementsAre(numbered(1), numbered(2)));
}

TEST_F(WithdrawnRecords, settleIgnoresFileWithoutUnwantedRecord) {
    bool wanted = true;
    fillUp();
    appendWhile(wanted, numbered(61));
    files.addFile(path, encodeHistory({numbered(7)}));
    files.forgetCalls();
    wanted = false;
    history.settle();
    EXPECT_THAT(files.pathsOf("replaceDurably"), IsEmpty());
    EXPECT_THAT(history.load(), ElementsAre(numbered(7)));
}

TEST_F(WithdrawnRecords, laterWriteMakesRecordFinal) {
    bool wanted = true;
    appendWhile(wanted, numbered(1));
    appendWhile(yes, numbered(2));
    wanted = false;
    history.settle();
    EXPECT_THAT(history.load(), ElementsAre(numbered(1), numbered(2)));
}

TEST_F(WithdrawnRecords, settleKeepsWantedRecord) {
    appendWhile(yes, numbered(1));
    files.forgetCalls();
    history.settle();
    EXPECT_THAT(files.pathsOf("replaceDurably"), IsEmpty());
    EXPECT_THAT(history.load(), ElementsAre(numbered(1)));
}

TEST_F(WithdrawnRecords, withoutLocationRecordIsReturnedButForgotten) {
    locations.applicationSupportPath.reset();
    bool wanted = true;
    EXPECT_THAT(appendWhile(wanted, numbered(1)), Optional(ElementsAre(numbered(1))));
    wanted = false;
    history.settle();
    EXPECT_THAT(files.calls(), IsEmpty());
}

}  // namespace
}  // namespace zelk
