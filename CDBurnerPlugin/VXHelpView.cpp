// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/VXHelpView.h"

#include "CDBurnerPlugin/ResourceLocator.h"

#include <QBitmap>
#include <QPainter>

#include <algorithm>

namespace {

struct BubbleImages {
    ResourceImage topImg;
    ResourceImage midImg;
    ResourceImage botImg;
};

BubbleImages &shared() {
    static BubbleImages images;
    return images;
}

} // namespace

VXHelpView::VXHelpView(QWidget *parent) : QWidget(parent) {
    shared() = {ResourceLocator::imageNamed(QStringLiteral("popup_right_top")),
                ResourceLocator::imageNamed(QStringLiteral("popup_right_middle")),
                ResourceLocator::imageNamed(QStringLiteral("popup_right_bottom"))};
}

void VXHelpView::drawRect(QPainter &painter, double scale) const {
    const BubbleImages &images = shared();
    if (images.topImg.isNull() || images.midImg.isNull() || images.botImg.isNull()) {
        return;
    }
    const QImage &top = images.topImg.forRatio(scale);
    const QImage &middle = images.midImg.forRatio(scale);
    const QImage &bottom = images.botImg.forRatio(scale);
    const QRectF bounds = rect();
    const double topHeight = std::min(top.deviceIndependentSize().height(), bounds.height());
    const double bottomHeight =
        std::min(bottom.deviceIndependentSize().height(), bounds.height() - topHeight);
    const double middleHeight = bounds.height() - topHeight - bottomHeight;
    painter.drawImage(QRectF(0, 0, bounds.width(), topHeight), top);
    painter.drawImage(QRectF(0, topHeight, bounds.width(), middleHeight), middle);
    painter.drawImage(QRectF(0, topHeight + middleHeight, bounds.width(), bottomHeight), bottom);
}

QRegion VXHelpView::shape() const {
    QImage image(size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    draw(painter, 1.0);
    painter.end();
    return QRegion(QBitmap::fromImage(image.createAlphaMask(Qt::ThresholdAlphaDither)));
}

void VXHelpView::paintEvent(QPaintEvent * /*event*/) {
    QPainter painter(this);
    draw(painter, devicePixelRatioF());
}

void VXHelpView::draw(QPainter &painter, double scale) const {
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (isRightToLeft()) {
        painter.translate(width(), 0);
        painter.scale(-1, 1);
    }
    drawRect(painter, scale);
}
