// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/window/neighbour/NeighbourWindow.h"

#include <QApplication>
#include <QClipboard>
#include <QDrag>
#include <QMimeData>
#include <QMouseEvent>

NeighbourWindow::NeighbourWindow()
    : reply_({[this](bool isTaken) {
                  answer_ = isTaken ? QStringLiteral("taken") : QStringLiteral("refused");
              },
              [this](const QString &result) {
                  end(result);
              }}) {
    setWindowTitle(QStringLiteral("Neighbour"));
    resize(160, 120);
}

QJsonObject NeighbourWindow::answer(const QJsonObject &question) {
    if (question.contains("offer")) {
        offer_ = question["offer"].toObject();
    }
    if (question.contains("clipboard")) {
        QGuiApplication::clipboard()->setText(question["clipboard"].toString());
    }
    const QPoint corner = mapToGlobal(QPoint(0, 0));
    const QCursor *cursor = QGuiApplication::overrideCursor();
    const bool ownsClipboard = QGuiApplication::clipboard()->ownsClipboard();
    return {{"id", static_cast<qint64>(winId())},
            {"x", corner.x()},
            {"y", corner.y()},
            {"w", width()},
            {"h", height()},
            {"active", isActiveWindow()},
            {"isDragging", isDragging_},
            {"cursor", cursor != nullptr ? static_cast<int>(cursor->shape()) : -1},
            {"answer", answer_},
            {"drags", drags_},
            {"result", result_},
            {"clipboard", ownsClipboard ? QGuiApplication::clipboard()->text() : QString()}};
}

void NeighbourWindow::mousePressEvent(QMouseEvent *event) {
    pressed_ = event->position().toPoint();
}

void NeighbourWindow::mouseMoveEvent(QMouseEvent *event) {
    const bool isFar = pressed_ && (event->position().toPoint() - *pressed_).manhattanLength() >=
                                       QApplication::startDragDistance();
    if (isFar && event->buttons() == Qt::LeftButton && !isDragging_) {
        drag();
    }
}

void NeighbourWindow::drag() {
    auto *const drag = new QDrag(this); // Qt's own, which deletes it.
    auto *const mime = new QMimeData;
    for (auto entry = offer_.constBegin(); entry != offer_.constEnd(); ++entry) {
        const QJsonValue &value = entry.value();
        mime->setData(entry.key(), value.isDouble()
                                       ? QByteArray(value.toInteger(), '\0')
                                       : QByteArray::fromBase64(value.toString().toLatin1()));
    }
    drag->setMimeData(mime);
    pressed_.reset();
    answer_.clear();
    isDragging_ = true;
    const Qt::DropAction action = drag->exec(Qt::CopyAction | Qt::MoveAction, Qt::CopyAction);
    if (action == Qt::IgnoreAction) {
        end(QStringLiteral("ignore")); // There was no drop, so there is no answer to come.
    }
}

void NeighbourWindow::end(const QString &result) {
    isDragging_ = false;
    ++drags_;
    result_ = result;
}
