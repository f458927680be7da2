// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/FilesTableHeader.h"

#include <QPainter>
#include <QStyleOptionHeader>

FilesTableHeader::FilesTableHeader(int roomAtEnd, QWidget *parent)
    : QHeaderView(Qt::Horizontal, parent), roomAtEnd_(roomAtEnd) {
    setSectionsMovable(false);
    setSectionsClickable(false);
    setHighlightSections(false);
    setFocusPolicy(Qt::NoFocus);
}

void FilesTableHeader::paintSection(QPainter *painter, const QRect &rect, int logicalIndex) const {
    QStyleOptionHeaderV2 option;
    initStyleOption(&option);
    initStyleOptionForIndex(&option, logicalIndex);
    option.rect = rect;
    painter->save();
    painter->setLayoutDirection(layoutDirection()); // By itself it has the application's.
    style()->drawControl(QStyle::CE_HeaderSection, &option, painter, this);
    // A cell has this margin on both sides of its text and of the room beside it.
    const int margin = style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1;
    const bool isLast = logicalIndex == count() - 1;
    const int start = isLast ? 0 : 3 * margin + 1;
    const int end = isLast ? roomAtEnd_ + 3 * margin : 0;
    option.rect =
        isRightToLeft() ? rect.adjusted(end, 0, -start, 0) : rect.adjusted(start, 0, -end, 0);
    style()->drawControl(QStyle::CE_HeaderLabel, &option, painter, this);
    painter->restore();
}
