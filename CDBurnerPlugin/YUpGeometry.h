// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QRectF>

/// The views' formulas count y from the bottom edge upwards; painters count it downwards from the
/// top. This is the one place where the two meet.

/// A rectangle of a space `height` high, given by its lower left corner, as a painter has it.
inline QRectF flippedToPainter(const QRectF &yUp, double height) {
    return {yUp.x(), height - yUp.y() - yUp.height(), yUp.width(), yUp.height()};
}
