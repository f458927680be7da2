// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/burner/ProbePool.h"

#include "scorch/support/Text.h"
#include "scorch/support/WorkerThread.h"

#include <algorithm>
#include <exception>
#include <system_error>
#include <utility>

namespace scorch {
namespace {

AudioProbe probeSafely(const ProbeFunction &probe, const std::filesystem::path &path,
                       const std::stop_token &stop) {
    try {
        return probe(path, stop);
    } catch (const std::exception &failure) {
        return AudioRefusal{RefusalKind::incompatibleFile,
                            localized("It cannot be read (%@).", {failure.what()})};
    }
}

} // namespace

ProbePool::ProbePool(ProbeFunction probe, unsigned threads, std::stop_token stop)
    : probe_(std::move(probe)), maximumThreads_(std::max(threads, 1U)), stop_(std::move(stop)) {}

ProbePool::~ProbePool() {
    ended_.request_stop();
    for (std::thread &thread : threads_) {
        thread.join();
    }
}

void ProbePool::add(std::vector<BurnFile> files) {
    const std::size_t count = files.size();
    {
        const std::lock_guard lock(mutex_);
        for (BurnFile &file : files) {
            slots_.push_back({std::move(file), std::nullopt});
        }
    }
    wakeWorkers_.notify_all();
    startThreads(count);
}

void ProbePool::startThreads(std::size_t files) {
    const std::size_t wanted = std::min<std::size_t>(maximumThreads_, threads_.size() + files);
    while (threads_.size() < wanted) {
        try {
            threads_.push_back(startWorkerThread("scorch-probe", [this] { work(); }));
        } catch (const std::system_error &) {
            if (threads_.empty()) {
                throw; // Nobody would ever look at the songs.
            }
            return; // Fewer do it too.
        }
    }
}

bool ProbePool::empty() const {
    const std::lock_guard lock(mutex_);
    return slots_.empty();
}

std::filesystem::path ProbePool::next() const {
    const std::lock_guard lock(mutex_);
    return slots_.front().file.path;
}

std::optional<ProbePool::Probed> ProbePool::takeNext(std::chrono::milliseconds patience) {
    std::unique_lock lock(mutex_);
    const bool ready = wakeReader_.wait_for(lock, stop_, patience,
                                            [this] { return slots_.front().probe.has_value(); });
    if (!ready || stop_.stop_requested()) {
        return std::nullopt;
    }
    Probed probed{std::move(slots_.front().file), std::move(*slots_.front().probe)};
    slots_.pop_front();
    ++firstIndex_;
    return probed;
}

void ProbePool::work() {
    // Ends with the pool, or as soon as the check is stopped.
    const std::stop_callback passOn(stop_, [this] { ended_.request_stop(); });
    const std::stop_token ended = ended_.get_token();
    std::unique_lock lock(mutex_);
    while (wakeWorkers_.wait(lock, ended,
                             [this] { return nextIndex_ < firstIndex_ + slots_.size(); })) {
        if (ended.stop_requested()) {
            return;
        }
        const std::size_t index = nextIndex_++;
        const std::filesystem::path path = slots_[index - firstIndex_].file.path;
        lock.unlock();
        AudioProbe probe = probeSafely(probe_, path, ended);
        lock.lock();
        slots_[index - firstIndex_].probe = std::move(probe);
        if (index == firstIndex_) {
            wakeReader_.notify_one();
        }
    }
}

} // namespace scorch
