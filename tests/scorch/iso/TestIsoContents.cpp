// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/scorch/iso/IsoTestSupport.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>

using namespace isotest;

namespace {

std::map<std::string, Extent> extentsByName(const std::filesystem::path &image) {
    std::map<std::string, Extent> byName;
    for (const Extent &extent : extentsOf(image)) {
        byName[extent.path.substr(1)] = extent;
    }
    return byName;
}

TEST(IsoContents, LieInTheOrderOfTheList) {
    const TemporaryFolder folder;
    for (const char *name : {"a", "b", "m/9", "m/10", "m/1", "z"}) {
        folder.write(name, name);
    }
    writeImage(entriesOf({folder / "z", folder / "m", folder / "b", folder / "a"}),
               folder / "disc.iso");
    auto extents = extentsByName(folder / "disc.iso");
    std::vector<std::int64_t> order;
    for (const char *name : {"z", "m/1", "m/9", "m/10", "b", "a"}) {
        order.push_back(extents[name].first);
    }
    EXPECT_TRUE(std::is_sorted(order.begin(), order.end()));
    EXPECT_EQ(order.back() - order.front(), 5);
}

TEST(IsoContents, AFileOfTwoNamesLiesWhereTheFirstStandsInTheList) {
    const TemporaryFolder folder;
    folder.write("a", "shared");
    folder.write("b", "other");
    std::filesystem::create_hard_link(folder / "a", folder / "z");
    writeImage(entriesOf({folder / "z", folder / "b", folder / "a"}), folder / "disc.iso");
    auto extents = extentsByName(folder / "disc.iso");
    EXPECT_EQ(extents["a"].first, extents["z"].first);
    EXPECT_LT(extents["z"].first, extents["b"].first);
}

TEST(IsoContents, EverySectorKnowsItsFile) {
    const TemporaryFolder folder;
    std::vector<std::filesystem::path> paths;
    for (int number = 0; number < 50; ++number) {
        const auto size = static_cast<std::size_t>(number % 7 * 1500);
        paths.push_back(
            folder.write("in" + std::to_string(number % 5) + "/" + std::to_string(number),
                         std::string(size, 'x')));
    }
    const auto entries =
        entriesOf({folder / "in3", folder / "in0", folder / "in4", folder / "in1", folder / "in2"});
    const auto image = laidOut(entries);
    writeImage(entries, folder / "disc.iso");
    int checked = 0;
    for (const Extent &extent : extentsOf(folder / "disc.iso")) {
        if (extent.bytes > 0) {
            EXPECT_EQ(image->fileAt(extent.first), extent.path.substr(1));
            EXPECT_EQ(image->fileAt(extent.first + extent.blocks - 1), extent.path.substr(1));
            ++checked;
        }
    }
    EXPECT_EQ(checked, 42);
}

TEST(IsoContents, DirectoriesAndPaddingBelongToNoFile) {
    const TemporaryFolder folder;
    const auto image = laidOut(entriesOf({folder.write("only", "one")}));
    const auto sectors = static_cast<std::int64_t>(image->size() / 2048);
    EXPECT_EQ(image->fileAt(-1), "");
    EXPECT_EQ(image->fileAt(0), "");
    EXPECT_EQ(image->fileAt(16), "");
    EXPECT_EQ(image->fileAt(sectors - 152), "");
    EXPECT_EQ(image->fileAt(sectors - 151), "only");
    EXPECT_EQ(image->fileAt(sectors - 150), "");
    EXPECT_EQ(image->fileAt(sectors), "");
    EXPECT_EQ(laidOut({})->fileAt(100), "");
}

TEST(IsoContents, NamesAreReadableEvenIfTheyAreNoText) {
    const TemporaryFolder folder;
    const auto image = laidOut(entriesOf({folder.write("caf\xE9", "one")}));
    EXPECT_EQ(image->fileAt(static_cast<std::int64_t>(image->size() / 2048) - 151), "caf\uFFFD");
}

TEST(IsoContents, TheTailIsZero) {
    const TemporaryFolder folder;
    const auto image = laidOut(entriesOf({folder.write("only", "one")}));
    const std::string bytes = streamed(*image->openSource()).bytes;
    EXPECT_EQ(bytes.substr(bytes.size() - std::size_t{151} * 2048, 3), "one");
    EXPECT_EQ(bytes.find_first_not_of('\0', bytes.size() - std::size_t{151} * 2048 + 3),
              std::string::npos);
}

TEST(IsoContents, AreTheSameHoweverTheyAreRead) {
    const TemporaryFolder folder;
    for (int number = 0; number < 30; ++number) {
        folder.write("in/" + std::to_string(number),
                     std::string(static_cast<std::size_t>(number) * 12345, 'x'));
    }
    const auto image = laidOut(entriesOf({folder / "in"}));
    const std::string whole = streamed(*image->openSource(), 64 << 20).bytes;
    EXPECT_EQ(whole.size(), image->size());
    for (const std::size_t sectors : {1, 7, 150, 1000}) {
        EXPECT_TRUE(streamed(*image->openSource(), sectors * 2048).bytes == whole) << sectors;
    }
}

} // namespace
