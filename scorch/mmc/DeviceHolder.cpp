// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/mmc/DeviceHolder.h"

#include <fcntl.h>
#include <grp.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <fstream>
#include <optional>
#include <string_view>
#include <system_error>
#include <vector>

namespace scorch {
namespace {

namespace fs = std::filesystem;

/// A file, asked without waiting for a server that holds it: programs have files open that lie
/// anywhere.
std::optional<struct statx> statusOf(const fs::path &path) {
    struct statx status {};
    constexpr unsigned wanted = STATX_TYPE | STATX_INO;
    if (::statx(AT_FDCWD, path.c_str(), AT_STATX_DONT_SYNC, wanted, &status) != 0) {
        return std::nullopt;
    }
    return status;
}

/// Two names, one device or file: also where each has a node of its own.
bool isSame(const struct statx &left, const struct statx &right) {
    if (S_ISBLK(left.stx_mode) && S_ISBLK(right.stx_mode)) {
        return left.stx_rdev_major == right.stx_rdev_major &&
               left.stx_rdev_minor == right.stx_rdev_minor;
    }
    return left.stx_dev_major == right.stx_dev_major && left.stx_dev_minor == right.stx_dev_minor &&
           left.stx_ino == right.stx_ino;
}

bool isProcess(const fs::path &entry) {
    const std::string name = entry.filename().native();
    return !name.empty() && std::all_of(name.begin(), name.end(), [](char character) {
        return character >= '0' && character <= '9';
    });
}

enum class Use { none, reading, writing };

/// The access mode among the flags that the kernel tells of a descriptor, in octal.
Use useOf(const fs::path &descriptorInfo) {
    std::ifstream file(descriptorInfo);
    std::string word;
    while (file >> word && word != "flags:") {
    }
    unsigned flags = 0;
    file >> std::oct >> flags;
    return !file || (flags & O_ACCMODE) == O_RDONLY ? Use::reading : Use::writing;
}

/// The most that a process has the file open for.
Use useOf(const fs::path &process, const struct statx &wanted) {
    Use use = Use::none;
    std::error_code ignored; // Processes of others, and those that end meanwhile, tell nothing.
    for (fs::directory_iterator descriptor(process / "fd", ignored), end;
         !ignored && descriptor != end; descriptor.increment(ignored)) {
        const auto status = statusOf(descriptor->path());
        if (status && isSame(*status, wanted)) {
            use = std::max(use, useOf(process / "fdinfo" / descriptor->path().filename()));
        }
    }
    return use;
}

std::string describe(const fs::path &process) {
    std::ifstream file(process / "comm");
    std::string name;
    std::getline(file, name);
    return (name.empty() ? std::string("?") : name) + " (" + process.filename().native() + ")";
}

/// The first other process that has the node open for `least`, and the one that has it open for
/// the most before others.
std::string userOf(const fs::path &node, Use least) {
    const auto wanted = statusOf(node);
    if (!wanted) {
        return {};
    }
    const std::string self = std::to_string(::getpid());
    std::string reader;
    std::error_code ignored;
    for (fs::directory_iterator process("/proc", ignored), end; !ignored && process != end;
         process.increment(ignored)) {
        const fs::path &path = process->path();
        if (!isProcess(path) || path.filename() == self) {
            continue;
        }
        const Use use = useOf(path, *wanted);
        if (use == Use::writing) {
            return describe(path);
        }
        if (use == Use::reading && least == Use::reading && reader.empty()) {
            reader = describe(path);
        }
    }
    return reader;
}

} // namespace

std::string holderOf(const fs::path &node) {
    return userOf(node, Use::reading);
}

std::string writerOf(const fs::path &node) {
    return userOf(node, Use::writing);
}

std::string groupOf(const fs::path &node) {
    struct stat status {};
    if (::stat(node.c_str(), &status) != 0) {
        return {};
    }
    constexpr std::size_t enough = 16'384; // For a group with many members.
    std::vector<char> buffer(enough);
    struct group entry {};
    struct group *found = nullptr;
    const int failed = ::getgrgid_r(status.st_gid, &entry, buffer.data(), buffer.size(), &found);
    return failed == 0 && found != nullptr ? found->gr_name : std::to_string(status.st_gid);
}

} // namespace scorch
