// SPDX-License-Identifier: GPL-2.0-or-later
#include "crate/LibrarySong.h"

#include <gtest/gtest.h>

namespace {

using namespace std::chrono_literals;
using crate::LibrarySong;
using crate::songLengthText;
using crate::totalLengthText;

LibrarySong songAt(const char *path) {
    LibrarySong song;
    song.path = path;
    return song;
}

TEST(LibrarySong, WithoutATitleItIsShownByItsFileName) {
    EXPECT_EQ(songAt("/a.b/Song 1.live.flac").displayTitle(), QStringLiteral("Song 1.live"));
    EXPECT_EQ(songAt("/music/noending").displayTitle(), QStringLiteral("noending"));
    EXPECT_EQ(songAt("/music/caf\xe9.mp3").displayTitle(), QStringLiteral("caf\uFFFD"));
    LibrarySong titled = songAt("/a.flac");
    titled.title = QStringLiteral("Title");
    EXPECT_EQ(titled.displayTitle(), QStringLiteral("Title"));
}

TEST(LibrarySong, ToolsGetTheTagsNotWhatIsShown) {
    EXPECT_EQ(songAt("/a.flac").asSong(), (Song{"/a.flac", {}, {}}));
}

TEST(SongLength, IsRoundedToTheSecond) {
    EXPECT_EQ(songLengthText(std::nullopt), QString());
    EXPECT_EQ(songLengthText(0ms), QStringLiteral("0:00"));
    EXPECT_EQ(songLengthText(59'499ms), QStringLiteral("0:59"));
    EXPECT_EQ(songLengthText(59'500ms), QStringLiteral("1:00"));
    EXPECT_EQ(songLengthText(187s), QStringLiteral("3:07"));
    EXPECT_EQ(songLengthText(3599s), QStringLiteral("59:59"));
    EXPECT_EQ(songLengthText(1h + 2min + 5s), QStringLiteral("1:02:05"));
}

TEST(TotalLength, HasTheTwoLargestUnits) {
    EXPECT_EQ(totalLengthText(0s), QStringLiteral("0 minutes"));
    EXPECT_EQ(totalLengthText(61s), QStringLiteral("1 minute"));
    EXPECT_EQ(totalLengthText(60min), QStringLiteral("1 hour"));
    EXPECT_EQ(totalLengthText(200min), QStringLiteral("3 hours 20 minutes"));
    EXPECT_EQ(totalLengthText(24h), QStringLiteral("1 day"));
    EXPECT_EQ(totalLengthText(49h + 40min), QStringLiteral("2 days 1 hour"));
}

} // namespace
