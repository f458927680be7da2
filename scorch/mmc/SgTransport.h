// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/mmc/MmcTransport.h"
#include "scorch/support/FileDescriptor.h"

#include <filesystem>
#include <memory>

namespace scorch {

/// A drive behind a device node of the kernel: commands go through SG_IO. The kernel lets a
/// descriptor that is open for reading alone send the commands that change nothing.
class SgTransport final : public MmcTransport {
public:
    static Result<std::unique_ptr<MmcTransport>, MmcError> open(const std::filesystem::path &node);

    Result<std::size_t, MmcError> read(const char *name, std::span<const std::uint8_t> command,
                                       std::span<std::uint8_t> answer,
                                       std::chrono::milliseconds timeout) override;
    Result<void, MmcError> eject() override;
    Result<void, MmcError> unlock() override;

private:
    explicit SgTransport(int descriptor) : descriptor_(descriptor) {}

    FileDescriptor descriptor_;
};

} // namespace scorch
