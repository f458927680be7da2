// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/iso/IsoTree.h"
#include "scorch/support/FileDescriptor.h"
#include "scorch/support/Result.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace scorch {

/// Whether a file is still there, readable, and as it was when it was scanned: the same file of the
/// same size and time. Nothing, or an error that names it. Opens nothing.
std::optional<ScorchError> whyNotAsScanned(const IsoNode &node);

/// Reads one file from its start to its end and notices if it is not, or does not stay, what was
/// scanned. Every error names the file. One thread.
class SourceFile {
public:
    /// Opens only what whyNotAsScanned lets pass, so never a FIFO or a device. The kernel is told
    /// to fetch the beginning. Keeps a reference to `node`.
    static Result<SourceFile> open(IsoNodeRef node);

    /// Bytes that read() has yet to deliver.
    std::uint64_t remaining() const { return node_->size - position_; }

    /// Fills `buffer`, which is not larger than remaining(). After the last byte the file is
    /// compared with the scan once more. Blocks.
    Result<void> read(std::span<std::byte> buffer);

private:
    SourceFile(IsoNodeRef node, FileDescriptor file);

    IsoNodeRef node_;
    FileDescriptor file_;
    std::uint64_t position_ = 0;
};

} // namespace scorch
