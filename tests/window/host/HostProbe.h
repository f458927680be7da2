// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QApplication>
#include <QJsonObject>
#include <QPoint>
#include <QString>

#include <optional>

class QDropEvent;

/// The application object of a program that is looked at: tells what a person at the screen would
/// see, and nothing else. Places are in pixels of the screen. Main thread.
class HostProbe final : public QApplication {
    Q_OBJECT

public:
    using QApplication::QApplication;

    /// Everything at once:
    ///  "windows": of the visible ones, by name or class, "title", "id" and place;
    ///  "widgets": by name, place, "visible", "enabled", "text";
    ///  "list", "songs": the tool's and the host's table (see tableState);
    ///  "active", "focus": names of the active window and of the widget with the focus;
    ///  "alert": the buttons of the alert that is up, by their texts;
    ///  "cursor": the shape of the pointer during a drag, else -1;
    ///  "dragPoint": where something is held over a widget of ours, "dragAnswer": what that widget
    ///  answered: "taken" or "refused";
    ///  "shows", "hides": of the floating delete button, so far;
    ///  "screens": what the program sees of them.
    QJsonObject state() const;

    bool notify(QObject *receiver, QEvent *event) override;

private:
    void seeDrag(const QWidget &widget, const QDropEvent &event);

    std::optional<QPoint> dragPoint_;
    QString dragAnswer_;
    int shows_ = 0;
    int hides_ = 0;
};
