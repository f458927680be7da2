// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/system/host/RunningHost.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEvent>
#include <QEventLoop>
#include <QTimer>

#include <algorithm>

RunningHost::~RunningHost() {
    crate_.reset();
    // What the end of the program does to the engine, here for each host in turn.
    QMetaObject::invokeMethod(
        qApp, [] { QCoreApplication::exit(0); }, Qt::QueuedConnection);
    QCoreApplication::exec();
}

bool RunningHost::start(const crate::CommandLine &commandLine, std::string &error) {
    crate_ = crate::Crate::create(commandLine, CDBURNER_TOOLS_DIR, error);
    if (crate_ == nullptr) {
        return false;
    }
    if (!crate_->utilities().find(QStringLiteral("CD Burner")) || toolWindow() == nullptr) {
        error = "the tool is missing in " CDBURNER_TOOLS_DIR;
        return false;
    }
    return true;
}

bool RunningHost::waitUntil(const std::function<bool()> &isSo, std::chrono::milliseconds limit) {
    const QDeadlineTimer deadline(limit);
    QTimer look; // What is waited for may come about without an event.
    look.start(5);
    while (!isSo()) {
        if (deadline.hasExpired()) {
            return false;
        }
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    return true;
}

QDialog *RunningHost::sheet() {
    const auto dialogs = toolWindow()->findChildren<QDialog *>(QStringLiteral("ProgressWindow"));
    const auto shown = std::find_if(dialogs.begin(), dialogs.end(),
                                    [](const QDialog *dialog) { return dialog->isVisible(); });
    return shown == dialogs.end() ? nullptr : *shown;
}

QPushButton *RunningHost::sheetButton() {
    QDialog *shown = sheet();
    return shown == nullptr ? nullptr
                            : shown->findChild<QPushButton *>(QStringLiteral("btnCancel"));
}

int RunningHost::rows() {
    return part<QAbstractItemView>("_filesTableView")->model()->rowCount();
}

void RunningHost::chooseDisc(int kind) {
    auto *popup = part<QComboBox>("_cdTypePopup");
    popup->setCurrentIndex(kind);
    emit popup->activated(kind);
}

bool RunningHost::addFiles(const std::vector<std::filesystem::path> &files) {
    SongList songs;
    for (const std::filesystem::path &file : files) {
        songs.append({QByteArray::fromStdString(file.string()), {}, {}});
    }
    return tool().addFiles(songs);
}
