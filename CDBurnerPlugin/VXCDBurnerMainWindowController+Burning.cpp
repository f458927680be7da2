// SPDX-License-Identifier: GPL-2.0-or-later
// A burn, from the click to its end, and the alerts.
#include "CDBurnerPlugin/VXCDBurnerMainWindowController.h"

#include "CDBurnerPlugin/Alert.h"
#include "CDBurnerPlugin/Localization.h"
#include "CDBurnerPlugin/Log.h"
#include "CDBurnerPlugin/MainQueue.h"
#include "CDBurnerPlugin/MainWindow.h"
#include "CDBurnerPlugin/UsageEvents.h"
#include "CDBurnerPlugin/VolumeNameEdit.h"
#include "engine/ScorchString.h"

#include <QComboBox>
#include <QMessageBox>
#include <QPushButton>

void VXCDBurnerMainWindowController::burn() {
    // The alert's loop may see the tool let go of this controller.
    const auto self = shared_from_this();
    if (!isBurnSupported() || alertIfZeroStorage()) {
        return;
    }
    _scorcher->burnWithDeviceDiscNamed(_selectedDevice.get(), _volumeName->text().toStdString());
}

QString VXCDBurnerMainWindowController::burningName() const {
    return filledFormat(localizedString("Burning '%@'"), {_volumeName->text()});
}

void VXCDBurnerMainWindowController::updateStage(const char *tipsKey) {
    _progressWindow->updateNameTips(burningName(), localizedString(tipsKey));
}

void VXCDBurnerMainWindowController::updateTrackStage(const char *tipsKey, std::uint64_t track,
                                                      std::uint64_t count) {
    const QString tips =
        filledFormat(localizedString(tipsKey), {QString::number(track), QString::number(count)});
    _progressWindow->updateNameTips(burningName(), tips);
}

void VXCDBurnerMainWindowController::burnProgressDidStarted() {
    followBusyBurner();
    sendUsageEvent(usage_event::burnStart);
    const bool readsAudio = _cdTypePopup->currentText() == localizedString("Audio CD");
    sendUsageEvent(readsAudio ? usage_event::burnStartAudio : usage_event::burnStartData);
    _progressWindow->setType(ProgressWindow::burningType);
    _progressWindow->defaultButton()->setText(localizedString("Cancel"));
    _progressWindow->updateProgressByNameTips(0.0F, burningName(),
                                              localizedString("Start burning"));
    _progressWindow->runSheetForWindow(window());
}

void VXCDBurnerMainWindowController::burnProgressIsPreparing() {
    updateStage("Prepare burning");
}

void VXCDBurnerMainWindowController::burnProgressDidChanagedLefttime(double fraction,
                                                                     std::uint64_t lefttime) {
    const std::string left =
        stringWithDurationFramesEnabled(static_cast<std::int64_t>(lefttime), false);
    const QString tips =
        filledFormat(localizedString("Left time - %@"), {QString::fromStdString(left)});
    _progressWindow->updateProgressByNameTips(static_cast<float>(fraction), burningName(), tips);
}

void VXCDBurnerMainWindowController::burnProgressIsOpeningTrackOf(std::uint64_t track,
                                                                  std::uint64_t count) {
    updateTrackStage("Opening track %lu of %lu", track, count);
}

void VXCDBurnerMainWindowController::burnProgressIsWriteingTrackOf(std::uint64_t track,
                                                                   std::uint64_t count) {
    updateTrackStage("Writing track %lu of %lu", track, count);
}

void VXCDBurnerMainWindowController::burnProgressDidCloseTrackOf(std::uint64_t track,
                                                                 std::uint64_t count) {
    updateTrackStage("Closing track %lu of %lu", track, count);
}

void VXCDBurnerMainWindowController::burnProgressDidCloseSession() {
    updateStage("Closing session");
}

void VXCDBurnerMainWindowController::burnProgressIsFinishing() {
    updateStage("Finish burning");
}

void VXCDBurnerMainWindowController::burnProgressIsVerifying() {
    updateStage("Verifying CD");
}

void VXCDBurnerMainWindowController::burnProgressDidDone() {
    dismissCancelAlert();
    sendUsageEvent(usage_event::burnOK);
    const QString name = filledFormat(localizedString("Finish burning"), {_volumeName->text()});
    _progressWindow->updateProgressByNameTips(1.0F, name, localizedString("Eject CD"));
    _progressWindow->defaultButton()->setText(localizedString("OK"));
    // A bare change of what the popup reads: the burner stays the one that has just burned.
    _cdTypePopup->setCurrentIndex(0);
    clearlist();
    updateUI();
}

void VXCDBurnerMainWindowController::burnProgressDidCanceled() {
    dismissCancelAlert();
    _progressWindow->closeSheet();
    sendUsageEvent(usage_event::burnCancel);
    qCInfo(toolLog).noquote() << "==>>cancel burning, you got this";
}

void VXCDBurnerMainWindowController::burnProgressDidError(const ScorchError &error) {
    dismissCancelAlert();
    sendUsageEvent(usage_event::burnFail);
    _progressWindow->closeSheet();
    const QString description = QString::fromStdString(error.localizedDescription());
    MainQueue::async([self = shared_from_this(), description] { self->showError(description); });
    qCInfo(toolLog).noquote() << filledFormat(QStringLiteral("==>>error burning: %@(%ld)"),
                                              {description, QString::number(error.code())});
    if (!error.detail().empty()) {
        qCInfo(toolLog).noquote() << "==>>detail:" << QString::fromStdString(error.detail());
    }
}

void VXCDBurnerMainWindowController::showError(const QString &description) {
    if (_isDetached) {
        return;
    }
    AlertTexts texts;
    texts.message = localizedString("Error");
    texts.informative = filledFormat(QStringLiteral("%@"), {description});
    texts.defaultButton = localizedString("OK");
    runAlert(texts, _errorAlert);
}

void VXCDBurnerMainWindowController::progressDidCancel(qint64 type) {
    cancelWorkOfSheet(type);
}

void VXCDBurnerMainWindowController::progressDidOK(qint64 /*type*/) {
    _progressWindow->closeSheet();
}

bool VXCDBurnerMainWindowController::cancelWorkOfSheet(qint64 type) {
    // The alert's loop may see the tool let go of this controller.
    const auto self = shared_from_this();
    if (type == ProgressWindow::burningType) {
        AlertTexts texts;
        texts.message =
            localizedString("The disc may not be usable anymore. Are you sure you want to cancel?");
        texts.defaultButton = localizedString("Yes");
        texts.alternateButton = localizedString("No");
        if (!runAlert(texts, _cancelAlert)) {
            return false;
        }
        _scorcher->stopBurn();
        _progressWindow->defaultButton()->setEnabled(false);
        qCInfo(toolLog).noquote() << "==>>cancel burning files, waiting...";
        return true;
    }
    if (type == ProgressWindow::addingFilesType) {
        _scorcher->cancelToAddFiles();
        _progressWindow->defaultButton()->setEnabled(false);
        qCInfo(toolLog).noquote() << "==>>cancel load files, waiting...";
    }
    return true;
}

void VXCDBurnerMainWindowController::dismissCancelAlert() {
    // The burn has ended: there is nothing left to cancel, and the answer counts as No.
    if (!_cancelAlert.isNull()) {
        _cancelAlert->reject();
    }
}

bool VXCDBurnerMainWindowController::runAlert(const AlertTexts &texts,
                                              QPointer<QMessageBox> &running) {
    const auto self = shared_from_this();
    QWidget *const parent =
        _progressWindow->isVisible() ? static_cast<QWidget *>(_progressWindow) : _window.data();
    const QPointer<QMessageBox> alert = makeAlert(parent, texts);
    running = alert;
    alert->exec();
    // Null if its parent has been destroyed meanwhile.
    const bool isDefault = !alert.isNull() && alert->clickedButton() != nullptr &&
                           alert->clickedButton() == alert->defaultButton();
    delete alert.data();
    return isDefault && !_isDetached;
}
