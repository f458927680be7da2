// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/support/TemporaryFolder.h"
#include "tests/support/X11.h"
#include "tests/window/ChildProcess.h"

#include <QColor>
#include <QPoint>
#include <QRect>
#include <QSize>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

/// An X server without a screen to look at, and a window manager on it, both of the test's own:
/// on a display that nobody else uses, and ended with this object. Programs that are started
/// meanwhile come up on it (DISPLAY). Fails the test if it cannot be had.
class Desktop {
public:
    Desktop();
    ~Desktop() = default;
    Desktop(const Desktop &) = delete;
    Desktop &operator=(const Desktop &) = delete;

    static constexpr QSize size{1800, 1000};

    /// Makes two monitors of the screen, its left and its right half. For programs that start
    /// later.
    static void splitIntoTwoMonitors();

    /// See x11::waitForWindowManager; of the display DISPLAY.
    static void waitForWindowManager();

    /// The window that the window manager calls active; 0 for none.
    std::uint32_t activeWindow();
    /// The window that the server sends keys to; what a program and the window manager say of
    /// themselves may be older than that.
    std::uint32_t keyboardWindow();
    /// A window's place on the screen without its frame; empty if there is no such window.
    QRect windowRect(std::uint32_t window);
    /// What is on the screen in this rectangle, row by row.
    std::vector<QColor> pixels(const QRect &area);
    /// What a click on a window's close box does: the window manager asks the program.
    void closeWindow(std::uint32_t window);

    /// Where programs write what they have to say on standard error.
    std::string errorFile() const { return (folder_ / "errors").string(); }

private:
    /// A property of one 32 bit value; 0 if there is none.
    std::uint32_t property(std::uint32_t window, const std::string &name, std::uint32_t type);

    TemporaryFolder folder_;
    std::unique_ptr<ChildProcess> server_;
    x11::Connection connection_{nullptr, &xcb_disconnect};
    std::unique_ptr<ChildProcess> windowManager_;
};
