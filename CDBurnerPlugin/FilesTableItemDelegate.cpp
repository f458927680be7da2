// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/FilesTableItemDelegate.h"

#include "CDBurnerPlugin/FilesTableModel.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QStyle>
#include <QToolTip>

bool FilesTableItemDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view,
                                       const QStyleOptionViewItem &option,
                                       const QModelIndex &index) {
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const QStyle *const style = view->style();
    const int room = style->subElementRect(QStyle::SE_ItemViewItemText, &cell, view).width() -
                     2 * (style->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, view) + 1);
    if (event->type() == QEvent::ToolTip && cell.fontMetrics.horizontalAdvance(cell.text) <= room) {
        QToolTip::hideText();
        return true;
    }
    return QStyledItemDelegate::helpEvent(event, view, option, index);
}

void FilesTableItemDelegate::initStyleOption(QStyleOptionViewItem *option,
                                             const QModelIndex &index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    // Whole rows are selected: a frame around one cell of them would say something else.
    option->state.setFlag(QStyle::State_HasFocus, false);
    // A picture that is empty takes its room and draws nothing, in every style.
    const bool isLast = index.column() == FilesTableModel::fileinfo;
    option->features |= QStyleOptionViewItem::HasDecoration;
    option->decorationPosition = isLast ? QStyleOptionViewItem::Right : QStyleOptionViewItem::Left;
    option->decorationSize = QSize(isLast ? roomAtEnd_ : 1, 1);
}
