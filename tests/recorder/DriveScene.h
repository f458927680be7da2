// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/recorder/Disc.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace recorder {

/// Sets the scene for a test: a drive's folder below a root folder, the discs in it, and what a
/// hand or bad luck does to it while a program runs. Writes files only; the drive notices with its
/// next command.
class DriveScene {
public:
    /// Makes the folder of drive `name` ("sr0", "sr1") below `root` if it is missing.
    explicit DriveScene(const std::filesystem::path &root, const std::string &name = "sr0");

    const std::filesystem::path &folder() const { return folder_; }

    /// A disc folder of this name below the drive's; "disc" is on the tray from the beginning.
    void makeDisc(const Disc &disc, const std::string &name = "disc") const;
    /// The state of that disc as it is now. Throws std::runtime_error if it cannot be read.
    Disc disc(const std::string &name = "disc") const;
    /// The raw sectors of it.
    Bytes sectors(Lba first, Lba count, const std::string &name = "disc") const;

    /// What the drive is: the text of DriveProfile.
    void describe(std::string_view text) const;
    /// How it behaves from now on: the text of Faults.
    void control(std::string_view text) const;
    /// From now on each command leaves a line in the file `log`.
    void startLog() const;
    std::string log() const;

private:
    std::filesystem::path folder_;
};

/// A blank disc of 80 minutes.
Disc blankDisc(DiscKind kind);

/// A pressed or finalised disc with one data track of these user data (a multiple of 2048 bytes),
/// put into `folder`.
void makeDataDisc(const std::filesystem::path &folder, DiscKind kind, ByteView userData);

} // namespace recorder
