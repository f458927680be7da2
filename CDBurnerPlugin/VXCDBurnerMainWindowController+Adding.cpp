// SPDX-License-Identifier: GPL-2.0-or-later
// Files on their way into the list.
#include "CDBurnerPlugin/VXCDBurnerMainWindowController.h"

#include "CDBurnerPlugin/BurnFileConversion.h"
#include "CDBurnerPlugin/Localization.h"
#include "CDBurnerPlugin/Log.h"
#include "CDBurnerPlugin/MainQueue.h"
#include "CDBurnerPlugin/MainWindow.h"
#include "CDBurnerPlugin/RefusedFilesText.h"
#include "CDBurnerPlugin/UsageEvents.h"

#include <QPushButton>

#include <mutex>

namespace {

/// Once a process, whatever windows come and go.
std::once_flag addFileEvent;

} // namespace

bool VXCDBurnerMainWindowController::filesDidDragHere(const SongList &files) {
    const bool isAccepted = _scorcher->addFiles(burnFilesFromSongList(files));
    std::call_once(addFileEvent, [] { sendUsageEvent(usage_event::addFile); });
    return isAccepted;
}

void VXCDBurnerMainWindowController::addFiles(const SongList &files) {
    _scorcher->addFiles(burnFilesFromSongList(files));
}

void VXCDBurnerMainWindowController::addFilesProgressDidStarted() {
    followBusyBurner();
    _progressWindow->setType(ProgressWindow::addingFilesType);
    _progressWindow->defaultButton()->setText(localizedString("Cancel"));
    _progressWindow->updateProgressByNameTips(0.0F, localizedString("Checking files..."),
                                              localizedString("Starting"));
    _progressWindow->runSheetForWindow(window());
}

void VXCDBurnerMainWindowController::addFilesProgressDidChangedIndexOf(const std::string &name,
                                                                       std::int64_t index,
                                                                       std::int64_t count) {
    const auto fraction =
        static_cast<float>(static_cast<double>(index) / static_cast<double>(count));
    const QString tips = filledFormat(
        localizedString("Processing: %@ (%d of %d)"),
        {QString::fromStdString(name), QString::number(index), QString::number(count)});
    _progressWindow->updateProgressByNameTips(fraction, localizedString("Checking files..."), tips);
}

void VXCDBurnerMainWindowController::fileDidAdded(const BurnItemRef & /*item*/) {
    MainQueue::async([self = shared_from_this()] { self->updateUI(); });
}

void VXCDBurnerMainWindowController::addFilesProgressDidEnd(const AddFilesResult &result) {
    _progressWindow->closeSheet();
    const auto &protectedFiles = result.valueForKey(AddFilesResult::protectedFilesKey);
    const auto &incompatibleFiles = result.valueForKey(AddFilesResult::incompatibleFilesKey);
    if (protectedFiles.empty() && incompatibleFiles.empty()) {
        return;
    }
    const QString line = filledFormat(
        QStringLiteral("==>>protected files(%lu):\n%@\nincompatible-files(%lu):\n%@"),
        {QString::number(protectedFiles.size()), refusedFilesText(protectedFiles),
         QString::number(incompatibleFiles.size()), refusedFilesText(incompatibleFiles)});
    qCInfo(toolLog).noquote() << line;
}

void VXCDBurnerMainWindowController::addFilesProgressDidCanceled() {
    qCInfo(toolLog).noquote() << "==>>cancel load files, you got this";
    _progressWindow->closeSheet();
}

void VXCDBurnerMainWindowController::allFilesDidCleared() {
    updateUI();
}
