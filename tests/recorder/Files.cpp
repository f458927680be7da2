// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/recorder/Files.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace recorder {

Descriptor::~Descriptor() {
    if (descriptor_ >= 0) {
        close(descriptor_);
    }
}

Descriptor openFile(const std::filesystem::path &path, int flags, unsigned mode) {
    return Descriptor(open(path.c_str(), flags | O_CLOEXEC, mode));
}

std::optional<std::string> readWhole(const std::filesystem::path &path) {
    const Descriptor file = openFile(path, O_RDONLY);
    if (!file.isOpen()) {
        return {};
    }
    std::string contents;
    std::array<char, 4096> buffer{};
    ssize_t count = 0;
    while ((count = read(file.get(), buffer.data(), buffer.size())) > 0) {
        contents.append(buffer.data(), static_cast<std::size_t>(count));
    }
    return count == 0 ? std::optional(std::move(contents)) : std::nullopt;
}

bool replaceFile(const std::filesystem::path &path, std::string_view contents) {
    std::string temporary = path.string() + ".XXXXXX";
    const Descriptor file(mkostemp(temporary.data(), O_CLOEXEC));
    if (!file.isOpen()) {
        return false;
    }
    while (!contents.empty()) {
        const ssize_t count = write(file.get(), contents.data(), contents.size());
        if (count <= 0) {
            unlink(temporary.c_str());
            return false;
        }
        contents.remove_prefix(static_cast<std::size_t>(count));
    }
    if (rename(temporary.c_str(), path.c_str()) != 0) {
        unlink(temporary.c_str());
        return false;
    }
    return true;
}

FileStamp stampOf(const std::filesystem::path &path) {
    struct stat status {};
    if (stat(path.c_str(), &status) != 0) {
        return {};
    }
    return {status.st_mtim.tv_sec, status.st_mtim.tv_nsec, status.st_size, status.st_ino};
}

} // namespace recorder
