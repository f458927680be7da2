// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/MainWindow.h"

#include <QCloseEvent>
#include <QPointer>

MainWindow::MainWindow(QWidget *parent) : QWidget(parent, Qt::Window) {}

void MainWindow::closeEvent(QCloseEvent *event) {
    const QPointer<MainWindow> guard(this);
    if (delegate_ != nullptr && !delegate_->windowShouldClose(this)) {
        event->ignore();
        return;
    }
    event->accept();
    // A question that was asked may have seen the tool let go of this window meanwhile.
    if (!guard.isNull() && delegate_ != nullptr) {
        delegate_->windowWillClose(this);
    }
}
