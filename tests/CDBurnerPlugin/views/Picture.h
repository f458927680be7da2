// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QSize>

#include <filesystem>
#include <functional>

/// What is drawn into a picture of this size, on a ground of one colour; one pixel a point unless
/// told otherwise.
QImage drawn(const QSize &size, const QColor &ground, const std::function<void(QPainter &)> &draw,
             double scale = 1.0);

/// Writes a PNG of one colour.
void writePicture(const std::filesystem::path &path, const QSize &size, const QColor &color);
