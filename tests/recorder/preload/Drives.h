// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/recorder/Recorder.h"

#include <array>
#include <atomic>
#include <csignal>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <sys/stat.h>

namespace recorder::preload {

/// The drives below the folder that the environment variable CD_RECORDER names: `sr0` to `sr31`,
/// each a drive's folder. A descriptor of a drive is a real one, of the file `node` in that folder,
/// and is known by its inode. So nothing has to be remembered when a descriptor is duplicated,
/// inherited or closed, and a child of vfork(), which shares the memory of its parent, spoils
/// nothing by closing its descriptors.
class Drives {
public:
    static constexpr int kMost = 32;

    static Drives &instance();

    bool isActive() const { return !root_.empty(); }
    const std::filesystem::path &root() const { return root_; }

    /// The number of the drive that a path names: /dev/srN, or a link to it that this system seems
    /// to have: /dev/scdN, and /dev/cdrom for the first. Whether the drive exists is another
    /// matter.
    std::optional<int> numberOfPath(const char *path) const;
    /// Whether the path is one of the links.
    static bool isLink(const char *path);

    /// Of an open descriptor; nothing for all others. Cheap and safe in signal handlers.
    std::optional<int> numberOfDescriptor(int descriptor) const;

    /// There is a folder for it and it has not been unplugged.
    bool isPresent(int number);
    /// Null if there is no such drive.
    Recorder *recorder(int number);

    std::filesystem::path folder(int number) const;
    /// Makes the file that stands for the device, if it is missing.
    bool prepareNode(int number);

    /// Turns the status of the node into that of a block device.
    static void describe(int number, struct stat &status);

private:
    Drives();

    std::filesystem::path root_;
    std::array<std::atomic<Recorder *>, kMost> recorders_{};
    std::array<std::atomic<ino_t>, kMost> nodes_{};
    std::atomic<dev_t> device_{0};
};

/// Signals are held back while a command runs: a handler that used the drive from within would wait
/// for the lock that its own thread holds.
class SignalsHeld {
public:
    SignalsHeld();
    ~SignalsHeld();
    SignalsHeld(const SignalsHeld &) = delete;
    SignalsHeld &operator=(const SignalsHeld &) = delete;

private:
    sigset_t before_{};
};

} // namespace recorder::preload
