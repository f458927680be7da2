// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

/// A new, empty folder that is removed with all its contents at the end of its life.
class TemporaryFolder {
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder &) = delete;
    TemporaryFolder &operator=(const TemporaryFolder &) = delete;

    const std::filesystem::path &path() const { return path_; }
    std::filesystem::path operator/(const std::filesystem::path &name) const {
        return path_ / name;
    }

    /// Writes a file below the folder, making folders on the way. Returns its path.
    std::filesystem::path write(const std::filesystem::path &name, std::string_view content) const;

private:
    std::filesystem::path path_;
};

/// The whole of a file, as bytes.
std::string readFile(const std::filesystem::path &path);
