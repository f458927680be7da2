// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/audio/ffmpeg/AvHandles.h"
#include "scorch/audio/ffmpeg/SourceFailure.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <span>
#include <stop_token>

namespace scorch {

/// An open file: read at any place by our own code, or as a stream by the library. The library's
/// own file protocol is not used, because names are bytes ("a:b" is a name and no protocol) and
/// because it hides why a read failed. Used by one thread.
class FileInput {
public:
    /// Regular files only; never blocks on a pipe. Reads that the library makes fail once `stop` is
    /// requested.
    static SourceResult<std::unique_ptr<FileInput>> open(const std::filesystem::path &path,
                                                         const std::stop_token &stop);
    ~FileInput();
    FileInput(const FileInput &) = delete;
    FileInput &operator=(const FileInput &) = delete;

    /// The size when it was opened.
    std::uint64_t sizeBytes() const { return sizeBytes_; }

    /// Fills `buffer` from `offset`; returns how many bytes there were, fewer than asked for only
    /// at the end of the file or on an error, which systemError() then tells.
    std::size_t readAt(std::uint64_t offset, std::span<std::byte> buffer);

    /// The errno value of the first read that failed, 0 if none did.
    int systemError() const { return systemError_; }
    bool stopRequested() const { return stop_.stop_requested(); }
    const std::stop_token &stopToken() const { return stop_; }

    /// From now on `stop` is what ends reads.
    void setStopToken(const std::stop_token &stop) { stop_ = stop; }

    /// What went wrong if this file, or a stop request, is to blame; nothing if neither is.
    std::optional<SourceFailure> failure() const;

    /// Makes the library see a file that ends at `offset`.
    void setStreamEnd(std::uint64_t offset) { streamEnd_ = std::min(offset, sizeBytes_); }

    /// The stream that the library reads, at its own position. Owned by this object.
    AVIOContext *stream() { return stream_.get(); }

private:
    FileInput(int descriptor, std::uint64_t sizeBytes, const std::stop_token &stop);

    static int readStream(void *self, std::uint8_t *buffer, int size);
    static std::int64_t seekStream(void *self, std::int64_t offset, int whence);

    const int descriptor_;
    const std::uint64_t sizeBytes_;
    std::stop_token stop_;
    int systemError_ = 0;
    std::uint64_t streamEnd_;
    std::int64_t position_ = 0; ///< Of the library's stream.
    AvHandle<AVIOContext> stream_;
};

} // namespace scorch
