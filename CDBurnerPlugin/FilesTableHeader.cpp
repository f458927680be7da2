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
    if (logicalIndex != count() - 1) {
        QHeaderView::paintSection(painter, rect, logicalIndex);
        return;
    }
    QStyleOptionHeaderV2 option;
    initStyleOption(&option);
    initStyleOptionForIndex(&option, logicalIndex);
    option.rect = rect;
    painter->save();
    style()->drawControl(QStyle::CE_HeaderSection, &option, painter, this);
    option.rect =
        isRightToLeft() ? rect.adjusted(roomAtEnd_, 0, 0, 0) : rect.adjusted(0, 0, -roomAtEnd_, 0);
    style()->drawControl(QStyle::CE_HeaderLabel, &option, painter, this);
    painter->restore();
}
