// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/mmc/MmcDevice.h"
#include "scorch/mmc/MmcTransport.h"
#include "tests/recorder/DriveScene.h"
#include "tests/recorder/Recorder.h"
#include "tests/support/TemporaryFolder.h"

#include <mutex>
#include <string>
#include <vector>

/// An emulated recorder in this process, reached without a device node: a test sets its scene, and
/// sees which commands it got. Opening obeys the faults as a kernel's driver does. Any thread.
class RecorderDrive {
public:
    RecorderDrive() : scene(root_.path()), recorder_(scene.folder()) {}

    /// As MmcDevice::open.
    scorch::Result<scorch::MmcDevice, scorch::MmcError> open();
    scorch::MmcDevice device() { return std::move(*open()); }

    /// Operation codes, in order.
    std::vector<int> commands() const;
    int openings() const;
    /// How often the door was not unlocked since another program has the drive.
    int refusedUnlocks() const;

private:
    friend class RecorderTransport;

    TemporaryFolder root_;

public:
    const recorder::DriveScene scene;

private:
    recorder::Recorder recorder_;
    mutable std::mutex mutex_; ///< Guards all below.
    std::vector<int> commands_;
    int openings_ = 0;
    int refusedUnlocks_ = 0;
};

/// Discs of all kinds.
recorder::Disc blankCd(recorder::DiscKind kind = recorder::DiscKind::CdR);
/// With one audio track of ten seconds, and room behind it if it is not final.
recorder::Disc usedCd(recorder::DiscKind kind, bool isFinal);
recorder::Disc dvd(recorder::DiscKind kind);
