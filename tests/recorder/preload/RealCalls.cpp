// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/recorder/preload/RealCalls.h"

#include <dlfcn.h>

namespace recorder::preload {

namespace {

template <class Function>
void find(Function &function, const char *name) {
    function = reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

RealCalls findAll() {
    RealCalls calls{};
    find(calls.open, "open64");
    find(calls.openat, "openat64");
    find(calls.ioctl, "ioctl");
    find(calls.read, "read");
    find(calls.pread, "pread64");
    find(calls.write, "write");
    find(calls.lseek, "lseek64");
    find(calls.fstat, "fstat64");
    find(calls.fstatat, "fstatat64");
    find(calls.statx, "statx");
    find(calls.faccessat, "faccessat");
    find(calls.readlinkat, "readlinkat");
    find(calls.realpath, "realpath");
    find(calls.fopen, "fopen64");
    find(calls.fileno, "fileno");
    find(calls.opendir, "opendir");
    find(calls.glob, "glob64");
    return calls;
}

} // namespace

const RealCalls &real() {
    static const RealCalls calls = findAll();
    return calls;
}

namespace {

[[gnu::constructor]] void findEarly() {
    real();
}

} // namespace

} // namespace recorder::preload
