// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/BurnItem.h"

#include <QPointF>
#include <QRectF>
#include <QSizeF>

/// Where the delete button stands for a row: at its right end, centred on its height. `rowOrigin`
/// is the row's top left corner; all in the window's points with y upwards.
QRectF deleteButtonFrame(const QSizeF &rowSize, const QPointF &rowOrigin, double buttonSide);

/// The same in a layout that runs from right to left, where rows end at the left.
QRectF mirroredDeleteButtonFrame(const QSizeF &rowSize, const QPointF &rowOrigin,
                                 double buttonSide);

/// Where moved rows stand after a drop at the insertion point `destination`: together from it on if
/// they came from below it, else just before it.
IndexSet rowsAfterMove(const IndexSet &rows, std::int64_t destination);

/// The same rows, moved together into a list of `rowCount` rows where they stand beyond one of its
/// ends: as those of rows do that were dropped among themselves at the list's beginning.
IndexSet rowsWithinList(const IndexSet &rows, std::int64_t rowCount);

/// The row that is selected after `removed` rows (not empty) are gone from a list that had
/// `countBefore` rows and has `countAfter`: the one that moved up into the place of the first, or
/// the new last one. For a list that is empty now it stays the first removed row.
std::int64_t rowAfterRemoval(const IndexSet &removed, std::int64_t countBefore,
                             std::int64_t countAfter);
