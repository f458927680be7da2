// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/DragPicture.h"

#include <QFontMetrics>
#include <QPainter>
#include <QWidget>

#include <algorithm>

namespace {

constexpr int longestName = 240; // Points, as all here.
constexpr int sideMargin = 10;
constexpr int gap = 8;
constexpr int beside = 14; // From the pointer to the picture, past the pointer's own size.
constexpr double radius = 5.0;

} // namespace

DragPicture dragPicture(const QString &firstName, qsizetype rowCount, const QWidget &widget) {
    const QFontMetrics metrics(widget.font());
    const QString name = metrics.elidedText(firstName, Qt::ElideMiddle, longestName);
    const QString count = rowCount > 1 ? QString::number(rowCount) : QString();
    const int nameWidth = metrics.horizontalAdvance(name);
    const int badgeWidth =
        count.isEmpty() ? 0 : std::max(metrics.horizontalAdvance(count) + gap, metrics.height());
    const QSize size(2 * sideMargin + nameWidth + (count.isEmpty() ? 0 : gap + badgeWidth),
                     metrics.height() + gap);
    const double scale = widget.devicePixelRatioF();
    QPixmap pixmap((QSizeF(size) * scale).toSize());
    pixmap.setDevicePixelRatio(scale);
    pixmap.fill(Qt::transparent);

    const QColor ground = widget.palette().color(QPalette::Active, QPalette::Highlight);
    const QColor text = widget.palette().color(QPalette::Active, QPalette::HighlightedText);
    const bool isRightToLeft = widget.isRightToLeft();
    const auto placed = [&](const QRect &box) {
        return isRightToLeft ? box.translated(size.width() - box.right() - 1 - box.left(), 0) : box;
    };
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(widget.font());
    painter.setPen(Qt::NoPen);
    painter.setBrush(ground);
    painter.drawRoundedRect(QRectF(QPointF(), QSizeF(size)), radius, radius);
    painter.setPen(text);
    painter.drawText(placed(QRect(sideMargin, 0, nameWidth, size.height())),
                     Qt::AlignVCenter | Qt::TextDontClip, name);
    if (!count.isEmpty()) {
        const QRect badge = placed(
            QRect(size.width() - sideMargin - badgeWidth, gap / 2, badgeWidth, metrics.height()));
        painter.setPen(Qt::NoPen);
        painter.setBrush(text);
        painter.drawRoundedRect(badge, metrics.height() / 2.0, metrics.height() / 2.0);
        painter.setPen(ground);
        painter.drawText(badge, Qt::AlignCenter, count);
    }
    painter.end();
    return {pixmap, QPoint(isRightToLeft ? size.width() + beside : -beside, -beside)};
}
