// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/SongList.h"

#include <QByteArray>
#include <QByteArrayList>

class QMimeData;

/// The format under which file managers drag files (RFC 2483).
inline constexpr const char *fileNamesMimeType = "text/uri-list";

/// Something is dragged that files or songs may come from; it says nothing of what is in it.
bool carriesFiles(const QMimeData &data);

/// The files of a drop: those of "text/uri-list" where it has that format, else the host's songs.
/// Empty where there is nothing to add: no local file, no or damaged song data, another format.
SongList fileListFromMimeData(const QMimeData &data);

/// The paths of the local files in a list of addresses, as the bytes that the file system has:
/// RFC 8089's "file:///p", "file:/p" and "file://localhost/p" (and this machine's own name).
/// Comment lines, remote addresses and names with a zero byte are left out.
QByteArrayList localPathsFromUriList(const QByteArray &list);
