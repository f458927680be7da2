// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/recorder/preload/DeviceFile.h"

#include "tests/recorder/preload/KernelDriver.h"
#include "tests/recorder/preload/RealCalls.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <fcntl.h>
#include <memory>
#include <sys/file.h>
#include <unistd.h>

namespace recorder::preload {

namespace {

int failWith(int error) {
    errno = error;
    return -1;
}

/// Why nobody can open the drive now, or 0.
int obstacle(Recorder &drive) {
    const Faults faults = drive.faults();
    if (faults.vanished) {
        return ENOENT;
    }
    if (faults.noDevice) {
        return ENXIO;
    }
    return faults.noPermission ? EACCES : 0;
}

/// A claim is a lock of the open file, so that it lives as long as any duplicate of it.
bool claim(Recorder &drive, int descriptor) {
    return !drive.faults().busy && flock(descriptor, LOCK_EX | LOCK_NB) == 0;
}

/// A stream's own view of a drive.
struct Stream {
    int number;
    int descriptor;
};

ssize_t readStream(void *cookie, char *buffer, size_t count) {
    const auto *stream = static_cast<Stream *>(cookie);
    return readDevice(stream->number, stream->descriptor, buffer, count);
}

int seekStream(void *cookie, off64_t *offset, int whence) {
    const auto *stream = static_cast<Stream *>(cookie);
    *offset = seekDevice(stream->number, stream->descriptor, *offset, whence);
    return *offset < 0 ? -1 : 0;
}

/// The streams that are open. A handful at most; one that finds no room has no descriptor number.
struct OpenStream {
    std::atomic<FILE *> file;
    std::atomic<int> descriptor;
};
std::array<OpenStream, 16> openStreams;

void remember(FILE *file, int descriptor) {
    for (OpenStream &entry : openStreams) {
        FILE *none = nullptr;
        if (entry.file.compare_exchange_strong(none, file)) {
            entry.descriptor = descriptor;
            return;
        }
    }
}

int closeStream(void *cookie) {
    const std::unique_ptr<Stream> stream(static_cast<Stream *>(cookie));
    for (OpenStream &entry : openStreams) {
        if (entry.file != nullptr && entry.descriptor == stream->descriptor) {
            entry.file = nullptr;
        }
    }
    return close(stream->descriptor);
}

} // namespace

int openDevice(int number, int flags) {
    Drives &drives = Drives::instance();
    Recorder *drive = nullptr;
    {
        const SignalsHeld held;
        drive = drives.recorder(number);
        if (drive == nullptr) {
            return failWith(ENOENT);
        }
        if (const int error = obstacle(*drive)) {
            return failWith(error);
        }
        drive->attach();
    }
    if ((flags & O_CREAT) != 0 && (flags & O_EXCL) != 0) {
        return failWith(EEXIST);
    }
    if ((flags & O_DIRECTORY) != 0) {
        return failWith(ENOTDIR);
    }
    if (const int error = KernelDriver(number).mayOpen(flags)) {
        return failWith(error);
    }
    if (!drives.prepareNode(number)) {
        return failWith(ENXIO);
    }
    const int kept = flags & ~(O_EXCL | O_CREAT | O_TRUNC | O_DIRECT | O_APPEND | O_NOFOLLOW);
    const std::string node = (drives.folder(number) / "node").string();
    const int descriptor = real().open(node.c_str(), kept);
    if (descriptor < 0 || (flags & O_EXCL) == 0) {
        return descriptor;
    }
    const SignalsHeld held;
    if (!claim(*drive, descriptor)) {
        close(descriptor);
        return failWith(EBUSY);
    }
    return descriptor;
}

FILE *openDeviceStream(int number, const char *mode) {
    if (mode[0] != 'r') {
        errno = EROFS;
        return nullptr;
    }
    const int descriptor = openDevice(number, O_RDONLY | O_CLOEXEC);
    if (descriptor < 0) {
        return nullptr;
    }
    auto stream = std::make_unique<Stream>(Stream{number, descriptor});
    FILE *file = fopencookie(stream.get(), "r", {readStream, nullptr, seekStream, closeStream});
    if (file == nullptr) {
        close(descriptor);
        return nullptr;
    }
    [[maybe_unused]] Stream *const isNowTheFiles = stream.release();
    remember(file, descriptor);
    return file;
}

int descriptorOfStream(FILE *stream) {
    for (const OpenStream &entry : openStreams) {
        if (entry.file == stream) {
            return entry.descriptor;
        }
    }
    return -1;
}

ssize_t readDevice(int number, int descriptor, void *buffer, size_t count) {
    const off_t offset = real().lseek(descriptor, 0, SEEK_CUR);
    if (offset < 0) {
        return -1;
    }
    const ssize_t done = KernelDriver(number).read(buffer, count, offset);
    if (done > 0) {
        real().lseek(descriptor, offset + done, SEEK_SET);
    }
    return done;
}

ssize_t readDeviceAt(int number, void *buffer, size_t count, off_t offset) {
    return offset < 0 ? failWith(EINVAL) : KernelDriver(number).read(buffer, count, offset);
}

off_t seekDevice(int number, int descriptor, off_t offset, int whence) {
    if (whence != SEEK_END) {
        return real().lseek(descriptor, offset, whence);
    }
    return real().lseek(descriptor, KernelDriver(number).size() + offset, SEEK_SET);
}

} // namespace recorder::preload
