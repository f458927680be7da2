// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "crate/LibrarySong.h"

#include <QByteArray>

#include <string_view>

namespace crate {

/// Whether a file of this name can be a song, judged by its ending alone.
bool isSongName(std::string_view name);

/// The song at `path` with what its tags say; one without tags, or that cannot be read, has its
/// path alone. Blocks on the file. Any thread.
LibrarySong readSong(const QByteArray &path);

} // namespace crate
