// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <unistd.h>
#include <utility>

namespace scorch {

/// Owns an open file descriptor and closes it at the end of its life.
class FileDescriptor {
public:
    FileDescriptor() = default;
    /// Takes a descriptor over; a negative one is none.
    explicit FileDescriptor(int descriptor) : descriptor_(descriptor) {}
    ~FileDescriptor() { reset(); }

    FileDescriptor(FileDescriptor &&other) noexcept : descriptor_(other.release()) {}
    FileDescriptor &operator=(FileDescriptor &&other) noexcept {
        if (this != &other) {
            reset();
            descriptor_ = other.release();
        }
        return *this;
    }
    FileDescriptor(const FileDescriptor &) = delete;
    FileDescriptor &operator=(const FileDescriptor &) = delete;

    bool valid() const { return descriptor_ >= 0; }
    int get() const { return descriptor_; }

    /// Hands the descriptor over to the caller.
    int release() { return std::exchange(descriptor_, -1); }

    /// Closes it now. For a file that was written, call close(release()) and look at the answer.
    void reset() {
        if (valid()) {
            ::close(release());
        }
    }

private:
    int descriptor_ = -1;
};

} // namespace scorch
