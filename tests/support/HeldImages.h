// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <vector>

/// Keeps a program that burns to a folder of images from writing there until it is let: a burn that
/// is to be interrupted is then still under way, however fast the disk and slow the test.
class HeldImages {
public:
    /// Holds from now on what programs with this environment write to files in `folder`.
    explicit HeldImages(const std::filesystem::path &folder);
    /// Lets go.
    ~HeldImages();
    HeldImages(const HeldImages &) = delete;
    HeldImages &operator=(const HeldImages &) = delete;

    /// What the program is to be started with, as NAME=VALUE.
    const std::vector<std::string> &environment() const { return environment_; }

    /// The program goes on within some milliseconds.
    void release() const;

private:
    std::filesystem::path gate_; ///< The file that is there as long as they are held.
    std::vector<std::string> environment_;
};
