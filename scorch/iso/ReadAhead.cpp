// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/iso/ReadAhead.h"

#include "scorch/support/WorkerThread.h"

#include <algorithm>
#include <system_error>
#include <utility>

namespace scorch {

ReadAhead::ReadAhead(std::unique_ptr<SectorSource> inner) : inner_(std::move(inner)) {
    for (Chunk &chunk : chunks_) {
        chunk.bytes.resize(chunkBytes);
    }
    try {
        thread_ = startWorkerThread("iso-read-ahead", [this] {
            while (fillOne(ending_.get_token())) {
            }
        });
    } catch (const std::system_error &) {
        chunks_ = {};
    }
}

ReadAhead::~ReadAhead() {
    ending_.request_stop();
    if (thread_.joinable()) {
        thread_.join();
    }
}

/// False when there is nothing more to read.
bool ReadAhead::fillOne(const std::stop_token &stop) {
    std::unique_lock lock(mutex_);
    if (!changed_.wait(lock, stop, [this] { return filledChunks_ < chunkCount; })) {
        return false;
    }
    Chunk &chunk = chunks_[fillChunk_];
    lock.unlock();
    const Outcome<std::size_t> read = inner_->read(chunk.bytes, stop);
    lock.lock();
    if (read) {
        chunk.filled = *read;
        ended_ = *read < chunk.bytes.size();
        filledChunks_ += *read > 0 ? 1 : 0;
        fillChunk_ = (fillChunk_ + 1) % chunkCount;
    } else {
        failure_ = read.error();
    }
    const bool goOn = read.ok() && !ended_;
    lock.unlock();
    changed_.notify_all();
    return goOn;
}

Outcome<bool> ReadAhead::waitForChunk(const std::stop_token &stop) {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, stop,
                  [this] { return filledChunks_ > 0 || ended_ || failure_.has_value(); });
    if (stop.stop_requested()) {
        return Interruption(Cancelled{});
    }
    if (filledChunks_ == 0 && failure_) {
        return *failure_;
    }
    return filledChunks_ > 0;
}

Outcome<std::size_t> ReadAhead::read(std::span<std::byte> buffer, const std::stop_token &stop) {
    if (!thread_.joinable()) {
        return inner_->read(buffer, stop);
    }
    std::size_t done = 0;
    while (done < buffer.size()) {
        const Outcome<bool> ready = waitForChunk(stop);
        if (!ready) {
            return ready.error();
        }
        if (!*ready) {
            break;
        }
        const Chunk &chunk = chunks_[readChunk_];
        const std::size_t count = std::min(buffer.size() - done, chunk.filled - readPosition_);
        std::copy_n(chunk.bytes.begin() + static_cast<std::ptrdiff_t>(readPosition_), count,
                    buffer.begin() + static_cast<std::ptrdiff_t>(done));
        done += count;
        readPosition_ += count;
        if (readPosition_ == chunk.filled) {
            readPosition_ = 0;
            readChunk_ = (readChunk_ + 1) % chunkCount;
            const std::lock_guard lock(mutex_);
            --filledChunks_;
            changed_.notify_all();
        }
    }
    return done;
}

} // namespace scorch
