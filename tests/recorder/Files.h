// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace recorder {

/// An open descriptor, closed at the end of its life.
class Descriptor {
public:
    explicit Descriptor(int descriptor = -1) : descriptor_(descriptor) {}
    ~Descriptor();
    Descriptor(Descriptor &&other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}
    Descriptor &operator=(Descriptor &&other) noexcept {
        std::swap(descriptor_, other.descriptor_);
        return *this;
    }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;

    int get() const { return descriptor_; }
    bool isOpen() const { return descriptor_ >= 0; }

private:
    int descriptor_;
};

/// Opens with O_CLOEXEC added; `mode` for files that are made.
Descriptor openFile(const std::filesystem::path &path, int flags, unsigned mode = 0666);

/// Nothing if the file cannot be read.
std::optional<std::string> readWhole(const std::filesystem::path &path);

/// A reader sees the old or the new contents, never a part. False if it could not be written.
bool replaceFile(const std::filesystem::path &path, std::string_view contents);

/// What tells one version of a file from the next; equal for two absent files.
struct FileStamp {
    long long seconds = 0;
    long long nanoseconds = 0;
    long long size = -1;
    unsigned long long inode = 0;

    bool operator==(const FileStamp &) const = default;
};
FileStamp stampOf(const std::filesystem::path &path);

} // namespace recorder
