// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/BurnFileConversion.h"

std::vector<BurnFile> burnFilesFromSongList(const SongList &songs) {
    std::vector<BurnFile> files;
    files.reserve(static_cast<std::size_t>(songs.size()));
    for (const Song &song : songs) {
        files.push_back(
            {song.path.toStdString(), song.artist.toStdString(), song.title.toStdString()});
    }
    return files;
}
