// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/libburn/SectorRing.h"

#include <algorithm>
#include <cstring>

namespace scorch {

std::span<std::byte> SectorRing::room() {
    const std::lock_guard lock(mutex_);
    const std::size_t free = memory_.size() - static_cast<std::size_t>(put_ - taken_);
    const auto begin = static_cast<std::size_t>(put_ % memory_.size());
    return std::span(memory_).subspan(begin, std::min(free, memory_.size() - begin));
}

void SectorRing::put(std::size_t bytes) {
    {
        const std::lock_guard lock(mutex_);
        put_ += bytes;
    }
    filled_.notify_one();
}

void SectorRing::finish() {
    {
        const std::lock_guard lock(mutex_);
        isFinished_ = true;
    }
    filled_.notify_one();
}

void SectorRing::waitForRoom(std::size_t bytes, std::chrono::milliseconds limit) {
    std::unique_lock lock(mutex_);
    wanted_ = std::min(bytes, memory_.size());
    freed_.wait_for(lock, limit, [this] {
        return isAborted_ || memory_.size() - static_cast<std::size_t>(put_ - taken_) >= wanted_;
    });
    wanted_ = 0;
}

std::size_t SectorRing::take(std::span<std::byte> buffer) {
    bool isAwaited = false;
    std::size_t count = 0;
    {
        std::unique_lock lock(mutex_);
        const std::size_t least = std::min(buffer.size(), memory_.size());
        filled_.wait(lock, [&] { return isAborted_ || isFinished_ || put_ - taken_ >= least; });
        if (isAborted_) {
            return 0;
        }
        count = copyOut(buffer);
        const std::size_t free = memory_.size() - static_cast<std::size_t>(put_ - taken_);
        isAwaited = wanted_ > 0 && free >= wanted_;
    }
    if (isAwaited) {
        freed_.notify_one();
    }
    return count;
}

/// As much as there is, in up to two pieces.
std::size_t SectorRing::copyOut(std::span<std::byte> buffer) {
    const std::size_t count = std::min(buffer.size(), static_cast<std::size_t>(put_ - taken_));
    const auto begin = static_cast<std::size_t>(taken_ % memory_.size());
    const std::size_t first = std::min(count, memory_.size() - begin);
    std::memcpy(buffer.data(), &memory_[begin], first);
    std::memcpy(buffer.data() + first, memory_.data(), count - first);
    taken_ += count;
    return count;
}

void SectorRing::abort() {
    {
        const std::lock_guard lock(mutex_);
        isAborted_ = true;
    }
    filled_.notify_all();
    freed_.notify_all();
}

void SectorRing::resume() {
    const std::lock_guard lock(mutex_);
    isAborted_ = false;
}

bool SectorRing::isFull() const {
    const std::lock_guard lock(mutex_);
    return put_ - taken_ == memory_.size();
}

bool SectorRing::isFinished() const {
    const std::lock_guard lock(mutex_);
    return isFinished_;
}

std::uint64_t SectorRing::bytesTaken() const {
    const std::lock_guard lock(mutex_);
    return taken_;
}

} // namespace scorch
