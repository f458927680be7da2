// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/drive/DriveSource.h"
#include "scorch/mmc/DeviceWatcher.h"
#include "scorch/mmc/OpticalDrive.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <mutex>
#include <vector>

namespace scorch {

/// The CD drives of the hardware, as long as they are there. Nothing is looked for, and no thread
/// runs, before the search.
class OpticalDriveSource final : public DriveSource {
public:
    using MakeWatcher = std::function<std::unique_ptr<DeviceWatcher>()>;

    /// `services.gone` is set here.
    OpticalDriveSource(MakeWatcher makeWatcher, OpticalDriveServices services);
    /// Waits for the commands that run, one for each drive at most.
    ~OpticalDriveSource() override;

    std::vector<std::shared_ptr<Drive>> search(Observer observer) override;

private:
    std::shared_ptr<OpticalDrive> add(const FoundDevice &device);
    void appeared(const FoundDevice &device);
    void disappeared(const std::filesystem::path &node);
    void mediumChanged(const std::filesystem::path &node, MediumNews news);
    void releaseEnded();
    void awaitSearch() { const std::lock_guard lock(searching_); }

    const MakeWatcher makeWatcher_;
    OpticalDriveServices services_;
    Observer observer_;
    std::mutex searching_; ///< Held by the search: what happens meanwhile is told after it.
    std::mutex mutex_;     ///< Guards both lists.
    std::vector<std::shared_ptr<OpticalDrive>> drives_;
    /// Drives that have gone, until their threads have noticed: nobody else may have to wait.
    std::vector<std::shared_ptr<OpticalDrive>> gone_;
    std::unique_ptr<DeviceWatcher> watcher_; ///< Ends first: it calls this object.
};

} // namespace scorch
