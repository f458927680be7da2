// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/recorder/DiscStore.h"

#include "tests/recorder/DiscText.h"
#include "tests/recorder/Files.h"

#include <algorithm>
#include <fcntl.h>
#include <unistd.h>

namespace recorder {

bool DiscStore::create(const Disc &disc) const {
    std::error_code error;
    std::filesystem::create_directories(folder_, error);
    return !error && eraseSectors() && save(disc);
}

std::optional<Disc> DiscStore::load(std::string &error) const {
    error.clear();
    const std::optional<std::string> text = readWhole(statePath());
    return text ? parseDisc(*text, error) : std::nullopt;
}

bool DiscStore::save(const Disc &disc) const {
    return replaceFile(statePath(), formatDisc(disc));
}

int DiscStore::sectors() const {
    if (!sectors_) {
        sectors_.emplace(openFile(sectorsPath(), O_RDWR | O_CREAT));
    }
    return sectors_->get();
}

bool DiscStore::write(Lba first, ByteView sectors) const {
    const int file = this->sectors();
    std::int64_t offset = offsetOf(first);
    while (!sectors.empty()) {
        const ssize_t count = pwrite(file, sectors.data(), sectors.size(), offset);
        if (count <= 0) {
            return false;
        }
        offset += count;
        sectors = sectors.subspan(static_cast<std::size_t>(count));
    }
    return true;
}

bool DiscStore::read(std::int64_t offset, ByteSpan bytes) const {
    std::fill(bytes.begin(), bytes.end(), Byte{0});
    if (offset < 0) {
        const auto before = static_cast<std::size_t>(
            std::min<std::int64_t>(-offset, static_cast<std::int64_t>(bytes.size())));
        bytes = bytes.subspan(before);
        offset = 0;
    }
    const int file = sectors();
    while (!bytes.empty()) {
        const ssize_t count = pread(file, bytes.data(), bytes.size(), offset);
        if (count < 0) {
            return false;
        }
        if (count == 0) {
            break;
        }
        offset += count;
        bytes = bytes.subspan(static_cast<std::size_t>(count));
    }
    return true;
}

bool DiscStore::eraseSectors() const {
    return openFile(sectorsPath(), O_WRONLY | O_CREAT | O_TRUNC).isOpen();
}

} // namespace recorder
