// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/MainQueue.h"
#include "tests/CDBurnerPlugin/EventLoop.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEvent>
#include <QEventLoop>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <future>
#include <memory>
#include <stdexcept>
#include <thread>
#include <utility>
#include <vector>

namespace {

using namespace std::chrono_literals;

/// A test that has an application.
class MainQueueTest : public testing::Test {
protected:
    int count_ = 1;
    char name_[5] = "test";
    char *arguments_[2] = {name_, nullptr};
    QCoreApplication application_{count_, arguments_};
};

void holdThread(std::chrono::milliseconds time) {
    const QDeadlineTimer end(time);
    while (!end.hasExpired()) {
    }
}

TEST_F(MainQueueTest, AsyncNeverRunsInsideTheCall) {
    bool hasRun = false;
    MainQueue::async([&hasRun] { hasRun = true; });
    EXPECT_FALSE(hasRun);
    EXPECT_TRUE(runUntil([&hasRun] { return hasRun; }));
}

TEST_F(MainQueueTest, TasksOfOneThreadRunInOrderOnTheMainThread) {
    constexpr int count = 5000;
    std::vector<int> seen;
    bool isOnMainThread = true;
    std::thread worker([&] {
        for (int i = 0; i < count; ++i) {
            MainQueue::async([&, i] {
                seen.push_back(i);
                isOnMainThread = isOnMainThread && MainQueue::isMainThread();
            });
        }
    });
    EXPECT_TRUE(runUntil([&seen] { return seen.size() == count; }));
    worker.join();
    EXPECT_TRUE(isOnMainThread);
    EXPECT_TRUE(std::is_sorted(seen.begin(), seen.end()));
}

TEST_F(MainQueueTest, ALongQueueLeavesRoomForOtherEvents) {
    int tasksRun = 0;
    int tasksOfSlice = 0;
    for (int i = 0; i < 200; ++i) {
        MainQueue::async([&] {
            holdThread(1ms);
            ++tasksRun;
            ++tasksOfSlice;
        });
    }
    int longestSlice = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        longestSlice = std::max(longestSlice, std::exchange(tasksOfSlice, 0));
    });
    timer.start(0);
    EXPECT_TRUE(runUntil([&tasksRun] { return tasksRun == 200; }));
    // Slices are of 5 ms, so of five tasks; two may follow each other.
    EXPECT_GE(longestSlice, 1);
    EXPECT_LE(longestSlice, 10);
}

TEST_F(MainQueueTest, EventsPostedMeanwhileComeBetweenSlices) {
    class Receiver : public QObject {
    public:
        bool event(QEvent *event) override {
            isReached = isReached || event->type() == QEvent::User;
            return true;
        }
        bool isReached = false;
    } receiver;
    int tasksRun = 0;
    int tasksRunBeforeEvent = -1;
    for (int i = 0; i < 100; ++i) {
        MainQueue::async([&] {
            holdThread(1ms);
            if (receiver.isReached && tasksRunBeforeEvent < 0) {
                tasksRunBeforeEvent = tasksRun;
            }
            ++tasksRun;
        });
    }
    QCoreApplication::postEvent(&receiver, new QEvent(QEvent::User));
    EXPECT_TRUE(runUntil([&tasksRun] { return tasksRun == 100; }));
    EXPECT_GE(tasksRunBeforeEvent, 0);
    EXPECT_LT(tasksRunBeforeEvent, 20);
}

TEST_F(MainQueueTest, AnEventLoopInsideATaskGoesOnDraining) {
    bool innerHasRun = false;
    bool outerHasEnded = false;
    MainQueue::async([&] {
        QEventLoop loop; // As a modal alert has it.
        MainQueue::async([&] {
            innerHasRun = true;
            loop.quit();
        });
        QTimer::singleShot(30s, &loop, &QEventLoop::quit);
        loop.exec();
        EXPECT_TRUE(innerHasRun);
        outerHasEnded = true;
    });
    EXPECT_TRUE(runUntil([&outerHasEnded] { return outerHasEnded; }));
}

TEST_F(MainQueueTest, TasksBehindOneThatOpensAnEventLoopRunInThatLoop) {
    std::vector<int> seen;
    bool hasEnded = false;
    QEventLoop *open = nullptr;
    MainQueue::async([&] {
        holdThread(8ms); // Its slice is over: the queue is drained by the timer now.
    });
    MainQueue::async([&] {
        QEventLoop loop;
        open = &loop;
        QTimer::singleShot(30s, &loop, &QEventLoop::quit);
        loop.exec();
        hasEnded = true;
    });
    for (int i = 0; i < 20; ++i) {
        MainQueue::async([&seen, i] {
            holdThread(1ms);
            seen.push_back(i);
        });
    }
    MainQueue::async([&open] { open->quit(); });
    EXPECT_TRUE(runUntil([&hasEnded] { return hasEnded; }));
    EXPECT_EQ(seen.size(), 20U);
}

TEST_F(MainQueueTest, AnExceptionEndsWithItsTask) {
    bool hasRun = false;
    MainQueue::async([] { throw std::runtime_error("deliberate"); });
    MainQueue::async([&hasRun] { hasRun = true; });
    EXPECT_TRUE(runUntil([&hasRun] { return hasRun; }));
    EXPECT_TRUE(MainQueue::sync([] { throw 1; }));
}

TEST_F(MainQueueTest, SyncRunsInlineOnTheMainThread) {
    bool hasRun = false;
    EXPECT_TRUE(MainQueue::sync([&hasRun] { hasRun = true; }));
    EXPECT_TRUE(hasRun);
}

TEST_F(MainQueueTest, SyncWaitsBehindTheTasksBefore) {
    std::vector<int> seen;
    std::atomic<bool> isOver = false;
    std::thread worker([&] {
        MainQueue::async([&seen] { seen.push_back(1); });
        EXPECT_TRUE(MainQueue::sync([&seen] { seen.push_back(2); }));
        EXPECT_EQ(seen, (std::vector{1, 2}));
        isOver = true;
    });
    EXPECT_TRUE(runUntil([&isOver] { return isOver.load(); }));
    worker.join();
}

TEST_F(MainQueueTest, AWorkerThatWaitsGivesUpWhenTheApplicationQuits) {
    bool hasRun = false;
    std::promise<bool> answer;
    std::thread worker([&] { answer.set_value(MainQueue::sync([&hasRun] { hasRun = true; })); });
    auto result = answer.get_future();
    QTimer::singleShot(0, &application_, [&] {
        // No event loop runs from here on: only quitting can let the worker go.
        QMetaObject::invokeMethod(&application_, "aboutToQuit", Qt::DirectConnection);
        EXPECT_EQ(result.wait_for(10s), std::future_status::ready);
        application_.quit();
    });
    QCoreApplication::exec();
    worker.join();
    EXPECT_EQ(result.get(), hasRun);
}

TEST_F(MainQueueTest, SyncIsRefusedAfterTheApplicationWasAboutToQuit) {
    QTimer::singleShot(0, &application_, &QCoreApplication::quit);
    QCoreApplication::exec();
    bool answer = true;
    std::thread([&answer] { answer = MainQueue::sync([] { FAIL(); }); }).join();
    EXPECT_FALSE(answer);
}

TEST_F(MainQueueTest, ATaskIsDestroyedOnTheMainThread) {
    const auto token = std::make_shared<int>(0);
    std::atomic<std::thread::id> where;
    auto held = std::shared_ptr<int>(new int, [&where](int *value) {
        where = std::this_thread::get_id();
        delete value;
    });
    std::thread([&held] { MainQueue::async([moved = std::move(held)] {}); }).join();
    EXPECT_TRUE(runUntil([&where] { return where.load() != std::thread::id(); }));
    EXPECT_EQ(where.load(), std::this_thread::get_id());
}

TEST(MainQueueWithoutApplication, KnowsTheMainThread) {
    EXPECT_TRUE(MainQueue::isMainThread());
    std::thread([] { EXPECT_FALSE(MainQueue::isMainThread()); }).join();
}

TEST(MainQueueWithoutApplication, RefusesToWait) {
    bool answer = true;
    std::thread([&answer] { answer = MainQueue::sync([] { FAIL(); }); }).join();
    EXPECT_FALSE(answer);
}

TEST(MainQueueWithoutApplication, KeepsTasksForTheApplicationToCome) {
    bool hasRun = false;
    MainQueue::async([&hasRun] { hasRun = true; });
    int count = 0;
    QCoreApplication application(count, nullptr);
    QTimer::singleShot(30s, &application, &QCoreApplication::quit);
    MainQueue::async([] { QCoreApplication::quit(); });
    QCoreApplication::exec();
    EXPECT_TRUE(hasRun);
}

TEST(MainQueueWithoutApplication, DropsTasksThatTheEndLeaves) {
    const auto held = std::make_shared<int>(0);
    {
        int count = 0;
        const QCoreApplication application(count, nullptr);
        MainQueue::async([held] { FAIL(); });
        EXPECT_EQ(held.use_count(), 2);
    }
    EXPECT_EQ(held.use_count(), 1);
}

} // namespace
