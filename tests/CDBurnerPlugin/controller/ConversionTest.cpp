// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/BurnFileConversion.h"
#include "CDBurnerPlugin/RefusedFilesText.h"

#include <gtest/gtest.h>

TEST(BurnFileConversion, KeepsTheBytesOfPathsAndTheOrder) {
    const SongList songs = {{"/m/\xff.mp3", QStringLiteral("Bj\u00f6rk"), QString()},
                            {"/m/b", QString(), QStringLiteral("\u65e5\u672c")}};
    const std::vector<BurnFile> files = burnFilesFromSongList(songs);
    ASSERT_EQ(files.size(), 2U);
    EXPECT_EQ(files[0].path.native(), "/m/\xff.mp3");
    EXPECT_EQ(files[0].artist, "Bj\xc3\xb6rk");
    EXPECT_EQ(files[0].title, "");
    EXPECT_EQ(files[1].title, "\xe6\x97\xa5\xe6\x9c\xac");
}

TEST(BurnFileConversion, NothingIsNothing) {
    EXPECT_TRUE(burnFilesFromSongList({}).empty());
}

TEST(RefusedFilesText, NamesThatAreTextShowAsTheyAre) {
    EXPECT_EQ(refusedFilesText({{"/m/\xc3\xb6", "why"}}),
              QStringLiteral("(\n    /m/\u00f6: why\n)"));
}

TEST(RefusedFilesText, BytesThatAreNoTextAreTold) {
    EXPECT_EQ(refusedFilesText({{"/m/\xc3\xb6\xff", "why"}}),
              QStringLiteral("(\n    /m/\\xc3\\xb6\\xff: why\n)"));
}
