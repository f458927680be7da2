// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/recorder/DriveScene.h"
#include "tests/system/host/RunningHost.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QString>

#include <chrono>
#include <functional>

/// The tool's window in the real host, over the real engine and emulated drives. The drives and the
/// engine are the process's, so that each test needs a process of its own.
class DriveWindowTest : public testing::Test {
protected:
    /// The drive /dev/sr0; it is there from the first call on.
    recorder::DriveScene &drive();
    /// Another one.
    static recorder::DriveScene drive(const std::string &name);

    /// Opens the window and waits until the first search is over.
    void start();

    /// Handles events until it is so; false after a minute, or after the limit.
    static bool waitUntil(const std::function<bool()> &isSo,
                          std::chrono::milliseconds limit = std::chrono::minutes(1)) {
        return RunningHost::waitUntil(isSo, limit);
    }
    bool waitForTips(const char *tips);
    bool waitForNameField();

    /// Empty while the name field is shown.
    QString tips();
    bool isNameFieldShown();
    QStringList driveNames();
    /// As a user picks it from the list.
    void choose(int index);
    QComboBox *popup() { return host_.part<QComboBox>("_devicePopup"); }

    RunningHost host_;

private:
    std::unique_ptr<recorder::DriveScene> drive_;
};

recorder::Disc usedDisc(recorder::DiscKind kind);
