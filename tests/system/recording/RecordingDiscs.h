// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/recorder/DriveScene.h"
#include "tests/support/CommandResult.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/system/ScorchProcess.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

/// A drive with a blank disc, and the real program and other people's programs that use it as
/// /dev/sr0.
class RecordingDiscs : public testing::Test {
protected:
    RecordingDiscs();

    /// A song of so many CD frames of noise, with tags; its path.
    std::string song(const std::string &name, int frames, unsigned seed, const std::string &title,
                     const std::string &artist) const;
    /// The samples of that song, as a disc has them.
    static std::string samples(int frames, unsigned seed);
    std::string file(const std::string &name, const std::string &content) const;
    /// A file of zeros that takes no space.
    std::string sparseFile(const std::string &name, std::uintmax_t bytes) const;

    /// Arguments that burn files of a kind ("audio", "data") under a name.
    static std::vector<std::string> burning(const std::string &kind, const std::string &name,
                                            const std::vector<std::string> &files);
    /// What the recorder needs in the environment of a program.
    std::vector<std::string> environment() const;

    /// Burns; the exit status. What was printed is in output and errors.
    int burn(const std::vector<std::string> &arguments);
    /// The same, and fails the test unless it succeeds.
    void mustBurn(const std::vector<std::string> &arguments);
    /// Runs a program of other people on the drive; its output. Fails the test unless it succeeds.
    std::string mustRun(const std::vector<std::string> &arguments) const;
    /// All sound of the disc, as cdparanoia reads it.
    std::string soundReadBack() const;

    /// Nobody holds the drive, its door is not locked, and a new disc can be burned on it.
    void expectDriveToBeFree();
    void expectNextDiscToWork();

    std::string path(const std::string &name) const { return (folder / name).string(); }

    TemporaryFolder folder;
    recorder::DriveScene scene;
    std::string output;
    std::string errors;
};
