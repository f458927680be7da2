// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/recorder/DriveMemory.h"
#include "tests/recorder/Files.h"

#include <filesystem>

namespace recorder {

/// The folder of a drive and its mapped memory. Files in it: `drive` and `control` (written by
/// whoever sets the scene), `memory`, `lock`, `node` (stands for the device in descriptors) and
/// `disc`, a folder, on the tray at first if it exists.
class DriveFolder {
public:
    /// Maps the memory, making it where the drive is new. isOpen() tells whether that worked.
    explicit DriveFolder(std::filesystem::path path);
    ~DriveFolder();
    DriveFolder(const DriveFolder &) = delete;
    DriveFolder &operator=(const DriveFolder &) = delete;

    bool isOpen() const { return memory_ != nullptr; }
    const std::filesystem::path &path() const { return path_; }
    std::filesystem::path operator/(const char *name) const { return path_ / name; }
    DriveMemory &memory() { return *memory_; }

    /// Excludes all other threads and processes while it lives. Every lock opens the file anew, so
    /// that it also parts threads, and is given up explicitly: a child that was forked meanwhile
    /// would otherwise keep it.
    class Lock {
    public:
        explicit Lock(const DriveFolder &folder);
        ~Lock();
        Lock(const Lock &) = delete;
        Lock &operator=(const Lock &) = delete;

    private:
        Descriptor file_;
    };

private:
    std::filesystem::path path_;
    DriveMemory *memory_ = nullptr;
};

} // namespace recorder
