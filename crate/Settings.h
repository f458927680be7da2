// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>

#include <filesystem>

namespace crate {

/// What the host remembers between two runs, in the user's configuration folder. Main thread.
namespace settings {

/// The folder that the user chose, else the desktop's music folder.
std::filesystem::path musicFolder();
void setMusicFolder(const std::filesystem::path &folder);

/// As QWidget::saveGeometry and QHeaderView::saveState have them; empty where nothing was saved.
QByteArray windowGeometry();
QByteArray songListHeader();
void setWindowState(const QByteArray &geometry, const QByteArray &songListHeader);

} // namespace settings

} // namespace crate
