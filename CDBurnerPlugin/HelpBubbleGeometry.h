// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QPoint>
#include <QPointF>
#include <QRect>
#include <QRectF>

/// Where the bubble's top left corner stands in the window, y upwards, in a left-to-right layout.
/// Its right edge is 34 points beyond the box's, its top edge at the help button's lower edge;
/// `buttonY` is that edge within the box's content.
inline QPointF helpBubbleTopLeft(const QRectF &box, double buttonY, double bubbleWidth) {
    constexpr double beyondBox = 34.0;
    return {box.x() + box.width() + beyondBox - bubbleWidth, box.y() + buttonY};
}

/// The same in a layout that runs from right to left: everything stands mirrored.
inline QPointF mirroredHelpBubbleTopLeft(const QRectF &box, double buttonY) {
    constexpr double beyondBox = 34.0;
    return {box.x() - beyondBox, box.y() + buttonY};
}

/// The nearest place for a window that lies on the screen as a whole; a window that is larger than
/// the screen starts at its top left corner. y downwards, as screens have it.
QPoint keptOnScreen(const QRect &frame, const QRect &screen);
