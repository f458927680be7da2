// SPDX-License-Identifier: GPL-2.0-or-later
// What programs do with an open descriptor. Those of other files pass through.
#include "tests/recorder/preload/CdromIoctl.h"
#include "tests/recorder/preload/DeviceFile.h"
#include "tests/recorder/preload/Guard.h"
#include "tests/recorder/preload/RealCalls.h"

#include <cerrno>
#include <cstdarg>

namespace recorder::preload {

namespace {

ssize_t readFrom(int descriptor, void *buffer, size_t count) {
    const auto number = Drives::instance().numberOfDescriptor(descriptor);
    if (!number) {
        return real().read(descriptor, buffer, count);
    }
    return guarded([&] { return readDevice(*number, descriptor, buffer, count); });
}

ssize_t readAt(int descriptor, void *buffer, size_t count, off_t offset) {
    const auto number = Drives::instance().numberOfDescriptor(descriptor);
    if (!number) {
        return real().pread(descriptor, buffer, count, offset);
    }
    return guarded([&] { return readDeviceAt(*number, buffer, count, offset); });
}

off_t seek(int descriptor, off_t offset, int whence) {
    const auto number = Drives::instance().numberOfDescriptor(descriptor);
    if (!number) {
        return real().lseek(descriptor, offset, whence);
    }
    return guarded([&] { return seekDevice(*number, descriptor, offset, whence); });
}

} // namespace

extern "C" {

int recorderIoctl(int descriptor, unsigned long request, ...) RECORDER_EXPORT("ioctl");
int recorderIoctl(int descriptor, unsigned long request, ...) {
    va_list arguments;
    va_start(arguments, request);
    void *argument = va_arg(arguments, void *);
    va_end(arguments);
    const auto number = Drives::instance().numberOfDescriptor(descriptor);
    if (!number) {
        return real().ioctl(descriptor, request, argument);
    }
    return guarded([&] {
        const IoctlResult result = cdromIoctl(*number, request, argument);
        if (result.error != 0) {
            errno = result.error;
            return -1;
        }
        return result.value;
    });
}

ssize_t recorderRead(int descriptor, void *buffer, size_t count) RECORDER_EXPORT("read");
ssize_t recorderRead(int descriptor, void *buffer, size_t count) {
    return readFrom(descriptor, buffer, count);
}

ssize_t recorderReadChecked(int descriptor, void *buffer, size_t count, size_t room)
    RECORDER_EXPORT("__read_chk");
ssize_t recorderReadChecked(int descriptor, void *buffer, size_t count, size_t room) {
    if (count > room) {
        __builtin_trap();
    }
    return readFrom(descriptor, buffer, count);
}

ssize_t recorderPread(int descriptor, void *buffer, size_t count, off_t offset)
    RECORDER_EXPORT("pread");
ssize_t recorderPread(int descriptor, void *buffer, size_t count, off_t offset) {
    return readAt(descriptor, buffer, count, offset);
}

ssize_t recorderPread64(int descriptor, void *buffer, size_t count, off_t offset)
    RECORDER_EXPORT("pread64");
ssize_t recorderPread64(int descriptor, void *buffer, size_t count, off_t offset) {
    return readAt(descriptor, buffer, count, offset);
}

ssize_t recorderWrite(int descriptor, const void *buffer, size_t count) RECORDER_EXPORT("write");
ssize_t recorderWrite(int descriptor, const void *buffer, size_t count) {
    if (!Drives::instance().numberOfDescriptor(descriptor)) {
        return real().write(descriptor, buffer, count);
    }
    errno = EROFS; // A CD is written by commands only.
    return -1;
}

off_t recorderLseek(int descriptor, off_t offset, int whence) RECORDER_EXPORT("lseek");
off_t recorderLseek(int descriptor, off_t offset, int whence) {
    return seek(descriptor, offset, whence);
}

off_t recorderLseek64(int descriptor, off_t offset, int whence) RECORDER_EXPORT("lseek64");
off_t recorderLseek64(int descriptor, off_t offset, int whence) {
    return seek(descriptor, offset, whence);
}

} // extern "C"

} // namespace recorder::preload
