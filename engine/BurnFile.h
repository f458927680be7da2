// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <filesystem>
#include <string>

/// One file or folder that a client offers to a burner.
///
/// The path is bytes, as the file system has them; it need not be valid UTF-8. `artist` and
/// `title` are UTF-8 and are empty when the client knows nothing better than the file's own tags.
struct BurnFile {
    std::filesystem::path path;
    std::string artist;
    std::string title;
};
