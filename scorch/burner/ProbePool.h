// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/BurnFile.h"
#include "scorch/audio/AudioBackend.h"

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <deque>
#include <filesystem>
#include <functional>
#include <mutex>
#include <optional>
#include <stop_token>
#include <thread>
#include <vector>

namespace scorch {

/// Looks at one song. Any thread, several at once.
using ProbeFunction =
    std::function<AudioProbe(const std::filesystem::path &, const std::stop_token &)>;

/// Looks at songs on several threads and hands the results out in the order in which the songs were
/// put in. Used by one thread; its destructor stops and joins the others. After a stop request the
/// results that are missing do not come any more.
class ProbePool {
public:
    struct Probed {
        BurnFile file;
        AudioProbe probe;
    };

    ProbePool(ProbeFunction probe, unsigned threads, std::stop_token stop);
    ~ProbePool();
    ProbePool(const ProbePool &) = delete;
    ProbePool &operator=(const ProbePool &) = delete;

    void add(std::vector<BurnFile> files);

    bool empty() const;
    /// The song whose result comes next. Only if not empty.
    std::filesystem::path next() const;

    /// The next result; none if it is not there after `patience` or if a stop was requested.
    std::optional<Probed> takeNext(std::chrono::milliseconds patience);

private:
    struct Slot {
        BurnFile file;
        std::optional<AudioProbe> probe;
    };

    void startThreads(std::size_t files);
    void work();

    const ProbeFunction probe_;
    const unsigned maximumThreads_;
    const std::stop_token stop_;
    mutable std::mutex mutex_; ///< Guards all below but threads_.
    std::condition_variable_any wakeWorkers_;
    std::condition_variable_any wakeReader_;
    std::deque<Slot> slots_;     ///< From the next to hand out on.
    std::size_t firstIndex_ = 0; ///< Of the first slot, counted over all.
    std::size_t nextIndex_ = 0;  ///< Of the next song to look at.
    std::stop_source ended_;
    std::vector<std::thread> threads_;
};

} // namespace scorch
