// SPDX-License-Identifier: GPL-2.0-or-later
// The burn list: dragging rows, dropping on it, and removing from it.
#include "CDBurnerPlugin/VXCDBurnerMainWindowController.h"

#include "CDBurnerPlugin/BurnListGeometry.h"
#include "CDBurnerPlugin/DeleteButton.h"
#include "CDBurnerPlugin/DropFileList.h"
#include "CDBurnerPlugin/FilesTableModel.h"
#include "CDBurnerPlugin/MainWindow.h"
#include "CDBurnerPlugin/RowIndexSetCodec.h"
#include "CDBurnerPlugin/YUpGeometry.h"

#include <QApplication>
#include <QMimeData>

bool VXCDBurnerMainWindowController::tableViewWriteRowsWithIndexesToPasteboard(
    FilesTableView * /*table*/, const IndexSet &rows, QMimeData *pasteboard) {
    const QByteArray data = encodeRowIndexSet(rows);
    if (data.isEmpty()) {
        return false;
    }
    pasteboard->setData(QLatin1String(FilesTableView::rowsMimeType), data);
    return true;
}

Qt::DropAction VXCDBurnerMainWindowController::tableViewValidateDrop(FilesTableView *table,
                                                                     const QMimeData &data) {
    if (QApplication::activeModalWidget() != nullptr || _progressWindow->isVisible()) {
        return Qt::IgnoreAction;
    }
    // Rows of another window's list mean nothing here.
    const bool carriesOwnRows =
        data.hasFormat(QLatin1String(FilesTableView::rowsMimeType)) && table->isDragFromHere();
    return carriesFiles(data) || carriesOwnRows ? Qt::CopyAction : Qt::IgnoreAction;
}

bool VXCDBurnerMainWindowController::tableViewAcceptDropRow(FilesTableView *table,
                                                            const QMimeData &data, qint64 row) {
    const QString rowsType = QLatin1String(FilesTableView::rowsMimeType);
    if (!carriesFiles(data) && data.hasFormat(rowsType) && table->isDragFromHere()) {
        if (const auto rows = decodeRowIndexSet(data.data(rowsType), numberOfItems())) {
            moveRows(table, *rows, row);
            return true;
        }
    }
    const SongList files = fileListFromMimeData(data);
    if (files.isEmpty() || _scorcher == nullptr) {
        return false;
    }
    return filesDidDragHere(files);
}

void VXCDBurnerMainWindowController::tableViewMoveRowIndexesTo(FilesTableView *table,
                                                               const IndexSet &rows,
                                                               qint64 destination) {
    moveRows(table, rows, destination);
}

void VXCDBurnerMainWindowController::moveRows(FilesTableView *table, const IndexSet &rows,
                                              std::int64_t destination) {
    _scorcher->moveBurnItemTo(rows, destination);
    table->selectRowIndexes(rowsWithinList(rowsAfterMove(rows, destination), numberOfItems()));
}

void VXCDBurnerMainWindowController::tableViewMouseOverRow(FilesTableView *table, qint64 row) {
    if (row == -1) {
        _btnDelete->hide();
        return;
    }
    _btnDelete->setTag(row);
    const QRect rectangle = table != nullptr ? table->rectOfRow(row) : QRect();
    const QPoint corner = _filesTableView->viewport()->mapTo(_window, rectangle.topLeft());
    const auto frameFor = _window->isRightToLeft() ? mirroredDeleteButtonFrame : deleteButtonFrame;
    const QRectF frame =
        frameFor(QSizeF(rectangle.size()), QPointF(corner.x(), _window->height() - corner.y()),
                 FilesTableView::deleteButtonSize);
    _btnDelete->show();
    _btnDelete->setGeometry(flippedToPainter(frame, _window->height()).toRect());
}

void VXCDBurnerMainWindowController::btnDeleteDidClicked() {
    const std::int64_t row = _btnDelete->tag();
    if (row == numberOfItems() - 1) {
        _btnDelete->hide(); // No row will be under it.
    }
    // The button may have been left over a list that is empty meanwhile.
    if (const BurnItemRef item = itemAtRow(row)) {
        _scorcher->removeItem(item);
        _filesTableView->filesModel()->rowDidLeave(row);
    }
}

BurnItemRef VXCDBurnerMainWindowController::itemAtRow(std::int64_t row) const {
    return row >= 0 && row < numberOfItems() ? _scorcher->childOfBurnItem(row, nullptr) : nullptr;
}

void VXCDBurnerMainWindowController::tableViewWillDeleteRowIndexes(FilesTableView *table,
                                                                   const IndexSet &rows) {
    if (rows.empty()) {
        return;
    }
    const std::int64_t countBefore = numberOfItems();
    std::vector<BurnItemRef> items;
    for (const std::int64_t row : rows) {
        // The table may show rows that the list has lost a moment ago.
        if (BurnItemRef item = itemAtRow(row)) {
            items.push_back(std::move(item));
        }
    }
    _scorcher->removeItems(items);
    const std::int64_t selected = rowAfterRemoval(rows, countBefore, numberOfItems());
    tableViewMouseOverRow(table, selected);
    _filesTableView->selectRowIndexes({selected});
}

void VXCDBurnerMainWindowController::clearlist() {
    _scorcher->clearAll();
}

void VXCDBurnerMainWindowController::burnItemDidDelete(const BurnItemRef & /*item*/) {
    updateUI();
}

void VXCDBurnerMainWindowController::burnItemsDidDelete(
    const std::vector<BurnItemRef> & /*items*/) {
    updateUI();
}

void VXCDBurnerMainWindowController::burnItemDidSorted() {
    _filesTableView->reloadData();
}
