// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/VXCDBurner.h"

#include "CDBurnerPlugin/Localization.h"
#include "CDBurnerPlugin/Log.h"
#include "CDBurnerPlugin/MainQueue.h"
#include "CDBurnerPlugin/VXCDBurnerMainWindowController.h"
#include "CDBurnerPlugin/VXUtilitiesToolContextContainer.h"
#include "engine/ScorchHooks.h"
#include "engine/Scorcher.h"

#include <QCoreApplication>
#include <QLocale>
#include <QWindow>

namespace {

/// Gives the engine its way to the main thread and to the user's language.
void fillEngineHooks() {
    ScorchHooks &hooks = ScorchHooks::shared();
    hooks.postToMainThread = [](std::function<void()> task) {
        MainQueue::async(std::move(task));
    };
    hooks.decimalMark = [] {
        return QLocale().decimalPoint().toStdString();
    };
    hooks.log = [](std::string_view line) {
        qCInfo(toolLog).noquote() << QString::fromUtf8(line.data(),
                                                       static_cast<qsizetype>(line.size()));
    };
    hooks.localizedText = [](std::string_view key) {
        return localizedString(std::string(key).c_str()).toStdString();
    };
}

/// The end of the program cancels what runs and waits until each drive is at rest. Once for each
/// application object, however many tools are made.
void shutEngineDownAtQuit() {
    static QPointer<QCoreApplication> application;
    if (application == QCoreApplication::instance()) {
        return;
    }
    application = QCoreApplication::instance();
    QObject::connect(application, &QCoreApplication::aboutToQuit, application,
                     [] { Scorcher::shutDownAll(); });
}

} // namespace

VXCDBurner::VXCDBurner(VXUtilitiesToolContext *context) {
    VXUtilitiesToolContextContainer::defaultContainer().setUtilitiesToolContext(context);
    fillEngineHooks();
    shutEngineDownAtQuit();
}

VXCDBurner::~VXCDBurner() {
    releaseController();
}

void VXCDBurner::releaseController() {
    if (_mainWindowCtl == nullptr) {
        return;
    }
    // Not started any more before anything else happens: hiding the window tells others of it.
    const auto controller = std::move(_mainWindowCtl);
    controller->setDelegate(nullptr);
    controller->detach();
}

bool VXCDBurner::windowShouldClose(MainWindow *window) {
    const auto controller = _mainWindowCtl; // May be let go of while it asks.
    return controller == nullptr || controller->window() != window || controller->shouldClose();
}

void VXCDBurner::windowWillClose(QWidget *window) {
    if (_mainWindowCtl == nullptr || _mainWindowCtl->window() != window) {
        return;
    }
    // A host may have attached the window to one of its own.
    if (QWindow *const handle = window->windowHandle()) {
        handle->setTransientParent(nullptr);
    }
    releaseController();
}
