// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "crate/LibrarySong.h"

#include <QCollator>
#include <QString>

#include <array>

namespace crate {

/// The columns of the song list, as they stand side by side.
enum class SongColumn { title, artist, album, track, length };
inline constexpr int songColumnCount = 5;

/// A song with what sorting and searching need of it, computed once, off the main thread.
struct SongRow {
    LibrarySong song;
    QString searchText;
    std::array<QCollatorSortKey, 3> keys; ///< Of the title, the artist and the album.
};

/// Makes rows; has the user's order of letters. Its thread's own.
class SongRowMaker {
public:
    SongRowMaker();

    SongRow make(LibrarySong song) const;

private:
    QCollator collator_;
};

/// A text with what does not matter in a search taken off: case and accents.
QString foldedForSearch(const QString &text);

/// Whether each of the words (folded) is somewhere in the row's artist, title, album or file name.
bool matches(const SongRow &row, const QStringList &words);

/// Less than, equal to or greater than zero, as `a` stands before, with or behind `b` in a list
/// sorted by `column`. Rows that are equal there stand by artist, album, disc, track, title and at
/// last by path, so that two songs are never equal. Songs that do not say a text stand behind those
/// that do.
int compareSongRows(const SongRow &a, const SongRow &b, SongColumn column);

} // namespace crate
