// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/CDBurnerPlugin/views/Picture.h"

#include <gtest/gtest.h>

#include <QString>

QImage drawn(const QSize &size, const QColor &ground, const std::function<void(QPainter &)> &draw,
             double scale) {
    QImage image(size * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(ground);
    QPainter painter(&image);
    draw(painter);
    return image;
}

void writePicture(const std::filesystem::path &path, const QSize &size, const QColor &color) {
    QImage image(size, QImage::Format_ARGB32);
    image.fill(color);
    EXPECT_TRUE(image.save(QString::fromStdString(path.string()), "PNG")) << path;
}
