// SPDX-License-Identifier: GPL-2.0-or-later
#include "crate/SongRow.h"

#include <QLocale>
#include <QStringList>

#include <algorithm>
#include <utility>

namespace crate {

namespace {

/// The "C" locale has an order of codes, not of letters; people have none like that.
QLocale orderLocale() {
    const QLocale locale;
    return locale.language() == QLocale::C ? QLocale(QLocale::English) : locale;
}

int compareTexts(const SongRow &a, const SongRow &b, std::size_t which,
                 QString LibrarySong::*text) {
    const bool aIsEmpty = (a.song.*text).isEmpty();
    const bool bIsEmpty = (b.song.*text).isEmpty();
    if (aIsEmpty != bIsEmpty) {
        return aIsEmpty ? 1 : -1;
    }
    return a.keys.at(which).compare(b.keys.at(which));
}

int compareTitles(const SongRow &a, const SongRow &b) {
    return a.keys[0].compare(b.keys[0]);
}

int compareArtists(const SongRow &a, const SongRow &b) {
    return compareTexts(a, b, 1, &LibrarySong::artist);
}

int compareAlbums(const SongRow &a, const SongRow &b) {
    return compareTexts(a, b, 2, &LibrarySong::album);
}

template <typename Value>
int compareValues(const Value &a, const Value &b) {
    return a < b ? -1 : (b < a ? 1 : 0);
}

int compareTracks(const SongRow &a, const SongRow &b) {
    return compareValues(std::pair(a.song.disc, a.song.track),
                         std::pair(b.song.disc, b.song.track));
}

int compareColumn(const SongRow &a, const SongRow &b, SongColumn column) {
    switch (column) {
    case SongColumn::title:
        return compareTitles(a, b);
    case SongColumn::artist:
        return compareArtists(a, b);
    case SongColumn::album:
        return compareAlbums(a, b);
    case SongColumn::track:
        return compareValues(a.song.track, b.song.track);
    case SongColumn::length:
        return compareValues(a.song.length, b.song.length);
    }
    return 0;
}

} // namespace

SongRowMaker::SongRowMaker() : collator_(orderLocale()) {
    collator_.setNumericMode(true);
    collator_.setCaseSensitivity(Qt::CaseInsensitive);
}

SongRow SongRowMaker::make(LibrarySong song) const {
    const QString title = song.displayTitle();
    const QString fileName = QString::fromUtf8(song.path.mid(song.path.lastIndexOf('/') + 1));
    const QStringList texts{title, song.artist, song.album, fileName};
    const std::array<QCollatorSortKey, 3> keys{
        collator_.sortKey(title), collator_.sortKey(song.artist), collator_.sortKey(song.album)};
    return {std::move(song), foldedForSearch(texts.join(QLatin1Char('\n'))), keys};
}

QString foldedForSearch(const QString &text) {
    QString folded = text.normalized(QString::NormalizationForm_KD).toCaseFolded();
    folded.removeIf([](QChar letter) { return letter.category() == QChar::Mark_NonSpacing; });
    return folded;
}

bool matches(const SongRow &row, const QStringList &words) {
    return std::all_of(words.begin(), words.end(),
                       [&row](const QString &word) { return row.searchText.contains(word); });
}

int compareSongRows(const SongRow &a, const SongRow &b, SongColumn column) {
    if (const int order = compareColumn(a, b, column)) {
        return order;
    }
    for (const auto compare : {compareArtists, compareAlbums, compareTracks, compareTitles}) {
        if (const int order = compare(a, b)) {
            return order;
        }
    }
    return compareValues(a.song.path, b.song.path);
}

} // namespace crate
