// SPDX-License-Identifier: GPL-2.0-or-later
// Files and songs dragged in from other programs (XDND between two processes) and from the host.
#include "host/SongList.h"
#include "tests/window/WindowTest.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

constexpr const char *addresses = "text/uri-list";

class DesktopDropping : public WindowTest {
protected:
    QPoint middleOfList() { return middleOf("_filesTableView"); }

    /// Between two rows: on the first pixels of the one below.
    QPoint above(int row) { return pointInRow(row) - QPoint(0, rectOfRow(row).height() / 2 - 1); }
};

TEST_F(DesktopDropping, FileOnTheEmptyPictureIsAdded) {
    start();
    startNeighbour();
    offer({{addresses, address(song("one"))}});
    EXPECT_EQ(dropOn(middleOf("_dragImageView")), "copy");
    waitForList({"one"});
    EXPECT_FALSE(isVisible("_dragImageView"));
}

TEST_F(DesktopDropping, FileOnTheCaptionOfTheEmptyListIsAdded) {
    start();
    startNeighbour();
    offer({{addresses, address(song("one"))}});
    EXPECT_EQ(dropOn(middleOf("_txtDragHere")), "copy");
    waitForList({"one"});
}

TEST_F(DesktopDropping, FilesBetweenRowsAreAddedBehindThem) {
    startWithSongs(3);
    startNeighbour();
    offer({{addresses, address(song("new")) + address(song("other"))}});
    EXPECT_EQ(dropOn(above(1)), "copy");
    waitForList({"song 01", "song 02", "song 03", "new", "other"});
}

TEST_F(DesktopDropping, FileNameThatIsNoTextIsAdded) {
    start();
    startNeighbour();
    offer({{addresses, address(song("caf\xe9 \xff"))}});
    EXPECT_EQ(dropOn(middleOf("_dragImageView")), "copy");
    waitUntil("it is listed", [this] { return list().size() == 1; });
    EXPECT_EQ(list().front().substr(0, 3), "caf");
}

TEST_F(DesktopDropping, RemoteAddressesAreLeftOut) {
    start();
    startNeighbour();
    offer({{addresses, "smb://server/share/a.wav\r\n" + address(song("local")) +
                           "https://example.org/b.wav\r\n"}});
    EXPECT_EQ(dropOn(middleOf("_dragImageView")), "copy");
    waitForList({"local"});
}

TEST_F(DesktopDropping, DropOfRemoteAddressesAloneIsRefused) {
    startWithSongs(1);
    startNeighbour();
    offer({{addresses, "smb://server/share/a.wav\r\nhttps://example.org/b.wav\r\n"}});
    EXPECT_EQ(dropOn(middleOfList()), "ignore");
    EXPECT_THAT(list(), ElementsAre("song 01"));
    EXPECT_FALSE(hasWindow("ProgressWindow"));
}

TEST_F(DesktopDropping, SongsOfTheHostsTableAreAdded) {
    std::filesystem::copy(song("library"), musicFolder_ / "library.wav");
    start();
    waitUntil("the library is read",
              [this] { return part("songs")["rows"].toArray().size() == 1; });
    dragInHost(pointInSong(0), middleOf("_dragImageView"), Answer::taken);
    dropInHost();
    waitForList({"library"});
}

TEST_F(DesktopDropping, SongsOfAnotherProcessAreAdded) {
    start();
    startNeighbour();
    const auto path = QByteArray::fromStdString(song("theirs").string());
    offer({{songListMimeType, encodeSongList({{path, "Artist", "Title"}}).toStdString()}});
    EXPECT_EQ(dropOn(middleOf("_dragImageView")), "copy");
    waitForList({"Artist - Title"});
}

TEST_F(DesktopDropping, DamagedSongsAreRefused) {
    startWithSongs(1);
    startNeighbour();
    const std::string whole =
        encodeSongList({{QByteArray("/tmp/a.wav"), "Artist", "Title"}}).toStdString();
    const std::vector<std::string> damaged = {
        "",                                                     // Nothing.
        whole.substr(0, whole.size() - 1),                      // Cut short.
        whole + "x",                                            // Something behind its end.
        std::string("\x9b\x7f\xff\xff\xff\xff\xff\xff\xff", 9), // Ever so many songs, none there.
        std::string(5'000, '\x81'),                             // Arrays in arrays.
        std::string("\xa1\x61\x61\x01", 4),                     // A map at the root.
        "file:///tmp/a.wav"};
    for (const std::string &data : damaged) {
        SCOPED_TRACE(testing::PrintToString(data.substr(0, 40)));
        offer({{songListMimeType, data}});
        EXPECT_EQ(dropOn(middleOfList()), "ignore");
        EXPECT_THAT(list(), ElementsAre("song 01"));
    }
}

TEST_F(DesktopDropping, MegabytesInPlaceOfSongsAreRefused) {
    startWithSongs(1);
    startNeighbour();
    neighbour_->ask({{"offer", QJsonObject{{songListMimeType, 8 << 20}}}});
    EXPECT_EQ(dropOn(middleOfList()), "ignore");
    EXPECT_THAT(list(), ElementsAre("song 01"));
}

TEST_F(DesktopDropping, RowsOfAnotherProcessAreNoData) {
    startWithSongs(3);
    startNeighbour();
    offer({{"SelfDataSourceItemType", std::string("\x81\x00", 2)}}); // Row 0, well formed.
    EXPECT_EQ(dropOn(pointInRow(2), Answer::refused), "ignore");
    EXPECT_THAT(list(), ElementsAre("song 01", "song 02", "song 03"));
}

TEST_F(DesktopDropping, RowsAreNotTakenByTheEmptyPicture) {
    start();
    startNeighbour();
    offer({{"SelfDataSourceItemType", std::string("\x81\x00", 2)}});
    EXPECT_EQ(dropOn(middleOf("_dragImageView"), Answer::refused), "ignore");
}

TEST_F(DesktopDropping, OtherDataIsRefused) {
    start();
    startNeighbour();
    offer({{"text/plain", "just a text"}});
    EXPECT_EQ(dropOn(middleOf("_dragImageView"), Answer::refused), "ignore");
}

} // namespace
