// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/support/AudioFileList.h"

#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/stat.h>
#include <thread>

using namespace scorch;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

namespace fs = std::filesystem;

class AudioFiles : public testing::Test {
protected:
    AudioFileList expand(const std::vector<fs::path> &paths) const {
        std::vector<BurnFile> files;
        for (const fs::path &path : paths) {
            files.push_back({path, {}, {}});
        }
        return expandAudioFiles(files, {});
    }

    /// The files as names below the folder of the test.
    std::vector<std::string> names(const AudioFileList &list) const {
        std::vector<std::string> result;
        for (const BurnFile &file : list.files) {
            result.push_back(file.path.lexically_relative(folder.path()).native());
        }
        return result;
    }

    std::vector<std::string> refusedNames(const AudioFileList &list) const {
        std::vector<std::string> result;
        for (const RefusedFile &file : list.refused) {
            result.push_back(file.path.lexically_relative(folder.path()).native());
            EXPECT_FALSE(file.reason.empty()) << file.path;
        }
        return result;
    }

    const TemporaryFolder folder;
};

} // namespace

TEST_F(AudioFiles, FilesStayInTheOrderGivenWithTheirHints) {
    const std::vector<BurnFile> files = {{folder.write("b.mp3", ""), "Artist", "Title"},
                                         {folder.write(".a.mp3", ""), "", ""}};
    const AudioFileList list = expandAudioFiles(files, {});
    EXPECT_THAT(names(list), ElementsAre("b.mp3", ".a.mp3"));
    EXPECT_EQ(list.files[0].artist, "Artist");
    EXPECT_EQ(list.files[0].title, "Title");
}

TEST_F(AudioFiles, FolderIsWalkedToTheBottomInNaturalOrder) {
    for (const char *name : {"music/10.mp3", "music/9 live/2.mp3", "music/9 live/1/x.mp3",
                             "music/9 live/10.mp3", "music/2.mp3", "music/Encore.mp3"}) {
        folder.write(name, "");
    }
    EXPECT_THAT(names(expand({folder / "music"})),
                ElementsAre("music/2.mp3", "music/9 live/1/x.mp3", "music/9 live/2.mp3",
                            "music/9 live/10.mp3", "music/10.mp3", "music/Encore.mp3"));
}

TEST_F(AudioFiles, HiddenFilesAndFoldersInAFolderAreSkipped) {
    folder.write("music/.hidden.mp3", "");
    folder.write("music/.trash/a.mp3", "");
    folder.write("music/a.mp3", "");
    const AudioFileList list = expand({folder / "music"});
    EXPECT_THAT(names(list), ElementsAre("music/a.mp3"));
    EXPECT_THAT(list.refused, IsEmpty());
}

TEST_F(AudioFiles, PlaylistInAFolderDoesNotDoubleItsSongs) {
    folder.write("music/a.mp3", "");
    folder.write("music/all.M3U", "a.mp3\n");
    EXPECT_THAT(names(expand({folder / "music"})), ElementsAre("music/a.mp3"));
}

TEST_F(AudioFiles, LoopOfLinksEndsAndRepeatsNothing) {
    folder.write("music/a/1.mp3", "");
    folder.write("music/b/2.mp3", "");
    fs::create_directory_symlink("..", folder / "music/a/up");
    fs::create_directory_symlink("../b", folder / "music/a/other");
    fs::create_directory_symlink("../a", folder / "music/b/other");
    EXPECT_THAT(names(expand({folder / "music"})),
                ElementsAre("music/a/1.mp3", "music/a/other/2.mp3"));
}

TEST_F(AudioFiles, LinksAreFollowed) {
    folder.write("elsewhere/1.mp3", "");
    folder.write("2.mp3", "");
    fs::create_directories(folder / "music");
    fs::create_directory_symlink("../elsewhere", folder / "music/folder");
    fs::create_symlink("../2.mp3", folder / "music/song.mp3");
    EXPECT_THAT(names(expand({folder / "music"})),
                ElementsAre("music/folder/1.mp3", "music/song.mp3"));
    fs::create_directory_symlink("music", folder / "link");
    EXPECT_THAT(names(expand({folder / "link"})), SizeIs(2));
}

TEST_F(AudioFiles, DanglingLinkIsRefused) {
    folder.write("music/a.mp3", "");
    fs::create_symlink("nowhere", folder / "music/b.mp3");
    fs::create_symlink("c.mp3", folder / "music/c.mp3");
    const AudioFileList list = expand({folder / "music"});
    EXPECT_THAT(names(list), ElementsAre("music/a.mp3"));
    EXPECT_THAT(refusedNames(list), ElementsAre("music/b.mp3", "music/c.mp3"));
    EXPECT_THAT(list.refused[1].reason, HasSubstr("leads back to itself"));
}

TEST_F(AudioFiles, MissingPathIsRefusedByName) {
    const AudioFileList list = expand({folder / "gone.mp3", folder.write("a.mp3", "")});
    EXPECT_THAT(names(list), ElementsAre("a.mp3"));
    EXPECT_THAT(refusedNames(list), ElementsAre("gone.mp3"));
    EXPECT_THAT(list.refused[0].reason, HasSubstr("no such file"));
}

TEST_F(AudioFiles, EmptyFolderIsRefused) {
    folder.write("music/.hidden.mp3", "");
    const AudioFileList list = expand({folder / "music"});
    EXPECT_THAT(refusedNames(list), ElementsAre("music"));
}

TEST_F(AudioFiles, PipeIsRefusedWithoutBeingOpened) {
    fs::create_directory(folder / "music");
    ASSERT_EQ(mkfifo((folder / "music/a.mp3").c_str(), 0600), 0);
    ASSERT_EQ(mkfifo((folder / "b.m3u").c_str(), 0600), 0);
    const AudioFileList list = expand({folder / "music", folder / "b.m3u", "/dev/null"});
    EXPECT_THAT(list.files, IsEmpty());
    EXPECT_THAT(list.refused, SizeIs(3));
}

TEST_F(AudioFiles, PlaylistIsReplacedByItsEntriesInItsOrder) {
    folder.write("b.mp3", "");
    folder.write("lists/sub/a.mp3", "");
    const fs::path list =
        folder.write("lists/x.m3u8",
                     "#EXTM3U\r\n../b.mp3\r\nsub/a.mp3\r\nfile://" + (folder / "b.mp3").native());
    const AudioFileList files = expand({list});
    ASSERT_THAT(files.files, SizeIs(3));
    EXPECT_THAT(readFile(files.files[0].path), IsEmpty());
    EXPECT_TRUE(fs::equivalent(files.files[0].path, folder / "b.mp3"));
    EXPECT_TRUE(fs::equivalent(files.files[1].path, folder / "lists/sub/a.mp3"));
    EXPECT_EQ(files.files[2].path, folder / "b.mp3");
}

TEST_F(AudioFiles, PlaylistMayNameFoldersAndPlaylists) {
    folder.write("cd/2.mp3", "");
    folder.write("cd/1.mp3", "");
    folder.write("inner.PLS", "[playlist]\nFile1=z.mp3\n");
    folder.write("z.mp3", "");
    EXPECT_THAT(names(expand({folder.write("x.m3u", "cd\ninner.PLS\n")})),
                ElementsAre("cd/1.mp3", "cd/2.mp3", "z.mp3"));
}

TEST_F(AudioFiles, PlaylistThatNamesItselfIsTakenOnce) {
    folder.write("a.mp3", "");
    folder.write("b.m3u", "x.m3u\na.mp3\n");
    EXPECT_THAT(names(expand({folder.write("x.m3u", "x.m3u\na.mp3\nb.m3u\n")})),
                ElementsAre("a.mp3", "a.mp3"));
}

TEST_F(AudioFiles, PlaylistsThatMultiplyAreBounded) {
    folder.write("0.m3u", std::string("a.mp3\na.mp3\n"));
    folder.write("a.mp3", "");
    for (int depth = 1; depth < 40; ++depth) {
        std::string text;
        for (int i = 0; i < 50; ++i) {
            text += std::to_string(depth - 1) + ".m3u\n";
        }
        folder.write(std::to_string(depth) + ".m3u", text);
    }
    const AudioFileList list = expand({folder / "5.m3u"});
    EXPECT_LE(list.files.size(), 100'000U);
    EXPECT_THAT(list.refused.back().reason, HasSubstr("too many"));
    EXPECT_THAT(expand({folder / "39.m3u"}).refused.front().reason, HasSubstr("inside each other"));
}

TEST_F(AudioFiles, PlaylistEntriesThatCannotBeHadAreRefusedByName) {
    folder.write("a.mp3", "");
    const AudioFileList list =
        expand({folder.write("x.m3u", "gone.mp3\nhttp://example.org/a.mp3\na.mp3\n")});
    EXPECT_THAT(names(list), ElementsAre("a.mp3"));
    ASSERT_THAT(list.refused, SizeIs(2));
    EXPECT_EQ(list.refused[0].path, folder / "gone.mp3");
    EXPECT_EQ(list.refused[1].path, "http://example.org/a.mp3");
    EXPECT_THAT(list.refused[1].reason, HasSubstr("network"));
}

TEST_F(AudioFiles, PlaylistNameIsFoundInEitherEncoding) {
    folder.write("caf\xE9.mp3", "");
    folder.write("na\xC3\xAFve.mp3", "");
    folder.write("\xFF\xC3.mp3", "");
    EXPECT_THAT(names(expand({folder.write("x.m3u", "caf\xC3\xA9.mp3\nna\xEFve.mp3\n"
                                                    "\xFF\xC3.mp3\n")})),
                ElementsAre("caf\xE9.mp3", "na\xC3\xAFve.mp3", "\xFF\xC3.mp3"));
}

TEST_F(AudioFiles, PlaylistThatIsNoneOrEmptyIsRefused) {
    const AudioFileList list =
        expand({folder.write("binary.m3u", std::string(100, '\0')), folder.write("empty.pls", "")});
    EXPECT_THAT(list.files, IsEmpty());
    EXPECT_THAT(refusedNames(list), ElementsAre("binary.m3u", "empty.pls"));
}

TEST_F(AudioFiles, PathLongerThanTheSystemTakesIsRefused) {
    const AudioFileList list = expand({fs::path(std::string(5000, 'a'))});
    EXPECT_THAT(list.refused, SizeIs(1));
}

TEST_F(AudioFiles, StopRequestEndsTheWalk) {
    folder.write("music/a.mp3", "");
    std::stop_source stop;
    stop.request_stop();
    const AudioFileList list = expandAudioFiles({{folder / "music", {}, {}}}, stop.get_token());
    EXPECT_THAT(list.files, IsEmpty());
    EXPECT_THAT(list.refused, IsEmpty());
}
