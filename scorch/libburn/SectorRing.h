// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <mutex>
#include <span>
#include <vector>

namespace scorch {

/// Bytes on their way from the thread that gets them ready to the thread that writes them: enough
/// for the drive to go on while a source is slow for some seconds. One thread puts, another takes;
/// abort and the queries are for any thread.
class SectorRing {
public:
    /// `bytes` is what it holds, not 0.
    explicit SectorRing(std::size_t bytes) : memory_(bytes) {}

    /// The free room in one piece, to be filled from its beginning; empty when the ring is full.
    /// Stays free until put is called.
    std::span<std::byte> room();
    /// The first `bytes` of the room are filled.
    void put(std::size_t bytes);
    /// Nothing more will be put: who takes gets what is left, then finds the end.
    void finish();
    /// Waits until `bytes` are free (at most all that it holds), or the time is over.
    void waitForRoom(std::size_t bytes, std::chrono::milliseconds limit);

    /// Fills `buffer`, waiting for bytes to be put. Returns less only at the end, and 0 as soon as
    /// the ring was aborted.
    std::size_t take(std::span<std::byte> buffer);

    /// Wakes whoever waits; nothing can be taken any more.
    void abort();
    /// After abort: what was not taken can be taken again.
    void resume();

    std::size_t capacity() const { return memory_.size(); }
    bool isFull() const;
    bool isFinished() const;
    /// All that was taken so far.
    std::uint64_t bytesTaken() const;

private:
    std::size_t copyOut(std::span<std::byte> buffer);

    std::vector<std::byte> memory_;
    mutable std::mutex mutex_;
    std::condition_variable filled_;
    std::condition_variable freed_;
    std::uint64_t put_ = 0; ///< Bytes since the beginning; the place is the rest by the size.
    std::uint64_t taken_ = 0;
    std::size_t wanted_ = 0; ///< Who puts waits for this many to be free; 0 where nobody waits.
    bool isFinished_ = false;
    bool isAborted_ = false;
};

} // namespace scorch
