// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/TestMainQueue.h"

#include "engine/ScorchHooks.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <utility>

using Clock = std::chrono::steady_clock;

struct TestMainQueue::Shared {
    mutable std::mutex mutex;
    std::condition_variable posted;
    std::deque<Task> tasks;
    bool open = true;

    void post(Task task) {
        {
            const std::lock_guard lock(mutex);
            if (!open) {
                return;
            }
            tasks.push_back(std::move(task));
        }
        posted.notify_one();
    }
};

std::shared_ptr<TestMainQueue::Shared> TestMainQueue::makeShared() {
    return std::make_shared<Shared>();
}

TestMainQueue::~TestMainQueue() {
    if (installed_) {
        ScorchHooks::shared().postToMainThread = nullptr;
    }
    std::deque<Task> dropped; // Destroyed without the lock: a task may own what posts at its end.
    {
        const std::lock_guard lock(shared_->mutex);
        shared_->open = false;
        dropped.swap(shared_->tasks);
    }
}

void TestMainQueue::install() {
    installed_ = true;
    ScorchHooks::shared().postToMainThread = poster();
}

void TestMainQueue::post(Task task) {
    shared_->post(std::move(task));
}

std::function<void(TestMainQueue::Task)> TestMainQueue::poster() {
    return [shared = shared_](Task task) {
        shared->post(std::move(task));
    };
}

std::size_t TestMainQueue::pending() const {
    const std::lock_guard lock(shared_->mutex);
    return shared_->tasks.size();
}

bool TestMainQueue::runOne() {
    Task task;
    {
        const std::lock_guard lock(shared_->mutex);
        if (shared_->tasks.empty()) {
            return false;
        }
        task = std::move(shared_->tasks.front());
        shared_->tasks.pop_front();
    }
    const Clock::time_point start = Clock::now();
    task();
    task = nullptr;
    longestTask_ = std::max<std::chrono::nanoseconds>(longestTask_, Clock::now() - start);
    return true;
}

void TestMainQueue::runPending() {
    while (runOne()) {
    }
}

bool TestMainQueue::waitForTask(Clock::time_point until) {
    std::unique_lock lock(shared_->mutex);
    return shared_->posted.wait_until(lock, until, [this] { return !shared_->tasks.empty(); });
}

bool TestMainQueue::runUntil(const std::function<bool()> &done,
                             std::chrono::milliseconds deadline) {
    const Clock::time_point end = Clock::now() + deadline;
    while (!done()) {
        if (!waitForTask(std::min(end, Clock::now() + std::chrono::milliseconds(20)))) {
            if (Clock::now() >= end) {
                ADD_FAILURE() << "nothing came within the deadline";
                return false;
            }
            continue; // `done` may wait for something that posts no task.
        }
        runOne();
    }
    return true;
}

void TestMainQueue::runFor(std::chrono::milliseconds time) {
    const Clock::time_point end = Clock::now() + time;
    while (waitForTask(end)) {
        runOne();
    }
}
