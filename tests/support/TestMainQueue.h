// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>

/// A main thread's queue of tasks for tests without an event loop. Tasks come from any thread; they
/// run when the test says so, on the thread that says so. Its destructor drops what is left.
class TestMainQueue {
public:
    using Task = std::function<void()>;

    TestMainQueue() = default;
    ~TestMainQueue();
    TestMainQueue(const TestMainQueue &) = delete;
    TestMainQueue &operator=(const TestMainQueue &) = delete;

    /// Makes ScorchHooks hand the engine's tasks to this queue, until it is destroyed.
    void install();

    /// Queues a task. Any thread.
    void post(Task task);

    /// A function that posts here and may outlive the queue.
    std::function<void(Task)> poster();

    /// Tasks that wait.
    std::size_t pending() const;

    /// Runs the first task that waits. False if there is none.
    bool runOne();

    /// Runs tasks until there is none, those that are posted meanwhile included.
    void runPending();

    /// Runs tasks as they come until `done` holds; asked before the first and after each. False,
    /// with a test failure, if the deadline passes first.
    bool runUntil(const std::function<bool()> &done,
                  std::chrono::milliseconds deadline = std::chrono::seconds(20));

    /// Runs whatever comes for that long: to see that something does not happen. Nothing is waited
    /// for that a slow machine could miss.
    void runFor(std::chrono::milliseconds time);

    /// The longest time that one task took so far.
    std::chrono::nanoseconds longestTask() const { return longestTask_; }

private:
    struct Shared;

    bool waitForTask(std::chrono::steady_clock::time_point until);

    std::shared_ptr<Shared> shared_ = makeShared();
    std::chrono::nanoseconds longestTask_{0};
    bool installed_ = false;

    static std::shared_ptr<Shared> makeShared();
};
