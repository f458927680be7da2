// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "crate/CommandLine.h"
#include "crate/MainWindow.h"
#include "crate/QuitSignals.h"
#include "crate/Utilities.h"

#include <filesystem>
#include <memory>
#include <string>

namespace crate {

/// The whole program but for its event loop: tools, window, signals. Needs a QApplication that
/// outlives it. Main thread; one at a time.
class Crate {
public:
    /// Loads the tools of `toolFolder` and shows the window, and the tool that `commandLine` names
    /// or has files for. Returns nothing, and why in `error`, when a file that was asked for cannot
    /// be written.
    static std::unique_ptr<Crate> create(const CommandLine &commandLine,
                                         const std::filesystem::path &toolFolder,
                                         std::string &error);

    Crate(const Crate &) = delete;
    Crate &operator=(const Crate &) = delete;

    MainWindow &window() { return window_; }
    Utilities &utilities() { return utilities_; }

private:
    Crate(const CommandLine &commandLine, const std::filesystem::path &toolFolder);

    void openFirstTool(const CommandLine &commandLine);

    Utilities utilities_;
    MainWindow window_;
    QuitSignals signals_;
};

} // namespace crate
