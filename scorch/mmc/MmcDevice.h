// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/mmc/MmcTransport.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>
#include <utility>

namespace scorch {

/// An open optical drive that takes commands (MMC-5). It is opened for reading, without waiting for
/// a disc, not exclusively and without locking the door, so that other programs can use the drive
/// meanwhile. One thread at a time. Calls block until the drive answers or the time is over.
class MmcDevice {
public:
    static Result<MmcDevice, MmcError> open(const std::filesystem::path &node);

    /// A drive that is reached some other way.
    explicit MmcDevice(std::unique_ptr<MmcTransport> transport)
        : transport_(std::move(transport)) {}

    /// Sends a command that answers with up to `answer.size()` bytes, or with none. Returns the
    /// number of bytes that came. A unit attention (6/xx: the disc was changed, the drive was
    /// reset) is an error like others: the next command works. `name` is the command in MMC's
    /// words.
    Result<std::size_t, MmcError> read(const char *name, std::span<const std::uint8_t> command,
                                       std::span<std::uint8_t> answer,
                                       std::chrono::milliseconds timeout = usualTimeout) {
        return transport_->read(name, command, answer, timeout);
    }

    /// Unlocks the door and puts the disc out. Kind::busy where another program has the drive open.
    Result<void, MmcError> eject() { return transport_->eject(); }

    /// Unlocks the door. Kind::busy where another program has the drive open.
    Result<void, MmcError> unlock() { return transport_->unlock(); }

    static constexpr std::chrono::milliseconds usualTimeout{10'000};

private:
    std::unique_ptr<MmcTransport> transport_;
};

} // namespace scorch
