// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <cstdio>
#include <dirent.h>
#include <glob.h>
#include <sys/stat.h>
#include <sys/types.h>

namespace recorder::preload {

/// The functions that this library stands in front of, as the next library has them.
struct RealCalls {
    int (*open)(const char *, int, ...);
    int (*openat)(int, const char *, int, ...);
    int (*ioctl)(int, unsigned long, ...);
    ssize_t (*read)(int, void *, size_t);
    ssize_t (*pread)(int, void *, size_t, off_t);
    ssize_t (*write)(int, const void *, size_t);
    off_t (*lseek)(int, off_t, int);
    int (*fstat)(int, struct stat *);
    int (*fstatat)(int, const char *, struct stat *, int);
    int (*statx)(int, const char *, int, unsigned, struct statx *);
    int (*faccessat)(int, const char *, int, int);
    ssize_t (*readlinkat)(int, const char *, char *, size_t);
    char *(*realpath)(const char *, char *);
    FILE *(*fopen)(const char *, const char *);
    int (*fileno)(FILE *);
    DIR *(*opendir)(const char *);
    int (*glob)(const char *, int, int (*)(const char *, int), glob_t *);
};

/// Found when the library is loaded, or before if another library's start asks for them. After that
/// it only reads, so that signal handlers and children of vfork() may pass through.
const RealCalls &real();

} // namespace recorder::preload

/// Marks a function of this library that programs are meant to find under the name of libc's. The
/// C++ name differs, which keeps libc's own declaration out of the way.
#define RECORDER_EXPORT(name) __asm__(name) __attribute__((visibility("default")))
