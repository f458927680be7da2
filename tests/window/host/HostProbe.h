// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QAbstractItemView>
#include <QJsonObject>
#include <QObject>
#include <QPoint>

#include <optional>

/// Tells what a person at the screen would see of this program, and nothing else: it only looks.
/// Places are in pixels of the screen. Main thread.
class HostProbe : public QObject {
    Q_OBJECT

public:
    HostProbe();

    /// Everything at once:
    ///  "windows": of the visible ones, by name or class, "title", "id" and place;
    ///  "widgets": by name, place, "visible", "enabled", "text";
    ///  "list", "songs": the tool's and the host's table (see tableState);
    ///  "active", "focus": names of the active window and of the widget with the focus;
    ///  "alert": the buttons of the alert that is up, by their texts;
    ///  "cursor": the shape of the pointer during a drag, else -1;
    ///  "dragPoint": where something is held over a widget of ours, "dropCount": drops so far;
    ///  "shows", "hides": of the floating delete button, so far; "clicks": of buttons, by name;
    ///  "screens": what the program sees of them.
    QJsonObject state() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    std::optional<QPoint> dragPoint_;
    int dropCount_ = 0;
    int shows_ = 0;
    int hides_ = 0;
};
