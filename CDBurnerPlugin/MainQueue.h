// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <functional>

/// The one serial queue of work for the main thread: the way by which other threads, and code that
/// must not run inside its caller, reach widgets.
///
/// Tasks run strictly in the order of their arrival, in slices of about 5 ms with the event loop
/// between them, so that input and painting are never held up by a long queue. Event loops that a
/// task opens (a modal alert) go on draining the queue. An exception that leaves a task is logged
/// and ends there. Tasks that are left when the application ends are dropped.
class MainQueue {
public:
    MainQueue() = delete;

    /// Runs `task` later on the main thread, never inside this call. Any thread, also while
    /// there is no application object (the task waits for the next one). The task is destroyed on
    /// the main thread, so what it holds the last reference to dies there.
    static void async(std::function<void()> task);

    /// Runs `task` on the main thread and returns when it has run: at once when called there, in
    /// its turn in the queue when called elsewhere. False, and the task did not and will not run,
    /// when there is no application or it is about to quit: a worker that waited for an event loop
    /// that is gone would keep the process from ending.
    static bool sync(const std::function<void()> &task);

    /// The thread of the application object; before there is one, the one that `main` runs on.
    static bool isMainThread();
};
