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
    if (option->direction == Qt::RightToLeft) {
        // A name runs as its own letters do, not as the window does, with the question mark at its
        // end or the dots where it is cut.
        constexpr QChar firstStrongIsolate(0x2068);
        option->text.prepend(firstStrongIsolate);
    }
    // A picture that is empty takes its room and draws nothing, in every style.
    const bool isLast = index.column() == FilesTableModel::fileinfo;
    option->features |= QStyleOptionViewItem::HasDecoration;
    option->decorationPosition = isLast ? QStyleOptionViewItem::Right : QStyleOptionViewItem::Left;
    option->decorationSize = QSize(isLast ? roomAtEnd_ : 1, 1);
}
