// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/scorch/iso/IsoTestSupport.h"
#include "tests/support/CommandResult.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <clocale>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

using namespace isotest;
using testing::HasSubstr;

namespace {

/// What isoinfo prints with these arguments about an image.
std::string isoinfo(const std::filesystem::path &image, std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), "isoinfo");
    arguments.insert(arguments.end(), {"-i", image.string()});
    return runCommand(arguments).output;
}

/// What xorriso prints with these arguments about an image.
std::string xorriso(const std::filesystem::path &image, const std::vector<std::string> &arguments) {
    std::vector<std::string> all{"xorriso", "-indev", image.string()};
    all.insert(all.end(), arguments.begin(), arguments.end());
    return runCommand(all).output;
}

TEST(IsoImage, OtherProgramsReadBackWhatWentIn) {
    const TemporaryFolder folder;
    folder.write("source/Music/one.txt", "first");
    folder.write("source/Music/deep/two.txt", std::string(5000, 'x'));
    folder.write("source/.hidden", "seen");
    folder.write("source/empty", "");
    std::filesystem::create_directories(folder / "source/nothing in here");
    writeImage(entriesOf({folder / "source"}), folder / "disc.iso");
    extract(folder / "disc.iso", folder / "out");
    expectSameTree(folder / "source", folder / "out/source");
}

TEST(IsoImage, AnEmptyListIsAnImageToo) {
    const TemporaryFolder folder;
    writeImage({}, folder / "disc.iso");
    extract(folder / "disc.iso", folder / "out");
    EXPECT_TRUE(std::filesystem::is_empty(folder / "out"));
}

TEST(IsoImage, RockRidgeNamesAreTheBytesOfTheFileSystem) {
    const TemporaryFolder folder;
    folder.write("source/日本語の名前.txt", "a");
    folder.write("source/caf\xE9 latin1.txt", "b");
    folder.write("source/" + std::string(255, 'n'), "c");
    folder.write("source/😀 emoji", "d");
    folder.write("source/back\\slash * ? : \x01", "e");
    writeImage(entriesOf({folder / "source"}), folder / "disc.iso");
    extract(folder / "disc.iso", folder / "out");
    expectSameTree(folder / "source", folder / "out/source");
}

TEST(IsoImage, JolietKeepsLongAndForeignNames) {
    const TemporaryFolder folder;
    const std::string hundred(99, 'L');
    folder.write("日本語.txt", "japanese");
    folder.write(hundred + ".txt", "long");
    folder.write("README", "no dot");
    folder.write("😀", "beyond the basic plane");
    writeImage(entriesOf({folder / "日本語.txt", folder / (hundred + ".txt"), folder / "README",
                          folder / "😀"}),
               folder / "disc.iso");
    extract(folder / "disc.iso", folder / "out", Names::joliet);
    EXPECT_EQ(readFile(folder / "out/日本語.txt"), "japanese");
    EXPECT_EQ(readFile(folder / ("out/" + hundred + ".txt")), "long");
    EXPECT_EQ(readFile(folder / "out/😀"), "beyond the basic plane");
    EXPECT_EQ(isoinfo(folder / "disc.iso", {"-J", "-x", "/README"}), "no dot");
}

TEST(IsoImage, JolietNamesThatBecomeEqualAreNumbered) {
    const TemporaryFolder folder;
    const std::string same(120, 's');
    folder.write("in/" + same + "1", "1");
    folder.write("in/" + same + "2", "2");
    folder.write("in/a*b", "3");
    folder.write("in/a?b", "4");
    writeImage(entriesOf({folder / "in"}), folder / "disc.iso");
    const std::string list = isoinfo(folder / "disc.iso", {"-J", "-f"});
    EXPECT_EQ(std::count(list.begin(), list.end(), '\n'), 5) << list;
}

TEST(IsoImage, FoldersLieAsDeepAsTheyDid) {
    const TemporaryFolder folder;
    std::filesystem::path deep = "source";
    for (int level = 0; level < 40; ++level) {
        deep /= "a folder at level " + std::to_string(level);
    }
    folder.write(deep / "bottom.txt", "here");
    writeImage(entriesOf({folder / "source"}), folder / "disc.iso");
    extract(folder / "disc.iso", folder / "out");
    expectSameTree(folder / "source", folder / "out/source");
    const std::string list = isoinfo(folder / "disc.iso", {"-J", "-f"});
    EXPECT_THAT(list, HasSubstr("level 39/bottom.txt")) << list;
}

TEST(IsoImage, TenThousandFilesInOneFolder) {
    const TemporaryFolder folder;
    for (int number = 0; number < 10000; ++number) {
        folder.write("source/file " + std::to_string(number), std::to_string(number));
    }
    const auto entries = entriesOf({folder / "source"});
    writeImage(entries, folder / "disc.iso");
    EXPECT_EQ(std::filesystem::file_size(folder / "disc.iso"), predictedSize(entries));
    extract(folder / "disc.iso", folder / "out");
    expectSameTree(folder / "source", folder / "out/source");
}

TEST(IsoImage, EntriesStandUnderTheNamesTheyWereGiven) {
    const TemporaryFolder folder;
    folder.write("a/name.ext", "first");
    folder.write("b/name.ext", "second");
    auto entries = entriesOf({folder / "a/name.ext", folder / "b/name.ext"});
    entries[1].name = "name (2).ext";
    writeImage(entries, folder / "disc.iso");
    extract(folder / "disc.iso", folder / "out");
    EXPECT_EQ(readFile(folder / "out/name.ext"), "first");
    EXPECT_EQ(readFile(folder / "out/name (2).ext"), "second");
}

TEST(IsoImage, AnybodyMayReadAndCopiesAreWritable) {
    const TemporaryFolder folder;
    chmod(folder.write("in/plain", "1").c_str(), 0600);
    chmod(folder.write("in/program", "2").c_str(), 04710);
    chmod((folder / "in").c_str(), 0700);
    writeImage(entriesOf({folder / "in"}), folder / "disc.iso");
    const std::string list = xorriso(folder / "disc.iso", {"-find", "/", "-exec", "lsdl"});
    EXPECT_THAT(list, testing::ContainsRegex("drwxr-xr-x +1 0 +0 .*'/in'")) << list;
    EXPECT_THAT(list, testing::ContainsRegex("-rw-r--r-- +1 0 +0 .*'/in/plain'")) << list;
    EXPECT_THAT(list, testing::ContainsRegex("-rwxr-xr-x +1 0 +0 .*'/in/program'")) << list;
}

TEST(IsoImage, DatesAreTheFilesOwn) {
    const TemporaryFolder folder;
    const auto file = folder.write("old.txt", "1");
    const timespec times[2] = {{981173106, 0}, {981173106, 0}}; // 2001-02-03 04:05:06 UTC
    ASSERT_EQ(utimensat(AT_FDCWD, file.c_str(), times, 0), 0);
    writeImage(entriesOf({file}), folder / "disc.iso");
    extract(folder / "disc.iso", folder / "out");
    struct stat status {};
    ASSERT_EQ(stat((folder / "out/old.txt").c_str(), &status), 0);
    EXPECT_EQ(status.st_mtim.tv_sec, 981173106);
    EXPECT_THAT(isoinfo(folder / "disc.iso", {"-J", "-l"}), HasSubstr("Feb  3 2001"));
}

TEST(IsoImage, TheLocaleOfTheProcessIsLeftAlone) {
    const std::string before = setlocale(LC_ALL, nullptr);
    predictedSize({});
    EXPECT_EQ(setlocale(LC_ALL, nullptr), before);
}

} // namespace
