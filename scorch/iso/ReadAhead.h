// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/support/SectorSource.h"

#include <array>
#include <condition_variable>
#include <cstddef>
#include <memory>
#include <mutex>
#include <optional>
#include <span>
#include <stop_token>
#include <thread>
#include <vector>

namespace scorch {

/// Reads another source ahead on a thread of its own ("iso-read-ahead"), so that reading files and
/// writing the image overlap, and so that a stop request is answered at once even while a disk or a
/// network keeps that thread waiting. The destructor waits for the read that is under way.
class ReadAhead final : public SectorSource {
public:
    /// Where the system has no thread left, reading happens in read().
    explicit ReadAhead(std::unique_ptr<SectorSource> inner);
    ~ReadAhead() override;

    Outcome<std::size_t> read(std::span<std::byte> buffer, const std::stop_token &stop) override;

private:
    // Two megabytes in all stay in a processor's cache; larger ones were measurably slower.
    static constexpr std::size_t chunkBytes = 256 * std::size_t{1024};
    static constexpr std::size_t chunkCount = 8;

    struct Chunk {
        std::vector<std::byte> bytes;
        std::size_t filled = 0;
    };

    /// False at the end of the stream.
    Outcome<bool> waitForChunk(const std::stop_token &stop);
    bool fillOne(const std::stop_token &stop);

    std::unique_ptr<SectorSource> inner_; ///< The thread's.

    std::mutex mutex_;
    std::condition_variable_any changed_;
    // Guarded by the mutex; a chunk's bytes belong to the thread until it is counted as filled, and
    // to the reader from then until it is counted off again.
    std::array<Chunk, chunkCount> chunks_;
    std::size_t filledChunks_ = 0;
    bool ended_ = false;
    std::optional<Interruption> failure_;

    // The reader's.
    std::size_t readChunk_ = 0;
    std::size_t readPosition_ = 0;
    // The thread's.
    std::size_t fillChunk_ = 0;

    std::stop_source ending_;
    std::thread thread_; ///< The last member: it uses the others.
};

} // namespace scorch
