// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/mmc/PollingWatcher.h"

#include "scorch/support/WorkerThread.h"

#include <system_error>
#include <utility>

namespace scorch {

PollingWatcher::PollingWatcher(NodeAccess access, std::chrono::milliseconds interval)
    : poll_(std::move(access)), interval_(interval) {}

PollingWatcher::~PollingWatcher() {
    {
        const std::lock_guard lock(mutex_);
        ended_ = true;
    }
    wake_.notify_all();
    if (thread_.joinable()) {
        thread_.join();
    }
}

std::vector<FoundDevice> PollingWatcher::search(Observer observer) {
    observer_ = std::move(observer);
    std::vector<FoundDevice> found = poll_.poll().appeared;
    try {
        thread_ = startWorkerThread("scorch-drives", [this] { follow(); });
    } catch (const std::system_error &) {
        // A system that has no thread left: the drives that are there can be used all the same.
    }
    return found;
}

void PollingWatcher::suspect(const std::filesystem::path &node) {
    {
        const std::lock_guard lock(mutex_);
        suspects_.insert(node);
    }
    wake_.notify_all();
}

void PollingWatcher::follow() {
    std::unique_lock lock(mutex_);
    while (true) {
        wake_.wait_for(lock, interval_, [this] { return ended_ || !suspects_.empty(); });
        if (ended_) {
            return;
        }
        const std::set<std::filesystem::path> suspects = std::exchange(suspects_, {});
        lock.unlock();
        const NodePoll::Changes changes = poll_.poll(suspects);
        for (const std::filesystem::path &node : changes.disappeared) {
            observer_.disappeared(node);
        }
        for (const FoundDevice &device : changes.appeared) {
            observer_.appeared(device);
        }
        lock.lock();
    }
}

} // namespace scorch
