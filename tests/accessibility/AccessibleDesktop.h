// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/accessibility/ChildProcess.h"
#include "tests/support/TemporaryFolder.h"

#include <memory>
#include <string>

/// A display, a window manager and a session bus with the services of assistive technologies, all
/// of this process alone, which its environment is set to lead to. One a process, made before the
/// first use of AT-SPI and kept to the end.
class AccessibleDesktop {
public:
    AccessibleDesktop();

    /// The folder that programs started here have as their home.
    const TemporaryFolder &home() const { return home_; }

private:
    void startDisplay();
    void startBus();
    void startWindowManager();

    TemporaryFolder home_;
    std::unique_ptr<ChildProcess> display_;
    std::unique_ptr<ChildProcess> bus_;
    std::unique_ptr<ChildProcess> windowManager_;
};
