// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/mmc/DeviceHolder.h"

#include <grp.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <fstream>
#include <string_view>
#include <system_error>
#include <vector>

namespace scorch {
namespace {

namespace fs = std::filesystem;

/// Two names, one device or file: also where each has a node of its own.
bool isSame(const struct stat &left, const struct stat &right) {
    if (S_ISBLK(left.st_mode) && S_ISBLK(right.st_mode) && left.st_rdev == right.st_rdev) {
        return true;
    }
    return left.st_dev == right.st_dev && left.st_ino == right.st_ino;
}

bool isProcess(const fs::path &entry) {
    const std::string name = entry.filename().native();
    return !name.empty() && std::all_of(name.begin(), name.end(), [](char character) {
        return character >= '0' && character <= '9';
    });
}

bool hasOpen(const fs::path &process, const struct stat &wanted) {
    std::error_code ignored; // Processes of others, and those that end meanwhile, tell nothing.
    for (fs::directory_iterator descriptor(process / "fd", ignored), end;
         !ignored && descriptor != end; descriptor.increment(ignored)) {
        struct stat status {};
        if (::stat(descriptor->path().c_str(), &status) == 0 && isSame(status, wanted)) {
            return true;
        }
    }
    return false;
}

std::string describe(const fs::path &process) {
    std::ifstream file(process / "comm");
    std::string name;
    std::getline(file, name);
    return (name.empty() ? std::string("?") : name) + " (" + process.filename().native() + ")";
}

} // namespace

std::string holderOf(const fs::path &node) {
    struct stat wanted {};
    if (::stat(node.c_str(), &wanted) != 0) {
        return {};
    }
    const std::string self = std::to_string(::getpid());
    std::error_code ignored;
    for (fs::directory_iterator process("/proc", ignored), end; !ignored && process != end;
         process.increment(ignored)) {
        const fs::path &path = process->path();
        if (isProcess(path) && path.filename() != self && hasOpen(path, wanted)) {
            return describe(path);
        }
    }
    return {};
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
