// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QCborArray>
#include <QCborMap>
#include <QCborValue>
#include <QList>
#include <QString>

#include <optional>
#include <utility>

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

/// The codec of that format: CBOR (RFC 8949), an array of maps with the keys "path" (byte string),
/// "artist" and "title" (text strings, left out where empty).
QByteArray encodeSongList(const SongList &songs);

/// Nothing for data that is cut short, has something behind its end or is of another shape.
/// Bounded: more than `maximumSongListBytes` is not even looked at.
std::optional<SongList> decodeSongList(const QByteArray &data);

inline constexpr qsizetype maximumSongListBytes = 64 * 1024 * 1024;

inline QByteArray encodeSongList(const SongList &songs) {
    QCborArray list;
    for (const Song &song : songs) {
        QCborMap entry;
        entry.insert(QStringLiteral("path"), song.path);
        if (!song.artist.isEmpty()) {
            entry.insert(QStringLiteral("artist"), song.artist);
        }
        if (!song.title.isEmpty()) {
            entry.insert(QStringLiteral("title"), song.title);
        }
        list.append(entry);
    }
    return QCborValue(list).toCbor();
}

inline std::optional<SongList> decodeSongList(const QByteArray &data) {
    if (data.isEmpty() || data.size() > maximumSongListBytes) {
        return std::nullopt;
    }
    QCborParserError error;
    const QCborValue root = QCborValue::fromCbor(data, &error);
    if (error.error != QCborError::NoError || error.offset != data.size() || !root.isArray()) {
        return std::nullopt;
    }
    SongList songs;
    const QCborArray list = root.toArray();
    songs.reserve(list.size());
    for (const QCborValue entry : list) {
        const QCborValue path = entry[QStringLiteral("path")];
        const QCborValue artist = entry[QStringLiteral("artist")];
        const QCborValue title = entry[QStringLiteral("title")];
        const bool isSong = entry.isMap() && path.isByteArray() && !path.toByteArray().isEmpty() &&
                            (artist.isString() || artist.isUndefined()) &&
                            (title.isString() || title.isUndefined());
        if (!isSong) {
            return std::nullopt;
        }
        songs.append({path.toByteArray(), artist.toString(), title.toString()});
    }
    return songs;
}
