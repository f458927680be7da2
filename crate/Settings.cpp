// SPDX-License-Identifier: GPL-2.0-or-later
#include "crate/Settings.h"

#include <QFile>
#include <QSettings>
#include <QStandardPaths>

namespace crate::settings {

namespace {

constexpr auto folderKey = "library/folder";
constexpr auto geometryKey = "window/geometry";
constexpr auto headerKey = "songs/header";

QSettings store() {
    return QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("crate"),
                     QStringLiteral("crate"));
}

QByteArray bytesAt(const char *key) {
    return store().value(QLatin1String(key)).toByteArray();
}

} // namespace

std::filesystem::path musicFolder() {
    QByteArray folder = bytesAt(folderKey);
    if (folder.isEmpty()) {
        folder = QFile::encodeName(QStandardPaths::writableLocation(QStandardPaths::MusicLocation));
    }
    return folder.toStdString();
}

void setMusicFolder(const std::filesystem::path &folder) {
    store().setValue(QLatin1String(folderKey), QByteArray::fromStdString(folder.string()));
}

QByteArray windowGeometry() {
    return bytesAt(geometryKey);
}

QByteArray songListHeader() {
    return bytesAt(headerKey);
}

void setWindowState(const QByteArray &geometry, const QByteArray &songListHeader) {
    QSettings settings = store();
    settings.setValue(QLatin1String(geometryKey), geometry);
    settings.setValue(QLatin1String(headerKey), songListHeader);
}

} // namespace crate::settings
