// SPDX-License-Identifier: GPL-2.0-or-later
// The help bubble beside the disc settings.
#include "CDBurnerPlugin/VXCDBurnerMainWindowController.h"

#include "CDBurnerPlugin/HelpBubbleGeometry.h"
#include "CDBurnerPlugin/MainWindow.h"
#include "CDBurnerPlugin/VXHelpWindow.h"

#include <QFrame>
#include <QToolButton>

void VXCDBurnerMainWindowController::btnHelpDidClicked() {
    const QRect box = _discSetBox->geometry();
    const QRectF boxYUp(box.x(), _window->height() - (box.y() + box.height()), box.width(),
                        box.height());
    const QRect button = _btnHelp->geometry();
    const double buttonY = box.height() - (button.y() + button.height());
    const QPointF corner =
        _window->isRightToLeft()
            ? mirroredHelpBubbleTopLeft(boxYUp, buttonY)
            : helpBubbleTopLeft(boxYUp, buttonY, static_cast<double>(_helpWindow->width()));
    const QPointF inWindow(corner.x(), _window->height() - corner.y());
    _helpWindow->setFrameTopLeftPoint(_window->mapToGlobal(inWindow).toPoint());
    _helpWindow->beginFakeMenu();
}
