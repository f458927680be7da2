// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/iso/TreeWalk.h"

#include "scorch/support/FileDescriptor.h"
#include "scorch/support/NaturalOrder.h"
#include "scorch/support/Text.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <system_error>
#include <unistd.h>

namespace scorch {
namespace {

constexpr int timesOneFolderIsFollowed = 16;

struct CloseFolder {
    void operator()(DIR *folder) const { closedir(folder); }
};

std::string reasonFor(int error, bool isLink) {
    switch (error) {
    case EACCES:
    case EPERM:
        return localized("It cannot be read: you have no permission to open it.");
    case ENOENT:
    case ENOTDIR:
        return isLink ? localized("It is a link to something that is not there.")
                      : localized("There is no such file or folder.");
    case ELOOP:
        return localized("It is a link that leads back to itself.");
    case ENAMETOOLONG:
        return localized("Its path is too long. Move it to a folder nearer to the top.");
    default:
        return localized("It cannot be read (%@).", {std::generic_category().message(error)});
    }
}

bool statusOf(int folder, const char *name, int flags, struct stat &status) {
    return fstatat(folder, name, &status, flags) == 0;
}

/// Finds out what `name` in `folder` is; fills all of `entry` but its name and path.
void lookAt(int folder, const char *name, unsigned char type, WalkDetail detail, TreeEntry &entry) {
    if (detail == WalkDetail::kinds && type == DT_REG) {
        entry.isRegularFile = true;
        entry.kind = EntryKind::file;
        return;
    }
    if (type == DT_UNKNOWN) {
        entry.isLink = statusOf(folder, name, AT_SYMLINK_NOFOLLOW, entry.status) &&
                       S_ISLNK(entry.status.st_mode);
    } else {
        entry.isLink = type == DT_LNK;
    }
    if (!statusOf(folder, name, 0, entry.status)) {
        entry.status = {};
        entry.refusal = reasonFor(errno, entry.isLink);
    } else if (S_ISDIR(entry.status.st_mode)) {
        entry.kind = EntryKind::folder;
    } else if (!S_ISREG(entry.status.st_mode)) {
        entry.refusal = localized("It is a pipe, a socket or a device and holds nothing to burn.");
    } else {
        entry.isRegularFile = true;
        if (detail == WalkDetail::kinds || faccessat(folder, name, R_OK, AT_EACCESS) == 0) {
            entry.kind = EntryKind::file;
        } else {
            entry.refusal = reasonFor(errno, entry.isLink);
        }
    }
}

/// The name that a dropped path gives its entry, also for "folder/", "." and "/".
std::string nameOf(const std::filesystem::path &start) {
    std::filesystem::path path = start;
    if (!path.has_filename()) {
        path = path.parent_path();
    }
    if (path.filename() == "." || path.filename() == "..") {
        std::error_code ignored;
        path = std::filesystem::canonical(path, ignored);
    }
    return path.has_filename() ? path.filename().native() : "root";
}

} // namespace

TreeWalk::TreeWalk(const std::filesystem::path &start, WalkDetail detail, std::stop_token stop)
    : start_(start.native()), detail_(detail), stop_(std::move(stop)) {
    entry_.name = nameOf(start);
}

TreeWalk::Step TreeWalk::next() {
    if (stop_.stop_requested()) {
        return Step::end;
    }
    if (!started_) {
        started_ = true;
        entry_.path = start_;
        lookAt(AT_FDCWD, start_.c_str(), DT_UNKNOWN, detail_, entry_);
        return takeEntry();
    }
    if (frames_.empty()) {
        return Step::end;
    }
    Frame &frame = frames_.back();
    if (frame.next == frame.entries.size()) {
        frames_.pop_back();
        return Step::leave;
    }
    entry_ = std::move(frame.entries[frame.next++]);
    return takeEntry();
}

TreeWalk::Step TreeWalk::takeEntry() {
    if (entry_.path.size() >= PATH_MAX) {
        return refuse(reasonFor(ENAMETOOLONG, false));
    }
    switch (entry_.kind) {
    case EntryKind::file:
        return Step::file;
    case EntryKind::folder:
        return enter();
    case EntryKind::refused:
        break;
    }
    return Step::refused;
}

TreeWalk::Step TreeWalk::refuse(std::string reason) {
    entry_.kind = EntryKind::refused;
    entry_.refusal = std::move(reason);
    return Step::refused;
}

TreeWalk::Step TreeWalk::enter() {
    FileDescriptor folder(open(entry_.path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    struct stat status {};
    if (!folder.valid() || fstat(folder.get(), &status) != 0) {
        return refuse(reasonFor(errno, entry_.isLink));
    }
    Frame frame;
    frame.id = {status.st_dev, status.st_ino};
    if (entry_.isLink && !frames_.empty()) {
        if (std::string reason = linkRefusal(frame.id); !reason.empty()) {
            return refuse(std::move(reason));
        }
    }
    if (!readEntries(folder.release(), frame)) {
        return refuse(reasonFor(errno, entry_.isLink));
    }
    frames_.push_back(std::move(frame));
    return Step::enter;
}

std::string TreeWalk::linkRefusal(const FolderId &id) {
    if (contains(id)) {
        return localized("It is a link back to a folder that it lies in.");
    }
    if (++timesFollowed_[id] > timesOneFolderIsFollowed) {
        return localized("It is a link to a folder that is here many times already.");
    }
    return {};
}

/// Whether a folder is one of those that the present entry lies in, the ones above the start
/// included: a link up and out would bring in the start once more.
bool TreeWalk::contains(const FolderId &id) {
    if (above_.empty()) {
        FileDescriptor folder(open(start_.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
        struct stat status {};
        while (folder.valid() && fstat(folder.get(), &status) == 0) {
            const FolderId found{status.st_dev, status.st_ino};
            if (!above_.empty() && above_.back() == found) {
                break; // The root is its own parent.
            }
            above_.push_back(found);
            folder = FileDescriptor(openat(folder.get(), "..", O_PATH | O_DIRECTORY | O_CLOEXEC));
        }
    }
    return std::find(above_.begin(), above_.end(), id) != above_.end() ||
           std::any_of(frames_.begin(), frames_.end(),
                       [&](const Frame &frame) { return frame.id == id; });
}

/// Takes the descriptor over. False with errno set if the folder cannot be read to its end.
bool TreeWalk::readEntries(int folder, Frame &frame) {
    const std::unique_ptr<DIR, CloseFolder> stream(fdopendir(folder));
    if (!stream) {
        const int error = errno;
        close(folder);
        errno = error;
        return false;
    }
    const std::string prefix = entry_.path.back() == '/' ? entry_.path : entry_.path + '/';
    errno = 0;
    while (const dirent *found = readdir(stream.get())) { // NOLINT: the stream is this thread's
        TreeEntry entry;
        entry.name = found->d_name;
        if (entry.name != "." && entry.name != "..") {
            entry.path = prefix + entry.name;
            lookAt(folder, found->d_name, found->d_type, detail_, entry);
            frame.entries.push_back(std::move(entry));
        }
        if (stop_.stop_requested()) {
            return true;
        }
        errno = 0;
    }
    if (errno != 0) {
        return false;
    }
    std::sort(frame.entries.begin(), frame.entries.end(),
              [](const TreeEntry &a, const TreeEntry &b) { return naturalLess(a.name, b.name); });
    return true;
}

} // namespace scorch
