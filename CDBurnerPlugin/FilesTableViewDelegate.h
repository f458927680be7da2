// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/BurnItem.h"
#include "engine/DelegateSlot.h"

#include <QtCore/qnamespace.h>
#include <QtGlobal>

class FilesTableView;
class QMimeData;

/// What the burn list's table asks and tells its owner. Every operation is optional. Not owned by
/// the table. Main thread.
class FilesTableViewDelegate : public DetachingDelegate<FilesTableViewDelegate> {
public:
    virtual ~FilesTableViewDelegate() = default;

    /// The row under the pointer is another one now, or stands elsewhere after a scroll; -1 when
    /// the pointer is over no row or has left.
    virtual void tableViewMouseOverRow(FilesTableView * /*table*/, qint64 /*row*/) {}

    /// The user pressed a delete key; `rows` is the selection and may be empty.
    virtual void tableViewWillDeleteRowIndexes(FilesTableView * /*table*/,
                                               const IndexSet & /*rows*/) {}

    /// The user moves the selected rows by keyboard: as a drop of these rows at `destination`, an
    /// insertion point of 0 to the row count.
    virtual void tableViewMoveRowIndexesTo(FilesTableView * /*table*/, const IndexSet & /*rows*/,
                                           qint64 /*destination*/) {}

    /// Fills `pasteboard` for a drag of these rows; false and there is no drag.
    virtual bool tableViewWriteRowsWithIndexesToPasteboard(FilesTableView * /*table*/,
                                                           const IndexSet & /*rows*/,
                                                           QMimeData * /*pasteboard*/) {
        return false;
    }

    /// Copy where the drag could be dropped now, else ignore.
    virtual Qt::DropAction tableViewValidateDrop(FilesTableView * /*table*/,
                                                 const QMimeData & /*data*/) {
        return Qt::IgnoreAction;
    }

    /// A drop at an insertion point of 0 to the row count. False tells the drag's source that it
    /// was refused. FilesTableView::isDragFromHere says whether the rows in it are this table's.
    virtual bool tableViewAcceptDropRow(FilesTableView * /*table*/, const QMimeData & /*data*/,
                                        qint64 /*row*/) {
        return false;
    }
};
