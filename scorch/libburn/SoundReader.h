// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/drive/Drive.h"
#include "scorch/libburn/DiscReader.h"
#include "scorch/libburn/OffsetReference.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <stop_token>
#include <vector>

namespace scorch {

/// Reads sound back where it was sent to: finds the drive's offset at first use, and takes it out
/// of all it reads. One thread; the reader outlives it.
class SoundReader {
public:
    /// `leadOut` is the number of sectors of the disc; nothing behind it is asked for.
    SoundReader(DiscReader &reader, std::vector<SoundPiece> pieces, std::int64_t leadOut)
        : reader_(reader), pieces_(std::move(pieces)), leadOut_(leadOut) {}

    /// The offset in samples, positive where the drive reads late; 0 for a silent disc, and where
    /// what was sent is found nowhere.
    Result<std::int64_t, ReadInterruption> offset(const std::stop_token &stop);

    /// The sectors of the disc that can be read in full: a drive with an offset does not reach all
    /// of the last one, or of the first.
    Result<SectorRange, ReadInterruption> reach(const std::stop_token &stop);

    /// Fills `buffer` with whole sectors within reach.
    Result<void, ReadInterruption> read(std::int64_t firstSector, std::span<std::byte> buffer,
                                        const std::stop_token &stop);

private:
    DiscReader &reader_;
    const std::vector<SoundPiece> pieces_;
    const std::int64_t leadOut_;
    std::optional<std::int64_t> offset_;
};

} // namespace scorch
