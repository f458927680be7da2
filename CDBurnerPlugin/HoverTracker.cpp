// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/HoverTracker.h"

#include <QApplication>
#include <QCursor>
#include <QEnterEvent>
#include <QMouseEvent>
#include <QWheelEvent>

#include <utility>

HoverTracker::HoverTracker(QWidget *area, Handlers handlers)
    : QObject(area), area_(area), handlers_(std::move(handlers)) {
    area_->setMouseTracking(true);
    area_->installEventFilter(this);
}

QPoint HoverTracker::point() const {
    return area_->mapFromGlobal(QCursor::pos());
}

QWidget *HoverTracker::widgetInAreaAt(const QPoint &global) const {
    if (!area_->isVisible() || !area_->rect().contains(area_->mapFromGlobal(global))) {
        return nullptr;
    }
    QWidget *widget = QApplication::widgetAt(global);
    return widget != nullptr && widget->window() == area_->window() ? widget : nullptr;
}

void HoverTracker::pointerAt(const QPoint &global) {
    if (area_->isActiveWindow()) {
        isInside_ = true;
        handlers_.moved(area_->mapFromGlobal(global));
    }
}

void HoverTracker::end() {
    watchOverlay(nullptr);
    if (isInside_) {
        isInside_ = false;
        handlers_.exited();
    }
}

void HoverTracker::watchOverlay(QWidget *overlay) {
    if (overlay == overlay_) {
        return;
    }
    if (overlay_ != nullptr) {
        overlay_->removeEventFilter(this);
    }
    overlay_ = overlay;
    if (overlay_ != nullptr) {
        overlay_->setMouseTracking(true);
        overlay_->installEventFilter(this);
    }
}

void HoverTracker::pointerLeft() {
    const QPoint global = QCursor::pos();
    QWidget *widget = widgetInAreaAt(global);
    if (widget == nullptr || !area_->isActiveWindow()) {
        end();
        return;
    }
    watchOverlay(widget == area_ ? nullptr : widget);
    pointerAt(global);
}

void HoverTracker::activationChanged() {
    if (!area_->isActiveWindow()) {
        end();
    } else if (widgetInAreaAt(QCursor::pos()) != nullptr) {
        pointerLeft(); // Finds out where the pointer is, and over what.
    }
}

void HoverTracker::passOn(const QWheelEvent &wheel) {
    QWheelEvent below(area_->mapFromGlobal(wheel.globalPosition()), wheel.globalPosition(),
                      wheel.pixelDelta(), wheel.angleDelta(), wheel.buttons(), wheel.modifiers(),
                      wheel.phase(), wheel.inverted());
    QCoreApplication::sendEvent(area_, &below);
}

bool HoverTracker::eventFilter(QObject *watched, QEvent *event) {
    switch (event->type()) {
    case QEvent::Enter:
    case QEvent::MouseMove: {
        if (watched == area_) {
            watchOverlay(nullptr);
        }
        const QPoint global = static_cast<QSinglePointEvent *>(event)->globalPosition().toPoint();
        if (area_->rect().contains(area_->mapFromGlobal(global))) {
            pointerAt(global);
        } else {
            end();
        }
        break;
    }
    case QEvent::Leave:
        pointerLeft();
        break;
    case QEvent::Wheel:
        // What floats is no descendant of the area: the wheel would turn to nobody.
        if (watched == overlay_) {
            passOn(*static_cast<QWheelEvent *>(event));
            return true;
        }
        break;
    case QEvent::WindowActivate:
    case QEvent::WindowDeactivate:
        // The hover starts or ends without the pointer having moved.
        if (watched == area_) {
            activationChanged();
        }
        break;
    case QEvent::Hide:
        if (watched == area_) {
            end();
        }
        break;
    default:
        break;
    }
    return false;
}
