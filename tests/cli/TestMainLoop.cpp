// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/MainLoop.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <thread>

using cli::MainLoop;
using testing::ElementsAre;

namespace {

/// Puts the mask and the action of a signal back.
class SignalGuard {
public:
    explicit SignalGuard(int signal) : signal_(signal) {
        pthread_sigmask(SIG_SETMASK, nullptr, &mask_);
        sigaction(signal_, nullptr, &action_);
    }
    ~SignalGuard() {
        sigaction(signal_, &action_, nullptr);
        pthread_sigmask(SIG_SETMASK, &mask_, nullptr);
    }
    SignalGuard(const SignalGuard &) = delete;
    SignalGuard &operator=(const SignalGuard &) = delete;

private:
    int signal_;
    sigset_t mask_{};
    struct sigaction action_ {};
};

} // namespace

TEST(MainLoop, TasksRunInTheOrderOfPosting) {
    MainLoop loop({});
    std::vector<int> ran;
    loop.post([&] {
        ran.push_back(1);
        loop.post([&] {
            ran.push_back(3);
            loop.quit(7);
        });
    });
    loop.post([&] { ran.push_back(2); });
    EXPECT_THAT(ran, testing::IsEmpty()) << "never inline";
    EXPECT_EQ(loop.run(), 7);
    EXPECT_THAT(ran, ElementsAre(1, 2, 3));
}

TEST(MainLoop, TasksOfOtherThreadsRunOnTheMainThread) {
    MainLoop loop({});
    std::vector<int> ran;
    std::thread::id where;
    const auto count = [&](int i) {
        ran.push_back(i);
        where = std::this_thread::get_id();
        if (i == 999) {
            loop.quit(0);
        }
    };
    std::thread poster([&] {
        for (int i = 0; i < 1000; ++i) {
            loop.post([&count, i] { count(i); });
        }
    });
    EXPECT_EQ(loop.run(), 0);
    poster.join();
    EXPECT_EQ(where, std::this_thread::get_id());
    ASSERT_EQ(ran.size(), 1000U);
    EXPECT_TRUE(std::is_sorted(ran.begin(), ran.end()));
}

TEST(MainLoop, NothingRunsAfterQuit) {
    MainLoop loop({});
    bool late = false;
    loop.post([&] { loop.quit(1); });
    loop.post([&] { late = true; });
    loop.post([&] { loop.quit(2); });
    EXPECT_EQ(loop.run(), 1);
    EXPECT_FALSE(late);
}

TEST(MainLoop, EachSignalReachesTheHandlerOnTheMainThread) {
    const SignalGuard guard(SIGTERM);
    std::signal(SIGTERM, SIG_DFL);
    MainLoop loop({SIGTERM});
    int signals = 0;
    loop.setSignalHandler([&] {
        ++signals;
        if (signals == 2) {
            loop.quit(130);
        } else {
            raise(SIGTERM);
        }
    });
    raise(SIGTERM);
    EXPECT_EQ(loop.run(), 130);
    EXPECT_EQ(signals, 2);
}

TEST(MainLoop, SignalThatWasIgnoredAtTheStartStaysIgnored) {
    const SignalGuard guard(SIGHUP);
    std::signal(SIGHUP, SIG_IGN);
    MainLoop loop({SIGHUP});
    int signals = 0;
    loop.setSignalHandler([&] { ++signals; });
    loop.post([&] {
        raise(SIGHUP);
        loop.post([&] { loop.quit(0); });
    });
    EXPECT_EQ(loop.run(), 0);
    EXPECT_EQ(signals, 0);
}
