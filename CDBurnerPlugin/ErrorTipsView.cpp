// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/ErrorTipsView.h"

#include "CDBurnerPlugin/AccessibleViews.h"
#include "CDBurnerPlugin/ResourceLocator.h"
#include "CDBurnerPlugin/YUpGeometry.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QStyle>

namespace {

constexpr double iconSize = 16.0;
constexpr double gap = 16.0;
constexpr double textHeight = 22.0;
constexpr double textDrop = 6.0; // From the sign's lower edge to that of the text's box.
constexpr int fontPixels = 13;

/// The same place in a layout that runs from right to left.
QRectF mirrored(const QRectF &rect, const QRectF &bounds) {
    return {bounds.right() - (rect.right() - bounds.left()), rect.y(), rect.width(), rect.height()};
}

} // namespace

ErrorTipsLayout errorTipsLayout(const QRectF &bounds, double textWidth) {
    const auto total = static_cast<float>(iconSize + gap + textWidth);
    const double x = (bounds.x() + bounds.width() - static_cast<double>(total)) * 0.5;
    const double y = (bounds.y() + bounds.height() - iconSize) * 0.5;
    const double textX = x + iconSize + gap;
    return {QRectF(x, y, iconSize, iconSize),
            QRectF(textX, y - textDrop, bounds.width() - textX, textHeight)};
}

ErrorTipsView::ErrorTipsView(QWidget *parent) : QWidget(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void ErrorTipsView::setErrorTips(const QString &tips) {
    if (tips.isNull()) {
        return;
    }
    if (tips != _errorTips) {
        _errorTips = tips;
        updateGeometry();
        setAccessibleName(tips);
        announce(this);
    }
    ++displayRequests_;
    update();
}

QFont ErrorTipsView::textFont() const {
    QFont result = font();
    result.setPixelSize(fontPixels);
    return result;
}

QSize ErrorTipsView::sizeHint() const {
    const double text = QFontMetricsF(textFont()).horizontalAdvance(_errorTips);
    return QSizeF(iconSize + gap + text + iconSize, textHeight + 2 * textDrop).toSize();
}

QSize ErrorTipsView::minimumSizeHint() const {
    // The whole text: the smallest window shows why nothing can be burned.
    return {sizeHint().width(), static_cast<int>(textHeight)};
}

void ErrorTipsView::drawRect(QPainter &painter, double scale) const {
    const QRectF bounds = rect();
    const QFont lineFont = textFont();
    const QFontMetricsF metrics(lineFont);
    const double textWidth = _errorTips.isEmpty() ? 0.0 : metrics.horizontalAdvance(_errorTips);
    ErrorTipsLayout layout = errorTipsLayout(bounds, textWidth);
    if (isRightToLeft()) {
        layout = {mirrored(layout.icon, bounds), mirrored(layout.text, bounds)};
    }
    const ResourceImage icon = ResourceLocator::imageNamed(QStringLiteral("image_warning"));
    if (!icon.isNull()) {
        painter.drawImage(flippedToPainter(layout.icon, bounds.height()), icon.forRatio(scale));
    }
    // The width that was measured may fall a rounding error short of itself.
    const QString line = metrics.elidedText(_errorTips, Qt::ElideRight, layout.text.width() + 0.01);
    painter.setFont(lineFont);
    painter.setLayoutDirection(layoutDirection()); // By itself it has the application's.
    painter.setPen(palette().color(QPalette::WindowText));
    const Qt::Alignment alignment =
        QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft) | Qt::AlignTop;
    painter.drawText(flippedToPainter(layout.text, bounds.height()),
                     static_cast<int>(alignment) | Qt::TextSingleLine | Qt::TextDontClip, line);
}

void ErrorTipsView::paintEvent(QPaintEvent * /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    drawRect(painter, devicePixelRatioF());
}
