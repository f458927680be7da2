// SPDX-License-Identifier: GPL-2.0-or-later
// Audio images, read by programs that are not ours.
#include "tests/support/CommandResult.h"
#include "tests/system/Burning.h"

#include <gmock/gmock.h>

#include <fstream>
#include <iterator>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

constexpr std::size_t sectorBytes = 2352;
constexpr std::size_t wavHeaderBytes = 44;

std::string bytesOf(const std::string &path) {
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file.is_open()) << path;
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

class AudioImages : public Burning {
protected:
    /// What ffmpeg decodes the song to: 16 bit at 44.1 kHz.
    std::string decoded(const std::string &song, const char *channels = "2") const {
        const std::string raw = folder / "decoded.raw";
        const CommandResult result =
            runCommand({"ffmpeg", "-nostdin", "-loglevel", "error", "-y", "-i", song, "-map", "0:a",
                        "-f", "s16le", "-ac", channels, "-ar", "44100", raw});
        EXPECT_EQ(result.exitCode, 0) << result.output;
        return bytesOf(raw);
    }

    /// The tracks of the image as bchunk takes them apart, without their WAV headers.
    std::vector<std::string> tracksOf(const std::string &name, std::size_t count) const {
        const CommandResult result = runCommand(
            {"bchunk", "-w", image(name + ".bin"), image(name + ".cue"), folder / "track"});
        EXPECT_EQ(result.exitCode, 0) << result.output;
        std::vector<std::string> tracks;
        for (std::size_t i = 1; i <= count; ++i) {
            const std::string number = (i < 10 ? "0" : "") + std::to_string(i);
            tracks.push_back(bytesOf(folder / ("track" + number + ".wav")).substr(wavHeaderBytes));
        }
        return tracks;
    }
};

/// Whole sectors, and at least the four seconds of the shortest track.
std::size_t paddedBytes(std::size_t bytes) {
    const std::size_t sectors = (bytes + sectorBytes - 1) / sectorBytes;
    return std::max<std::size_t>(sectors, 300) * sectorBytes;
}

/// Between 16-bit samples, over what both have.
int largestDifference(const std::string &a, const std::string &b) {
    const auto sample = [](const std::string &bytes, std::size_t at) {
        const auto low = static_cast<unsigned char>(bytes[at]);
        return static_cast<signed char>(bytes[at + 1]) * 256 + low;
    };
    int largest = 0;
    for (std::size_t i = 0; i + 1 < std::min(a.size(), b.size()); i += 2) {
        largest = std::max(largest, std::abs(sample(a, i) - sample(b, i)));
    }
    return largest;
}

} // namespace

TEST_F(AudioImages, LosslessSongsAreOnTheDiscBitForBit) {
    const std::vector<std::string> songs = {"song.wav", "song.flac", "song-alac.m4a", "song.aiff",
                                            "song.wv",  "song.tta",  "short.wav"};
    std::vector<std::string> paths;
    std::transform(songs.begin(), songs.end(), std::back_inserter(paths), medium);
    burn("audio", "Lossless", paths);
    const std::vector<std::string> tracks = tracksOf("Lossless", songs.size());
    for (std::size_t i = 0; i < songs.size(); ++i) {
        std::string expected = decoded(paths[i]);
        expected.resize(paddedBytes(expected.size()));
        EXPECT_TRUE(tracks[i] == expected) << songs[i];
    }
}

TEST_F(AudioImages, MonoSongIsOnBothChannelsBitForBit) {
    burn("audio", "Mono", {medium("song-mono.flac")});
    const std::string mono = decoded(medium("song-mono.flac"), "1");
    std::string expected;
    for (std::size_t i = 0; i < mono.size(); i += 2) {
        expected.append(mono, i, 2).append(mono, i, 2);
    }
    expected.resize(paddedBytes(expected.size()));
    EXPECT_TRUE(tracksOf("Mono", 1)[0] == expected);
}

TEST_F(AudioImages, LossySongsHaveTheLengthThatTheyDecodeTo) {
    const std::vector<std::string> songs = {"song.mp3", "song-vbr.mp3", "song-vbr-bare.mp3",
                                            "song.ogg", "song.opus",    "cover.mp3"};
    std::vector<std::string> paths;
    std::transform(songs.begin(), songs.end(), std::back_inserter(paths), medium);
    burn("audio", "Lossy", paths);
    const std::vector<std::string> tracks = tracksOf("Lossy", songs.size());
    for (std::size_t i = 0; i < songs.size(); ++i) {
        EXPECT_EQ(tracks[i].size(), paddedBytes(decoded(paths[i]).size())) << songs[i];
    }
}

TEST_F(AudioImages, PaddingOfAnM4aIsLeftOut) {
    // The other program plays the encoder's padding at the end, so the source is the measure.
    burn("audio", "M4A", {medium("song.m4a")});
    EXPECT_EQ(tracksOf("M4A", 1)[0].size(), paddedBytes(decoded(medium("song.wav")).size()));
}

TEST_F(AudioImages, LossySongsSoundAsTheyDecode) {
    for (const char *song : {"song.mp3", "song.ogg", "song.m4a"}) {
        burn("audio", song, {medium(song)});
        // What the other program plays beyond the end of an M4A is not compared.
        const std::size_t source = decoded(medium("song.wav")).size();
        const std::string expected = decoded(medium(song)).substr(0, source);
        // Dither on both sides: a few steps of 65 536 apart, and never shifted.
        EXPECT_LE(largestDifference(tracksOf(song, 1)[0], expected), 4) << song;
    }
}

TEST_F(AudioImages, OggSongsOfAnyLengthAreWhole) {
    // More or less of the last packet is padding, and its blocks are long or short.
    std::vector<std::string> songs;
    for (const char *codec : {"libopus", "libvorbis"}) {
        for (int i = 0; i < 8; ++i) {
            const std::string number = std::to_string(i);
            const std::string song = folder / (codec + number + ".ogg");
            const std::string filter = "atrim=end_sample=" + std::to_string(200'000 + 137 * i);
            const CommandResult made =
                runCommand({"ffmpeg", "-nostdin", "-loglevel", "error", "-f", "lavfi", "-i",
                            "anoisesrc=r=48000:d=5:a=0.4:s=" + number + ",tremolo=f=7:d=0.9", "-af",
                            filter, "-ac", "2", "-c:a", codec, song});
            ASSERT_EQ(made.exitCode, 0) << made.output;
            songs.push_back(song);
        }
    }
    burn("audio", "Ogg", songs);
    const std::vector<std::string> tracks = tracksOf("Ogg", songs.size());
    for (std::size_t i = 0; i < songs.size(); ++i) {
        EXPECT_EQ(tracks[i].size(), paddedBytes(decoded(songs[i]).size())) << songs[i];
    }
}

TEST_F(AudioImages, CueSheetIsReadByAnotherProgram) {
    burn("audio", "Road trip", {medium("tagged.flac"), medium("song.wav")});
    EXPECT_THAT(images(), ElementsAre("Road trip.bin", "Road trip.cue"));
    const CommandResult info = runCommand(
        {"cd-info", "--no-cddb", "--no-device-info", "--cue-file=" + image("Road trip.cue")});
    EXPECT_EQ(info.exitCode, 0) << info.output;
    EXPECT_THAT(info.output, HasSubstr("1: 00:02:00  000000 audio"));
    EXPECT_THAT(info.output, HasSubstr("  2: "));
    EXPECT_THAT(info.output, HasSubstr("leadout"));
    EXPECT_THAT(info.output, HasSubstr("TITLE: Two Tones"));
    EXPECT_THAT(info.output, HasSubstr("PERFORMER: The Testers"));
    EXPECT_THAT(info.output, HasSubstr("TITLE: Road trip"));
}

TEST_F(AudioImages, LengthOfTheDiscIsTheSumOfItsTracks) {
    burn("audio", "Sum", {medium("song.wav"), medium("short.wav"), medium("song.wav")});
    const std::size_t song = paddedBytes(decoded(medium("song.wav")).size());
    EXPECT_EQ(std::filesystem::file_size(image("Sum.bin")), 2 * song + 300 * sectorBytes);
}

TEST_F(AudioImages, FolderAndPlaylistAreBurnedInTheirOrder) {
    std::filesystem::create_directory(folder / "album");
    std::filesystem::copy(medium("song.wav"), folder / "album/10.wav");
    std::filesystem::copy(medium("short.wav"), folder / "album/9.wav");
    folder.write("list.m3u", "album/10.wav\nalbum/9.wav\n");
    burn("audio", "Both", {folder / "album", folder / "list.m3u"});
    const std::size_t song = paddedBytes(decoded(medium("song.wav")).size());
    const std::size_t least = 300 * sectorBytes;
    const std::vector<std::string> tracks = tracksOf("Both", 4);
    EXPECT_THAT((std::vector<std::size_t>{tracks[0].size(), tracks[1].size(), tracks[2].size(),
                                          tracks[3].size()}),
                ElementsAre(least, song, song, least));
}
