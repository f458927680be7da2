// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "CDBurnerPlugin/MainWindow.h"
#include "host/VXUtilitiesTool.h"

#include <memory>

class VXCDBurnerMainWindowController;

/// The tool as its host sees it. Owns the controller of the one window, whose existence is the
/// started state. Main thread.
class VXCDBurner final : public VXUtilitiesTool, public MainWindowDelegate {
public:
    /// Keeps the context for the whole tool (the first of the process stays), gives the engine what
    /// it needs of this program, and has the engine shut down when the application quits. Builds no
    /// window.
    explicit VXCDBurner(VXUtilitiesToolContext *context);
    ~VXCDBurner() override;

    // VXUtilitiesTool
    QString toolName() const override;
    QString localizedToolName() const override;
    QIcon icon() const override;
    qint64 startup() override;
    qint64 startupWith(const QVariant &argument) override;
    void shutdown() override;
    bool isStartuped() const override;
    QWidget *mainWindow() override;
    void setToolConfigs(const QVariantMap &configs) override;
    bool addFiles(const SongList &files) override;

    // MainWindowDelegate
    bool windowShouldClose(MainWindow *window) override;
    /// Lets go of the controller if it is the main window that closes.
    void windowWillClose(QWidget *window) override;

private:
    void releaseController();

    std::shared_ptr<VXCDBurnerMainWindowController> _mainWindowCtl;
};
