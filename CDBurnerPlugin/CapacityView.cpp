// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/CapacityView.h"

#include "CDBurnerPlugin/CapacityBarGeometry.h"
#include "CDBurnerPlugin/ResourceLocator.h"
#include "CDBurnerPlugin/YUpGeometry.h"

#include <QAccessible>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

/// The three pictures of one state of the bar.
struct BarImages {
    ResourceImage startCap;
    ResourceImage centerFill;
    ResourceImage endCap;

    bool hasAll() const { return !startCap.isNull() && !centerFill.isNull() && !endCap.isNull(); }
    bool hasAny() const { return !startCap.isNull() || !centerFill.isNull() || !endCap.isNull(); }

    const ResourceImage &image(CapacityBarPart part) const {
        switch (part) {
        case CapacityBarPart::startCap:
            return startCap;
        case CapacityBarPart::endCap:
            return endCap;
        case CapacityBarPart::centerFill:
        case CapacityBarPart::threePart:
            break;
        }
        return centerFill;
    }
};

struct SharedImages {
    BarImages blank;
    BarImages blue;
};

ResourceImage load(const char *fileName) {
    return ResourceLocator::image(
        ResourceLocator::pathForImageResource(QString::fromLatin1(fileName)));
}

SharedImages loadImages() {
    SharedImages images;
    // Without the first one the tool's pictures are not there at all.
    if (ResourceLocator::pathForImageResource(QStringLiteral("image_blank_startcap.png"))
            .isEmpty()) {
        return images;
    }
    images.blank.startCap = load("image_blank_startcap.png");
    images.blank.centerFill = load("image_blank_centerfill.png");
    images.blank.endCap = load("image_blank_endcap.png");
    images.blue.startCap = load("image_blue_startcap.png");
    images.blue.centerFill = load("image_blue_centerfill.png");
    images.blue.endCap = load("image_blue_endcap.png");
    return images;
}

const SharedImages &sharedImages() {
    static const SharedImages images = loadImages();
    return images;
}

/// Draws pieces of one state's pictures into a space whose y grows upwards.
class PieceDrawer {
public:
    PieceDrawer(QPainter &painter, const BarImages &images, double height, double scale)
        : painter_(painter), images_(images), height_(height), scale_(scale) {}

    void draw(const CapacityBarPiece &piece) {
        if (piece.part == CapacityBarPart::threePart) {
            drawThreePart(piece.target);
        } else {
            drawImage(images_.image(piece.part), piece.target, piece.source);
        }
    }

    void drawThreePart(const QRectF &target) {
        // Where the pictures meet, the edges stand on whole pixels: no seam and no blur.
        QRectF snapped = target;
        snapped.setRight(std::round(target.right() * scale_) / scale_);
        const ThreePartTargets targets =
            threePartTargets(snapped, widthOf(images_.startCap), widthOf(images_.endCap));
        drawCap(images_.startCap, targets.start);
        drawImage(images_.centerFill, targets.center, std::nullopt);
        drawCap(images_.endCap, targets.end);
    }

private:
    const QImage &imageFor(const ResourceImage &image) const { return image.forRatio(scale_); }

    double widthOf(const ResourceImage &image) const {
        return image.isNull() ? 0.0 : imageFor(image).deviceIndependentSize().width();
    }

    /// A cap keeps its width and is cut at the right where there is not enough room for it.
    void drawCap(const ResourceImage &image, const QRectF &target) {
        if (!image.isNull()) {
            drawImage(
                image, target,
                QRectF(0.0, 0.0, target.width(), imageFor(image).deviceIndependentSize().height()));
        }
    }

    void drawImage(const ResourceImage &image, const QRectF &target,
                   const std::optional<QRectF> &source) {
        // A painter takes an empty source for the rest of the picture.
        if (image.isNull() || target.isEmpty() || (source && source->isEmpty())) {
            return;
        }
        const QImage &pixels = imageFor(image);
        const QSizeF size = pixels.deviceIndependentSize();
        const QRectF part =
            source ? flippedToPainter(*source, size.height()) : QRectF(QPointF(), size);
        const double ratio = pixels.devicePixelRatio();
        painter_.drawImage(flippedToPainter(target, height_), pixels,
                           QRectF(part.x() * ratio, part.y() * ratio, part.width() * ratio,
                                  part.height() * ratio));
    }

    QPainter &painter_;
    const BarImages &images_;
    double height_;
    double scale_;
};

} // namespace

CapacityView::CapacityView(QWidget *parent) : QWidget(parent) {
    sharedImages();
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void CapacityView::setMaxValue(double maxValue) {
    if (maxValue != _maxValue) {
        _maxValue = maxValue;
        setNeedsDisplay();
    }
}

void CapacityView::setDoubleValue(double doubleValue) {
    if (doubleValue != _doubleValue) {
        _doubleValue = doubleValue;
        setNeedsDisplay();
    }
    reportPercent();
}

int CapacityView::percent() const {
    const double share = _maxValue > 0.0 ? _doubleValue / _maxValue : 0.0;
    return static_cast<int>(std::clamp(share, 0.0, 1.0) * 100.0);
}

void CapacityView::reportPercent() {
    // Here and not with each maximum: the two are set one after the other.
    if (percent() != reportedPercent_ && QAccessible::isActive()) {
        reportedPercent_ = percent();
        QAccessibleValueChangeEvent changed(this, reportedPercent_);
        QAccessible::updateAccessibility(&changed);
    }
}

void CapacityView::setNeedsDisplay() {
    ++displayRequests_;
    update();
}

QSize CapacityView::sizeHint() const {
    return {240, 14};
}

QSize CapacityView::minimumSizeHint() const {
    return {60, 14};
}

void CapacityView::drawRect(QPainter &painter, double scale) const {
    const QRectF bounds = rect();
    painter.fillRect(bounds, palette().color(QPalette::Window));
    const SharedImages &images = sharedImages();
    if (images.blank.hasAll()) {
        PieceDrawer(painter, images.blank, bounds.height(), scale).drawThreePart(bounds);
    }
    if (!images.blue.hasAny()) {
        return;
    }
    PieceDrawer blue(painter, images.blue, bounds.height(), scale);
    for (const CapacityBarPiece &piece : capacityBarPieces(_doubleValue, _maxValue, bounds)) {
        blue.draw(piece);
    }
}

void CapacityView::paintEvent(QPaintEvent * /*event*/) {
    QPainter painter(this);
    // The pictures are made for 1x and 2x; what lies between is scaled smoothly.
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (isRightToLeft()) {
        painter.translate(width(), 0);
        painter.scale(-1, 1);
    }
    drawRect(painter, devicePixelRatioF());
}
