// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/support/TemporaryFolder.h"
#include "tests/system/ScorchProcess.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

/// A folder for images and one for sources, and ways to burn from one to the other.
class Burning : public testing::Test {
protected:
    Burning();

    /// Arguments that burn to the folder of images: kind, name, files.
    std::vector<std::string> burnArguments(const std::string &kind, const std::string &name,
                                           const std::vector<std::string> &files) const;
    /// Burns, and fails the test unless it succeeds.
    void burn(const std::string &kind, const std::string &name,
              const std::vector<std::string> &files) const;

    /// The names in the folder of images, hidden ones included, sorted.
    std::vector<std::string> images() const;
    /// The same without hidden ones.
    std::vector<std::string> visibleImages() const;

    std::string image(const std::string &name) const { return imageFolder / name; }

    /// Makes a file of zeros that takes no space.
    std::string sparseFile(const std::string &name, std::uintmax_t bytes) const;
    /// A song of silence of so many seconds, as a WAV file that takes little space.
    std::string silentSong(const std::string &name, std::uint32_t seconds) const;

    const TemporaryFolder folder;
    const std::filesystem::path imageFolder;
};

/// A file of the test media.
std::string medium(const std::string &name);
