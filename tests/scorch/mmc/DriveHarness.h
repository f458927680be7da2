// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/mmc/OpticalDrive.h"
#include "tests/scorch/drive/FakeContent.h"
#include "tests/scorch/mmc/RecorderTransport.h"

#include <gtest/gtest.h>

#include <condition_variable>
#include <filesystem>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

/// A drive over the emulated recorder, with a recording that does nothing.
class DriveHarness : public testing::Test {
protected:
    RecorderDrive &recorder() { return recorder_; }
    const recorder::DriveScene &scene() const { return recorder_.scene; }

    /// One that glances at its disc all the time, unless it is told of it.
    std::shared_ptr<scorch::OpticalDrive> makeDrive(bool isToldOfMedia = false,
                                                    const std::filesystem::path &node = "/dev/sr0");

    /// From now on opening the drive waits for release().
    void hold();
    void release();

    /// For ten seconds at most, looking again whenever a state has changed.
    bool waitFor(const std::function<bool()> &condition);
    bool waitUntilChecked(const scorch::OpticalDrive &drive);
    void notify();

    /// What the last recording was begun on.
    std::optional<scorch::RecordingTarget> target() const;
    /// Nodes that were found to lead nowhere.
    std::vector<std::filesystem::path> gone() const;

    FakeContent content_{scorch::TrackKind::audio, {300}};

private:
    scorch::OpticalDriveServices services();

    RecorderDrive recorder_;
    mutable std::mutex mutex_; ///< Guards all below.
    std::condition_variable changed_;
    bool isHeld_ = false;
    std::optional<scorch::RecordingTarget> target_;
    std::vector<std::filesystem::path> gone_;
};
