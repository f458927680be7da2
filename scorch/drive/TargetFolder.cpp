// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/drive/TargetFolder.h"

#include "scorch/drive/TargetError.h"
#include "scorch/drive/TemporaryImageFile.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <limits>
#include <memory>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace scorch {
namespace {

/// What Linux takes as one component of a path, whatever a file system claims.
constexpr std::size_t maximumComponentBytes = 255;

struct CloseFolder {
    void operator()(DIR *folder) const { closedir(folder); }
};

std::vector<std::string> temporaryFilesIn(int descriptor) {
    std::vector<std::string> names;
    const int copy = openat(descriptor, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (copy < 0) {
        return names;
    }
    const std::unique_ptr<DIR, CloseFolder> folder(fdopendir(copy));
    if (folder == nullptr) {
        close(copy);
        return names;
    }
    while (const dirent *entry = readdir(folder.get())) {
        if (TemporaryImageFile::isName(entry->d_name)) {
            names.emplace_back(entry->d_name);
        }
    }
    return names;
}

} // namespace

TargetFolder::TargetFolder(std::filesystem::path path, FileDescriptor descriptor)
    : path_(std::move(path)), descriptor_(std::move(descriptor)) {
    struct statvfs status {};
    const bool known = fstatvfs(descriptor_.get(), &status) == 0 && status.f_namemax > 0;
    maximumNameBytes_ = known ? std::min<std::size_t>(status.f_namemax, maximumComponentBytes)
                              : maximumComponentBytes;
}

Result<TargetFolder> TargetFolder::open(const std::filesystem::path &path, bool create) {
    if (create && mkdir(path.c_str(), 0777) != 0 && errno != EEXIST) {
        return targetError(errno, path, "mkdir");
    }
    FileDescriptor descriptor(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!descriptor.valid()) {
        return targetError(errno, path, "open folder");
    }
    return TargetFolder(path, std::move(descriptor));
}

std::uint64_t TargetFolder::availableBytes() const {
    struct statvfs status {};
    if (fstatvfs(descriptor_.get(), &status) != 0 || status.f_blocks == 0) {
        return std::numeric_limits<std::uint64_t>::max(); // Some network file systems keep silent.
    }
    return std::uint64_t{status.f_bavail} * status.f_frsize;
}

bool TargetFolder::contains(const std::string &name) const {
    struct stat status {};
    return fstatat(descriptor_.get(), name.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0;
}

int TargetFolder::renameWithoutReplacing(const std::string &from, const std::string &to) const {
    const int folder = descriptor_.get();
    if (renameat2(folder, from.c_str(), folder, to.c_str(), RENAME_NOREPLACE) == 0) {
        return 0;
    }
    if (errno != EINVAL && errno != ENOSYS && errno != ENOTSUP) {
        return errno;
    }
    // The file system cannot do it in one step: take the name with an empty file of our own, which
    // nobody else gets then, and replace that.
    const FileDescriptor taken(
        openat(folder, to.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
    if (!taken.valid()) {
        return errno;
    }
    const int error = rename(from, to);
    if (error != 0) {
        remove(to);
    }
    return error;
}

int TargetFolder::rename(const std::string &from, const std::string &to) const {
    const int folder = descriptor_.get();
    return renameat(folder, from.c_str(), folder, to.c_str()) == 0 ? 0 : errno;
}

void TargetFolder::remove(const std::string &name) const {
    unlinkat(descriptor_.get(), name.c_str(), 0);
}

int TargetFolder::flush() const {
    if (fsync(descriptor_.get()) == 0 || errno == EINVAL || errno == ENOSYS) {
        return 0; // Some file systems have no such thing for folders.
    }
    return errno;
}

void TargetFolder::removeStaleFiles() const {
    for (const std::string &name : temporaryFilesIn(descriptor_.get())) {
        const FileDescriptor file(
            openat(descriptor_.get(), name.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
        if (file.valid() && flock(file.get(), LOCK_EX | LOCK_NB) == 0) {
            remove(name);
        }
    }
}

} // namespace scorch
