// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/support/Playlist.h"

#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace scorch;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

TEST(Playlist, EndingDecidesInAnyCase) {
    EXPECT_TRUE(isPlaylistName("a.m3u"));
    EXPECT_TRUE(isPlaylistName("a.M3U8"));
    EXPECT_TRUE(isPlaylistName("a.b.Pls"));
    EXPECT_FALSE(isPlaylistName("a.m3u.mp3"));
    EXPECT_FALSE(isPlaylistName("m3u"));
    EXPECT_FALSE(isPlaylistName(".m3u"));
}

TEST(Playlist, CommentsAndBlankLinesAreNoEntries) {
    EXPECT_THAT(parsePlaylist("#EXTM3U\n\n#EXTINF:123,Artist - Title\na.mp3\n  \n  #x\nb c.mp3"),
                ElementsAre("a.mp3", "b c.mp3"));
}

TEST(Playlist, LineEndsOfAnySystemAreTakenOff) {
    EXPECT_THAT(parsePlaylist("a\r\nb\rc\n"), ElementsAre("a", "b", "c"));
}

TEST(Playlist, ByteOrderMarkIsTakenOff) {
    EXPECT_THAT(parsePlaylist("\xEF\xBB\xBF"
                              "a\n"),
                ElementsAre("a"));
    EXPECT_THAT(parsePlaylist("\xEF\xBB\xBF[playlist]\nFile1=a\n"), ElementsAre("a"));
}

TEST(Playlist, BytesOfNamesAreKept) {
    EXPECT_THAT(parsePlaylist("\xE9\xFF.mp3"), ElementsAre("\xE9\xFF.mp3"));
}

TEST(Playlist, PlsEntriesComeInTheOrderOfTheirNumbers) {
    EXPECT_THAT(parsePlaylist("[Playlist]\r\nNumberOfEntries=3\r\nfile10=j\r\nTitle1=x\r\n"
                              "File2=b=c\r\nFILE1 = a\r\nLength1=3\r\nFilex=no\r\nVersion=2\r\n"),
                ElementsAre("a", "b=c", "j"));
}

TEST(Playlist, PlsWithAbsurdNumbersIsRead) {
    EXPECT_THAT(parsePlaylist("[playlist]\nFile99999999999999999999999=a\nFile-1=b\nFile=c\n"
                              "File18446744073709551615=d\n"),
                ElementsAre("d"));
}

TEST(Playlist, NothingInItMeansNoEntries) {
    EXPECT_THAT(parsePlaylist(""), IsEmpty());
    EXPECT_THAT(parsePlaylist("[playlist]"), IsEmpty());
    EXPECT_THAT(parsePlaylist("\n\n#EXTM3U\n"), IsEmpty());
}

TEST(Playlist, OnlyAddressesWithASchemeAreRemote) {
    EXPECT_TRUE(isRemoteAddress("http://example.org/a.mp3"));
    EXPECT_TRUE(isRemoteAddress(" SMB://server/a.mp3"));
    EXPECT_TRUE(isRemoteAddress("file://server/share/a.mp3"));
    EXPECT_FALSE(isRemoteAddress("file:///a.mp3"));
    EXPECT_FALSE(isRemoteAddress("FILE://localhost/a.mp3"));
    EXPECT_FALSE(isRemoteAddress("What is this://.mp3"));
    EXPECT_FALSE(isRemoteAddress("a.mp3"));
    EXPECT_FALSE(isRemoteAddress("C://a.mp3"));
}

TEST(Playlist, NameIsTriedAsItStandsFirst) {
    EXPECT_EQ(meaningsOfEntry(" a%20b.mp3", "/music").front(), "/music/ a%20b.mp3");
    EXPECT_EQ(meaningsOfEntry("/else/a.mp3", "/music").front(), "/else/a.mp3");
}

TEST(Playlist, NameIsTriedInOtherSpellings) {
    EXPECT_THAT(meaningsOfEntry(" a.mp3 ", "/m"), Contains("/m/a.mp3"));
    EXPECT_THAT(meaningsOfEntry("CD 1\\a.mp3", "/m"), Contains("/m/CD 1/a.mp3"));
    EXPECT_THAT(meaningsOfEntry("a%20b.mp3", "/m"), Contains("/m/a b.mp3"));
    EXPECT_THAT(meaningsOfEntry("caf\xE9.mp3", "/m"), Contains("/m/caf\xC3\xA9.mp3"));
    EXPECT_THAT(meaningsOfEntry("caf\xC3\xA9.mp3", "/m"), Contains("/m/caf\xE9.mp3"));
    EXPECT_THAT(meaningsOfEntry("\xE6\x97\xA5.mp3", "/m"), Not(Contains("/m/\xE5.mp3")));
}

TEST(Playlist, FileAddressIsDecoded) {
    EXPECT_EQ(meaningsOfEntry("file:///a%20b%2Fc%zz%4.mp3", "/m").front(), "/a b/c%zz%4.mp3");
    EXPECT_EQ(meaningsOfEntry("file://localhost/a", "/m").front(), "/a");
    EXPECT_EQ(meaningsOfEntry("File:/a", "/m").front(), "/a");
}

TEST(Playlist, FileThatIsTooLargeIsNone) {
    const TemporaryFolder folder;
    const std::string largest(maximumPlaylistBytes, 'x');
    EXPECT_TRUE(readPlaylist(folder.write("large.m3u", largest)).ok());
    EXPECT_FALSE(readPlaylist(folder.write("larger.m3u", largest + "x")).ok());
}

TEST(Playlist, BinaryFileIsNone) {
    const TemporaryFolder folder;
    const auto text = readPlaylist(folder.write("a.m3u", std::string("a\0b", 3)));
    ASSERT_FALSE(text.ok());
    EXPECT_THAT(text.error().localizedDescription(), HasSubstr("named like a playlist"));
}

TEST(Playlist, MissingFileSaysSo) {
    const auto text = readPlaylist("/nowhere/a.m3u");
    ASSERT_FALSE(text.ok());
    EXPECT_THAT(text.error().localizedDescription(), HasSubstr("No such file"));
}
