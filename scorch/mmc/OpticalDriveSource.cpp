// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/mmc/OpticalDriveSource.h"

#include "scorch/mmc/DriveNames.h"

#include <algorithm>
#include <set>
#include <string>
#include <utility>

namespace scorch {

OpticalDriveSource::OpticalDriveSource(MakeWatcher makeWatcher, OpticalDriveServices services)
    : makeWatcher_(std::move(makeWatcher)), services_(std::move(services)) {
    services_.gone = [this](const std::filesystem::path &node) {
        watcher_->suspect(node);
    };
}

OpticalDriveSource::~OpticalDriveSource() {
    // All are asked before the first is waited for, and while the watcher still stands: their
    // threads may be calling it.
    std::vector<std::shared_ptr<OpticalDrive>> drives;
    {
        const std::lock_guard lock(mutex_);
        drives = std::exchange(drives_, {});
        drives.insert(drives.end(), gone_.begin(), gone_.end());
        gone_.clear();
    }
    for (const std::shared_ptr<OpticalDrive> &drive : drives) {
        drive->requestEnd();
    }
    for (const std::shared_ptr<OpticalDrive> &drive : drives) {
        drive->awaitEnd();
    }
    watcher_.reset();
}

std::vector<std::shared_ptr<Drive>> OpticalDriveSource::search(Observer observer) {
    const std::lock_guard searching(searching_);
    observer_ = std::move(observer);
    watcher_ = makeWatcher_();
    const std::vector<FoundDevice> found = watcher_->search(
        {.appeared = [this](const FoundDevice &device) { appeared(device); },
         .disappeared = [this](const std::filesystem::path &node) { disappeared(node); },
         .mediumChanged =
             [this](const std::filesystem::path &node, MediumNews news) {
                 mediumChanged(node, news);
             }});
    std::vector<std::shared_ptr<Drive>> drives;
    drives.reserve(found.size());
    for (const FoundDevice &device : found) {
        drives.push_back(add(device));
    }
    return drives;
}

std::shared_ptr<OpticalDrive> OpticalDriveSource::add(const FoundDevice &device) {
    const std::lock_guard lock(mutex_);
    std::set<std::string> inUse;
    for (const std::shared_ptr<OpticalDrive> &drive : drives_) {
        inUse.insert(drive->name());
    }
    drives_.push_back(OpticalDrive::create(device, driveName(device, inUse),
                                           watcher_->tellsOfMedia(device.node), services_));
    return drives_.back();
}

void OpticalDriveSource::appeared(const FoundDevice &device) {
    awaitSearch();
    releaseEnded();
    observer_.appeared(add(device));
}

void OpticalDriveSource::disappeared(const std::filesystem::path &node) {
    awaitSearch();
    std::shared_ptr<OpticalDrive> drive;
    {
        const std::lock_guard lock(mutex_);
        const auto found = std::find_if(drives_.begin(), drives_.end(), [&node](const auto &known) {
            return known->node() == node;
        });
        if (found == drives_.end()) {
            return;
        }
        drive = *found;
        drives_.erase(found);
        gone_.push_back(drive);
    }
    drive->requestEnd();
    observer_.disappeared(drive->name());
    drive.reset();
    releaseEnded();
}

void OpticalDriveSource::mediumChanged(const std::filesystem::path &node, MediumNews news) {
    std::shared_ptr<OpticalDrive> drive;
    {
        const std::lock_guard lock(mutex_);
        for (const std::shared_ptr<OpticalDrive> &known : drives_) {
            if (known->node() == node) {
                drive = known;
            }
        }
    }
    if (drive != nullptr) {
        drive->mediumChanged(news);
    }
}

void OpticalDriveSource::releaseEnded() {
    const std::lock_guard lock(mutex_);
    gone_.erase(std::remove_if(gone_.begin(), gone_.end(),
                               [](const auto &drive) { return drive->hasEnded(); }),
                gone_.end());
}

} // namespace scorch
