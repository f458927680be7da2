// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/scorch/audio/Songs.h"

#include "scorch/audio/ffmpeg/FfmpegBackend.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

using scorch::RefusalKind;
using testing::HasSubstr;

void expectIncompatible(const std::filesystem::path &path, const std::string &reason) {
    const scorch::AudioRefusal refusal = refused(path);
    EXPECT_EQ(refusal.kind, RefusalKind::incompatibleFile) << path;
    EXPECT_THAT(refusal.reason, HasSubstr(reason)) << path;
}

TEST(SongRefusals, EncryptedSampleEntriesOfMp4AreProtection) {
    EXPECT_EQ(refused(song("protected-enca.m4a")).kind, RefusalKind::protectedFile);
    EXPECT_EQ(refused(song("protected-drms.m4a")).kind, RefusalKind::protectedFile);
}

TEST(SongRefusals, ContentEncryptionOfAsfIsProtection) {
    EXPECT_EQ(refused(song("protected.wma")).kind, RefusalKind::protectedFile);
}

TEST(SongRefusals, AudibleBooksAreProtected) {
    EXPECT_EQ(refused(song("protected.aa")).kind, RefusalKind::protectedFile);
    EXPECT_EQ(refused(song("protected.aax")).kind, RefusalKind::protectedFile);
}

TEST(SongRefusals, ReasonSaysWhatIsWrong) {
    expectIncompatible(song("text.txt"), "not a sound file");
    expectIncompatible(song("text.mp3"), "not a sound file");
    expectIncompatible(song("empty.mp3"), "empty");
    expectIncompatible(song("cover.png"), "pictures");
    expectIncompatible(song("video-silent.mp4"), "no sound");
    expectIncompatible(song("header.wav"), "beginning is damaged");
    expectIncompatible(song("header.flac"), "beginning is damaged");
    expectIncompatible(song("headless.m4a"), "beginning is damaged");
}

TEST(SongRefusals, CutOffFilesAreNoticedAtTheCheck) {
    expectIncompatible(song("truncated.wav"), "cut off");
    expectIncompatible(song("truncated.flac"), "cut off");
    expectIncompatible(song("truncated.m4a"), "cut off");
}

TEST(SongRefusals, CoverIsNoReasonToRefuse) {
    EXPECT_EQ(accepted(song("cover.mp3")).samples, songSamples);
    EXPECT_EQ(accepted(song("cover.flac")).samples, songSamples);
    EXPECT_EQ(accepted(song("cover.m4a")).samples, songSamples);
}

TEST(SongRefusals, SoundOfAMovieIsTaken) {
    EXPECT_GT(accepted(song("video.mp4")).samples, 44100U * 4);
}

TEST(SongRefusals, MissingFileIsNamedAsThat) {
    expectIncompatible(song("nobody.flac"), "no such file");
}

TEST(SongRefusals, FolderAndPipeAreNoFilesAndDoNotBlock) {
    const TemporaryFolder folder;
    expectIncompatible(folder.path(), "not a file");
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    expectIncompatible(folder / "pipe", "not a file");
}

TEST(SongRefusals, ListsThatLeadToOtherFilesAreNotFollowed) {
    const TemporaryFolder folder;
    const std::string list = "#EXTM3U\n#EXT-X-TARGETDURATION:10\n#EXTINF:5,\n" +
                             song("song.aac").string() + "\n#EXT-X-ENDLIST\n";
    EXPECT_EQ(refused(folder.write("list.m3u8", list)).kind, RefusalKind::incompatibleFile);
    EXPECT_EQ(refused(folder.write("list.txt", "ffconcat version 1.0\nfile '" +
                                                   song("song.flac").string() + "'\n"))
                  .kind,
              RefusalKind::incompatibleFile);
}

TEST(SongRefusals, NamesAreBytes) {
    const TemporaryFolder folder;
    for (const char *name : {"\xff\xfe odd.flac", "concat:x|y.flac", "a%03d.flac", "-i.flac"}) {
        EXPECT_EQ(accepted(folder.write(name, readFile(song("song.flac")))).samples, songSamples)
            << name;
    }
}

TEST(SongRefusals, StopRequestEndsACheckWithoutAVerdict) {
    std::stop_source stop;
    stop.request_stop();
    for (const char *name : {"song.flac", "song.mp3", "song.wma"}) {
        const scorch::AudioProbe result =
            scorch::FfmpegBackend().probe(song(name), stop.get_token());
        EXPECT_TRUE(std::holds_alternative<scorch::Cancelled>(result)) << name;
    }
}

} // namespace
