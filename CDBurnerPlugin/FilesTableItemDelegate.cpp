// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/FilesTableItemDelegate.h"

#include "CDBurnerPlugin/FilesTableModel.h"

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
