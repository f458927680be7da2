// SPDX-License-Identifier: GPL-2.0-or-later
// What programs ask about a path or a descriptor: a drive looks like a block device.
#include "tests/recorder/preload/Drives.h"
#include "tests/recorder/preload/Guard.h"
#include "tests/recorder/preload/RealCalls.h"
#include "tests/recorder/preload/SystemFiles.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <string>
#include <sys/sysmacros.h>
#include <unistd.h>

namespace recorder::preload {

namespace {

/// Where the link points: its drive, in the same folder.
std::string linkTarget(int number) {
    return "sr" + std::to_string(number);
}

int failWith(int error) {
    errno = error;
    return -1;
}

bool isPresent(int number) {
    const SignalsHeld held;
    return guarded([&] { return Drives::instance().isPresent(number) ? 1 : 0; }) == 1;
}

bool isForbidden(int number) {
    const SignalsHeld held;
    const auto ask = [&] {
        return Drives::instance().recorder(number)->faults().noPermission ? 1 : 0;
    };
    return guarded(ask) == 1;
}

/// The status of /dev/srN, or of the link to it where links are not to be followed.
int describeDevice(int number, bool isLink, struct stat *status) {
    if (!isPresent(number)) {
        return failWith(ENOENT);
    }
    const std::string node = (Drives::instance().folder(number) / "node").string();
    if (real().fstatat(AT_FDCWD, node.c_str(), status, 0) != 0) {
        return -1;
    }
    Drives::describe(number, *status);
    if (isLink) {
        status->st_mode = S_IFLNK | 0777;
        status->st_rdev = 0;
        status->st_size = static_cast<off_t>(linkTarget(number).size());
    }
    return 0;
}

int statAt(int folder, const char *path, struct stat *status, int flags) {
    if (const auto number = Drives::instance().numberOfPath(path)) {
        const bool isLink = (flags & AT_SYMLINK_NOFOLLOW) != 0 && Drives::isLink(path);
        return guarded([&] { return describeDevice(*number, isLink, status); });
    }
    std::string storage;
    return real().fstatat(folder, SystemFiles::redirect(path, storage), status, flags);
}

int statDescriptor(int descriptor, struct stat *status) {
    const int result = real().fstat(descriptor, status);
    const auto number = Drives::instance().numberOfDescriptor(descriptor);
    if (result == 0 && number) {
        Drives::describe(*number, *status);
    }
    return result;
}

void toExtended(const struct stat &status, struct statx &extended) {
    extended = {};
    extended.stx_mask = STATX_BASIC_STATS;
    extended.stx_mode = static_cast<std::uint16_t>(status.st_mode);
    extended.stx_nlink = static_cast<std::uint32_t>(status.st_nlink);
    extended.stx_uid = status.st_uid;
    extended.stx_gid = status.st_gid;
    extended.stx_ino = status.st_ino;
    extended.stx_size = static_cast<std::uint64_t>(status.st_size);
    extended.stx_blksize = static_cast<std::uint32_t>(status.st_blksize);
    extended.stx_dev_major = major(status.st_dev);
    extended.stx_dev_minor = minor(status.st_dev);
    extended.stx_rdev_major = major(status.st_rdev);
    extended.stx_rdev_minor = minor(status.st_rdev);
    extended.stx_atime.tv_sec = status.st_atim.tv_sec;
    extended.stx_mtime.tv_sec = status.st_mtim.tv_sec;
    extended.stx_ctime.tv_sec = status.st_ctim.tv_sec;
}

int mayAccess(int folder, const char *path, int mode, int flags) {
    const auto number = Drives::instance().numberOfPath(path);
    if (!number) {
        std::string storage;
        return real().faccessat(folder, SystemFiles::redirect(path, storage), mode, flags);
    }
    if (!isPresent(*number)) {
        return failWith(ENOENT);
    }
    const bool isRunnable = (mode & X_OK) != 0;
    return isRunnable || (mode != F_OK && isForbidden(*number)) ? failWith(EACCES) : 0;
}

ssize_t readLink(int folder, const char *path, char *buffer, size_t room) {
    const auto number = Drives::instance().numberOfPath(path);
    if (!number) {
        std::string storage;
        return real().readlinkat(folder, SystemFiles::redirect(path, storage), buffer, room);
    }
    if (!isPresent(*number)) {
        return failWith(ENOENT);
    }
    if (!Drives::isLink(path)) {
        return failWith(EINVAL);
    }
    const std::string target = linkTarget(*number);
    const std::size_t length = std::min(room, target.size());
    std::copy_n(target.begin(), length, buffer); // With no zero at the end, as the call has it.
    return static_cast<ssize_t>(length);
}

char *realPath(const char *path, char *resolved) {
    const auto number = Drives::instance().numberOfPath(path);
    if (!number) {
        std::string storage;
        return real().realpath(SystemFiles::redirect(path, storage), resolved);
    }
    if (!isPresent(*number)) {
        errno = ENOENT;
        return nullptr;
    }
    const std::string device = "/dev/" + linkTarget(*number);
    if (resolved == nullptr) {
        return strdup(device.c_str());
    }
    std::memcpy(resolved, device.c_str(), device.size() + 1);
    return resolved;
}

} // namespace

extern "C" {

int recorderStat(const char *path, struct stat *status) RECORDER_EXPORT("stat");
int recorderStat(const char *path, struct stat *status) {
    return statAt(AT_FDCWD, path, status, 0);
}

int recorderLstat(const char *path, struct stat *status) RECORDER_EXPORT("lstat");
int recorderLstat(const char *path, struct stat *status) {
    return statAt(AT_FDCWD, path, status, AT_SYMLINK_NOFOLLOW);
}

int recorderFstat(int descriptor, struct stat *status) RECORDER_EXPORT("fstat");
int recorderFstat(int descriptor, struct stat *status) {
    return statDescriptor(descriptor, status);
}

int recorderFstatAt(int folder, const char *path, struct stat *status, int flags)
    RECORDER_EXPORT("fstatat");
int recorderFstatAt(int folder, const char *path, struct stat *status, int flags) {
    return statAt(folder, path, status, flags);
}

// On this platform the structures with 64 in their name are the same.
int recorderStat64(const char *path, struct stat *status) RECORDER_EXPORT("stat64");
int recorderStat64(const char *path, struct stat *status) {
    return statAt(AT_FDCWD, path, status, 0);
}

int recorderLstat64(const char *path, struct stat *status) RECORDER_EXPORT("lstat64");
int recorderLstat64(const char *path, struct stat *status) {
    return statAt(AT_FDCWD, path, status, AT_SYMLINK_NOFOLLOW);
}

int recorderFstat64(int descriptor, struct stat *status) RECORDER_EXPORT("fstat64");
int recorderFstat64(int descriptor, struct stat *status) {
    return statDescriptor(descriptor, status);
}

int recorderFstatAt64(int folder, const char *path, struct stat *status, int flags)
    RECORDER_EXPORT("fstatat64");
int recorderFstatAt64(int folder, const char *path, struct stat *status, int flags) {
    return statAt(folder, path, status, flags);
}

// What programs built before glibc 2.33 call; the first argument is the layout, always this one.
int recorderXstat(int version, const char *path, struct stat *status) RECORDER_EXPORT("__xstat");
int recorderXstat(int /*version*/, const char *path, struct stat *status) {
    return statAt(AT_FDCWD, path, status, 0);
}

int recorderXstat64(int version, const char *path, struct stat *status)
    RECORDER_EXPORT("__xstat64");
int recorderXstat64(int /*version*/, const char *path, struct stat *status) {
    return statAt(AT_FDCWD, path, status, 0);
}

int recorderLxstat(int version, const char *path, struct stat *status) RECORDER_EXPORT("__lxstat");
int recorderLxstat(int /*version*/, const char *path, struct stat *status) {
    return statAt(AT_FDCWD, path, status, AT_SYMLINK_NOFOLLOW);
}

int recorderLxstat64(int version, const char *path, struct stat *status)
    RECORDER_EXPORT("__lxstat64");
int recorderLxstat64(int /*version*/, const char *path, struct stat *status) {
    return statAt(AT_FDCWD, path, status, AT_SYMLINK_NOFOLLOW);
}

int recorderFxstat(int version, int descriptor, struct stat *status) RECORDER_EXPORT("__fxstat");
int recorderFxstat(int /*version*/, int descriptor, struct stat *status) {
    return statDescriptor(descriptor, status);
}

int recorderFxstat64(int version, int descriptor, struct stat *status)
    RECORDER_EXPORT("__fxstat64");
int recorderFxstat64(int /*version*/, int descriptor, struct stat *status) {
    return statDescriptor(descriptor, status);
}

int recorderStatx(int folder, const char *path, int flags, unsigned mask, struct statx *status)
    RECORDER_EXPORT("statx");
int recorderStatx(int folder, const char *path, int flags, unsigned mask, struct statx *status) {
    struct stat plain {};
    const bool isDescriptor = path != nullptr && *path == '\0' && (flags & AT_EMPTY_PATH) != 0;
    if (isDescriptor && Drives::instance().numberOfDescriptor(folder)) {
        statDescriptor(folder, &plain);
    } else if (Drives::instance().numberOfPath(path)) {
        if (statAt(folder, path, &plain, flags) != 0) {
            return -1;
        }
    } else {
        std::string storage;
        return real().statx(folder, SystemFiles::redirect(path, storage), flags, mask, status);
    }
    toExtended(plain, *status);
    return 0;
}

int recorderAccess(const char *path, int mode) RECORDER_EXPORT("access");
int recorderAccess(const char *path, int mode) {
    return mayAccess(AT_FDCWD, path, mode, 0);
}

int recorderEuidaccess(const char *path, int mode) RECORDER_EXPORT("euidaccess");
int recorderEuidaccess(const char *path, int mode) {
    return mayAccess(AT_FDCWD, path, mode, AT_EACCESS);
}

int recorderFaccessat(int folder, const char *path, int mode, int flags)
    RECORDER_EXPORT("faccessat");
int recorderFaccessat(int folder, const char *path, int mode, int flags) {
    return mayAccess(folder, path, mode, flags);
}

ssize_t recorderReadlink(const char *path, char *buffer, size_t room) RECORDER_EXPORT("readlink");
ssize_t recorderReadlink(const char *path, char *buffer, size_t room) {
    return readLink(AT_FDCWD, path, buffer, room);
}

ssize_t recorderReadlinkAt(int folder, const char *path, char *buffer, size_t room)
    RECORDER_EXPORT("readlinkat");
ssize_t recorderReadlinkAt(int folder, const char *path, char *buffer, size_t room) {
    return readLink(folder, path, buffer, room);
}

char *recorderRealpath(const char *path, char *resolved) RECORDER_EXPORT("realpath");
char *recorderRealpath(const char *path, char *resolved) {
    return realPath(path, resolved);
}

char *recorderRealpathChecked(const char *path, char *resolved, size_t room)
    RECORDER_EXPORT("__realpath_chk");
char *recorderRealpathChecked(const char *path, char *resolved, size_t /*room*/) {
    return realPath(path, resolved);
}

} // extern "C"

} // namespace recorder::preload
