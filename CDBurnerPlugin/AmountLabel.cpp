// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/AmountLabel.h"

#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace {

const QColor plateColor(0xf3, 0xf6, 0xfa);
constexpr double radius = 4.0;

} // namespace

QRect AmountLabel::plate() const {
    const bool isThemeDark = palette().color(QPalette::Window).lightness() < 128;
    if (!isThemeDark || text().isEmpty()) {
        return {};
    }
    const QRect room = contentsRect();
    const int width = fontMetrics().horizontalAdvance(text()) + 2 * sideMargin;
    return QStyle::alignedRect(layoutDirection(), alignment(),
                               QSize(std::min(width, room.width()), room.height()), room);
}

void AmountLabel::paintEvent(QPaintEvent *event) {
    const QRect ground = plate();
    if (ground.isEmpty()) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(plateColor);
    painter.drawRoundedRect(ground, radius, radius);
    painter.setLayoutDirection(layoutDirection()); // By itself it has the application's.
    style()->drawItemText(&painter, ground, Qt::AlignCenter | Qt::TextSingleLine, palette(),
                          isEnabled(), text(), foregroundRole());
}
