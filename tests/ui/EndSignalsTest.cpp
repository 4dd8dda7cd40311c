// SPDX-License-Identifier: MIT
#include "ui/shell/EndSignals.h"

#include <gtest/gtest.h>
#include <signal.h>

#include "fakes/EventLoop.h"
#include "fakes/OpenDescriptors.h"

namespace zelk {

namespace {

bool hasDefault(int signal) {
    struct sigaction action = {};
    sigaction(signal, nullptr, &action);
    return action.sa_handler == SIG_DFL;
}

}  // namespace

TEST(EndSignals, callsHandlerOnceFromEventLoop) {
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        int asked = 0;
        const EndSignals endSignals([&] { ++asked; });
        ::raise(signal);
        EXPECT_EQ(asked, 0);
        runUntil([&] { return asked > 0; });
        runWhatIsThere();
        EXPECT_EQ(asked, 1);
        EXPECT_TRUE(hasDefault(signal)) << "a second signal ends the process";
    }
}

TEST(EndSignals, restoresDefaultHandlers) {
    const auto open = fakes::openDescriptors();
    {
        const EndSignals endSignals([] {});
        for (const int signal : {SIGTERM, SIGINT, SIGHUP}) EXPECT_FALSE(hasDefault(signal));
    }
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) EXPECT_TRUE(hasDefault(signal));
    EXPECT_EQ(fakes::openDescriptors(), open);
}

}  // namespace zelk
