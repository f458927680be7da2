// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/scorch/iso/IsoTestSupport.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <future>
#include <random>
#include <unistd.h>

using namespace isotest;
using scorch::IsoRootEntry;
using std::filesystem::create_directories;
using std::filesystem::path;

namespace {

constexpr std::uint64_t block = 2048;

/// A tree of random names, depths and sizes with links of both kinds; the same for a seed.
class RandomTree {
public:
    RandomTree(const TemporaryFolder &folder, unsigned seed) : folder_(folder), random_(seed) {}

    /// The paths of the entries.
    std::vector<path> make() {
        std::vector<path> entries;
        const int count = below(12);
        for (int number = 0; number < count; ++number) {
            const path entry = folder_ / ("entry " + std::to_string(number));
            fill(entry, 0);
            entries.push_back(entry);
        }
        return entries;
    }

private:
    int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random_); }

    std::string name(int number) {
        static const std::vector<std::string> characters{"a", "Z",  "7", ".",
                                                         "é", "日", "😀", "\xFE"};
        std::string text = std::to_string(number);
        for (int length = below(60); length > 0 && text.size() < 250; --length) {
            text +=
                characters[static_cast<std::size_t>(below(static_cast<int>(characters.size())))];
        }
        return text;
    }

    void fill(const path &at, int depth) {
        if (depth > 9 || below(3) != 0) {
            addFile(at);
            return;
        }
        create_directories(at);
        const int children = below(depth == 0 ? 30 : 6);
        for (int number = 0; number < children; ++number) {
            fill(at / name(number), depth + 1);
        }
    }

    void addFile(const path &at) {
        const int kind = files_.empty() ? 0 : below(8);
        const auto &other =
            files_.empty()
                ? at
                : files_[static_cast<std::size_t>(below(static_cast<int>(files_.size())))];
        if (kind == 6) {
            std::filesystem::create_hard_link(other, at);
        } else if (kind == 7) {
            std::filesystem::create_symlink(other, at);
        } else {
            const int size = below(3) == 0 ? 0 : below(3 * static_cast<int>(block));
            folder_.write(at.lexically_relative(folder_.path()),
                          std::string(static_cast<std::size_t>(size), 'c'));
            files_.push_back(at);
        }
    }

    const TemporaryFolder &folder_;
    std::mt19937 random_;
    std::vector<path> files_;
};

class SizeOfRandomTrees : public testing::TestWithParam<unsigned> {};

TEST_P(SizeOfRandomTrees, IsToTheByteWhatIsStreamed) {
    const TemporaryFolder folder;
    const auto entries = entriesOf(RandomTree(folder, GetParam()).make());
    const std::uint64_t predicted = predictedSize(entries);
    const auto image = laidOut(entries);
    ASSERT_TRUE(image);
    EXPECT_EQ(image->size(), predicted);
    EXPECT_EQ(streamed(*image->openSource()).bytes.size(), predicted);
    EXPECT_EQ(predicted % block, 0U);
}

TEST_P(SizeOfRandomTrees, IsNeverMoreThanTheRunningTotal) {
    const TemporaryFolder folder;
    std::vector<IsoRootEntry> entries;
    for (const path &entry : RandomTree(folder, GetParam()).make()) {
        const std::uint64_t before = predictedSize(entries);
        const scorch::IsoScan scan = scanned(entry);
        entries.push_back({scan.node, scan.node->name});
        EXPECT_LE(predictedSize(entries), before + scan.upperBoundBytes);
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, SizeOfRandomTrees, testing::Range(1U, 25U));

TEST(IsoSize, OfNothingIsThatOfAnEmptyImage) {
    const auto image = laidOut({});
    ASSERT_TRUE(image);
    EXPECT_EQ(predictedSize({}), image->size());
    EXPECT_GT(predictedSize({}), 150 * block);
}

TEST(IsoSize, TheRunningTotalCoversManySmallEntries) {
    const TemporaryFolder folder;
    std::vector<IsoRootEntry> entries;
    std::uint64_t bound = predictedSize({});
    for (int number = 0; number < 300; ++number) {
        const std::string name = std::to_string(number) + std::string(250, 'n');
        const scorch::IsoScan scan = scanned(folder.write(name, "1"));
        entries.push_back({scan.node, scan.node->name});
        bound += scan.upperBoundBytes;
        if (number % 20 == 0) {
            EXPECT_LE(predictedSize(entries), bound) << number;
        }
    }
}

TEST(IsoSize, OneFileUnderManyNamesCountsOnce) {
    const TemporaryFolder folder;
    const path file = folder.write("file", std::string(100 * block, 'x'));
    std::filesystem::create_hard_link(file, folder / "hard");
    std::filesystem::create_symlink(file, folder / "soft");
    const std::uint64_t one = predictedSize(entriesOf({file}));
    auto entries = entriesOf({file, folder / "hard", folder / "soft", file});
    entries[3].name = "file (2)";
    EXPECT_LT(predictedSize(entries), one + 10 * block);
    EXPECT_EQ(laidOut(entries)->size(), predictedSize(entries));
    writeImage(entries, folder / "disc.iso");
    extract(folder / "disc.iso", folder / "out");
    for (const IsoRootEntry &entry : entries) {
        EXPECT_EQ(readFile(folder / "out" / entry.name), readFile(file)) << entry.name;
    }
}

TEST(IsoSize, EmptyFilesTakeNoBlocksAndFoldersTheirOwn) {
    const TemporaryFolder folder;
    folder.write("empty", "");
    for (int number = 0; number < 20; ++number) {
        create_directories(folder / ("folder/" + std::to_string(number)));
    }
    const std::uint64_t nothing = predictedSize({});
    EXPECT_EQ(predictedSize(entriesOf({folder / "empty"})), nothing);
    // A block in each of the two trees, and the smallest image has some to spare.
    EXPECT_GE(predictedSize(entriesOf({folder / "folder"})), nothing + 20 * block);
}

TEST(IsoSize, AFileBeyondFourGibibytesIsWhole) {
    const TemporaryFolder folder;
    const path file = folder.write("in/huge", "");
    constexpr std::uint64_t size = (std::uint64_t{4} << 30) + 5'000'001;
    ASSERT_EQ(truncate(file.c_str(), static_cast<off_t>(size)), 0);
    const auto entries = entriesOf({file, folder.write("in/next", "behind it")});
    const auto image = laidOut(entries);
    ASSERT_TRUE(image);
    EXPECT_EQ(image->size(), predictedSize(entries));
    // The directories are enough to be asked; the rest of the image is a hole.
    std::vector<std::byte> directories(100 * block);
    ASSERT_TRUE(image->openSource()->read(directories, {}).ok());
    const path iso = folder.write(
        "disc.iso", {reinterpret_cast<const char *>(directories.data()), directories.size()});
    ASSERT_EQ(truncate(iso.c_str(), static_cast<off_t>(image->size())), 0);
    for (const scorch::IsoNodeRef &node : {entries[0].node, entries[1].node}) {
        const std::vector<Extent> extents = extentsOf(iso, "/" + node->name);
        std::int64_t blocks = 0;
        for (const Extent &extent : extents) {
            EXPECT_EQ(image->fileAt(extent.first), node->name);
            EXPECT_EQ(image->fileAt(extent.first + extent.blocks - 1), node->name);
            EXPECT_EQ(extent.bytes, node->size);
            blocks += extent.blocks;
        }
        EXPECT_EQ(blocks, static_cast<std::int64_t>((node->size + block - 1) / block));
    }
}

TEST(IsoSize, SeveralThreadsMayAskAtOnce) {
    const TemporaryFolder folder;
    folder.write("in/a/b", "1");
    const auto entries = entriesOf({folder / "in"});
    const std::uint64_t expected = predictedSize(entries);
    std::vector<std::future<int>> threads;
    threads.reserve(4);
    for (int thread = 0; thread < 4; ++thread) {
        threads.push_back(std::async(std::launch::async, [&] {
            int wrong = 0;
            for (int turn = 0; turn < 50; ++turn) {
                const auto size = scorch::isoImageSize(entries, {});
                wrong += size && *size == expected ? 0 : 1;
            }
            return wrong;
        }));
    }
    for (auto &thread : threads) {
        EXPECT_EQ(thread.get(), 0);
    }
}

TEST(IsoSize, AStopIsNoFailure) {
    std::stop_source stop;
    stop.request_stop();
    const auto size = scorch::isoImageSize({}, stop.get_token());
    ASSERT_FALSE(size.ok());
    EXPECT_TRUE(scorch::isCancelled(size.error()));
}

} // namespace
