// SPDX-License-Identifier: GPL-2.0-or-later
// Where the keyboard is in the list.
#include "CDBurnerPlugin/FilesTableView.h"

#include "CDBurnerPlugin/FilesTableModel.h"

#include <QFocusEvent>
#include <QItemSelectionModel>
#include <QPainter>
#include <QStyleOptionFocusRect>

QModelIndex FilesTableView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
    // By rows: Home and End are the ends of the list, and the cell of the name is the one that a
    // screen reader reads the row by.
    if (action == MoveHome || action == MoveEnd) {
        modifiers |= Qt::ControlModifier;
    }
    return QTableView::moveCursor(action, modifiers).siblingAtColumn(FilesTableModel::filename);
}

QItemSelectionModel::SelectionFlags FilesTableView::selectionCommand(const QModelIndex &index,
                                                                     const QEvent *event) const {
    const QItemSelectionModel::SelectionFlags command = QTableView::selectionCommand(index, event);
    const bool isChoice = event != nullptr && (event->type() == QEvent::KeyPress ||
                                               event->type() == QEvent::MouseButtonPress);
    if (isChoice && !command.testFlag(QItemSelectionModel::Current)) {
        selectionStart_ = QModelIndex(); // From here on the base class knows where it begins.
    }
    return command;
}

void FilesTableView::setSelection(const QRect &rect, QItemSelectionModel::SelectionFlags command) {
    // The base class begins at the last row that the user chose without Shift, although another
    // one may have been selected for them since: where rows were moved to, or after a removal.
    const bool isExtension = command.testFlag(QItemSelectionModel::Current);
    QTableView::setSelection(isExtension && selectionStart_.isValid()
                                 ? QRect(visualRect(selectionStart_).center(), rect.bottomRight())
                                 : rect,
                             command);
}

void FilesTableView::currentChanged(const QModelIndex &current, const QModelIndex &previous) {
    QTableView::currentChanged(current, previous);
    // The frame goes around whole rows, the base class sees to single cells.
    for (const QModelIndex &index : {current, previous}) {
        if (index.isValid()) {
            viewport()->update(rectOfRow(index.row()));
        }
    }
}

void FilesTableView::focusInEvent(QFocusEvent *event) {
    QTableView::focusInEvent(event);
    if (event->reason() == Qt::MouseFocusReason) {
        return; // The click says which row is meant.
    }
    // Once the table itself has been told of as the focus: a screen reader then goes on to the row
    // that the arrow keys start from.
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (hasFocus() && currentIndex().isValid()) {
                currentChanged(currentIndex(), QModelIndex());
            }
        },
        Qt::QueuedConnection);
}

void FilesTableView::drawFocus() {
    if (!hasFocus()) {
        return;
    }
    QStyleOptionFocusRect option;
    option.initFrom(this);
    option.palette = viewport()->palette();
    option.backgroundColor = option.palette.color(QPalette::Base);
    option.rect = viewport()->rect();
    const QModelIndex current = currentIndex();
    if (current.isValid()) {
        option.rect = rectOfRow(current.row());
        if (!selectionModel()->isRowSelected(current.row())) {
            // Nothing else shows it, however the focus came here.
            option.state |= QStyle::State_KeyboardFocusChange;
        }
    }
    QPainter painter(viewport());
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
}
