// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QPixmap>
#include <QPoint>
#include <QString>

class QWidget;

/// What hangs at the pointer while rows are dragged: the first row's name, and how many rows there
/// are if more than one. Small and beside the pointer, so that the line that shows where the rows
/// would land stays in sight. In the colours, the font and the resolution of `widget`. Main thread.
struct DragPicture {
    QPixmap pixmap;
    QPoint hotSpot; ///< The pointer's place on the picture: points, outside it.
};

DragPicture dragPicture(const QString &firstName, qsizetype rowCount, const QWidget &widget);
