// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/audio/ffmpeg/FileInput.h"

#include "scorch/support/Text.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace scorch {
namespace {

/// Large enough that a song takes few system calls, small enough for the second-level cache.
constexpr std::size_t streamBufferBytes = std::size_t{128} << 10;

SourceFailure systemFailure(int error) {
    const std::string reason = std::generic_category().message(error);
    if (error == ENOENT || error == ENOTDIR) {
        return {SourceFailure::Kind::missing, localized("There is no such file or folder."),
                reason};
    }
    if (error == EACCES || error == EPERM) {
        return {SourceFailure::Kind::unreadable,
                localized("It cannot be read: you have no permission to open it."), reason};
    }
    return {SourceFailure::Kind::unreadable, localized("It cannot be read (%@).", {reason}),
            reason};
}

} // namespace

FileInput::FileInput(int descriptor, std::uint64_t sizeBytes, const std::stop_token &stop)
    : descriptor_(descriptor), sizeBytes_(sizeBytes), stop_(stop), streamEnd_(sizeBytes) {
    auto *buffer = static_cast<unsigned char *>(av_malloc(streamBufferBytes));
    stream_.reset(
        avio_alloc_context(buffer, streamBufferBytes, 0, this, readStream, nullptr, seekStream));
}

FileInput::~FileInput() {
    ::close(descriptor_);
}

SourceResult<std::unique_ptr<FileInput>> FileInput::open(const std::filesystem::path &path,
                                                         const std::stop_token &stop) {
    // Opening a pipe would wait for its other end.
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0) {
        return systemFailure(errno);
    }
    struct stat status {};
    if (::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)) {
        ::close(descriptor);
        return SourceFailure{SourceFailure::Kind::notSound, localized("It is not a file."), {}};
    }
    (void)::posix_fadvise(descriptor, 0, 0, POSIX_FADV_SEQUENTIAL);
    return std::unique_ptr<FileInput>(
        new FileInput(descriptor, static_cast<std::uint64_t>(status.st_size), stop));
}

std::size_t FileInput::readAt(std::uint64_t offset, std::span<std::byte> buffer) {
    std::size_t filled = 0;
    while (filled < buffer.size()) {
        const ssize_t got = ::pread(descriptor_, buffer.data() + filled, buffer.size() - filled,
                                    static_cast<off_t>(offset + filled));
        if (got < 0 && errno == EINTR) {
            continue;
        }
        if (got < 0 && systemError_ == 0) {
            systemError_ = errno;
        }
        if (got <= 0) {
            break;
        }
        filled += static_cast<std::size_t>(got);
    }
    return filled;
}

std::optional<SourceFailure> FileInput::failure() const {
    if (stopRequested()) {
        return SourceFailure{SourceFailure::Kind::cancelled, {}, {}};
    }
    if (systemError_ != 0) {
        return systemFailure(systemError_);
    }
    return std::nullopt;
}

int FileInput::readStream(void *self, std::uint8_t *buffer, int size) {
    auto &input = *static_cast<FileInput *>(self);
    if (input.stopRequested()) {
        return AVERROR_EXIT;
    }
    const auto from = static_cast<std::uint64_t>(input.position_);
    const std::uint64_t left = input.streamEnd_ - std::min(from, input.streamEnd_);
    const std::span target(reinterpret_cast<std::byte *>(buffer),
                           std::min(static_cast<std::uint64_t>(size), left));
    const std::size_t got = input.readAt(from, target);
    if (got == 0) {
        return input.systemError_ != 0 ? AVERROR(input.systemError_) : AVERROR_EOF;
    }
    input.position_ += static_cast<std::int64_t>(got);
    return static_cast<int>(got);
}

std::int64_t FileInput::seekStream(void *self, std::int64_t offset, int whence) {
    auto &input = *static_cast<FileInput *>(self);
    const auto size = static_cast<std::int64_t>(input.streamEnd_);
    switch (whence & ~AVSEEK_FORCE) {
    case AVSEEK_SIZE:
        return size;
    case SEEK_SET:
        break;
    case SEEK_CUR:
        offset += input.position_;
        break;
    case SEEK_END:
        offset += size;
        break;
    default:
        return AVERROR(EINVAL);
    }
    if (offset < 0) {
        return AVERROR(EINVAL);
    }
    input.position_ = offset;
    return offset;
}

} // namespace scorch
