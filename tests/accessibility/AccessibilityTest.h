// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/accessibility/Accessible.h"
#include "tests/accessibility/ChildProcess.h"
#include "tests/support/TemporaryFolder.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

/// The host program with the tool's window open on an image drive, as somebody with a screen reader
/// has it before them.
class AccessibilityTest : public testing::Test {
protected:
    AccessibilityTest();
    ~AccessibilityTest() override;

    /// Starts the host, which hands the files to the tool, and waits until the tool's window shows
    /// that many rows.
    void start(const std::vector<std::filesystem::path> &files = {}, int rows = 0);
    /// Starts the host with these arguments and waits for its window.
    void startHost(const std::vector<std::string> &arguments);

    /// The two windows, by their titles. Null while they are not there.
    Accessible toolWindow() const { return windowNamed("CD Burner"); }
    Accessible hostWindow() const { return windowNamed("Crate"); }
    Accessible windowNamed(const std::string &title) const;
    /// The first window of a role that is showing: the sheet is a dialog.
    Accessible windowOfRole(AtspiRole role) const;
    Accessible sheet() const { return windowOfRole(ATSPI_ROLE_DIALOG); }
    /// Null while the sheet has no button of this name, or is not up.
    Accessible sheetButton(const std::string &name) const;

    Accessible list() const { return toolWindow().find(ATSPI_ROLE_TABLE); }
    Accessible button(const std::string &name) const {
        return toolWindow().find(ATSPI_ROLE_PUSH_BUTTON, name);
    }

    /// A song of that many minutes, which takes no space and some time to burn.
    std::filesystem::path silentSong(unsigned minutes) const;

    /// Presses keys as a keyboard does, in the notation of xdotool, as soon as they reach a window.
    static void press(const std::string &keys);
    /// Brings the window of this title to the front, as a click on the task bar does.
    static void activate(const std::string &title);

    Accessible window(const std::function<bool(const Accessible &)> &isWanted) const;

    TemporaryFolder folder_;
    std::filesystem::path imageFolder_;
    std::filesystem::path musicFolder_;
    std::vector<std::string> environment_; ///< What the host gets besides the test's own.
    std::unique_ptr<ChildProcess> program_;
};

/// One of the songs that are made for tests.
std::filesystem::path medium(const char *name);
