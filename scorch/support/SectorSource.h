// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/support/Result.h"

#include <cstddef>
#include <span>
#include <stop_token>

namespace scorch {

/// The bytes of one track, in order: 2352 a sector for sound (16-bit little-endian stereo at
/// 44.1 kHz), 2048 for data. Used by one thread at a time.
class SectorSource {
public:
    virtual ~SectorSource() = default;
    SectorSource(const SectorSource &) = delete;
    SectorSource &operator=(const SectorSource &) = delete;

    /// Fills `buffer`, whose size is a multiple of the sector size, and returns its size; less only
    /// at the end of the track (always whole sectors), 0 behind it. Blocks; notices a stop request
    /// within 100 ms. After anything but a value the source is not read again.
    virtual Outcome<std::size_t> read(std::span<std::byte> buffer, const std::stop_token &stop) = 0;

protected:
    SectorSource() = default;
};

} // namespace scorch
