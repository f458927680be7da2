// SPDX-License-Identifier: GPL-2.0-or-later
#include "crate/SongScan.h"

#include "crate/SongTags.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <unistd.h>

namespace {

using namespace std::chrono_literals;
using crate::isSongName;
using crate::LibrarySong;
using crate::readSong;
using crate::scanSongs;
using testing::ElementsAre;
using testing::IsEmpty;

QByteArray mediaPath(const std::string &name) {
    return QByteArray::fromStdString(CRATE_TEST_SONGS_DIR "/" + name);
}

class SongScanTest : public testing::Test {
protected:
    /// What is found, relative to the folder.
    std::vector<std::string> found(std::stop_token stop = {}) {
        std::vector<std::string> names;
        error_ = scanSongs(folder_.path(), std::move(stop), [&](const LibrarySong &song) {
            names.push_back(
                std::filesystem::path(song.path.toStdString()).lexically_relative(folder_.path()));
        });
        return names;
    }

    TemporaryFolder folder_;
    std::error_code error_;
};

TEST(SongNames, AreJudgedByTheirEnding) {
    for (const char *name : {"a.flac", "a.MP3", "a.b.Ogg", "a.opus", "a.m4a", "a.wav", "a.wv"}) {
        EXPECT_TRUE(isSongName(name)) << name;
    }
    for (const char *name : {"a.txt", "flac", ".flac", "a.flac.part", "a.", "a.jpg", "a.m3u"}) {
        EXPECT_FALSE(isSongName(name)) << name;
    }
}

class SongTagsOf : public testing::TestWithParam<const char *> {};

TEST_P(SongTagsOf, AreRead) {
    const std::string ending = GetParam();
    const LibrarySong song = readSong(mediaPath("song." + ending));
    EXPECT_EQ(song.title, QStringLiteral("Tïtle ") + QString::fromStdString(ending));
    EXPECT_EQ(song.artist, QStringLiteral("Artist"));
    EXPECT_EQ(song.album, QStringLiteral("Album"));
    EXPECT_EQ(song.track, 7);
    ASSERT_TRUE(song.length);
    EXPECT_LT(std::chrono::abs(*song.length - 2s), 100ms);
}

INSTANTIATE_TEST_SUITE_P(EachKind, SongTagsOf,
                         testing::Values("flac", "mp3", "ogg", "opus", "m4a", "wav"));

TEST(SongTags, DiscNumberIsRead) {
    EXPECT_EQ(readSong(mediaPath("song.flac")).disc, 2);
}

TEST_F(SongScanTest, FileThatIsNoSongInsideIsListedByItsName) {
    folder_.write("bad.mp3", "this is not sound");
    folder_.write("empty.flac", "");
    folder_.write("short.m4a", std::string("\0\0\0\x20"
                                           "ftypM4A \xff\xff",
                                           14));
    EXPECT_THAT(found(), ElementsAre("bad.mp3", "empty.flac", "short.m4a"));
    const LibrarySong song = readSong(QByteArray::fromStdString((folder_ / "bad.mp3").string()));
    EXPECT_TRUE(song.title.isEmpty());
    EXPECT_EQ(song.displayTitle(), QStringLiteral("bad"));
}

TEST_F(SongScanTest, FoldersAreWalkedToTheBottomInTheOrderOfTheirNames) {
    for (const char *name : {"b/2.flac", "b/1.flac", "a/z/deep.ogg", "top.mp3", "a/note.txt"}) {
        folder_.write(name, "");
    }
    EXPECT_THAT(found(), ElementsAre("top.mp3", "a/z/deep.ogg", "b/1.flac", "b/2.flac"));
    EXPECT_FALSE(error_);
}

TEST_F(SongScanTest, HiddenFilesAndFoldersAreLeftOut) {
    folder_.write(".hidden.flac", "");
    folder_.write(".trash/a.flac", "");
    EXPECT_THAT(found(), IsEmpty());
}

TEST_F(SongScanTest, NamesKeepTheirBytes) {
    folder_.write("caf\xe9/\xff.flac", "");
    EXPECT_THAT(found(), ElementsAre("caf\xe9/\xff.flac"));
}

TEST_F(SongScanTest, LoopOfLinksEndsAndNothingIsFoundTwice) {
    folder_.write("a/song.flac", "");
    std::filesystem::create_directory_symlink(folder_.path(), folder_ / "a" / "up");
    std::filesystem::create_directory_symlink(folder_ / "a", folder_ / "b");
    EXPECT_THAT(found(), ElementsAre("a/song.flac"));
}

TEST_F(SongScanTest, LinksToSongsElsewhereAreFollowed) {
    const TemporaryFolder other;
    other.write("song.flac", "");
    std::filesystem::create_symlink(other / "song.flac", folder_ / "link.flac");
    std::filesystem::create_symlink(folder_ / "nothing", folder_ / "dangling.flac");
    EXPECT_THAT(found(), ElementsAre("link.flac"));
}

TEST_F(SongScanTest, FolderThatCannotBeReadIsAnError) {
    std::filesystem::remove(folder_.path());
    EXPECT_THAT(found(), IsEmpty());
    EXPECT_EQ(error_, std::errc::no_such_file_or_directory);
}

TEST_F(SongScanTest, OneBelowThatCannotBeReadIsPassedOver) {
    if (geteuid() == 0) {
        GTEST_SKIP() << "root reads everything";
    }
    folder_.write("closed/a.flac", "");
    folder_.write("open/b.flac", "");
    std::filesystem::permissions(folder_ / "closed", std::filesystem::perms::none);
    EXPECT_THAT(found(), ElementsAre("open/b.flac"));
    EXPECT_FALSE(error_);
}

TEST_F(SongScanTest, StopsAtTheNextFile) {
    folder_.write("1.flac", "");
    folder_.write("2.flac", "");
    folder_.write("below/3.flac", "");
    std::stop_source stop;
    int count = 0;
    const std::error_code error = scanSongs(folder_.path(), stop.get_token(), [&](const auto &) {
        ++count;
        stop.request_stop();
    });
    EXPECT_EQ(count, 1);
    EXPECT_FALSE(error);
}

} // namespace
