// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/recorder/DriveScene.h"
#include "tests/recorder/tests/Host.h"
#include "tests/support/TemporaryFolder.h"

/// A drive with a blank disc of a kind on its tray.
class RecorderFixture {
public:
    explicit RecorderFixture(recorder::DiscKind kind = recorder::DiscKind::CdR)
        : scene(root.path()) {
        scene.makeDisc(recorder::blankDisc(kind));
    }

    TemporaryFolder root;
    recorder::DriveScene scene;

    recorder::Recorder &drive() {
        if (!recorder_) {
            recorder_.emplace(scene.folder());
        }
        return *recorder_;
    }
    Host host() { return Host(drive()); }

private:
    std::optional<recorder::Recorder> recorder_;
};
