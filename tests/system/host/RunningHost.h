// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "crate/Crate.h"

#include <QAbstractItemView>
#include <QDialog>
#include <QPushButton>

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

/// The host in this process, with the tool's window open, and a user's hands for it.
class RunningHost {
public:
    RunningHost() = default;
    /// Ends the host, and the program with it, as far as the tool can tell.
    ~RunningHost();
    RunningHost(const RunningHost &) = delete;
    RunningHost &operator=(const RunningHost &) = delete;

    /// Starts it, as its command line would. False, and why in `error`, if the tool does not come.
    bool start(const crate::CommandLine &commandLine, std::string &error);

    /// Handles events until it is so; false if it is not within the limit.
    static bool waitUntil(const std::function<bool()> &isSo,
                          std::chrono::milliseconds limit = std::chrono::minutes(1));

    crate::Crate &crate() { return *crate_; }
    VXUtilitiesTool &tool() { return *crate_->utilities().entries().front().tool; }
    QWidget *toolWindow() { return tool().mainWindow(); }
    /// A widget of the tool's window, by its name; null if there is none.
    template <typename Widget>
    Widget *part(const char *name) {
        return toolWindow()->findChild<Widget *>(QLatin1String(name));
    }
    /// The sheet, while it is up.
    QDialog *sheet();
    QPushButton *sheetButton();
    int rows();

    /// As a user chooses it from the popup: 0 sound, 1 data.
    void chooseDisc(int kind);
    /// Files into the list, as the host passes them.
    bool addFiles(const std::vector<std::filesystem::path> &files);

private:
    std::unique_ptr<crate::Crate> crate_;
};
