// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>

TemporaryFolder::TemporaryFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "cdburner-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) {
        ADD_FAILURE() << "no temporary folder: " << pattern;
    }
    path_ = pattern;
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    for (const auto &entry : std::filesystem::recursive_directory_iterator(path_, ignored)) {
        if (!entry.is_symlink(ignored) && entry.is_directory(ignored)) {
            std::filesystem::permissions(entry.path(), std::filesystem::perms::owner_all,
                                         std::filesystem::perm_options::add, ignored);
        }
    }
    std::filesystem::remove_all(path_, ignored);
}

std::filesystem::path TemporaryFolder::write(const std::filesystem::path &name,
                                             std::string_view content) const {
    const std::filesystem::path path = path_ / name;
    std::filesystem::create_directories(path.parent_path());
    std::ofstream file(path, std::ios::binary);
    file.write(content.data(), static_cast<std::streamsize>(content.size()));
    file.close();
    EXPECT_TRUE(file.good()) << path;
    return path;
}

std::string readFile(const std::filesystem::path &path) {
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file.is_open()) << path;
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}
