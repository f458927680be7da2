// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/recorder/DriveScene.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

/// The drive /dev/sr0 of the emulated recorder that is under this process or will be under
/// another, what is done to it, and the songs and files that are burned on it.
class SoakScene {
public:
    /// `root` is what CD_RECORDER names. `workFolder` gets songs and files.
    SoakScene(const std::filesystem::path &root, std::filesystem::path workFolder);

    /// Puts another disc in, as a hand does. Each is a disc of its own.
    void insert(const recorder::Disc &disc);
    void insertBlank(recorder::DiscKind kind = recorder::DiscKind::CdR) {
        insert(recorder::blankDisc(kind));
    }
    void insertUsed();
    void insertPressed();
    void insertDvd();

    /// How fast the drive is from now on, in sectors a second; 0: at once.
    void setSpeed(int sectorsPerSecond);
    /// What is wrong from now on: statements of the recorder's control file, one a line.
    void setFaults(const std::string &statements);
    /// All well again.
    void clearFaults() { setFaults({}); }

    /// The disc that was put in last, as it is now.
    recorder::Disc disc() const;
    /// The block that the recording writes next; nothing while none is under way.
    std::optional<recorder::Lba> position() const;
    bool isDoorLocked() const;
    /// Whether a program could have the drive to itself. Opens /dev/sr0, so the recorder has to be
    /// under this process.
    static bool isFree();

    /// Three songs of `songSectors` each.
    const std::vector<std::filesystem::path> &songs() const { return songs_; }
    const std::vector<std::filesystem::path> &files() const { return files_; }
    /// Takes a file of the list away, and puts it back as it was.
    void takeFileAway();
    void putFileBack();

    static constexpr recorder::Lba songSectors = 400;

private:
    void makeSources();
    void control() const;

    std::filesystem::path workFolder_;
    recorder::DriveScene drive_;
    std::vector<std::filesystem::path> songs_;
    std::vector<std::filesystem::path> files_;
    int discs_ = 0;
    std::string order_;
    std::string speed_;
    std::string faults_;
};
