// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QWidget>

#include <functional>

class QWheelEvent;

/// Follows the pointer over the area of a widget in the active window. Unlike the widget's own
/// enter and leave events it goes by geometry: a sibling that floats above the area, such as a
/// button shown because of the hover, does not end the hover when the pointer comes over it, and
/// passes the wheel on to the area.
/// A child of the area. Main thread.
class HoverTracker : public QObject {
    Q_OBJECT

public:
    struct Handlers {
        std::function<void(const QPoint &point)> moved; ///< In the area's coordinates.
        std::function<void()> exited;
    };

    HoverTracker(QWidget *area, Handlers handlers);

    /// Where the pointer is, if it hovers over the area in the active window.
    bool isInside() const { return isInside_; }
    QPoint point() const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void pointerAt(const QPoint &global);
    void pointerLeft();
    void activationChanged();
    void passOn(const QWheelEvent &wheel);
    void end();
    void watchOverlay(QWidget *overlay);
    /// The widget of the same window that is visible at this place, if it is in the area.
    QWidget *widgetInAreaAt(const QPoint &global) const;

    QWidget *area_;
    Handlers handlers_;
    QPointer<QWidget> overlay_; // What floats above the area where the pointer is.
    bool isInside_ = false;
};
