// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/scorch/audio/Songs.h"

#include "scorch/audio/ffmpeg/TagText.h"

#include <gtest/gtest.h>

namespace {

using scorch::tagText;

class TaggedSong : public testing::TestWithParam<const char *> {};

TEST_P(TaggedSong, SaysArtistTitleAndAlbum) {
    const scorch::AudioInfo info = accepted(song(GetParam()));
    EXPECT_EQ(info.artist, "The Testers");
    EXPECT_EQ(info.title, "Two Tones");
    EXPECT_EQ(info.album, "Bench");
}

INSTANTIATE_TEST_SUITE_P(SongTags, TaggedSong,
                         testing::Values("song.flac", "song.mp3", "song.ogg", "song.opus",
                                         "song.m4a", "song-alac.m4a", "song.aiff", "song.wv",
                                         "song.wma", "cover.mp3", "cover.flac"));

TEST(SongTags, AnyScript) {
    for (const char *name : {"japanese.mp3", "japanese.flac"}) {
        const scorch::AudioInfo info = accepted(song(name));
        EXPECT_EQ(info.artist, "試験楽団");
        EXPECT_EQ(info.title, "二つの音");
    }
}

TEST(SongTags, Latin1OfOldTagsBecomesUtf8) {
    const scorch::AudioInfo info = accepted(song("id3v1.mp3"));
    EXPECT_EQ(info.artist, "Les Frères");
    EXPECT_EQ(info.title, "Déjà vu");
    EXPECT_EQ(info.album, "Bench");
}

TEST(SongTags, AbsentTagsAreEmpty) {
    const scorch::AudioInfo info = accepted(song("song-vbr-bare.mp3"));
    EXPECT_EQ(info.artist + info.title + info.album, "");
}

TEST(TagText, ValidTextStaysAsItIs) {
    for (const char *text : {"", "plain", "Déjà vu", "試験", "\xF0\x9F\x8E\xB5", "\xED\x9F\xBF"}) {
        EXPECT_EQ(tagText(text), text);
    }
}

TEST(TagText, OtherBytesAreTakenForWindows1252) {
    EXPECT_EQ(tagText("D\xE9j\xE0 vu"), "Déjà vu");
    EXPECT_EQ(tagText("It\x92s \x80"), "It’s €");
}

TEST(TagText, PaddingOfFixedFieldsIsCutOff) {
    EXPECT_EQ(tagText(std::string_view("abc\0def", 7)), "abc");
    EXPECT_EQ(tagText("abc   "), "abc");
}

} // namespace
