// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/DropFileList.h"

#include <QMimeData>
#include <QSysInfo>

namespace {

bool isThisMachine(const QByteArray &host) {
    return host.isEmpty() || host.compare("localhost", Qt::CaseInsensitive) == 0 ||
           host.compare(QSysInfo::machineHostName().toUtf8(), Qt::CaseInsensitive) == 0;
}

/// The path's bytes; empty for what is no local file. QUrl is not asked: it knows texts only, and
/// a file name need not be one.
QByteArray localPath(const QByteArray &uri) {
    static const QByteArray scheme = "file:";
    if (uri.left(scheme.size()).compare(scheme, Qt::CaseInsensitive) != 0) {
        return {};
    }
    QByteArray rest = uri.mid(scheme.size());
    if (rest.startsWith("//")) {
        const qsizetype slash = rest.indexOf('/', 2);
        if (slash < 0 || !isThisMachine(rest.mid(2, slash - 2))) {
            return {};
        }
        rest = rest.mid(slash);
    }
    const QByteArray path = QByteArray::fromPercentEncoding(rest);
    return path.startsWith('/') && !path.contains('\0') ? path : QByteArray();
}

} // namespace

QByteArrayList localPathsFromUriList(const QByteArray &list) {
    QByteArrayList paths;
    for (const QByteArray &line : list.split('\n')) {
        const QByteArray uri = line.trimmed();
        if (uri.startsWith('#')) {
            continue;
        }
        const QByteArray path = localPath(uri);
        if (!path.isEmpty()) {
            paths.append(path);
        }
    }
    return paths;
}

bool carriesFiles(const QMimeData &data) {
    return data.hasFormat(QString::fromLatin1(fileNamesMimeType)) ||
           data.hasFormat(QString::fromLatin1(songListMimeType));
}

SongList fileListFromMimeData(const QMimeData &data) {
    const QString fileNames = QString::fromLatin1(fileNamesMimeType);
    if (!data.hasFormat(fileNames)) {
        const QString songs = QString::fromLatin1(songListMimeType);
        return data.hasFormat(songs) ? decodeSongList(data.data(songs)).value_or(SongList())
                                     : SongList();
    }
    SongList files;
    for (const QByteArray &path : localPathsFromUriList(data.data(fileNames))) {
        files.append({path, {}, {}});
    }
    return files;
}
