// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <deque>
#include <functional>
#include <mutex>
#include <vector>

namespace cli {

/// The main thread's loop: runs tasks from any thread in the order in which they were posted, and
/// tells of the signals that ask the program to end. Made, run and destroyed on the main thread.
///
/// The signals are blocked from the constructor on, so it must be made before the first thread;
/// they are read from a descriptor, and so interrupt nothing. A signal that was ignored when the
/// program started (nohup, a background job) stays ignored.
class MainLoop {
public:
    /// `signals`: the ones to wait for (SIGINT, SIGTERM, …).
    explicit MainLoop(const std::vector<int> &signals);
    ~MainLoop();
    MainLoop(const MainLoop &) = delete;
    MainLoop &operator=(const MainLoop &) = delete;

    /// Any thread. Never runs the task inline.
    void post(std::function<void()> task);

    /// Called on the main thread for each signal that arrives while run() runs.
    void setSignalHandler(std::function<void()> handler) { signalHandler_ = std::move(handler); }

    /// Runs until quit() and returns its argument. Tasks that are left over are dropped with the
    /// loop.
    int run();

    /// Main thread. The first call counts.
    void quit(int exitCode);

private:
    void runTasks();
    void readSignals();

    const int wakeDescriptor_;
    int signalDescriptor_ = -1;
    std::function<void()> signalHandler_;
    bool quitting_ = false;
    int exitCode_ = 0;
    std::mutex mutex_;
    std::deque<std::function<void()>> tasks_; ///< Under mutex_.
};

} // namespace cli
