// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/drive/TemporaryImageFile.h"

#include "scorch/drive/TargetError.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace scorch {
namespace {

constexpr std::string_view namePrefix = ".scorch-";
constexpr std::string_view nameEnding = ".part";

constexpr std::uint64_t mebibyte = 1U << 20U;
/// What is handed to the device at once while writing: large enough to be written in one go.
constexpr std::uint64_t submitBytes = 8 * mebibyte;
/// How far the writer may be ahead of the device. The rest is what a flush has to wait for, and
/// the kernel would stop a writer that is further ahead for longer than a person who cancels waits.
constexpr std::uint64_t windowBytes = 64 * mebibyte;
/// What is waited for at once: a fifth of a second on a stick that writes ten megabytes a second.
constexpr std::uint64_t settleBytes = 2 * mebibyte;

/// File systems that cannot be told about ranges are flushed at the end alone.
bool isUnsupported(int error) {
    return error == EINVAL || error == ENOSYS || error == ENOTSUP || error == ESPIPE;
}

std::string temporaryName() {
    static std::atomic<unsigned> counter{0};
    return std::string(namePrefix) + std::to_string(getpid()) + '-' +
           std::to_string(counter.fetch_add(1)) + std::string(nameEnding);
}

} // namespace

bool TemporaryImageFile::isName(std::string_view name) {
    return name.starts_with(namePrefix) && name.ends_with(nameEnding);
}

TemporaryImageFile::TemporaryImageFile(const TargetFolder &folder, std::string name,
                                       FileDescriptor descriptor)
    : folder_(folder),
      temporaryName_(name),
      name_(std::move(name)),
      descriptor_(std::move(descriptor)) {}

TemporaryImageFile::~TemporaryImageFile() {
    if (temporary_) {
        folder_.remove(name_);
    }
}

Result<std::unique_ptr<TemporaryImageFile>> TemporaryImageFile::create(const TargetFolder &folder) {
    for (int attempt = 0; attempt < 1000; ++attempt) {
        const std::string name = temporaryName();
        FileDescriptor descriptor(
            openat(folder.descriptor(), name.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
        if (!descriptor.valid()) {
            if (errno == EEXIST) {
                continue; // Left by a dead process that had our number.
            }
            return targetError(errno, folder.path(), "create");
        }
        // Where locks are not supported, nobody takes the file for a stale one either.
        const bool taken = flock(descriptor.get(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
        struct stat status {};
        const bool present = fstat(descriptor.get(), &status) == 0 && status.st_nlink > 0;
        if (present && !taken) {
            return std::unique_ptr<TemporaryImageFile>(
                new TemporaryImageFile(folder, name, std::move(descriptor)));
        }
        // Somebody who clears up took it for a stale one before it was locked.
    }
    return targetError(EEXIST, folder.path(), "create");
}

ScorchError TemporaryImageFile::failure(int error, const char *step) const {
    return targetError(error, folder_.path(), step);
}

Result<void> TemporaryImageFile::reserve(std::uint64_t bytes) {
    if (bytes == 0 || fallocate(descriptor_.get(), 0, 0, static_cast<off_t>(bytes)) == 0 ||
        isUnsupported(errno) || errno == EINTR) {
        return {};
    }
    return failure(errno, "fallocate");
}

Outcome<> TemporaryImageFile::append(std::span<const std::byte> bytes,
                                     const std::stop_token &stop) {
    while (!bytes.empty()) {
        if (stop.stop_requested()) {
            return Interruption(Cancelled{});
        }
        const ssize_t count =
            pwrite(descriptor_.get(), bytes.data(), std::min<std::size_t>(bytes.size(), mebibyte),
                   static_cast<off_t>(written_));
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count <= 0) {
            return Interruption(failure(count < 0 ? errno : EIO, "write"));
        }
        written_ += static_cast<std::uint64_t>(count);
        bytes = bytes.subspan(static_cast<std::size_t>(count));
    }
    if (written_ - submitted_ < submitBytes) {
        return {};
    }
    if (const auto started = startWriteback(); !started) {
        return Interruption(started.error());
    }
    return written_ > windowBytes ? settle(settled_, written_ - windowBytes, stop) : Outcome<>();
}

Result<void> TemporaryImageFile::startWriteback() {
    const std::uint64_t from = std::exchange(submitted_, written_);
    if (sync_file_range(descriptor_.get(), static_cast<off_t>(from),
                        static_cast<off_t>(written_ - from), SYNC_FILE_RANGE_WRITE) == 0 ||
        isUnsupported(errno)) {
        return {};
    }
    return failure(errno, "sync_file_range");
}

/// Waits until a range is on the device, in slices. What was started before is mostly there
/// already.
Outcome<> TemporaryImageFile::settle(std::uint64_t from, std::uint64_t to,
                                     const std::stop_token &stop) {
    while (from < to) {
        if (stop.stop_requested()) {
            return Interruption(Cancelled{});
        }
        const std::uint64_t bytes = std::min(to - from, settleBytes);
        if (sync_file_range(descriptor_.get(), static_cast<off_t>(from), static_cast<off_t>(bytes),
                            SYNC_FILE_RANGE_WAIT_BEFORE | SYNC_FILE_RANGE_WRITE |
                                SYNC_FILE_RANGE_WAIT_AFTER) != 0 &&
            !isUnsupported(errno)) {
            return Interruption(failure(errno, "sync_file_range"));
        }
        // Nobody reads it again soon: its memory is worth more to what is still to be written, and
        // to the other programs.
        posix_fadvise(descriptor_.get(), static_cast<off_t>(from), static_cast<off_t>(bytes),
                      POSIX_FADV_DONTNEED);
        from += bytes;
        settled_ = from;
    }
    return {};
}

Result<void> TemporaryImageFile::clear() {
    if (ftruncate(descriptor_.get(), 0) != 0) {
        return failure(errno, "ftruncate");
    }
    written_ = submitted_ = settled_ = 0;
    return {};
}

Outcome<> TemporaryImageFile::flush(const std::stop_token &stop) {
    if (const auto started = startWriteback(); !started) {
        return Interruption(started.error());
    }
    if (auto settled = settle(settled_, written_, stop); !settled) {
        return settled;
    }
    if (stop.stop_requested()) {
        return Interruption(Cancelled{});
    }
    if (fdatasync(descriptor_.get()) != 0) {
        return Interruption(failure(errno, "fdatasync"));
    }
    return {};
}

void TemporaryImageFile::dropCache() {
    posix_fadvise(descriptor_.get(), 0, 0, POSIX_FADV_DONTNEED);
    posix_fadvise(descriptor_.get(), 0, 0, POSIX_FADV_SEQUENTIAL);
}

Result<void> TemporaryImageFile::read(std::uint64_t position, std::span<std::byte> buffer) {
    while (!buffer.empty()) {
        const ssize_t count =
            pread(descriptor_.get(), buffer.data(), buffer.size(), static_cast<off_t>(position));
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count <= 0) {
            return failure(count < 0 ? errno : EIO, "read");
        }
        position += static_cast<std::uint64_t>(count);
        buffer = buffer.subspan(static_cast<std::size_t>(count));
    }
    return {};
}

int TemporaryImageFile::renameTo(const std::string &name) {
    const int error = folder_.renameWithoutReplacing(name_, name);
    if (error == 0) {
        name_ = name;
    }
    return error;
}

void TemporaryImageFile::takeBack() {
    if (folder_.rename(name_, temporaryName_) == 0) {
        name_ = temporaryName_;
    }
}

} // namespace scorch
