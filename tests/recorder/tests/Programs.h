// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/recorder/DriveScene.h"
#include "tests/support/CommandResult.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

/// A drive with a disc, sound and data to burn, and programs that are not ours to use them.
class Programs : public testing::Test {
protected:
    Programs();

    /// Runs a program with the recorder under it, which finds the drive as /dev/sr0.
    CommandResult run(const std::vector<std::string> &arguments) const;
    /// The same; the program must succeed. Its output.
    std::string mustRun(const std::vector<std::string> &arguments) const;

    void insertBlank(recorder::DiscKind kind) const { scene.makeDisc(recorder::blankDisc(kind)); }

    /// A WAV file of so many CD frames, all different, in the temporary folder.
    std::string wav(const std::string &name, int frames, int seed) const;
    /// The sound of that file.
    static recorder::Bytes sound(int frames, int seed);
    /// An ISO image with a file in it, made by xorriso.
    std::string isoImage() const;

    std::string path(const std::string &name) const { return (folder / name).string(); }
    /// The whole of a file as bytes.
    recorder::Bytes bytes(const std::string &name) const;

    TemporaryFolder folder;
    recorder::DriveScene scene{folder.path()};
};
