// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/soak/SoakScene.h"
#include "tests/support/Heartbeat.h"
#include "tests/system/host/AlertAnswer.h"
#include "tests/system/host/RunningHost.h"

#include <QString>

#include <functional>
#include <string>

enum class BurnStep { notStarted, leadIn, firstTrack, middle, closing, verifying };

/// How a burn ended, as a person at the window sees it.
struct BurnEnding {
    enum class Kind { done, alert, cancelled, hung };

    Kind kind = Kind::hung;
    QString text; ///< Of an alert.
};

/// A person at the tool's window, with the emulated recorder under the process: chooses the drive,
/// fills the list, burns, cancels, reads what comes up and says OK to it.
class ToolSession {
public:
    explicit ToolSession(SoakScene &scene) : scene_(scene) {}

    /// Opens the window and chooses the drive. False, and why in `error`.
    bool open(const crate::CommandLine &commandLine, std::string &error);

    /// Kind 0 is sound, 1 data. The list has the scene's songs or files then.
    bool fillList(int kind);
    int rows() { return host_.rows(); }

    /// Chooses the drive if none is chosen and waits until the disc in it can be burned.
    bool waitUntilReady();
    /// What the box says about drive and disc; empty when a disc can be burned.
    QString status();
    bool waitUntil(const std::function<bool()> &isSo, std::chrono::milliseconds limit) {
        return RunningHost::waitUntil(isSo, limit);
    }

    /// Clicks Burn and follows it to its end. `stepSeen` is called again and again with the step
    /// that the burn is in.
    BurnEnding burn(const std::function<void(BurnStep)> &stepSeen);
    /// Clicks Cancel and confirms. Only from `stepSeen`.
    void cancel();

    Heartbeat &heartbeat() { return heartbeat_; }

private:
    BurnStep step();

    SoakScene &scene_;
    RunningHost host_;
    AlertAnswer acknowledge_{QStringLiteral("OK")};
    AlertAnswer confirm_{QStringLiteral("Yes")};
    Heartbeat heartbeat_;
    recorder::Lba middle_ = 0;
    bool isCancelled_ = false;
    BurnStep step_ = BurnStep::notStarted;
};
