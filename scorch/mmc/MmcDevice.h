// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/mmc/MmcError.h"
#include "scorch/support/Result.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <span>

namespace scorch {

/// An open optical drive that takes commands (MMC-5) through SG_IO. It is opened for reading,
/// without waiting for a disc, not exclusively and without locking the door, so that other programs
/// can use the drive meanwhile. One thread at a time. Calls block until the drive answers or the
/// time is over.
class MmcDevice {
public:
    static Result<MmcDevice, MmcError> open(const std::filesystem::path &node);
    ~MmcDevice();
    MmcDevice(MmcDevice &&other) noexcept;
    MmcDevice &operator=(MmcDevice &&other) noexcept;
    MmcDevice(const MmcDevice &) = delete;
    MmcDevice &operator=(const MmcDevice &) = delete;

    /// Sends a command that answers with up to `answer.size()` bytes, or with none. Returns the
    /// number of bytes that came. A unit attention (6/xx: the disc was changed, the drive was
    /// reset) is an error like others: the next command works. `name` is the command in MMC's
    /// words.
    Result<std::size_t, MmcError> read(const char *name, std::span<const std::uint8_t> command,
                                       std::span<std::uint8_t> answer,
                                       std::chrono::milliseconds timeout = usualTimeout);

    /// The descriptor, for the ioctls of the kernel's CD driver. Owned by this object.
    int descriptor() const { return descriptor_; }

    static constexpr std::chrono::milliseconds usualTimeout{10'000};

private:
    explicit MmcDevice(int descriptor) : descriptor_(descriptor) {}

    int descriptor_ = -1;
};

} // namespace scorch
