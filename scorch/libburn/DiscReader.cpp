// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/libburn/DiscReader.h"

#include "scorch/support/DiscContent.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <vector>

namespace scorch {
namespace {

/// A drive retries for long on a sector that is hard to read.
constexpr std::chrono::milliseconds readTimeout{60'000};
/// A drive says once that its disc was changed or that it was reset, and goes on.
constexpr int attempts = 3;
constexpr std::uint8_t unitAttention = 6;

using Bytes12 = std::array<std::uint8_t, 12>;

std::uint8_t byteOf(std::int64_t value, unsigned shift) {
    return static_cast<std::uint8_t>(static_cast<std::uint64_t>(value) >> shift & 0xFFU);
}

/// MMC-5, 6.19 (READ (10) as SBC has it): address and count of blocks.
std::vector<std::uint8_t> readTen(std::int64_t lba, std::int64_t count) {
    return {0x28,           0, byteOf(lba, 24),  byteOf(lba, 16),  byteOf(lba, 8),
            byteOf(lba, 0), 0, byteOf(count, 8), byteOf(count, 0), 0};
}

/// MMC-5, READ CD: sectors of CD-DA (type 1), of which the user data is wanted.
std::vector<std::uint8_t> readCd(std::int64_t lba, std::int64_t count) {
    return {0xBE,
            0x04,
            byteOf(lba, 24),
            byteOf(lba, 16),
            byteOf(lba, 8),
            byteOf(lba, 0),
            byteOf(count, 16),
            byteOf(count, 8),
            byteOf(count, 0),
            0x10,
            0,
            0};
}

} // namespace

struct DiscReader::Access {
    const char *name;
    std::size_t bytesPerSector;
    std::vector<std::uint8_t> (*command)(std::int64_t lba, std::int64_t count);
    std::int64_t sectorsAtOnce; ///< Less than 64 KB, which every adapter moves at once.
};

Result<void, ReadInterruption> DiscReader::readData(std::int64_t lba, std::span<std::byte> buffer,
                                                    const std::stop_token &stop) {
    static constexpr Access access{"READ (10)", dataSectorBytes, readTen, 31};
    return read(access, lba, buffer, stop);
}

Result<void, ReadInterruption> DiscReader::readSound(std::int64_t lba, std::span<std::byte> buffer,
                                                     const std::stop_token &stop) {
    static constexpr Access access{"READ CD", audioSectorBytes, readCd, 27};
    return read(access, lba, buffer, stop);
}

Result<void, ReadInterruption> DiscReader::read(const Access &access, std::int64_t lba,
                                                std::span<std::byte> buffer,
                                                const std::stop_token &stop) {
    while (!buffer.empty()) {
        if (stop.stop_requested()) {
            return ReadInterruption(Cancelled{});
        }
        const auto left = static_cast<std::int64_t>(buffer.size() / access.bytesPerSector);
        const std::int64_t count = std::min(access.sectorsAtOnce, left);
        const auto piece = buffer.first(static_cast<std::size_t>(count) * access.bytesPerSector);
        if (const auto done = readOnce(access, lba, piece); !done) {
            if (count == 1) {
                return ReadInterruption(ReadFailure{lba, done.error()});
            }
            // One by one, to name the sector, and since a drive that fails to read ahead may well
            // read what is asked for.
            for (std::int64_t at = 0; at < count; ++at) {
                const std::size_t from = static_cast<std::size_t>(at) * access.bytesPerSector;
                if (stop.stop_requested()) {
                    return ReadInterruption(Cancelled{});
                }
                if (const auto single =
                        readOnce(access, lba + at, piece.subspan(from, access.bytesPerSector));
                    !single) {
                    return ReadInterruption(ReadFailure{lba + at, single.error()});
                }
            }
        }
        lba += count;
        buffer = buffer.subspan(piece.size());
    }
    return {};
}

Result<void, MmcError> DiscReader::readOnce(const Access &access, std::int64_t lba,
                                            std::span<std::byte> buffer) {
    const auto count = static_cast<std::int64_t>(buffer.size() / access.bytesPerSector);
    const std::vector<std::uint8_t> command = access.command(lba, count);
    const std::span<std::uint8_t> answer(reinterpret_cast<std::uint8_t *>(buffer.data()), // NOLINT
                                         buffer.size());
    for (int attempt = 1;; ++attempt) {
        const auto read = device_.read(access.name, command, answer, readTimeout);
        if (read && *read == buffer.size()) {
            return {};
        }
        if (read) {
            return MmcError{.kind = MmcError::Kind::other,
                            .sense = {},
                            .systemError = EIO,
                            .command = access.name};
        }
        const bool isAttention =
            read.error().kind == MmcError::Kind::sense && read.error().sense.key == unitAttention;
        if (!isAttention || attempt == attempts) {
            return read.error();
        }
    }
}

} // namespace scorch
