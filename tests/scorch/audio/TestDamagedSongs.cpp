// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/scorch/audio/Songs.h"

#include "scorch/audio/ffmpeg/FfmpegBackend.h"
#include "scorch/support/DiscContent.h"
#include "tests/support/CommandResult.h"
#include "tests/support/TemporaryFolder.h"

#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::HasSubstr;

std::string bytesOf(const char *name) {
    return readFile(song(name));
}

std::string replaced(std::string bytes, std::size_t at, std::string_view with) {
    return bytes.replace(at, with.size(), with);
}

/// What is counted and what is decoded, which must be the same.
std::uint64_t lengthOf(const std::string &bytes, const char *name) {
    const TemporaryFolder folder;
    const std::filesystem::path path = folder.write(name, bytes);
    const std::uint64_t counted = accepted(path).samples;
    EXPECT_EQ(counted, samplesIn(decoded(path)));
    return counted;
}

// The 36 bits of the total stand in bytes 21 to 25 of a file; the first four are the depth's.
std::string flacWithTotal(char highByte, std::string_view low) {
    std::string bytes = bytesOf("song.flac");
    bytes[21] = static_cast<char>((bytes[21] & '\xF0') | highByte);
    return replaced(bytes, 22, low);
}

TEST(DamagedSongs, FlacWithoutATotalIsCounted) {
    EXPECT_EQ(lengthOf(flacWithTotal('\0', std::string_view("\0\0\0\0", 4)), "song.flac"),
              songSamples);
}

TEST(DamagedSongs, FlacWithAWrongTotalIsCounted) {
    EXPECT_EQ(lengthOf(flacWithTotal('\0', std::string_view("\0\1\0\0", 4)), "song.flac"),
              songSamples);
    EXPECT_EQ(lengthOf(flacWithTotal('\1', std::string_view("\0\1\0\0", 4)), "song.flac"),
              songSamples);
}

TEST(DamagedSongs, FlacWithTagsOfOtherFormatsIsWhole) {
    EXPECT_EQ(lengthOf(bytesOf("song.flac") + "TAG" + std::string(125, ' '), "song.flac"),
              songSamples);
}

constexpr std::size_t wavDataSize = 40; // Where it stands in song.wav.

TEST(DamagedSongs, StreamedWavGoesOnToTheEndOfTheFile) {
    for (const std::string_view size :
         {std::string_view("\0\0\0\0", 4), std::string_view("\xFF\xFF\xFF\xFF", 4),
          std::string_view("\0\xF0\xFF\x7F", 4), std::string_view("\xDB\xFF\xFF\xFF", 4)}) {
        EXPECT_EQ(lengthOf(replaced(bytesOf("song.wav"), wavDataSize, size), "song.wav"),
                  songSamples);
    }
}

TEST(DamagedSongs, StreamedWavMayEndInThePartOfASample) {
    const std::string bytes =
        replaced(bytesOf("song.wav"), wavDataSize, "\xFF\xFF\xFF\xFF") + "abc";
    EXPECT_EQ(lengthOf(bytes, "song.wav"), songSamples);
}

TEST(DamagedSongs, ChunksBehindTheDataOfAWavAreNoSound) {
    const std::string list("LIST\x0C\0\0\0INFOabcd\0\0\0\0", 20);
    EXPECT_EQ(lengthOf(bytesOf("song.wav") + list, "song.wav"), songSamples);
}

TEST(DamagedSongs, SecondDataOfAWavIsCountedAsItIsPlayed) {
    const std::string more("data\x08\0\0\0abcdefgh", 16);
    (void)lengthOf(bytesOf("song.wav") + more, "song.wav");
}

TEST(DamagedSongs, ChainedOggIsCountedAsItIsPlayed) {
    (void)lengthOf(bytesOf("song.ogg") + bytesOf("song.ogg"), "chain.ogg");
    (void)lengthOf(bytesOf("song.opus") + bytesOf("song.opus"), "chain.opus");
    (void)lengthOf(bytesOf("song-flac.ogg") + bytesOf("song-flac.ogg"), "chain.oga");
}

// The configuration says that the high half of the spectrum is coded apart (SBR), which doubles
// the rate that a decoder delivers.
TEST(DamagedSongs, HighEfficiencyAacIsCountedAtTheRateItDecodesTo) {
    std::string bytes = bytesOf("song-22k.m4a");
    // DecSpecificInfo of five bytes: AAC LC, 22.05 kHz, stereo, then the sync of an extension.
    const std::size_t at = bytes.find(std::string("\x13\x90\x56\xE5\x00", 5));
    ASSERT_NE(at, std::string::npos);
    // Object type 5 on 22.05 kHz, in stereo, at 44.1 kHz over type 2.
    bytes = replaced(bytes, at, "\x2B\x92\x08\x00\x00");
    EXPECT_EQ(lengthOf(bytes, "he.m4a"), songSamples + 1); // An odd number, halved and doubled.
}

TEST(DamagedSongs, DamageInTheMiddleIsAnErrorAtTheBurnAndNoSilence) {
    const TemporaryFolder folder;
    std::string bytes = bytesOf("song.flac");
    bytes.replace(bytes.size() / 2, 30000, std::string(30000, '\x55'));
    const std::filesystem::path path = folder.write("Scratched.flac", bytes);
    const scorch::FfmpegBackend backend;
    const std::unique_ptr<scorch::AudioFeeder> feeder =
        backend.makeFeeder({{path, songSamples}}, 1);
    const std::unique_ptr<scorch::SectorSource> source = feeder->openTrack(0);
    std::vector<std::byte> track(400 * scorch::audioSectorBytes);
    const scorch::Outcome<std::size_t> got = source->read(track, {});
    ASSERT_FALSE(got.ok());
    EXPECT_THAT(std::get<ScorchError>(got.error()).localizedDescription(),
                HasSubstr("Scratched.flac"));
}

TEST(DamagedSongs, FileThatVanishedIsNamed) {
    const TemporaryFolder folder;
    const ScorchError error = decodingError(folder / "Gone.flac");
    EXPECT_EQ(error.category(), ScorchErrorCode::sourceMissing);
    EXPECT_THAT(error.localizedDescription(), HasSubstr("Gone.flac"));
}

TEST(DamagedSongs, FileThatWasReplacedByAnotherIsNamed) {
    const TemporaryFolder folder;
    const ScorchError error = decodingError(folder.write("Notes.flac", "only words now\n"));
    EXPECT_EQ(error.category(), ScorchErrorCode::sourceChanged);
    EXPECT_THAT(error.localizedDescription(), HasSubstr("Notes.flac"));
}

TEST(DamagedSongs, NameThatIsNotTextIsShownReadably) {
    const TemporaryFolder folder;
    const ScorchError error = decodingError(folder / "\xE9t\xE9.flac");
    EXPECT_THAT(error.localizedDescription(), HasSubstr("\uFFFDt\uFFFD.flac"));
}

TEST(DamagedSongs, CutOffFileIsAnErrorAtTheBurn) {
    for (const char *name : {"truncated.flac", "truncated.m4a"}) {
        EXPECT_EQ(decodingError(song(name)).category(), ScorchErrorCode::sourceUnreadable) << name;
    }
}

// Whatever is cut or changed: no crash, no hang, and never another length than what was counted.
class SongWithDamage : public testing::TestWithParam<const char *> {};

TEST_P(SongWithDamage, NeverDecodesToMoreThanWasCounted) {
    const TemporaryFolder folder;
    const std::string whole = bytesOf(GetParam());
    std::uint32_t state = 12345;
    const auto random = [&state](std::size_t below) {
        state = state * 1664525U + 1013904223U;
        return static_cast<std::size_t>(state >> 8U) % below;
    };
    for (int round = 0; round < 24; ++round) {
        std::string bytes = whole;
        for (std::size_t i = 0; i < 1 + random(20); ++i) {
            bytes[random(round % 2 == 0 ? 300 : bytes.size())] = static_cast<char>(random(256));
        }
        if (round % 3 == 0) {
            bytes.resize(random(bytes.size()));
        }
        const std::filesystem::path path = folder.write(GetParam(), bytes);
        const scorch::AudioProbe result = probe(path);
        if (const auto *info = std::get_if<scorch::AudioInfo>(&result)) {
            const scorch::FfmpegBackend backend;
            const auto feeder = backend.makeFeeder({{path, info->samples}}, 1);
            const auto source = feeder->openTrack(0);
            std::vector<std::byte> part(100 * scorch::audioSectorBytes);
            scorch::Outcome<std::size_t> got = source->read(part, {});
            while (got.ok() && *got > 0) {
                got = source->read(part, {});
            }
            if (!got.ok()) {
                const auto &error = std::get<ScorchError>(got.error());
                EXPECT_NE(error.category(), ScorchErrorCode::sourceChanged)
                    << round << " " << error.detail();
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(DamagedSongs, SongWithDamage,
                         testing::Values("song.flac", "song.mp3", "song.ogg", "song.opus",
                                         "song.m4a", "song-alac.m4a", "song.wav", "song.wma",
                                         "song.wv", "song.tta", "song.aac"));

} // namespace
