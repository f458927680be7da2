// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/BurnFile.h"
#include "host/SongList.h"

#include <vector>

/// The host's songs as what a burner takes, in the same order: paths byte for byte, artist and
/// title in UTF-8. Any thread.
std::vector<BurnFile> burnFilesFromSongList(const SongList &songs);
