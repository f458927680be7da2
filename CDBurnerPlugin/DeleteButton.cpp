// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/DeleteButton.h"

#include <QPainter>

#include <utility>

DeleteButton::DeleteButton(ResourceImage image, ResourceImage alternateImage, QWidget *parent)
    : QAbstractButton(parent),
      image_(std::move(image)),
      alternateImage_(std::move(alternateImage)) {
    setFocusPolicy(Qt::NoFocus);
    setCursor(Qt::ArrowCursor);
}

void DeleteButton::paintEvent(QPaintEvent * /*event*/) {
    const QImage &image = (isDown() ? alternateImage_ : image_).forRatio(devicePixelRatioF());
    if (image.isNull()) {
        return;
    }
    QPainter painter(this);
    const QSizeF size = image.deviceIndependentSize();
    painter.drawImage(QPointF((width() - size.width()) / 2, (height() - size.height()) / 2), image);
}
