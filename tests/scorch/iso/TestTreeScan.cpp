// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/scorch/iso/IsoTestSupport.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <climits>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

using namespace isotest;
using scorch::countFiles;
using scorch::IsoScan;
using scorch::scanPath;
using std::filesystem::create_directories;
using std::filesystem::create_symlink;
using std::filesystem::path;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

namespace {

std::vector<std::string> namesIn(const scorch::IsoNode &folder) {
    std::vector<std::string> names;
    for (const scorch::IsoNodeRef &child : folder.children) {
        names.push_back(child->name);
    }
    return names;
}

std::vector<path> refusedIn(const IsoScan &scan) {
    std::vector<path> paths;
    for (const RefusedFile &file : scan.refused) {
        EXPECT_FALSE(file.reason.empty()) << file.path;
        paths.push_back(file.path);
    }
    return paths;
}

/// What a scan says that refuses the path itself; it must.
std::string refusalOf(const path &refused) {
    const auto scan = scanPath(refused, {}, {});
    if (!scan || scan->node || scan->refused.size() != 1 || scan->refused[0].path != refused) {
        return "not refused";
    }
    return scan->refused[0].reason;
}

TEST(TreeScan, ChildrenAreInNaturalOrderAndHiddenOnesAmongThem) {
    const TemporaryFolder folder;
    for (const char *name : {"in/Track 10", "in/Track 9", "in/.hidden", "in/track 1/x"}) {
        folder.write(name, "1");
    }
    const IsoScan scan = scanned(folder / "in");
    EXPECT_THAT(namesIn(*scan.node), ElementsAre(".hidden", "track 1", "Track 9", "Track 10"));
    EXPECT_EQ(scan.files, 4U);
}

TEST(TreeScan, ANodeHoldsWhatTheFileSystemSays) {
    const TemporaryFolder folder;
    const path file = folder.write("f\xFF.bin", "12345");
    chmod(file.c_str(), 0640);
    struct stat status {};
    ASSERT_EQ(stat(file.c_str(), &status), 0);
    const scorch::IsoNodeRef ref = scanned(file).node;
    const scorch::IsoNode &node = *ref;
    EXPECT_EQ(node.name, "f\xFF.bin");
    EXPECT_EQ(node.path, file);
    EXPECT_EQ(node.size, 5U);
    EXPECT_EQ(node.mode, 0640U);
    EXPECT_EQ(node.inode, status.st_ino);
    EXPECT_EQ(node.device, status.st_dev);
    EXPECT_EQ(node.mtime, status.st_mtim.tv_sec);
    EXPECT_FALSE(node.isFolder);
}

TEST(TreeScan, LinksAreFollowedUnderTheirOwnNames) {
    const TemporaryFolder folder;
    folder.write("elsewhere/file", "123");
    create_directories(folder / "in");
    create_symlink(folder / "elsewhere/file", folder / "in/to file");
    create_symlink(folder / "elsewhere", folder / "in/to folder");
    const IsoScan scan = scanned(folder / "in");
    ASSERT_THAT(namesIn(*scan.node), ElementsAre("to file", "to folder"));
    EXPECT_EQ(scan.node->children[0]->size, 3U);
    EXPECT_THAT(namesIn(*scan.node->children[1]), ElementsAre("file"));
    EXPECT_THAT(scan.refused, IsEmpty());
}

TEST(TreeScan, ALinkBackToAFolderAroundItIsLeftOut) {
    const TemporaryFolder folder;
    folder.write("in/deep/file", "1");
    create_symlink(folder / "in", folder / "in/deep/loop");
    const IsoScan scan = scanned(folder / "in");
    EXPECT_EQ(scan.files, 1U);
    EXPECT_THAT(refusedIn(scan), ElementsAre(folder / "in/deep/loop"));
}

TEST(TreeScan, ALinkToAFolderThatTheDropLiesInIsLeftOut) {
    const TemporaryFolder folder;
    folder.write("outer/other", "1");
    folder.write("outer/in/file", "1");
    create_symlink("..", folder / "outer/in/up");
    const IsoScan scan = scanned(folder / "outer/in");
    EXPECT_THAT(namesIn(*scan.node), ElementsAre("file"));
    EXPECT_THAT(refusedIn(scan), ElementsAre(folder / "outer/in/up"));
}

TEST(TreeScan, FoldersThatLinkOnAndOnComeToAnEnd) {
    const TemporaryFolder folder;
    constexpr int levels = 40; // Two links on every level: 2^40 paths, and not one loop.
    for (int level = 0; level < levels; ++level) {
        const path here = folder / ("in/" + std::to_string(level));
        create_directories(here);
        for (const char *name : {"a", "b"}) {
            create_symlink("../" + std::to_string(level + 1), here / name);
        }
    }
    folder.write("in/40/file", "1");
    const IsoScan scan = scanned(folder / "in");
    EXPECT_GE(scan.files, 1U);
    EXPECT_LE(scan.files, 100U);
    EXPECT_EQ(countFiles(folder / "in", {}), scan.files);
}

TEST(TreeScan, LinksThatLeadNowhereAreRefused) {
    const TemporaryFolder folder;
    folder.write("in/file", "1");
    create_symlink("gone", folder / "in/dangling");
    create_symlink("itself", folder / "in/itself");
    const IsoScan scan = scanned(folder / "in");
    EXPECT_THAT(refusedIn(scan), ElementsAre(folder / "in/dangling", folder / "in/itself"));
    EXPECT_NE(refusalOf(folder / "in/dangling"), refusalOf(folder / "in/itself"));
    EXPECT_NE(refusalOf(folder / "in/dangling"), refusalOf(folder / "not there"));
}

TEST(TreeScan, PipesSocketsAndDevicesAreRefusedAndNotOpened) {
    const TemporaryFolder folder;
    folder.write("in/file", "1");
    ASSERT_EQ(mkfifo((folder / "in/pipe").c_str(), 0600), 0); // To open it would hang.
    sockaddr_un address{AF_UNIX, {}};
    (folder / "in/socket").native().copy(address.sun_path, sizeof address.sun_path - 1);
    const int descriptor = socket(AF_UNIX, SOCK_STREAM, 0);
    ASSERT_EQ(bind(descriptor, reinterpret_cast<sockaddr *>(&address), sizeof address), 0);
    create_symlink("/dev/null", folder / "in/device");
    const IsoScan scan = scanned(folder / "in");
    EXPECT_THAT(refusedIn(scan), UnorderedElementsAre(folder / "in/pipe", folder / "in/socket",
                                                      folder / "in/device"));
    EXPECT_NE(refusalOf("/dev/null"), "not refused");
    close(descriptor);
}

TEST(TreeScan, WhatMayNotBeReadIsRefusedAndTheRestOfTheFolderTaken) {
    const TemporaryFolder folder;
    folder.write("in/open", "1");
    chmod(folder.write("in/secret", "1").c_str(), 0);
    folder.write("in/closed/file", "1");
    chmod((folder / "in/closed").c_str(), 0);
    chmod(folder.path().c_str(), 0755);
    EXPECT_TRUE(asOrdinaryUser([&] {
        int reported = 0;
        const auto scan = scanPath(folder / "in", [&](const path &) { ++reported; }, {});
        return scan && scan->node && scan->files == 1 && scan->refused.size() == 2 &&
               scan->refused[0].path == folder / "in/closed" &&
               scan->refused[1].path == folder / "in/secret" && reported == 2 &&
               countFiles(folder / "in", {}) == 2 &&
               refusalOf(folder / "in/secret") == scan->refused[1].reason;
    }));
}

TEST(TreeScan, PathsThatTheSystemCannotOpenAreRefused) {
    const TemporaryFolder folder;
    folder.write("in/file", "1");
    int at = open((folder / "in").c_str(), O_PATH | O_DIRECTORY);
    const std::string name(250, 'd');
    for (int level = 0; level < 20; ++level) {
        ASSERT_EQ(mkdirat(at, name.c_str(), 0755), 0);
        const int next = openat(at, name.c_str(), O_PATH | O_DIRECTORY);
        close(at);
        at = next;
    }
    close(at);
    const IsoScan scan = scanned(folder / "in");
    EXPECT_EQ(scan.files, 1U);
    ASSERT_EQ(scan.refused.size(), 1U);
    EXPECT_GE(scan.refused[0].path.native().size(), static_cast<std::size_t>(PATH_MAX));
}

TEST(TreeScan, ReportsEachFileAsOftenAsCounted) {
    const TemporaryFolder folder;
    folder.write("in/a", "1");
    folder.write("in/b/c", "1");
    folder.write("in/b/d", "1");
    create_symlink("a", folder / "in/link");
    create_symlink("gone", folder / "in/dangling");
    mkfifo((folder / "in/pipe").c_str(), 0600);
    std::vector<path> reported;
    const auto scan =
        scanPath(folder / "in", [&](const path &file) { reported.push_back(file); }, {});
    ASSERT_TRUE(scan.ok());
    EXPECT_THAT(reported, UnorderedElementsAre(folder / "in/a", folder / "in/b/c",
                                               folder / "in/b/d", folder / "in/link"));
    EXPECT_EQ(countFiles(folder / "in", {}), 4U);
    EXPECT_EQ(countFiles(folder / "in/a", {}), 1U);
    EXPECT_EQ(countFiles(folder / "in/pipe", {}), 0U);
    EXPECT_EQ(countFiles(folder / "nothing", {}), 0U);
}

TEST(TreeScan, AFolderIsNamedHoweverItsPathIsWritten) {
    const TemporaryFolder folder;
    create_directories(folder / "in/sub");
    EXPECT_EQ(scanned(folder.path().native() + "/in/").node->name, "in");
    EXPECT_EQ(scanned(folder / "in/sub/..").node->name, "in");
    EXPECT_EQ(scanned(folder / "in/.").node->name, "in");
}

TEST(TreeScan, AStopIsNoFailure) {
    const TemporaryFolder folder;
    folder.write("in/a", "1");
    std::stop_source stop;
    stop.request_stop();
    const auto scan = scanPath(folder / "in", {}, stop.get_token());
    ASSERT_FALSE(scan.ok());
    EXPECT_TRUE(scorch::isCancelled(scan.error()));
}

TEST(TreeScan, AStopInTheMiddleEndsIt) {
    const TemporaryFolder folder;
    for (int number = 0; number < 100; ++number) {
        folder.write("in/" + std::to_string(number), "1");
    }
    std::stop_source stop;
    int reported = 0;
    const auto scan = scanPath(
        folder / "in",
        [&](const path &) {
            ++reported;
            stop.request_stop();
        },
        stop.get_token());
    EXPECT_FALSE(scan.ok());
    EXPECT_EQ(reported, 1);
}

} // namespace
