// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/mmc/DeviceWatcher.h"
#include "scorch/mmc/NodePoll.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <set>
#include <thread>

namespace scorch {

/// Follows drives by looking for their nodes from time to time, for systems where nothing tells of
/// them. Knows nothing of discs. The thread "scorch-drives" lives from the search to the end.
class PollingWatcher final : public DeviceWatcher {
public:
    explicit PollingWatcher(NodeAccess access = systemNodeAccess(),
                            std::chrono::milliseconds interval = std::chrono::seconds(1));
    ~PollingWatcher() override;

    std::vector<FoundDevice> search(Observer observer) override;
    bool tellsOfMedia(const std::filesystem::path & /*node*/) const override { return false; }
    void suspect(const std::filesystem::path &node) override;

private:
    void follow();

    NodePoll poll_; ///< The searching thread's first, then the watcher's.
    const std::chrono::milliseconds interval_;
    Observer observer_;
    std::mutex mutex_; ///< Guards all below.
    std::condition_variable wake_;
    std::set<std::filesystem::path> suspects_;
    bool ended_ = false;
    std::thread thread_;
};

} // namespace scorch
