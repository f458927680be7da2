// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/scorch/audio/Songs.h"

#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>

namespace {

class LosslessSong : public testing::TestWithParam<const char *> {};

TEST_P(LosslessSong, StaysBitForBit) {
    EXPECT_EQ(decoded(song(GetParam())), decodedByFfmpeg(song("song.wav")));
}

INSTANTIATE_TEST_SUITE_P(SongBits, LosslessSong,
                         testing::Values("song.wav", "song.flac", "song.aiff", "song.caf",
                                         "song.au", "song-alac.m4a", "song.wv", "song.tta",
                                         "song-flac.ogg", "song.mka", "tagged.flac", "cover.flac"));

/// The largest difference between two songs of one length.
int largestDifference(const std::vector<std::int16_t> &a, const std::vector<std::int16_t> &b) {
    EXPECT_EQ(a.size(), b.size());
    int largest = 0;
    for (std::size_t i = 0; i < std::min(a.size(), b.size()); ++i) {
        largest = std::max(largest, std::abs(a[i] - b[i]));
    }
    return largest;
}

TEST(SongBits, MonoGoesToBothSidesUnchanged) {
    const std::vector<std::int16_t> mono = decoded(song("song-mono.wav"));
    const std::vector<std::int16_t> stereo = decoded(song("song.wav"));
    ASSERT_EQ(mono.size(), stereo.size());
    for (std::size_t i = 0; i < mono.size(); i += 2) {
        ASSERT_EQ(mono[i], stereo[i]);
        ASSERT_EQ(mono[i + 1], stereo[i]);
    }
}

TEST(SongBits, DitheredMonoStaysInTheMiddle) {
    const std::vector<std::int16_t> mono = decoded(song("song-mono.mp3"));
    for (std::size_t i = 0; i < mono.size(); i += 2) {
        ASSERT_EQ(mono[i], mono[i + 1]);
    }
}

// Dither moves a sample by less than two steps; a wrong scale or a swapped channel by thousands.
TEST(SongBits, LossySongsDifferFromUnditheredOnesByTheDitherAlone) {
    for (const char *name : {"song.mp3", "song.ogg", "song-44k24.flac", "song-float.wav"}) {
        const int difference = largestDifference(decoded(song(name)), decodedByFfmpeg(song(name)));
        EXPECT_LE(difference, 2) << name;
        EXPECT_GE(difference, 1) << name << " was not dithered";
    }
}

TEST(SongBits, ResampledSongsAreTheSameSound) {
    std::vector<std::int16_t> ours = decoded(song("song-48k24.flac"));
    const std::vector<std::int16_t> theirs = decodedByFfmpeg(song("song-48k24.flac"));
    ours.resize(theirs.size());
    EXPECT_LE(largestDifference(ours, theirs), 3);
}

TEST(SongBits, EightBitsAreKept) {
    EXPECT_EQ(decoded(song("song-8bit.wav")), decodedByFfmpeg(song("song-8bit.wav")));
}

// Six channels at full scale would clip if they were simply added up.
TEST(SongBits, SixChannelsAreMixedWithoutClipping) {
    const std::vector<std::int16_t> mixed = decoded(song("song-51.flac"));
    const auto [lowest, highest] = std::minmax_element(mixed.begin(), mixed.end());
    EXPECT_GT(*lowest, INT16_MIN);
    EXPECT_LT(*highest, INT16_MAX);
    EXPECT_GT(*highest, 8000);
}

TEST(SongBits, SameSongGivesTheSameBytesEachTime) {
    EXPECT_EQ(decoded(song("song.mp3")), decoded(song("song.mp3")));
}

} // namespace
