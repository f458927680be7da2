// SPDX-License-Identifier: GPL-2.0-or-later
#include "crate/SongRow.h"

#include "tests/crate/support/Songs.h"

#include <gtest/gtest.h>

namespace {

using namespace std::chrono_literals;
using crate::compareSongRows;
using crate::LibrarySong;
using crate::matches;
using crate::SongColumn;
using crate::SongRow;

SongRow named(const QString &artist, const QString &title) {
    return songRow("/" + title.toUtf8(), artist, title);
}

bool isBefore(const SongRow &a, const SongRow &b, SongColumn column) {
    return compareSongRows(a, b, column) < 0 && compareSongRows(b, a, column) > 0;
}

SongRow onTrack(int disc, int track, const char *path) {
    LibrarySong song = librarySong(path, QStringLiteral("A"), {});
    song.disc = disc;
    song.track = track;
    return songRow(song);
}

TEST(SongOrder, NumbersInTextsCountAsNumbers) {
    EXPECT_TRUE(isBefore(named({}, QStringLiteral("Track 2")),
                         named({}, QStringLiteral("Track 10")), SongColumn::title));
}

TEST(SongOrder, CaseAndAccentsDoNotPart) {
    EXPECT_TRUE(isBefore(named({}, QStringLiteral("abba")), named({}, QStringLiteral("Abbey")),
                         SongColumn::title));
    EXPECT_TRUE(isBefore(named({}, QStringLiteral("Éclair")), named({}, QStringLiteral("Zoo")),
                         SongColumn::title));
}

TEST(SongOrder, SongsThatDoNotSayAnArtistStandLast) {
    EXPECT_TRUE(isBefore(named(QStringLiteral("Zed"), QStringLiteral("a")),
                         named({}, QStringLiteral("a")), SongColumn::artist));
}

TEST(SongOrder, AlbumIsInTheOrderOfItsDiscs) {
    EXPECT_TRUE(isBefore(onTrack(1, 9, "/b"), onTrack(2, 1, "/a"), SongColumn::artist));
    EXPECT_TRUE(isBefore(onTrack(1, 2, "/b"), onTrack(1, 10, "/a"), SongColumn::artist));
}

TEST(SongOrder, TrackColumnIsByTrackFirst) {
    EXPECT_TRUE(isBefore(onTrack(2, 1, "/b"), onTrack(1, 2, "/a"), SongColumn::track));
}

TEST(SongOrder, UnknownLengthIsTheShortest) {
    LibrarySong known = librarySong("/a", {}, {});
    known.length = 1ms;
    EXPECT_TRUE(isBefore(songRow(librarySong("/b", {}, {})), songRow(known), SongColumn::length));
}

TEST(SongOrder, TwoSongsAreNeverEqual) {
    const SongRow a = songRow("/a/same.flac", QStringLiteral("A"), QStringLiteral("T"));
    const SongRow b = songRow("/b/same.flac", QStringLiteral("A"), QStringLiteral("T"));
    EXPECT_TRUE(isBefore(a, b, SongColumn::title));
    EXPECT_EQ(compareSongRows(a, a, SongColumn::title), 0);
}

TEST(SongSearch, FindsEachWordAnywhereWithoutCaseAndAccents) {
    LibrarySong song = librarySong("/music/Folder/file-name.flac", QStringLiteral("Björk"),
                                   QStringLiteral("Jóga"));
    song.album = QStringLiteral("Homogenic");
    const SongRow row = songRow(song);
    const auto finds = [&row](const QString &text) {
        return matches(row, crate::foldedForSearch(text).split(u' ', Qt::SkipEmptyParts));
    };
    EXPECT_TRUE(finds(QString()));
    EXPECT_TRUE(finds(QStringLiteral("JOGA bjork")));
    EXPECT_TRUE(finds(QStringLiteral("björk genic")));
    EXPECT_TRUE(finds(QStringLiteral("file-na")));
    EXPECT_FALSE(finds(QStringLiteral("joga xyz")));
    EXPECT_FALSE(finds(QStringLiteral("Folder")));
}

} // namespace
