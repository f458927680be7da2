// SPDX-License-Identifier: GPL-2.0-or-later
// open() and its kin: a path of a drive gives a descriptor of the file that stands for it.
#include "tests/recorder/preload/DeviceFile.h"
#include "tests/recorder/preload/Guard.h"
#include "tests/recorder/preload/RealCalls.h"
#include "tests/recorder/preload/SystemFiles.h"

#include <cstdarg>
#include <fcntl.h>
#include <string>

namespace recorder::preload {

namespace {

bool isModeGiven(int flags) {
    return (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE;
}

int openAt(int folder, const char *path, int flags, unsigned mode) {
    if (const auto number = Drives::instance().numberOfPath(path)) {
        return guarded([&] { return openDevice(*number, flags); });
    }
    std::string storage;
    return real().openat(folder, SystemFiles::redirect(path, storage), flags, mode);
}

#define RECORDER_MODE(flags)                                                                       \
    unsigned mode = 0;                                                                             \
    if (isModeGiven(flags)) {                                                                      \
        va_list arguments;                                                                         \
        va_start(arguments, flags);                                                                \
        mode = va_arg(arguments, unsigned);                                                        \
        va_end(arguments);                                                                         \
    }

} // namespace

extern "C" {

int recorderOpen(const char *path, int flags, ...) RECORDER_EXPORT("open");
int recorderOpen(const char *path, int flags, ...) {
    RECORDER_MODE(flags)
    return openAt(AT_FDCWD, path, flags, mode);
}

int recorderOpen64(const char *path, int flags, ...) RECORDER_EXPORT("open64");
int recorderOpen64(const char *path, int flags, ...) {
    RECORDER_MODE(flags)
    return openAt(AT_FDCWD, path, flags, mode);
}

int recorderOpenAt(int folder, const char *path, int flags, ...) RECORDER_EXPORT("openat");
int recorderOpenAt(int folder, const char *path, int flags, ...) {
    RECORDER_MODE(flags)
    return openAt(folder, path, flags, mode);
}

int recorderOpenAt64(int folder, const char *path, int flags, ...) RECORDER_EXPORT("openat64");
int recorderOpenAt64(int folder, const char *path, int flags, ...) {
    RECORDER_MODE(flags)
    return openAt(folder, path, flags, mode);
}

// What a fortified program calls where it gives no mode.
int recorderOpen2(const char *path, int flags) RECORDER_EXPORT("__open_2");
int recorderOpen2(const char *path, int flags) {
    return openAt(AT_FDCWD, path, flags, 0);
}

int recorderOpen642(const char *path, int flags) RECORDER_EXPORT("__open64_2");
int recorderOpen642(const char *path, int flags) {
    return openAt(AT_FDCWD, path, flags, 0);
}

int recorderOpenAt2(int folder, const char *path, int flags) RECORDER_EXPORT("__openat_2");
int recorderOpenAt2(int folder, const char *path, int flags) {
    return openAt(folder, path, flags, 0);
}

int recorderOpenAt642(int folder, const char *path, int flags) RECORDER_EXPORT("__openat64_2");
int recorderOpenAt642(int folder, const char *path, int flags) {
    return openAt(folder, path, flags, 0);
}

static FILE *openStream(const char *path, const char *mode) {
    if (const auto number = Drives::instance().numberOfPath(path)) {
        return guarded([&] { return openDeviceStream(*number, mode); });
    }
    std::string storage;
    return real().fopen(SystemFiles::redirect(path, storage), mode);
}

FILE *recorderFopen(const char *path, const char *mode) RECORDER_EXPORT("fopen");
FILE *recorderFopen(const char *path, const char *mode) {
    return openStream(path, mode);
}

FILE *recorderFopen64(const char *path, const char *mode) RECORDER_EXPORT("fopen64");
FILE *recorderFopen64(const char *path, const char *mode) {
    return openStream(path, mode);
}

int recorderFileno(FILE *stream) RECORDER_EXPORT("fileno");
int recorderFileno(FILE *stream) {
    const int descriptor = descriptorOfStream(stream);
    return descriptor >= 0 ? descriptor : real().fileno(stream);
}

DIR *recorderOpendir(const char *path) RECORDER_EXPORT("opendir");
DIR *recorderOpendir(const char *path) {
    std::string storage;
    return real().opendir(SystemFiles::redirect(path, storage));
}

} // extern "C"

} // namespace recorder::preload
