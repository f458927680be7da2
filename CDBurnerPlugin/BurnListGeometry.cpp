// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/BurnListGeometry.h"

#include <algorithm>

QRectF deleteButtonFrame(const QSizeF &rowSize, const QPointF &rowOrigin, double buttonSide) {
    return {rowSize.width() - buttonSide + rowOrigin.x(),
            rowOrigin.y() - (rowSize.height() + buttonSide) / 2, buttonSide, buttonSide};
}

QRectF mirroredDeleteButtonFrame(const QSizeF &rowSize, const QPointF &rowOrigin,
                                 double buttonSide) {
    QRectF frame = deleteButtonFrame(rowSize, rowOrigin, buttonSide);
    frame.moveLeft(rowOrigin.x());
    return frame;
}

IndexSet rowsAfterMove(const IndexSet &rows, std::int64_t destination) {
    const auto count = static_cast<std::int64_t>(rows.size());
    const std::int64_t largest = rows.empty() ? 0 : *rows.rbegin();
    const std::int64_t start = largest > destination ? destination : destination - count;
    IndexSet moved;
    for (std::int64_t row = start; row < start + count; ++row) {
        moved.insert(moved.end(), row);
    }
    return moved;
}

IndexSet rowsWithinList(const IndexSet &rows, std::int64_t rowCount) {
    if (rows.empty()) {
        return rows;
    }
    const std::int64_t down = std::max<std::int64_t>(-*rows.begin(), 0);
    const std::int64_t up = std::max<std::int64_t>(*rows.rbegin() - (rowCount - 1), 0);
    IndexSet within;
    for (const std::int64_t row : rows) {
        within.insert(within.end(), row + down - up);
    }
    return within;
}

std::int64_t rowAfterRemoval(const IndexSet &removed, std::int64_t countBefore,
                             std::int64_t countAfter) {
    const std::int64_t row = std::min(countBefore, *removed.begin());
    return countAfter > 0 ? std::min(row, countAfter - 1) : row;
}
