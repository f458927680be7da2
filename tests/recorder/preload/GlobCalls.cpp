// SPDX-License-Identifier: GPL-2.0-or-later
// glob() opens folders from within libc, where nothing can step in between: so it is given the
// pattern of the place where the system's files were laid down.
#include "tests/recorder/preload/RealCalls.h"
#include "tests/recorder/preload/SystemFiles.h"

#include <cstring>
#include <string>

namespace recorder::preload {

namespace {

int globIn(const char *pattern, int flags, int (*onError)(const char *, int), glob_t *found) {
    std::string storage;
    const char *redirected = SystemFiles::redirect(pattern, storage);
    const std::size_t before = (flags & GLOB_APPEND) != 0 ? found->gl_pathc : 0;
    const int result = real().glob(redirected, flags, onError, found);
    if (result != 0 || redirected == pattern) {
        return result;
    }
    // Take the place away from the names again.
    const std::size_t added = storage.size() - std::strlen(pattern);
    const std::size_t offset = (flags & GLOB_DOOFFS) != 0 ? found->gl_offs : 0;
    for (std::size_t index = before; index < found->gl_pathc; ++index) {
        char *name = found->gl_pathv[offset + index];
        if (std::strncmp(name, storage.c_str(), added) == 0) {
            std::memmove(name, name + added, std::strlen(name + added) + 1);
        }
    }
    return result;
}

} // namespace

extern "C" {

int recorderGlob(const char *pattern, int flags, int (*onError)(const char *, int), glob_t *found)
    RECORDER_EXPORT("glob");
int recorderGlob(const char *pattern, int flags, int (*onError)(const char *, int), glob_t *found) {
    return globIn(pattern, flags, onError, found);
}

int recorderGlob64(const char *pattern, int flags, int (*onError)(const char *, int), glob_t *found)
    RECORDER_EXPORT("glob64");
int recorderGlob64(const char *pattern, int flags, int (*onError)(const char *, int),
                   glob_t *found) {
    return globIn(pattern, flags, onError, found);
}

} // extern "C"

} // namespace recorder::preload
