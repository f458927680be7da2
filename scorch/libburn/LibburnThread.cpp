// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/libburn/LibburnThread.h"

#include "scorch/libburn/LibburnSession.h"
#include "scorch/support/WorkerThread.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <iterator>
#include <libburn/libburn.h>
#include <optional>
#include <string_view>
#include <system_error>
#include <utility>

namespace scorch {
namespace {

using namespace std::chrono_literals;

/// How often sessions that were left are looked at.
constexpr auto sessionInterval = 100ms;
/// What the end of the program waits for them. A drive that has not answered for minutes before
/// will not do so now.
constexpr auto lastPatience = 3s;

std::optional<LibburnMessage> nextMessage() {
    std::array<char, BURN_MSGS_MESSAGE_LEN> text{};
    std::array<char, 80> severity{};
    std::array<char, 4> all = {'A', 'L', 'L', '\0'};
    LibburnMessage message;
    if (burn::burn_msgs_obtain(all.data(), &message.code, text.data(), &message.systemError,
                               severity.data()) <= 0) {
        return std::nullopt;
    }
    static constexpr std::array<std::string_view, 5> errors = {"ABORT", "FATAL", "FAILURE",
                                                               "MISHAP", "SORRY"};
    message.isError =
        std::find(errors.begin(), errors.end(), std::string_view(severity.data())) != errors.end();
    message.text = text.data();
    while (message.text.ends_with('\n')) {
        message.text.pop_back();
    }
    return message;
}

bool startLibrary() {
    if (burn::burn_initialize() == 0) {
        return false;
    }
    // Nothing is printed: a program that has the engine in it owns its outputs.
    std::array<char, 6> queued = {'D', 'E', 'B', 'U', 'G', '\0'};
    std::array<char, 6> printed = {'N', 'E', 'V', 'E', 'R', '\0'};
    std::array<char, 1> prefix = {'\0'};
    burn::burn_msgs_set_severities(queued.data(), printed.data(), prefix.data());
    return true;
}

} // namespace

LibburnThread::LibburnThread() = default;

LibburnThread::~LibburnThread() {
    {
        const std::lock_guard lock(mutex_);
        isEnding_ = true;
    }
    arrived_.notify_one();
    if (thread_.joinable()) {
        thread_.join();
    }
}

bool LibburnThread::start() {
    if (!hasTried_) {
        hasTried_ = true;
        try {
            thread_ = startWorkerThread("scorch-libburn", [this] { serve(); });
        } catch (const std::system_error &) {
            return false;
        }
    }
    return thread_.joinable();
}

bool LibburnThread::run(const std::function<void()> &job) {
    std::unique_lock lock(mutex_);
    if (!start()) {
        return false;
    }
    Job entry{.work = &job};
    jobs_.push_back(&entry);
    arrived_.notify_one();
    done_.wait(lock, [&entry] { return entry.isDone; });
    return isUsable_;
}

std::shared_ptr<MessageInbox> LibburnThread::subscribe() {
    auto inbox = std::make_shared<MessageInbox>();
    const std::lock_guard lock(mutex_);
    inboxes_.emplace_back(inbox);
    return inbox;
}

void LibburnThread::leave(std::unique_ptr<LibburnSession> session) {
    const std::lock_guard lock(mutex_);
    left_.push_back(std::move(session));
    arrived_.notify_one();
}

void LibburnThread::serve() {
    const bool isUsable = startLibrary();
    std::unique_lock lock(mutex_);
    isUsable_ = isUsable;
    while (true) {
        const auto isAwaited = [this] {
            return isEnding_ || !jobs_.empty();
        };
        left_.empty() ? arrived_.wait(lock, [&] { return isAwaited() || !left_.empty(); })
                      : static_cast<void>(arrived_.wait_for(lock, sessionInterval, isAwaited));
        if (!jobs_.empty()) {
            Job *const job = jobs_.front();
            jobs_.pop_front();
            lock.unlock();
            if (isUsable) {
                handOutMessages(); // What came before is not about this job.
                (*job->work)();
                handOutMessages();
            }
            lock.lock();
            job->isDone = true;
            done_.notify_all();
        } else if (isEnding_) {
            break;
        }
        lock.unlock();
        lookAfterSessions();
        lock.lock();
    }
    lock.unlock();
    finish();
}

/// Nobody adds jobs or sessions any more.
void LibburnThread::finish() {
    const auto deadline = std::chrono::steady_clock::now() + lastPatience;
    while (!left_.empty() && std::chrono::steady_clock::now() < deadline) {
        std::this_thread::sleep_for(sessionInterval);
        lookAfterSessions();
    }
    if (isUsable_ && left_.empty()) {
        burn::burn_finish();
    }
    for (const auto &session : left_) {
        session->abandon(); // libburn's worker still uses it, until the end of the process.
    }
}

/// Gives the drives free that have come to rest, without the lock, since that takes its time.
void LibburnThread::lookAfterSessions() {
    std::vector<std::unique_ptr<LibburnSession>> idle;
    const std::lock_guard lock(mutex_);
    const auto firstIdle = std::partition(left_.begin(), left_.end(),
                                          [](const auto &session) { return !session->isIdle(); });
    std::move(firstIdle, left_.end(), std::back_inserter(idle));
    left_.erase(firstIdle, left_.end());
}

void LibburnThread::handOutMessages() {
    std::vector<std::shared_ptr<MessageInbox>> inboxes;
    {
        const std::lock_guard lock(mutex_);
        std::erase_if(inboxes_, [](const auto &inbox) { return inbox.expired(); });
        for (const auto &inbox : inboxes_) {
            inboxes.push_back(inbox.lock());
        }
    }
    std::erase(inboxes, nullptr);
    while (const auto message = nextMessage()) {
        for (const auto &inbox : inboxes) {
            inbox->add(*message, inboxes.size() > 1);
        }
    }
}

} // namespace scorch
