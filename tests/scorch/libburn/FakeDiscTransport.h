// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/mmc/MmcTransport.h"

#include <cstddef>
#include <cstdint>
#include <set>
#include <vector>

/// What a test knows of a disc and its drive, while the transport belongs to somebody else.
struct FakeDisc {
    std::vector<std::byte> bytes; ///< User data of all sectors, from LBA 0 on.
    std::int64_t offsetBytes = 0; ///< Sound is read so much late.
    std::set<std::int64_t> badSectors;
    int attentions = 0; ///< So many commands are answered with a unit attention first.
    std::vector<std::int64_t> lengths; ///< Of each read so far, in sectors.
    std::int64_t lowest = 0;           ///< What was asked for.
    std::int64_t highest = 0;
};

/// A drive that can only read: READ (10) and READ CD.
class FakeDiscTransport final : public scorch::MmcTransport {
public:
    explicit FakeDiscTransport(FakeDisc &disc) : disc_(disc) {}

    scorch::Result<std::size_t, scorch::MmcError> read(const char *name,
                                                       std::span<const std::uint8_t> command,
                                                       std::span<std::uint8_t> answer,
                                                       std::chrono::milliseconds timeout) override;
    scorch::Result<void, scorch::MmcError> eject() override { return {}; }
    scorch::Result<void, scorch::MmcError> unlock() override { return {}; }

private:
    FakeDisc &disc_;
};
