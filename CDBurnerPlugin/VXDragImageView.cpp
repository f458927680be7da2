// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/VXDragImageView.h"

#include "CDBurnerPlugin/DropFileList.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QPainter>

#include <cmath>

namespace {

constexpr QSize fallbackSize(128, 128);
constexpr double cornerRadius = 12.0;
constexpr double frameWidth = 2.0;

} // namespace

VXDragImageView::VXDragImageView(QWidget *parent)
    : QWidget(parent), image_(ResourceLocator::imageNamed(QStringLiteral("image_drop_target"))) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void VXDragImageView::awakeFromNib() {
    setAcceptDrops(true);
}

Qt::DropAction VXDragImageView::draggingEntered(const QMimeData &mime) {
    return carriesFiles(mime) ? Qt::CopyAction : Qt::IgnoreAction;
}

bool VXDragImageView::performDragOperation(const QMimeData &mime) {
    const SongList files = fileListFromMimeData(mime);
    return !files.isEmpty() && delegate() != nullptr && delegate()->filesDidDragHere(files);
}

QSize VXDragImageView::sizeHint() const {
    return image_.isNull() ? fallbackSize : image_.forRatio(1.0).deviceIndependentSize().toSize();
}

void VXDragImageView::drawRect(QPainter &painter, double scale) const {
    if (isHighlighted_) {
        QColor color = palette().color(QPalette::Highlight);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(color, frameWidth));
        color.setAlphaF(0.12F);
        painter.setBrush(color);
        const double inset = frameWidth / 2;
        painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), cornerRadius,
                                cornerRadius);
    }
    if (!image_.isNull()) {
        const QImage &pixels = image_.forRatio(scale);
        QRectF target(QPointF(), pixels.deviceIndependentSize());
        // On whole points, or the picture would be blurred.
        target.moveTopLeft(QPointF(std::floor((width() - target.width()) / 2),
                                   std::floor((height() - target.height()) / 2)));
        painter.drawImage(target, pixels);
    }
}

void VXDragImageView::paintEvent(QPaintEvent * /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    drawRect(painter, devicePixelRatioF());
}

void VXDragImageView::setHighlighted(bool isHighlighted) {
    if (isHighlighted != isHighlighted_) {
        isHighlighted_ = isHighlighted;
        update();
    }
}

void VXDragImageView::dragEnterEvent(QDragEnterEvent *event) {
    if (draggingEntered(*event->mimeData()) != Qt::CopyAction) {
        event->ignore();
        return;
    }
    event->setDropAction(Qt::CopyAction);
    event->accept();
    setHighlighted(true);
}

void VXDragImageView::dragLeaveEvent(QDragLeaveEvent * /*event*/) {
    setHighlighted(false);
}

void VXDragImageView::dropEvent(QDropEvent *event) {
    setHighlighted(false);
    event->setDropAction(Qt::CopyAction);
    event->setAccepted(performDragOperation(*event->mimeData()));
}
