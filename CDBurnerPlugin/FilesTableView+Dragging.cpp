// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/DragPicture.h"
#include "CDBurnerPlugin/FilesTableModel.h"
#include "CDBurnerPlugin/FilesTableView.h"

#include <QDrag>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QPainter>
#include <QPointer>

#include <algorithm>

namespace {

constexpr double strokeWidth = 2.0;
constexpr double knobRadius = 3.0;

/// A line between two rows with a knob at its beginning.
void drawDropLine(QPainter &painter, double y, double width, const QColor &color) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, strokeWidth));
    painter.drawLine(QPointF(2 * knobRadius + 2, y), QPointF(width, y));
    painter.drawEllipse(QPointF(knobRadius + 2, y), knobRadius, knobRadius);
}

} // namespace

void FilesTableView::registerForDraggedTypes(const QStringList &types) {
    filesModel_->setDropTypes(types);
    setAcceptDrops(!types.isEmpty());
}

void FilesTableView::unregisterDraggedTypes() {
    registerForDraggedTypes({});
}

qint64 FilesTableView::dropRowAt(int y) const {
    const int row = rowAt(y);
    if (row < 0) {
        return y < 0 ? 0 : filesModel_->rowCount();
    }
    const bool isUpperHalf = y < rowViewportPosition(row) + rowHeight(row) / 2;
    return isUpperHalf ? row : row + 1;
}

void FilesTableView::startDrag(Qt::DropActions supportedActions) {
    const QPointer<FilesTableView> guard(this); // The drag runs an event loop of its own.
    isDragFromHere_ = true;
    reportRow(-1); // What floats over a row would stay behind.
    dragSelectedRows(supportedActions);
    if (guard != nullptr) {
        isDragFromHere_ = false;
        hoverAgain();
    }
}

void FilesTableView::dragSelectedRows(Qt::DropActions supportedActions) {
    QModelIndexList names;
    for (const std::int64_t row : selectedRowIndexes()) {
        names.append(filesModel_->index(static_cast<int>(row), FilesTableModel::filename));
    }
    QMimeData *const pasteboard = names.isEmpty() ? nullptr : filesModel_->mimeData(names);
    if (pasteboard == nullptr) {
        return;
    }
    const DragPicture picture = dragPicture(names.first().data().toString(), names.size(), *this);
    auto *const drag = new QDrag(this); // Qt deletes it when the drag is over.
    drag->setMimeData(pasteboard);
    drag->setPixmap(picture.pixmap);
    drag->setHotSpot(picture.hotSpot);
    drag->exec(supportedActions, Qt::CopyAction);
}

void FilesTableView::answerDrag(QDragMoveEvent *event) {
    const bool isTaken = delegate() != nullptr && delegate()->tableViewValidateDrop(
                                                      this, *event->mimeData()) == Qt::CopyAction;
    if (!isTaken) {
        event->ignore();
        clearDropFeedback();
        return;
    }
    event->setDropAction(Qt::CopyAction);
    event->accept();
    // Where files go is the engine's decision: they are dropped on the list as a whole.
    const bool isMove =
        isDragFromHere_ && event->mimeData()->hasFormat(QLatin1String(rowsMimeType));
    dropRow_ = isMove ? std::optional(dropRowAt(event->position().toPoint().y())) : std::nullopt;
    isDropTarget_ = !isMove;
    viewport()->update();
}

void FilesTableView::clearDropFeedback() {
    dropRow_.reset();
    isDropTarget_ = false;
    viewport()->update();
}

void FilesTableView::dragEnterEvent(QDragEnterEvent *event) {
    QTableView::dragEnterEvent(event);
    answerDrag(event);
}

void FilesTableView::dragMoveEvent(QDragMoveEvent *event) {
    QTableView::dragMoveEvent(event); // Scrolls near the edges.
    answerDrag(event);
}

void FilesTableView::dragLeaveEvent(QDragLeaveEvent *event) {
    QTableView::dragLeaveEvent(event);
    clearDropFeedback();
}

void FilesTableView::dropEvent(QDropEvent *event) {
    stopAutoScroll();
    setState(NoState);
    clearDropFeedback();
    const qint64 row = dropRowAt(event->position().toPoint().y());
    const QMimeData &mime = *event->mimeData();
    const bool isTaken = delegate() != nullptr &&
                         delegate()->tableViewValidateDrop(this, mime) == Qt::CopyAction &&
                         delegate()->tableViewAcceptDropRow(this, mime, row);
    event->setDropAction(Qt::CopyAction);
    event->setAccepted(isTaken);
}

void FilesTableView::paintEvent(QPaintEvent *event) {
    QTableView::paintEvent(event);
    if (!dropRow_ && !isDropTarget_) {
        drawFocus();
        return;
    }
    QPainter painter(viewport());
    const QColor color = palette().color(QPalette::Active, QPalette::Highlight);
    const QRectF bounds = viewport()->rect();
    if (isDropTarget_) {
        painter.setPen(QPen(color, strokeWidth));
        const double inset = strokeWidth / 2;
        painter.drawRect(bounds.adjusted(inset, inset, -inset, -inset));
        return;
    }
    const int rows = filesModel_->rowCount();
    const double y = rows == 0          ? 0.0
                     : *dropRow_ < rows ? rowViewportPosition(static_cast<int>(*dropRow_))
                                        : rectOfRow(rows - 1).bottom() + 1;
    if (isRightToLeft()) {
        painter.translate(bounds.width(), 0);
        painter.scale(-1, 1);
    }
    drawDropLine(painter, std::clamp(y, knobRadius + 1, bounds.height() - knobRadius - 1),
                 bounds.width(), color);
}
