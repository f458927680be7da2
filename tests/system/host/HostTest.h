// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/support/TemporaryFolder.h"
#include "tests/system/host/RunningHost.h"

#include <QComboBox>
#include <QLineEdit>

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

/// The host with the tool's window open, a music folder and a folder for disc images.
class HostTest : public testing::Test {
protected:
    HostTest();

    /// Starts the host, as its command line would.
    void start(const std::vector<std::filesystem::path> &files = {});

    /// Handles events until it is so; fails the test after a minute.
    void waitUntil(const char *what, const std::function<bool()> &isSo) const;

    crate::Crate &crate() { return host_.crate(); }
    VXUtilitiesTool &tool() { return host_.tool(); }
    QWidget *toolWindow() { return host_.toolWindow(); }
    /// A widget of the tool's window, by its name.
    template <typename Widget>
    Widget *part(const char *name) {
        auto *widget = host_.part<Widget>(name);
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }
    /// The sheet, while it is up.
    QDialog *sheet() { return host_.sheet(); }
    QPushButton *sheetButton() { return host_.sheetButton(); }
    int rows() { return host_.rows(); }

    /// As a user chooses it from the popup.
    void chooseDataDisc() { host_.chooseDisc(1); }
    /// Files into the list, and waits for the end of the check.
    void add(const std::vector<std::filesystem::path> &files, int expectedRows);
    /// Waits for the Burn button and clicks it; the sheet is up when it returns.
    void clickBurn();
    /// The same, to the end of the burn.
    void burn(const QString &name);
    /// A list with one file or song that takes long to write, and its burn under way.
    void startLongBurn();
    void startLongAudioBurn();

    /// The names in the folder of images, hidden ones included, sorted.
    std::vector<std::string> images() const;
    /// The keys of the usage events so far, in order.
    std::vector<std::string> usageEvents() const;

    TemporaryFolder folder_;
    std::filesystem::path imageFolder_;
    std::filesystem::path musicFolder_;
    crate::CommandLine commandLine_;
    RunningHost host_; ///< Ends before the folder goes.
};

/// A file of the test media.
std::filesystem::path medium(const char *name);
