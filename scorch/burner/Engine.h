// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/burner/Burner.h"
#include "scorch/drive/DriveRegistry.h"

#include <memory>

namespace scorch {

/// The engine of the process: its drives and its two burners. Main thread, but for shared and
/// drives. Comes to its end with the process at the latest.
class Engine {
public:
    static Engine &shared();
    ~Engine();
    Engine(const Engine &) = delete;
    Engine &operator=(const Engine &) = delete;

    const std::shared_ptr<DriveRegistry> &drives() const { return drives_; }
    const std::shared_ptr<Burner> &audioBurner() const { return audioBurner_; }
    const std::shared_ptr<Burner> &dataBurner() const { return dataBurner_; }

    /// See Scorcher::shutDownAll.
    void shutDown();

private:
    Engine();

    std::shared_ptr<DriveRegistry> drives_;
    std::shared_ptr<Burner> audioBurner_;
    std::shared_ptr<Burner> dataBurner_;
};

} // namespace scorch
