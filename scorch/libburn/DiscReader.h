// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/mmc/MmcDevice.h"
#include "scorch/support/Result.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <stop_token>
#include <utility>
#include <variant>

namespace scorch {

/// Why a sector could not be read.
struct ReadFailure {
    std::int64_t sector = 0; ///< LBA of the first that could not.
    MmcError error;
};

/// How a read that came to no end ended.
using ReadInterruption = std::variant<Cancelled, ReadFailure>;

/// Reads the user data of a disc back by commands to the drive: READ (10) for data, READ CD for
/// sound. One thread. Blocks as long as the drive needs for one command, some 60 KB.
class DiscReader {
public:
    explicit DiscReader(MmcDevice device) : device_(std::move(device)) {}

    /// Fills `buffer` with whole sectors of 2048 bytes from `lba` on.
    Result<void, ReadInterruption> readData(std::int64_t lba, std::span<std::byte> buffer,
                                            const std::stop_token &stop);

    /// The same for sound, 2352 bytes a sector, as the drive delivers it.
    Result<void, ReadInterruption> readSound(std::int64_t lba, std::span<std::byte> buffer,
                                             const std::stop_token &stop);

private:
    struct Access;
    Result<void, ReadInterruption> read(const Access &access, std::int64_t lba,
                                        std::span<std::byte> buffer, const std::stop_token &stop);
    Result<void, MmcError> readOnce(const Access &access, std::int64_t lba,
                                    std::span<std::byte> buffer);

    MmcDevice device_;
};

} // namespace scorch
