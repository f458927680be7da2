// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/DropFileList.h"

#include <gtest/gtest.h>

#include <QMimeData>
#include <QSysInfo>
#include <QUrl>

#include <string>

namespace {

const QByteArrayList onePath = {"/tmp/a b.mp3"};

class LocalAddress : public testing::TestWithParam<std::string> {};

TEST_P(LocalAddress, IsAPath) {
    EXPECT_EQ(localPathsFromUriList(QByteArray::fromStdString(GetParam())), onePath);
}

INSTANTIATE_TEST_SUITE_P(Forms, LocalAddress,
                         testing::Values("file:///tmp/a%20b.mp3", "file:/tmp/a%20b.mp3",
                                         "file://localhost/tmp/a%20b.mp3",
                                         "FILE://LocalHost/tmp/a%20b.mp3", "file:///tmp/a b.mp3",
                                         "  file:///tmp/a%20b.mp3  \r\n"));

class OtherLine : public testing::TestWithParam<std::string> {};

TEST_P(OtherLine, IsLeftOut) {
    EXPECT_TRUE(localPathsFromUriList(QByteArray::fromStdString(GetParam())).isEmpty());
}

INSTANTIATE_TEST_SUITE_P(Forms, OtherLine,
                         testing::Values("", "\r\n", "# a comment", "#file:///tmp/a",
                                         "smb://server/share/a.mp3", "https://example.org/a.mp3",
                                         "file://elsewhere.example/tmp/a.mp3", "file:relative",
                                         "file:", "file://", "file://localhost", "/tmp/a.mp3",
                                         "file:///tmp/a%00b"));

TEST(DropFileList, LinesMayEndEitherWay) {
    EXPECT_EQ(localPathsFromUriList("# list\r\nfile:///a\r\nfile:///b\nfile:///c"),
              (QByteArrayList{"/a", "/b", "/c"}));
}

TEST(DropFileList, NamesAreBytesAndNeedNotBeText) {
    EXPECT_EQ(localPathsFromUriList("file:///m/%FF%FE%2541.mp3\r\n"),
              QByteArrayList{QByteArray("/m/\xFF\xFE%41.mp3")});
}

TEST(DropFileList, SignsThatAddressesReserveBelongToTheName) {
    EXPECT_EQ(localPathsFromUriList("file:///m/what?%20no%231.mp3"),
              QByteArrayList{"/m/what? no#1.mp3"});
}

TEST(DropFileList, ThisMachinesNameIsLocal) {
    const QByteArray name = QSysInfo::machineHostName().toUtf8();
    EXPECT_EQ(localPathsFromUriList("file://" + name + "/tmp/a%20b.mp3"), onePath);
}

TEST(DropFileList, FilesOfADropKeepTheirBytes) {
    QMimeData data;
    data.setData(QStringLiteral("text/uri-list"), "file:///m/%FFx\r\nhttps://example.org/y\r\n");
    EXPECT_EQ(fileListFromMimeData(data), SongList({{QByteArray("/m/\xFFx"), {}, {}}}));
}

TEST(DropFileList, AddressesGivenAsUrlsAreTheSame) {
    QMimeData data;
    data.setUrls({QUrl::fromEncoded("file:///m/%FFx"), QUrl(QStringLiteral("smb://s/y"))});
    EXPECT_EQ(fileListFromMimeData(data), SongList({{QByteArray("/m/\xFFx"), {}, {}}}));
}

TEST(DropFileList, SongsComeWithTheirNames) {
    const SongList songs = {{"/m/a.flac", QStringLiteral("Artist"), QStringLiteral("Title")}};
    QMimeData data;
    data.setData(QString::fromLatin1(songListMimeType), encodeSongList(songs));
    EXPECT_EQ(fileListFromMimeData(data), songs);
}

TEST(DropFileList, FilesGoBeforeSongs) {
    QMimeData data;
    data.setData(QString::fromLatin1(songListMimeType), encodeSongList({{"/song", {}, {}}}));
    data.setData(QStringLiteral("text/uri-list"), "file:///file\r\n");
    EXPECT_EQ(fileListFromMimeData(data), SongList({{"/file", {}, {}}}));
}

TEST(DropFileList, DamagedSongsAreNoSongs) {
    for (const QByteArray &bytes : {QByteArray(), QByteArray("\x81"), QByteArray("\xff\xff\xff"),
                                    encodeSongList({{"/song", {}, {}}}).chopped(1)}) {
        QMimeData data;
        data.setData(QString::fromLatin1(songListMimeType), bytes);
        EXPECT_TRUE(fileListFromMimeData(data).isEmpty()) << bytes.toHex().constData();
    }
}

TEST(DropFileList, OtherFormatsCarryNothing) {
    QMimeData data;
    data.setText(QStringLiteral("file:///tmp/a"));
    EXPECT_FALSE(carriesFiles(data));
    EXPECT_TRUE(fileListFromMimeData(data).isEmpty());
}

} // namespace
