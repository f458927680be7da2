// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/scorch/audio/Songs.h"

#include "scorch/audio/ffmpeg/MediaFile.h"
#include "scorch/audio/ffmpeg/PacketLength.h"
#include "tests/support/CommandResult.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace {

std::string testName(const testing::TestParamInfo<const char *> &info) {
    std::string name = info.param;
    for (char &character : name) {
        character = std::isalnum(static_cast<unsigned char>(character)) != 0 ? character : '_';
    }
    return name;
}

// Whatever way the length was counted: a burn gets exactly that many samples.
class AnySong : public testing::TestWithParam<const char *> {};

TEST_P(AnySong, CountedLengthIsWhatDecodingDelivers) {
    const std::uint64_t counted = accepted(song(GetParam())).samples;
    EXPECT_GT(counted, 0U);
    EXPECT_EQ(counted, samplesIn(decoded(song(GetParam()))));
}

INSTANTIATE_TEST_SUITE_P(
    SongLengths, AnySong,
    testing::Values("song.wav", "song.flac", "song.aiff", "song.w64", "song.caf", "song.au",
                    "song-alac.m4a", "song.wv", "song.tta", "song-flac.ogg", "song.mka",
                    "tagged.flac", "song.mp3", "song-vbr.mp3", "song-vbr-bare.mp3",
                    "song-cbr-bare.mp3", "song-mono.mp3", "song-22k.mp3", "song-48k.mp3",
                    "song.ogg", "swelling.ogg", "song.opus", "song.webm", "song.m4a",
                    "song-22k.m4a", "song.aac", "song.wma", "song.mp2", "song.ac3",
                    "song-48k24.wav", "song-48k24.flac", "song-96k24.flac", "song-44k24.flac",
                    "song-float.wav", "song-8bit.wav", "song-8k.wav", "song-mono.wav",
                    "song-mono.flac", "song-51.flac", "short.wav", "short.flac", "cover.mp3",
                    "cover.flac", "cover.m4a", "japanese.mp3", "id3v1.mp3", "video.mp4",
                    "truncated.mp3", "truncated.ogg"),
    testName);

class SongFromTheSource : public testing::TestWithParam<const char *> {};

TEST_P(SongFromTheSource, HasTheSourcesLengthToTheSample) {
    EXPECT_EQ(accepted(song(GetParam())).samples, songSamples);
}

// The lossless ones, and those that tell what their encoder added at both ends.
INSTANTIATE_TEST_SUITE_P(SongLengths, SongFromTheSource,
                         testing::Values("song.wav", "song.flac", "song.aiff", "song.caf",
                                         "song.au", "song-alac.m4a", "song.wv", "song.tta",
                                         "song-flac.ogg", "song.mka", "song-44k24.flac",
                                         "song-float.wav", "song-8bit.wav", "song-mono.flac",
                                         "song-51.flac", "song.mp3", "song-vbr.mp3",
                                         "song-mono.mp3", "cover.mp3", "song.ogg", "song.m4a"),
                         testName);

class SongThatFfmpegDecodesAlike : public testing::TestWithParam<const char *> {};

TEST_P(SongThatFfmpegDecodesAlike, HasAsManySamples) {
    EXPECT_EQ(samplesIn(decoded(song(GetParam()))), samplesIn(decodedByFfmpeg(song(GetParam()))));
}

INSTANTIATE_TEST_SUITE_P(
    SongLengths, SongThatFfmpegDecodesAlike,
    testing::Values("song.wav", "song.flac", "song.aiff", "song.caf", "song.au", "song-alac.m4a",
                    "song.wv", "song.tta", "song-flac.ogg", "song.mka", "song.mp3", "song-vbr.mp3",
                    "song-vbr-bare.mp3", "song-cbr-bare.mp3", "song-mono.mp3", "song-22k.mp3",
                    "song-48k.mp3", "song.ogg", "song.opus", "song.webm", "song.aac", "song.wma",
                    "song.mp2", "song.ac3", "song-44k24.flac", "song-float.wav", "song-8bit.wav",
                    "song-8k.wav", "song-mono.wav", "song-51.flac", "song-96k24.flac"),
    testName);

// At its end a resampler may find a sample more or less than the quotient of the rates says; ours
// is always the quotient, rounded up.
TEST(SongLengths, ResampledLengthIsTheQuotientRoundedUp) {
    EXPECT_EQ(accepted(song("song-48k24.flac")).samples, (songSamples * 44100 + 47999) / 48000);
    EXPECT_EQ(accepted(song("song-96k24.flac")).samples, (songSamples * 44100 + 95999) / 96000);
    EXPECT_NEAR(static_cast<double>(samplesIn(decodedByFfmpeg(song("song-48k24.flac")))),
                static_cast<double>(accepted(song("song-48k24.flac")).samples), 1);
}

// An M4A says by the length of its last packet how much of it is the encoder's padding. The
// program leaves it in: silence at every join of a live recording.
TEST(SongLengths, PaddingOfAnM4aIsTakenOff) {
    const std::vector<std::int16_t> ours = decoded(song("song.m4a"));
    const std::vector<std::int16_t> whole = decodedByFfmpeg(song("song.m4a"));
    EXPECT_EQ(samplesIn(ours), songSamples);
    EXPECT_LT(samplesIn(whole) - samplesIn(ours), 1024U);
}

/// An encoder, and the ending of what it makes.
using Encoder = std::pair<const char *, const char *>;

class SongOfAnyLength : public testing::TestWithParam<Encoder> {};

// More or less of the last packet is padding, and noise that swells makes blocks long and short.
TEST_P(SongOfAnyLength, CountedLengthIsWhatDecodingDelivers) {
    const TemporaryFolder folder;
    const auto &[codec, ending] = GetParam();
    for (int i = 0; i < 8; ++i) {
        const std::filesystem::path path = folder / ("song" + std::to_string(i) + ending);
        const std::string trim = "atrim=end_sample=" + std::to_string(200'000 + 137 * i);
        const CommandResult made =
            runCommand({"ffmpeg", "-nostdin", "-v", "error", "-f", "lavfi", "-i",
                        "anoisesrc=r=48000:d=5:a=0.4,tremolo=f=7:d=0.9,asetpts=N/SR/TB", "-af",
                        trim, "-ac", "2", "-c:a", codec, path.string()});
        ASSERT_EQ(made.exitCode, 0) << made.output;
        EXPECT_EQ(accepted(path).samples, samplesIn(decoded(path))) << i;
    }
}

INSTANTIATE_TEST_SUITE_P(SongLengths, SongOfAnyLength,
                         testing::Values(Encoder{"libvorbis", ".ogg"}, Encoder{"libopus", ".opus"},
                                         Encoder{"flac", ".oga"}, Encoder{"flac", ".flac"},
                                         Encoder{"libmp3lame", ".mp3"}, Encoder{"aac", ".m4a"},
                                         Encoder{"aac", ".aac"}, Encoder{"alac", ".m4a"},
                                         Encoder{"wavpack", ".wv"}, Encoder{"tta", ".tta"}),
                         [](const testing::TestParamInfo<Encoder> &encoder) {
                             return std::string(encoder.param.first) + "In" +
                                    (encoder.param.second + 1);
                         });

/// An M4A with a note of its encoder: samples of delay, of padding and of the song.
std::filesystem::path withNote(const TemporaryFolder &folder, const std::string &numbers) {
    std::filesystem::path path = folder / "noted.m4a";
    const CommandResult made =
        runCommand({"ffmpeg", "-nostdin", "-v", "error", "-y", "-i", song("song.wav").string(),
                    "-c:a", "aac", "-movflags", "use_metadata_tags", "-metadata",
                    "iTunSMPB= 00000000 " + numbers, path.string()});
    EXPECT_EQ(made.exitCode, 0) << made.output;
    return path;
}

TEST(SongLengths, EncodersNoteInAnM4aCountsWhereItAddsUp) {
    const TemporaryFolder folder;
    // 1024 + 256 + 233521 is what the tables of the file come to.
    const std::filesystem::path path = withNote(folder, "00000400 00000100 0000000000039031");
    EXPECT_EQ(accepted(path).samples, 233521U);
    EXPECT_EQ(samplesIn(decoded(path)), 233521U);
}

TEST(SongLengths, EncodersNoteInAnM4aThatCannotBeIsIgnored) {
    const TemporaryFolder folder;
    EXPECT_EQ(accepted(withNote(folder, "00000400 00000100 0000000000001000")).samples,
              songSamples);
    EXPECT_EQ(accepted(withNote(folder, "nonsense")).samples, songSamples);
}

// Decoding all of a song to count it takes a second where its packets tell in a hundredth.
TEST(SongLengths, VorbisIsCountedByItsPackets) {
    std::unique_ptr<scorch::MediaFile> file =
        std::move(scorch::MediaFile::open(song("swelling.ogg"), {}).value());
    scorch::PacketLength length(file->stream(), scorch::PaddingIn::markingOnly);
    length.setSampleRate(44100);
    const scorch::AvHandle<AVPacket> packet(av_packet_alloc());
    while (file->readPacket(*packet) >= 0) {
        length.add(*packet);
        av_packet_unref(packet.get());
    }
    EXPECT_TRUE(length.isCertain());
    EXPECT_EQ(length.samples(), songSamples);
}

} // namespace
