// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/window/neighbour/DropReply.h"

#include <QJsonObject>
#include <QPoint>
#include <QString>
#include <QWidget>

#include <optional>

/// The window of another program: things can be dragged out of it. What they are, the test says.
/// Main thread.
class NeighbourWindow : public QWidget {
    Q_OBJECT

public:
    NeighbourWindow();

    /// "offer": formats and their data, in base64: what the next drag carries. A number in place of
    /// the data stands for so many zero bytes.
    /// "clipboard": a text that this program puts on the clipboard.
    /// Answers "id" and place of the window; "active"; "isDragging"; "cursor", the shape of the
    /// pointer during a drag; "answer", what the target said last of it: "taken" or "refused";
    /// "drags", how many have ended, by a drop that the target has answered or without one;
    /// "result", of the last one: "copy", "move" or "ignore"; "clipboard", the text on the
    /// clipboard if it is this program's.
    QJsonObject answer(const QJsonObject &question);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    void drag();
    void end(const QString &result);

    QJsonObject offer_;
    std::optional<QPoint> pressed_;
    bool isDragging_ = false;
    int drags_ = 0;
    QString answer_;
    QString result_;
    DropReply reply_;
};
