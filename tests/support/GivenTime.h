// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <atomic>
#include <chrono>
#include <thread>

/// Time as this process got it, for tests that say how long something may take at most. A thread
/// looks every millisecond, and more than a few between two looks are not counted: then the machine
/// was busy with others, or the process was stopped. So such a limit holds on any machine.
class GivenTime {
public:
    GivenTime();
    ~GivenTime();
    GivenTime(const GivenTime &) = delete;
    GivenTime &operator=(const GivenTime &) = delete;

    /// Since the construction, or the last restart. Any thread.
    std::chrono::milliseconds elapsed() const;

    /// Begins anew and answers what has elapsed until then. One thread at a time.
    std::chrono::milliseconds restart();

private:
    void count();

    std::atomic<std::chrono::nanoseconds> counted_{};
    std::atomic<std::chrono::nanoseconds> begin_{};
    std::atomic<bool> ended_ = false;
    std::thread thread_; ///< The last: it uses all above.
};
