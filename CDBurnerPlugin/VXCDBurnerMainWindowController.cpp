// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/VXCDBurnerMainWindowController.h"

#include "CDBurnerPlugin/BlockedCloseRequest.h"
#include "CDBurnerPlugin/DeleteButton.h"
#include "CDBurnerPlugin/FilesTableModel.h"
#include "CDBurnerPlugin/Localization.h"
#include "CDBurnerPlugin/MainWindow.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QPushButton>

std::shared_ptr<VXCDBurnerMainWindowController> VXCDBurnerMainWindowController::init() {
    // The constructor is private, which make_shared cannot reach.
    return std::shared_ptr<VXCDBurnerMainWindowController>(new VXCDBurnerMainWindowController);
}

VXCDBurnerMainWindowController::VXCDBurnerMainWindowController()
    : _audioCDBurner(Scorcher::audioCDBurner()), _dataCDBurner(Scorcher::dataCDBurner()) {
    _audioCDBurner->setDelegate(this);
    _dataCDBurner->setDelegate(this);
    _scorcher = _audioCDBurner.get();
    // The search for drives is not waited for at the end of the program.
    QObject::connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, &_connections,
                     [this] { const auto released = std::move(_keptForEnumeration); });
}

VXCDBurnerMainWindowController::~VXCDBurnerMainWindowController() {
    // The burners are left alone: a controller made since may be their delegate by now, and this
    // one takes itself off where it still is.
    if (_window.isNull()) {
        return;
    }
    _filesTableView->unregisterDraggedTypes();
    // The window lives a moment longer; its views let go of this controller by themselves.
    _filesTableView->filesModel()->setScorcher(nullptr, FileInfoKind::duration);
    _window->setDelegate(nullptr);
    _window->hide();
    // Not at once: this may be running inside an event of the window.
    _window->deleteLater();
}

void VXCDBurnerMainWindowController::detach() {
    _isDetached = true;
    _audioCDBurner->setDelegate(nullptr);
    _dataCDBurner->setDelegate(nullptr);
    if (_selectedDevice != nullptr) {
        _selectedDevice->setDelegate(nullptr);
    }
    for (const QPointer<QMessageBox> &alert : {_cancelAlert, _storageAlert, _errorAlert}) {
        if (!alert.isNull()) {
            alert->reject();
        }
    }
    if (!_window.isNull()) {
        _progressWindow->hide();
        _window->hide();
    }
}

bool VXCDBurnerMainWindowController::shouldClose() {
    const bool isSheetUp = !_window.isNull() && _progressWindow->isVisible();
    if (!isSheetUp || _isDetached) {
        return true;
    }
    if (!_cancelAlert.isNull()) {
        _cancelAlert->raise();
        _cancelAlert->activateWindow();
        return false; // The same question is being asked already.
    }
    const QPushButton *const button = _progressWindow->defaultButton();
    const bool isDone = _progressWindow->type() == ProgressWindow::burningType &&
                        button->text() == localizedString("OK");
    const bool isStopping = !button->isEnabled();
    return isDone || isStopping || cancelWorkOfSheet(_progressWindow->type());
}
