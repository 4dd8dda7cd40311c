// SPDX-License-Identifier: MIT
#include "ui/shell/SingleInstance.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <string>

namespace zelk {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using Answer = MeetingPoint::Answer;
using Claim = MeetingPoint::Claim;

/// What a meeting point says, one claim and answer after the other; the last ones again and again.
struct Script {
    std::string name;
    std::vector<Claim> claims;
    std::vector<Answer> answers = {};
};

/// A meeting point that does as it is told and writes down what is asked of it.
class ToldPoint : public MeetingPoint {
public:
    ToldPoint(Script script, std::vector<std::string>& log, int& there)
        : script_(std::move(script)), log_(log), there_(there) {
        ++there_;
    }
    ~ToldPoint() override { --there_; }

    Claim claim() override {
        note("claim");
        return next(script_.claims, claims_);
    }
    Answer call(const Activation& by) override {
        note("call " + by.token.toStdString());
        return next(script_.answers, answers_);
    }
    void serve(Handler) override { note("serve"); }
    void announce() override { note("announce"); }

private:
    template <class Value>
    static Value next(const std::vector<Value>& values, std::size_t& at) {
        return values.at(std::min(at++, values.size() - 1));
    }
    void note(const std::string& what) { log_.push_back(script_.name + " " + what); }

    Script script_;
    std::vector<std::string>& log_;
    int& there_;
    std::size_t claims_ = 0;
    std::size_t answers_ = 0;
};

class SingleInstanceTest : public testing::Test {
protected:
    /// The exit status of a start at these points, -1 if it is the first. `log` is what was asked, `held` how many
    /// points it keeps.
    int start(std::vector<Script> scripts) {
        std::vector<std::unique_ptr<MeetingPoint>> points;
        log.clear();
        int there = 0;
        for (Script& script : scripts) points.push_back(std::make_unique<ToldPoint>(std::move(script), log, there));
        testing::internal::CaptureStderr();
        const SingleInstance instance(std::move(points), {QStringLiteral("token"), {}});
        held = there;
        errors = testing::internal::GetCapturedStderr();
        return instance.exitStatus().value_or(-1);
    }

    std::vector<std::string> log;
    int held = 0;
    std::string errors;
};

}  // namespace

TEST_F(SingleInstanceTest, firstHoldsEveryPoint) {
    EXPECT_EQ(start({{"bus", {Claim::held}}, {"folder", {Claim::held}}}), -1);
    EXPECT_THAT(log, ElementsAre("bus claim", "folder claim"));
    EXPECT_EQ(held, 2);
    EXPECT_EQ(errors, "");
}

TEST_F(SingleInstanceTest, isFirstWhereThereIsNoPoint) {
    EXPECT_EQ(start({}), -1);
    EXPECT_EQ(start({{"bus", {Claim::impossible}}, {"folder", {Claim::impossible}}}), -1);
    EXPECT_EQ(errors, "");
}

TEST_F(SingleInstanceTest, secondAsksFirstAndEndsWell) {
    EXPECT_EQ(start({{"bus", {Claim::taken}, {Answer::heard}}, {"folder", {Claim::held}}}), 0);
    EXPECT_THAT(log, ElementsAre("bus claim", "bus call token")) << "nothing further is taken";
    EXPECT_EQ(errors, "");
}

TEST_F(SingleInstanceTest, secondMeetsFirstAtAnyPoint) {
    EXPECT_EQ(start({{"bus", {Claim::impossible}}, {"folder", {Claim::taken}, {Answer::heard}}}), 0);
    EXPECT_THAT(log, ElementsAre("bus claim", "folder claim", "folder call token"));
}

TEST_F(SingleInstanceTest, secondLeavesWhatItHeldBefore) {
    EXPECT_EQ(start({{"bus", {Claim::held}}, {"folder", {Claim::taken}, {Answer::heard}}}), 0);
    EXPECT_THAT(log, ElementsAre("bus claim", "folder claim", "folder call token"));
    EXPECT_EQ(held, 0);
}

TEST_F(SingleInstanceTest, secondDoesNotWaitForFirstThatStarts) {
    EXPECT_EQ(start({{"bus", {Claim::taken}, {Answer::starting}}}), 0);
    EXPECT_EQ(errors, "Zelk is running already.\n");
}

TEST_F(SingleInstanceTest, secondSaysThatFirstIsSilent) {
    EXPECT_EQ(start({{"bus", {Claim::taken}, {Answer::silent}}, {"folder", {Claim::held}}}), 1);
    EXPECT_THAT(log, ElementsAre("bus claim", "bus call token"));
    EXPECT_THAT(errors, HasSubstr("running already, but does not answer"));
}

TEST_F(SingleInstanceTest, takesThePlaceOfFirstThatIsGone) {
    EXPECT_EQ(start({{"bus", {Claim::taken, Claim::held}, {Answer::gone}}}), -1);
    EXPECT_THAT(log, ElementsAre("bus claim", "bus call token", "bus claim"));
    EXPECT_EQ(errors, "");
}

TEST_F(SingleInstanceTest, asksWhoeverCameAfterFirst) {
    EXPECT_EQ(start({{"bus", {Claim::taken}, {Answer::gone, Answer::gone, Answer::heard}}}), 0);
    EXPECT_EQ(log.size(), 6U);
    EXPECT_EQ(errors, "");
}

TEST_F(SingleInstanceTest, givesUpOnWhatIsAlwaysGone) {
    EXPECT_EQ(start({{"bus", {Claim::taken}, {Answer::gone}}}), 1);
    EXPECT_GT(log.size(), 10U);
    EXPECT_THAT(errors, HasSubstr("does not answer"));
}

}  // namespace zelk
