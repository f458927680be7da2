// SPDX-License-Identifier: GPL-2.0-or-later
#include "crate/QuitSignals.h"

#include "tests/crate/support/EventLoop.h"

#include <gtest/gtest.h>

#include <csignal>

namespace {

using crate::QuitSignals;

class QuitSignalsFor : public testing::TestWithParam<int> {};

TEST_P(QuitSignalsFor, ArriveOnTheLoopNotInTheHandler) {
    QuitSignals quitSignals;
    int arrived = 0;
    QObject::connect(&quitSignals, &QuitSignals::arrived, [&arrived] { ++arrived; });
    std::raise(GetParam());
    EXPECT_EQ(arrived, 0);
    EXPECT_TRUE(eventually([&arrived] { return arrived == 1; }));
    std::raise(GetParam());
    EXPECT_TRUE(eventually([&arrived] { return arrived == 2; }));
}

TEST_P(QuitSignalsFor, DoAfterwardsWhatTheyDidBefore) {
    static int handled = 0;
    handled = 0;
    const auto former = std::signal(GetParam(), [](int) { ++handled; });
    { const QuitSignals quitSignals; }
    std::raise(GetParam());
    EXPECT_EQ(handled, 1);
    std::signal(GetParam(), former);
}

INSTANTIATE_TEST_SUITE_P(EachSignal, QuitSignalsFor, testing::Values(SIGTERM, SIGINT, SIGHUP));

} // namespace
