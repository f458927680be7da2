// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "crate/SongRow.h"

#include <utility>

/// A song as a scan would find it.
inline crate::LibrarySong librarySong(const QByteArray &path, const QString &artist,
                                      const QString &title) {
    crate::LibrarySong song;
    song.path = path;
    song.artist = artist;
    song.title = title;
    return song;
}

inline crate::SongRow songRow(crate::LibrarySong song) {
    return crate::SongRowMaker().make(std::move(song));
}

inline crate::SongRow songRow(const QByteArray &path, const QString &artist, const QString &title) {
    return songRow(librarySong(path, artist, title));
}
