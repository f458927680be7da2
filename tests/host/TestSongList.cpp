// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/SongList.h"
#include "tests/support/ProcessorTime.h"

#include <QCborArray>
#include <QCborMap>
#include <QCborValue>

#include <gtest/gtest.h>

#include <chrono>

namespace {

using namespace std::chrono_literals;

const QByteArray pathThatIsNotUtf8("/music/\xff\xfe caf\xe9.flac");

SongList threeSongs() {
    return {{"/music/a.flac", QStringLiteral("Ärzte"), QStringLiteral("東京 🎵")},
            {pathThatIsNotUtf8, QString(), QString()},
            {"/music/b \n\"'.mp3", QString(), QStringLiteral("Title only")}};
}

QByteArray cborOf(const QCborValue &value) {
    return QCborValue(value).toCbor();
}

QCborMap songWith(const QString &key, const QCborValue &value) {
    QCborMap song{{QStringLiteral("path"), QByteArray("/a")}};
    song[key] = value;
    return song;
}

/// Whether `data` is refused, in a time that no one notices.
bool isRefusedQuickly(const QByteArray &data) {
    const auto start = processorTimeOfThread();
    const bool isRefused = !decodeSongList(data);
    return isRefused && processorTimeOfThread() - start < 1s;
}

TEST(SongList, ComesBackByteForByte) {
    const auto decoded = decodeSongList(encodeSongList(threeSongs()));
    ASSERT_TRUE(decoded);
    EXPECT_EQ(*decoded, threeSongs());
    EXPECT_EQ(decoded->at(1).path, pathThatIsNotUtf8);
}

TEST(SongList, EmptyListIsAListAndNotNothing) {
    const auto decoded = decodeSongList(encodeSongList({}));
    ASSERT_TRUE(decoded);
    EXPECT_TRUE(decoded->isEmpty());
}

TEST(SongList, EmptyFieldsAreLeftOut) {
    const QCborValue expected(QCborArray{QCborMap{{QStringLiteral("path"), QByteArray("/a")},
                                                  {QStringLiteral("title"), QStringLiteral("T")}}});
    EXPECT_EQ(encodeSongList({{"/a", QString(), QStringLiteral("T")}}), cborOf(expected));
}

TEST(SongList, CutShortAnywhereIsNothing) {
    const QByteArray whole = encodeSongList(threeSongs());
    for (qsizetype length = 0; length < whole.size(); ++length) {
        EXPECT_FALSE(decodeSongList(whole.left(length))) << length << " of " << whole.size();
    }
}

TEST(SongList, BytesBehindTheEndAreNothing) {
    EXPECT_FALSE(decodeSongList(encodeSongList(threeSongs()) + '\0'));
    EXPECT_FALSE(decodeSongList(encodeSongList({}) + encodeSongList({})));
}

TEST(SongList, AnyChangedByteIsAListOrNothingButNoCrash) {
    const QByteArray whole = encodeSongList(threeSongs());
    for (qsizetype at = 0; at < whole.size(); ++at) {
        for (int value = 0; value < 256; ++value) {
            QByteArray changed = whole;
            changed[at] = static_cast<char>(value);
            const auto decoded = decodeSongList(changed);
            EXPECT_TRUE(!decoded || decoded->size() <= whole.size());
        }
    }
}

TEST(SongList, OtherShapesAreNothing) {
    const QString path = QStringLiteral("path");
    const QString artist = QStringLiteral("artist");
    const QString title = QStringLiteral("title");
    const QCborValue shapes[] = {
        QCborValue(1),
        QCborValue(QByteArray("/a")),
        QCborValue(QCborMap{{path, QByteArray("/a")}}),
        QCborValue(QCborArray{QByteArray("/a")}),
        QCborValue(QCborArray{QCborArray{path, QByteArray("/a")}}),
        QCborValue(QCborArray{QCborMap{{artist, QStringLiteral("no path")}}}),
        QCborValue(QCborArray{songWith(path, QStringLiteral("text, not bytes"))}),
        QCborValue(QCborArray{songWith(path, QByteArray())}),
        QCborValue(QCborArray{songWith(artist, 7)}),
        QCborValue(QCborArray{songWith(title, QByteArray("bytes, not text"))}),
        QCborValue(QCborArray{songWith(title, QCborValue())}),
        QCborValue(QCborArray{QCborMap{{1, QByteArray("/a")}}}),
    };
    for (const QCborValue &shape : shapes) {
        EXPECT_FALSE(decodeSongList(cborOf(shape))) << qPrintable(shape.toDiagnosticNotation());
    }
}

TEST(SongList, UnknownKeysAreSkipped) {
    const QCborMap song = songWith(QStringLiteral("rating"), QCborArray{1, QCborArray{2}});
    const auto decoded = decodeSongList(cborOf(QCborArray{song, song}));
    ASSERT_TRUE(decoded);
    EXPECT_EQ(*decoded, (SongList{{"/a", {}, {}}, {"/a", {}, {}}}));
}

TEST(SongList, TextThatIsNotUtf8IsNothing) {
    QByteArray data = encodeSongList({{"/a", QString(), QStringLiteral("xyz")}});
    data.replace("xyz", "x\xffz");
    EXPECT_FALSE(decodeSongList(data));
}

TEST(SongList, StringsInChunksAreRead) {
    // [{"path": (_ h'2F', h'61')}]: the stream form, which other writers use.
    const auto decoded = decodeSongList(QByteArray::fromHex("81a164706174685f412f4161ff"));
    ASSERT_TRUE(decoded);
    EXPECT_EQ(*decoded, (SongList{{"/a", {}, {}}}));
}

TEST(SongList, TooLongIsNotLookedAt) {
    EXPECT_TRUE(isRefusedQuickly(QByteArray(maximumSongListBytes + 1, '\x80')));
}

TEST(SongList, NestingBombsAreRefusedQuickly) {
    EXPECT_TRUE(isRefusedQuickly(QByteArray(maximumSongListBytes, '\x81')));
    EXPECT_TRUE(isRefusedQuickly(QByteArray(maximumSongListBytes, '\x9f')));
    // The same under a key that would be skipped.
    const QByteArray song = QByteArray::fromHex("81a2") + "\x61x";
    EXPECT_TRUE(isRefusedQuickly(song + QByteArray(1'000'000, '\x81')));
    EXPECT_TRUE(isRefusedQuickly(song + QByteArray(1'000'000, '\xc1')));
}

TEST(SongList, PromisedLengthsAreNotBelieved) {
    EXPECT_TRUE(isRefusedQuickly(QByteArray::fromHex("9bffffffffffffffff")));
    EXPECT_TRUE(isRefusedQuickly(QByteArray::fromHex("9b0000000100000000")));
    EXPECT_TRUE(isRefusedQuickly(QByteArray::fromHex("81bb7fffffffffffffff")));
    EXPECT_TRUE(isRefusedQuickly(QByteArray::fromHex("81a164706174685b0000010000000000")));
    EXPECT_TRUE(isRefusedQuickly(QByteArray::fromHex("81a164706174685a7fffffff41")));
    EXPECT_TRUE(isRefusedQuickly(QByteArray::fromHex("81a17b0000010000000000")));
}

TEST(SongList, MoreSongsThanAnyoneHasAreRefused) {
    QByteArray data(1, '\x9f');
    const QByteArray song = QByteArray::fromHex("a164706174684161");
    for (qsizetype count = 0; count <= maximumSongListSongs; ++count) {
        data += song;
    }
    data += '\xff';
    ASSERT_LE(data.size(), maximumSongListBytes);
    EXPECT_FALSE(decodeSongList(data));
}

TEST(SongList, ALibraryOfTwentyThousandSongsPasses) {
    SongList songs;
    for (int index = 0; index < 20'000; ++index) {
        songs.append({"/music/" + QByteArray::number(index), QStringLiteral("Artist"),
                      QString::number(index)});
    }
    EXPECT_EQ(decodeSongList(encodeSongList(songs)), songs);
}

} // namespace
