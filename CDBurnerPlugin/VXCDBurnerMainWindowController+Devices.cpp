// SPDX-License-Identifier: GPL-2.0-or-later
// The drives, the disc, the type of disc, and which controls follow from them.
#include "CDBurnerPlugin/VXCDBurnerMainWindowController.h"

#include "CDBurnerPlugin/AbsentDevice.h"
#include "CDBurnerPlugin/ErrorTipsView.h"
#include "CDBurnerPlugin/FilesTableModel.h"
#include "CDBurnerPlugin/Localization.h"
#include "CDBurnerPlugin/ResourceLocator.h"
#include "CDBurnerPlugin/ToolTipText.h"
#include "CDBurnerPlugin/VolumeNameEdit.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QToolTip>

std::vector<std::string> VXCDBurnerMainWindowController::deviceNames() const {
    // Before the first search is complete the question would make the window wait for it.
    return _devicesAreKnown ? ScorcherDevice::devices() : std::vector<std::string>();
}

int VXCDBurnerMainWindowController::indexOfDeviceItem(const std::string &deviceName) const {
    return _devicePopup->findData(QByteArray::fromStdString(deviceName), Qt::UserRole,
                                  Qt::MatchExactly);
}

void VXCDBurnerMainWindowController::addDeviceItem(const std::string &deviceName) {
    if (indexOfDeviceItem(deviceName) < 0) {
        // The name itself goes along: its title need not turn back into the same bytes.
        _devicePopup->addItem(QString::fromStdString(deviceName),
                              QByteArray::fromStdString(deviceName));
    }
}

void VXCDBurnerMainWindowController::setSelectedDevice(const std::string &deviceName) {
    _selectedDevice = ScorcherDevice::initWithDeviceName(deviceName);
    // A window that is closed already must not take the reports of drives from its successor.
    if (!_isDetached) {
        _selectedDevice->setDelegate(this);
    }
}

void VXCDBurnerMainWindowController::showErrorTips(const char *key) {
    // The drive's own words say more than the short text of their kind.
    const QString problem =
        QString::fromStdString(deviceOrAbsent(_selectedDevice).description().problem);
    _errorTipsView->setAccessibleDescription(problem);
    _errorTipsView->setErrorTips(localizedString(key));
    _discSetStack->setToolTip(toolTipText(problem)); // The strip itself takes no pointer.
    _discSetStack->setCurrentWidget(_errorTipsView);
}

void VXCDBurnerMainWindowController::tellOfFailedEject() {
    const ScorcherDevice &device = deviceOrAbsent(_selectedDevice);
    if (!_isEjecting || device.isCheckingDisc()) {
        return;
    }
    _isEjecting = false;
    const QString problem = QString::fromStdString(device.description().problem);
    if (!problem.isEmpty()) {
        QToolTip::showText(_btnEject->mapToGlobal(_btnEject->rect().bottomLeft()),
                           toolTipText(problem), _btnEject);
    }
}

void VXCDBurnerMainWindowController::updateDeviceStatus() {
    const ScorcherDevice &device = deviceOrAbsent(_selectedDevice);
    if (deviceNames().empty()) {
        showErrorTips("You should connect a disc drive!");
        return;
    }
    if (device.cdBurnEnabled()) { // True means that the drive cannot write CDs.
        showErrorTips("This disc drive can not support burning!");
        return;
    }
    if (device.isCheckingDisc()) {
        showErrorTips("Checking disk...");
        return;
    }
    if (device.isDiscInDevice() && device.isCDDisc() && device.isDiscBlank()) {
        _volumeName->setText(localizedString("Untitled"));
        _discSetStack->setToolTip(QString());
        _discSetStack->setCurrentWidget(_discSetView);
        _volumeName->setFocus();
        _volumeName->selectAll();
        return;
    }
    if (device.isDiscInDevice() && device.isCDDisc()) {
        showErrorTips("This is not a blank CD, please insert a blank one!");
        return;
    }
    showErrorTips("Please insert a blank disc...");
}

std::int64_t VXCDBurnerMainWindowController::numberOfItems() const {
    return _scorcher->numberOfChildrenOfBurnItem(nullptr);
}

bool VXCDBurnerMainWindowController::isDiscSupported() const {
    const ScorcherDevice &device = deviceOrAbsent(_selectedDevice);
    return device.isDiscInDevice() && device.isDiscBlank() && device.isCDDisc() &&
           !deviceNames().empty();
}

bool VXCDBurnerMainWindowController::isBurnSupported() const {
    return numberOfItems() > 0 && isDiscSupported();
}

void VXCDBurnerMainWindowController::updateUI() {
    if (_window.isNull() || _isDetached) {
        return;
    }
    const bool hasItems = numberOfItems() != 0;
    if (_dragImageView->isHidden() != hasItems) {
        _dragImageView->setHidden(hasItems);
        _txtDragHere->setHidden(hasItems);
    }
    _filesTableView->filesModel()->setScorcher(isAudio() ? _audioCDBurner : _dataCDBurner,
                                               isAudio() ? FileInfoKind::duration
                                                         : FileInfoKind::fileSize);
    _filesTableView->setHeaderTitle(QLatin1String(FilesTableModel::filenameColumn),
                                    localizedString("File"));
    _filesTableView->setHeaderTitle(QLatin1String(FilesTableModel::fileinfoColumn),
                                    localizedString(isAudio() ? "Time" : "Size"));
    _filesTableView->reloadData();
    _btnBurn->setEnabled(isBurnSupported());
    _btnClear->setEnabled(hasItems);
    updateCapacity();
}

void VXCDBurnerMainWindowController::showTypeIcon() {
    const QString name =
        isAudio() ? QStringLiteral("icon_audio_cd") : QStringLiteral("icon_data_cd");
    _icon4CDType->setPixmap(QPixmap::fromImage(
        ResourceLocator::imageNamed(name).forRatio(_icon4CDType->devicePixelRatioF())));
}

void VXCDBurnerMainWindowController::selectDevice() {
    _isEjecting = false;
    _selectedDevice.reset();
    setSelectedDevice(_devicePopup->currentData().toByteArray().toStdString());
    updateDeviceStatus();
    updateUI();
}

void VXCDBurnerMainWindowController::selectCDType() {
    const bool isAudioChosen = _cdTypePopup->currentIndex() == 0;
    Scorcher *const chosen = (isAudioChosen ? _audioCDBurner : _dataCDBurner).get();
    if (chosen == _scorcher) {
        return;
    }
    _scorcher = chosen;
    showTypeIcon();
    updateUI();
}

void VXCDBurnerMainWindowController::followBusyBurner() {
    const bool isAudioCurrent = _scorcher == _audioCDBurner.get();
    const Scorcher &other = isAudioCurrent ? *_dataCDBurner : *_audioCDBurner;
    if (_scorcher->isBusy() || !other.isBusy()) {
        return;
    }
    _cdTypePopup->setCurrentIndex(isAudioCurrent ? 1 : 0);
    selectCDType();
}

void VXCDBurnerMainWindowController::eject() {
    _isEjecting = true;
    deviceOrAbsent(_selectedDevice).eject();
}

void VXCDBurnerMainWindowController::deviceStatusDidChanged() {
    updateDeviceStatus();
    updateUI();
    tellOfFailedEject();
}

void VXCDBurnerMainWindowController::deviceDidDisappeared(const std::string &deviceName) {
    const bool wasSelected =
        _selectedDevice != nullptr && _selectedDevice->deviceName() == deviceName;
    const int index = indexOfDeviceItem(deviceName);
    if (index >= 0) {
        _devicePopup->removeItem(index);
    }
    if (wasSelected) {
        _selectedDevice.reset();
        if (_devicePopup->count() > 0) {
            _devicePopup->setCurrentIndex(0);
            setSelectedDevice(_devicePopup->itemData(0).toByteArray().toStdString());
            updateDeviceStatus();
        }
        updateUI();
    }
    if (_devicePopup->count() == 0) {
        _txtNoneDevice->show();
        _devicePopup->hide();
    }
}

void VXCDBurnerMainWindowController::deviceDidAppeared(const std::string &deviceName) {
    if (deviceName.empty()) {
        return;
    }
    _devicePopup->show();
    _txtNoneDevice->hide();
    addDeviceItem(deviceName);
}
