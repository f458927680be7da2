// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/scorch/audio/Songs.h"

#include "scorch/audio/ffmpeg/MpegAudio.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace {

using scorch::parseMpegAudioHeader;

/// MPEG-1 Layer III, 128 kbit/s, 44.1 kHz, joint stereo, no padding: 417 bytes.
constexpr std::uint32_t usualHeader = 0xFFFB9040;

TEST(MpegAudio, HeaderTellsSizeRateAndSamples) {
    const auto header = parseMpegAudioHeader(usualHeader);
    ASSERT_TRUE(header);
    EXPECT_EQ(header->frameBytes, 417U);
    EXPECT_EQ(header->sampleRate, 44100U);
    EXPECT_EQ(header->samples, 1152U);
    EXPECT_FALSE(header->mono);
    EXPECT_EQ(parseMpegAudioHeader(usualHeader | 0x200)->frameBytes, 418U); // With padding
    EXPECT_TRUE(parseMpegAudioHeader(usualHeader | 0xC0)->mono);
}

TEST(MpegAudio, LowRatesHaveHalfTheSamples) {
    const auto mpeg2 = parseMpegAudioHeader(0xFFF38040); // 64 kbit/s, 22.05 kHz
    ASSERT_TRUE(mpeg2);
    EXPECT_EQ(mpeg2->sampleRate, 22050U);
    EXPECT_EQ(mpeg2->samples, 576U);
    EXPECT_EQ(mpeg2->frameBytes, 208U);
    EXPECT_EQ(parseMpegAudioHeader(0xFFE38040)->sampleRate, 11025U); // MPEG-2.5
}

TEST(MpegAudio, OtherBitsAreNoHeader) {
    EXPECT_FALSE(parseMpegAudioHeader(0x00000000));
    EXPECT_FALSE(parseMpegAudioHeader(0xFFFFFFFF));
    EXPECT_FALSE(parseMpegAudioHeader(0xFFFD9040)); // Layer II
    EXPECT_FALSE(parseMpegAudioHeader(0xFFFB0040)); // Free format
    EXPECT_FALSE(parseMpegAudioHeader(0xFFFBF040)); // No such bit rate
    EXPECT_FALSE(parseMpegAudioHeader(0xFFFB9C40)); // No such rate
    EXPECT_FALSE(parseMpegAudioHeader(0xFFEB9040)); // No such version
}

/// Some bytes that hold neither a header nor a tag.
std::string junk(std::size_t count) {
    std::string bytes(count, '\x55');
    return bytes;
}

std::string bytesOf(const char *name) {
    return readFile(song(name));
}

/// `tag` of ID3v2 around `count` bytes of nothing.
std::string id3v2(std::size_t count) {
    std::string tag = "ID3\x04";
    tag += std::string("\0\0", 2);
    for (int shift = 21; shift >= 0; shift -= 7) {
        tag += static_cast<char>((count >> static_cast<unsigned>(shift)) & 0x7FU);
    }
    return tag + std::string(count, '\0');
}

std::string apeTag() {
    std::string footer = "APETAGEX";
    footer += std::string("\xD0\x07\0\0", 4); // Version 2
    footer += std::string("\x20\0\0\0\0\0\0\0\0\0\0\0", 12);
    return footer + std::string(8, '\0');
}

std::string id3v1() {
    return "TAG" + std::string(125, ' ');
}

/// What is counted and what is decoded, which must be the same.
std::uint64_t lengthOf(const std::string &bytes) {
    const TemporaryFolder folder;
    const std::filesystem::path path = folder.write("song.mp3", bytes);
    const std::uint64_t counted = accepted(path).samples;
    EXPECT_EQ(counted, samplesIn(decoded(path)));
    return counted;
}

constexpr std::uint64_t bareSamples =
    std::uint64_t{204} * 1152; // song-vbr-bare.mp3, as ffmpeg decodes it.

TEST(MpegAudio, VariableRateWithoutAHeaderIsRightToTheFrame) {
    EXPECT_EQ(accepted(song("song-vbr-bare.mp3")).samples, bareSamples);
}

TEST(MpegAudio, TagsAtBothEndsAreNoSound) {
    const std::string frames = bytesOf("song-vbr-bare.mp3");
    EXPECT_EQ(lengthOf(id3v2(100'000) + frames), bareSamples);
    EXPECT_EQ(lengthOf(id3v2(50) + id3v2(2'000'000) + frames), bareSamples);
    EXPECT_EQ(lengthOf(frames + id3v1()), bareSamples);
    EXPECT_EQ(lengthOf(frames + apeTag() + id3v1()), bareSamples);
}

TEST(MpegAudio, JunkBeforeTheFirstFrameIsSkipped) {
    const std::string frames = bytesOf("song-vbr-bare.mp3");
    EXPECT_EQ(lengthOf(std::string(1000, '\0') + frames), bareSamples);
    EXPECT_EQ(lengthOf(id3v2(10) + junk(500) + frames), bareSamples);
}

TEST(MpegAudio, JunkBetweenFramesCostsNoSong) {
    const std::string frames = bytesOf("song-vbr-bare.mp3");
    const std::string damaged = frames.substr(0, 20000) + junk(3000) + frames.substr(20000);
    const std::uint64_t length = lengthOf(damaged);
    EXPECT_LE(length, bareSamples);
    EXPECT_GE(length, bareSamples - std::uint64_t{2} * 1152);
}

TEST(MpegAudio, JoinedFilesPlayOneBehindTheOther) {
    const std::string frames = bytesOf("song-vbr-bare.mp3");
    EXPECT_EQ(lengthOf(frames + id3v1() + id3v2(77) + frames), 2 * bareSamples);
}

TEST(MpegAudio, EncodersPaddingIsNotTakenOffAJoinedFile) {
    const std::string one = bytesOf("song.mp3");
    const std::uint64_t frames = (songSamples + 576 + 1151) / 1152; // At least.
    EXPECT_GT(lengthOf(one + one), 2 * (frames - 1) * 1152);
}

TEST(MpegAudio, RateAndChannelsMayChangeMidway) {
    EXPECT_GT(lengthOf(bytesOf("song-vbr-bare.mp3") + bytesOf("song-48k.mp3")), bareSamples);
    EXPECT_GT(lengthOf(bytesOf("song-22k.mp3") + bytesOf("song-mono.mp3")), songSamples);
}

TEST(MpegAudio, FrameThatIsCutOffIsNotCounted) {
    const std::string frames = bytesOf("song-vbr-bare.mp3");
    EXPECT_EQ(lengthOf(frames.substr(0, frames.size() - 10)), bareSamples - 1152);
}

} // namespace
