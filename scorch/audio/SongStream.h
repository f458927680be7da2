// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/support/Result.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <span>
#include <stop_token>

namespace scorch {

/// The sound of one song from its first sample to its last: 16-bit stereo at 44.1 kHz, left and
/// right in turn, in the byte order of this machine. Used by one thread.
class SongStream {
public:
    virtual ~SongStream() = default;
    SongStream(const SongStream &) = delete;
    SongStream &operator=(const SongStream &) = delete;

    /// Fills `values` (two to a sample frame, so an even number) and returns how many values it
    /// wrote; less than asked for only at the end, 0 behind it. Blocks; notices a stop request
    /// between two packets of the file. After anything but a value it is not read again.
    virtual Outcome<std::size_t> read(std::span<std::int16_t> values,
                                      const std::stop_token &stop) = 0;

protected:
    SongStream() = default;
};

/// Opens a song; the error names the file. Called on any thread, several at once.
using OpenSong = std::function<Outcome<std::unique_ptr<SongStream>>(
    const std::filesystem::path &path, const std::stop_token &stop)>;

} // namespace scorch
