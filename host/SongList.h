// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QCborStreamReader>
#include <QCborStreamWriter>
#include <QList>
#include <QString>

#include <optional>

/// A song of the host, or any file: the path is bytes, as the file system has them; artist and
/// title are empty where the host knows none.
struct Song {
    QByteArray path;
    QString artist;
    QString title;

    bool operator==(const Song &) const = default;
};

using SongList = QList<Song>;

/// The format under which a host's song lists are dragged: encodeSongList's bytes.
inline constexpr const char *songListMimeType = "CrateSongItemType";

/// Bounds of what decodeSongList takes from another process. The second one keeps data that is
/// small on the wire (a song can be eight bytes) from becoming a gigabyte of objects.
inline constexpr qsizetype maximumSongListBytes = qsizetype{64} * 1024 * 1024;
inline constexpr qsizetype maximumSongListSongs = 1'000'000;

/// The codec of that format: CBOR (RFC 8949), an array of maps with the keys "path" (byte string),
/// "artist" and "title" (text strings, left out where empty).
QByteArray encodeSongList(const SongList &songs);

/// Nothing for data that is cut short, has something behind its end or is of another shape; keys
/// that are not known are skipped. Read as a stream and given up at the first thing that does not
/// belong, so that hostile data costs no more than its length.
std::optional<SongList> decodeSongList(const QByteArray &data);

namespace songlist {

/// How deep a value under an unknown key may nest.
inline constexpr int maximumNesting = 8;

inline std::optional<QByteArray> readBytes(QCborStreamReader &reader) {
    QByteArray bytes;
    auto chunk = reader.readByteArray();
    while (chunk.status == QCborStreamReader::Ok) {
        bytes += chunk.data;
        chunk = reader.readByteArray();
    }
    return chunk.status == QCborStreamReader::Error ? std::nullopt : std::optional(bytes);
}

inline std::optional<QString> readText(QCborStreamReader &reader) {
    QString text;
    auto chunk = reader.readString();
    while (chunk.status == QCborStreamReader::Ok) {
        text += chunk.data;
        chunk = reader.readString();
    }
    return chunk.status == QCborStreamReader::Error ? std::nullopt : std::optional(text);
}

/// The value under `key` into `song`; false for one of another type.
inline bool readField(QCborStreamReader &reader, const QString &key, Song &song) {
    if (key == QLatin1String("path")) {
        const auto bytes =
            reader.isByteArray() ? readBytes(reader) : std::optional<QByteArray>(std::nullopt);
        song.path = bytes.value_or(QByteArray());
        return bytes.has_value();
    }
    if (key == QLatin1String("artist") || key == QLatin1String("title")) {
        const auto text =
            reader.isString() ? readText(reader) : std::optional<QString>(std::nullopt);
        (key == QLatin1String("artist") ? song.artist : song.title) = text.value_or(QString());
        return text.has_value();
    }
    return reader.next(maximumNesting);
}

/// The map that the reader stands at.
inline std::optional<Song> readSong(QCborStreamReader &reader) {
    Song song;
    if (!reader.isMap() || !reader.enterContainer()) {
        return std::nullopt;
    }
    while (reader.lastError() == QCborError::NoError && reader.hasNext()) {
        const auto key =
            reader.isString() ? readText(reader) : std::optional<QString>(std::nullopt);
        if (!key || !readField(reader, *key, song)) {
            return std::nullopt;
        }
    }
    const bool isWhole = reader.lastError() == QCborError::NoError && reader.leaveContainer();
    return isWhole && !song.path.isEmpty() ? std::optional(song) : std::nullopt;
}

} // namespace songlist

inline QByteArray encodeSongList(const SongList &songs) {
    QByteArray data;
    QCborStreamWriter writer(&data);
    writer.startArray(static_cast<quint64>(songs.size()));
    for (const Song &song : songs) {
        writer.startMap(1U + (song.artist.isEmpty() ? 0U : 1U) + (song.title.isEmpty() ? 0U : 1U));
        writer.append(QLatin1String("path"));
        writer.append(song.path);
        if (!song.artist.isEmpty()) {
            writer.append(QLatin1String("artist"));
            writer.append(song.artist);
        }
        if (!song.title.isEmpty()) {
            writer.append(QLatin1String("title"));
            writer.append(song.title);
        }
        writer.endMap();
    }
    writer.endArray();
    return data;
}

inline std::optional<SongList> decodeSongList(const QByteArray &data) {
    if (data.isEmpty() || data.size() > maximumSongListBytes) {
        return std::nullopt;
    }
    QCborStreamReader reader(data);
    if (!reader.isArray() || !reader.enterContainer()) {
        return std::nullopt;
    }
    SongList songs;
    while (reader.lastError() == QCborError::NoError && reader.hasNext()) {
        auto song = songlist::readSong(reader);
        if (!song || songs.size() == maximumSongListSongs) {
            return std::nullopt;
        }
        songs.append(std::move(*song));
    }
    const bool isWhole = reader.lastError() == QCborError::NoError && reader.leaveContainer() &&
                         reader.currentOffset() == data.size();
    return isWhole ? std::optional(songs) : std::nullopt;
}
