// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "crate/LibrarySong.h"

#include <filesystem>
#include <functional>
#include <stop_token>
#include <system_error>

namespace crate {

/// Finds the songs in `folder` and the folders below it, reads the tags of each and passes it to
/// `found`, on the calling thread. Hidden files and folders are left out; symbolic links are
/// followed, each folder is visited once, so that a loop of links ends. Folders below that cannot
/// be read are passed over. Stops at the next file once `stop` asks for it.
///
/// Returns why `folder` itself cannot be read, or no error.
[[nodiscard]] std::error_code scanSongs(const std::filesystem::path &folder, std::stop_token stop,
                                        const std::function<void(LibrarySong)> &found);

} // namespace crate
