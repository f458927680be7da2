// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/mmc/MmcError.h"
#include "scorch/support/Result.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <span>

namespace scorch {

/// Carries commands to one drive and answers back. One thread at a time.
class MmcTransport {
public:
    virtual ~MmcTransport() = default;
    MmcTransport(const MmcTransport &) = delete;
    MmcTransport &operator=(const MmcTransport &) = delete;

    /// See MmcDevice::read.
    virtual Result<std::size_t, MmcError> read(const char *name,
                                               std::span<const std::uint8_t> command,
                                               std::span<std::uint8_t> answer,
                                               std::chrono::milliseconds timeout) = 0;

    /// See MmcDevice::eject.
    virtual Result<void, MmcError> eject() = 0;
    /// See MmcDevice::unlock.
    virtual Result<void, MmcError> unlock() = 0;

protected:
    MmcTransport() = default;
};

} // namespace scorch
