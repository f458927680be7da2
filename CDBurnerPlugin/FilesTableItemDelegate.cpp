// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/FilesTableItemDelegate.h"

#include "CDBurnerPlugin/FilesTableModel.h"

void FilesTableItemDelegate::initStyleOption(QStyleOptionViewItem *option,
                                             const QModelIndex &index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    // Whole rows are selected: a frame around one cell of them would say something else.
    option->state.setFlag(QStyle::State_HasFocus, false);
    if (index.column() == FilesTableModel::fileinfo) {
        // A picture that is empty takes its room and draws nothing, in every style.
        option->features |= QStyleOptionViewItem::HasDecoration;
        option->decorationPosition = QStyleOptionViewItem::Right;
        option->decorationSize = QSize(roomAtEnd_, 1);
    }
}
