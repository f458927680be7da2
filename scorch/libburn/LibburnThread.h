// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/libburn/MessageInbox.h"

#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace scorch {

class LibburnSession;

/// The one thread that calls libburn, which makes no promise for several: everybody else hands it
/// short jobs. Started by the first job, with the library; ended by the destructor. One object in
/// a process at a time. libburn writes on threads of its own, which the library keeps.
class LibburnThread {
public:
    LibburnThread();
    /// Waits some seconds for sessions that were left to it.
    ~LibburnThread();
    LibburnThread(const LibburnThread &) = delete;
    LibburnThread &operator=(const LibburnThread &) = delete;

    /// Runs a job there and waits for its end. Any other thread. False where the thread or the
    /// library could not be started; the job did not run then. Jobs must not throw.
    bool run(const std::function<void()> &job);

    /// From now until the inbox is gone, it gets what libburn says during and between the jobs.
    std::shared_ptr<MessageInbox> subscribe();

    /// For a session whose drive does not come to rest: it is released as soon as it does.
    void leave(std::unique_ptr<LibburnSession> session);

private:
    struct Job {
        const std::function<void()> *work;
        bool isDone = false;
    };

    bool start();
    void serve();
    void finish();
    void lookAfterSessions();
    void handOutMessages();

    std::mutex mutex_;
    std::condition_variable arrived_;
    std::condition_variable done_;
    std::deque<Job *> jobs_;
    std::vector<std::weak_ptr<MessageInbox>> inboxes_;
    std::vector<std::unique_ptr<LibburnSession>> left_;
    bool isEnding_ = false;
    bool isUsable_ = false; ///< The library has been started.
    bool hasTried_ = false;
    std::thread thread_;
};

} // namespace scorch
