// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/drive/DriveRegistry.h"

#include "scorch/drive/DeviceHandle.h"

#include <algorithm>
#include <utility>

namespace scorch {
namespace {

DriveState stateOf(const std::shared_ptr<Drive> &drive) {
    return drive != nullptr ? drive->state() : DriveState();
}

} // namespace

std::shared_ptr<DriveRegistry>
DriveRegistry::create(std::vector<std::unique_ptr<DriveSource>> sources, PostTask post) {
    return std::shared_ptr<DriveRegistry>(new DriveRegistry(std::move(sources), std::move(post)));
}

DriveRegistry::DriveRegistry(std::vector<std::unique_ptr<DriveSource>> sources, PostTask post)
    : sources_(std::move(sources)), post_(std::move(post)) {}

DriveRegistry::~DriveRegistry() {
    shutDown();
}

void DriveRegistry::shutDown() {
    ended_ = true;
    waitForSearch(); // None begins any more.
    sources_.clear();
    std::vector<std::shared_ptr<Drive>> drives;
    {
        const std::lock_guard lock(mutex_);
        drives.swap(drives_);
    }
    for (const std::shared_ptr<Drive> &drive : drives) {
        drive->setStateObserver(nullptr);
    }
}

std::vector<std::string> DriveRegistry::names() {
    std::call_once(searched_, [this] { search(); });
    const std::lock_guard lock(mutex_);
    std::vector<std::string> names;
    names.reserve(drives_.size());
    for (const std::shared_ptr<Drive> &drive : drives_) {
        names.push_back(drive->name());
    }
    return names;
}

std::shared_ptr<Drive> DriveRegistry::find(const std::string &name) {
    if (name.empty()) {
        return nullptr; // The name of no drive; not worth a search.
    }
    std::call_once(searched_, [this] { search(); });
    return findPresent(name);
}

std::shared_ptr<Drive> DriveRegistry::findPresent(const std::string &name) {
    const std::lock_guard lock(mutex_);
    const auto found =
        std::find_if(drives_.begin(), drives_.end(), [&name](const std::shared_ptr<Drive> &drive) {
            return drive->name() == name;
        });
    return found != drives_.end() ? *found : nullptr;
}

void DriveRegistry::search() {
    const std::weak_ptr<DriveRegistry> weak = weak_from_this();
    const DriveSource::Observer observer{
        .appeared =
            [weak](const std::shared_ptr<Drive> &drive) {
                if (const auto registry = weak.lock()) {
                    registry->driveAppeared(drive);
                }
            },
        .disappeared =
            [weak](const std::string &name) {
                if (const auto registry = weak.lock()) {
                    registry->driveDisappeared(name);
                }
            },
    };
    for (const std::unique_ptr<DriveSource> &source : sources_) {
        for (const std::shared_ptr<Drive> &drive : source->search(observer)) {
            add(drive);
        }
    }
}

/// A drive that comes or goes while the search runs is one of those that it found.
void DriveRegistry::waitForSearch() {
    std::call_once(searched_, [] {});
}

void DriveRegistry::add(const std::shared_ptr<Drive> &drive) {
    {
        const std::lock_guard lock(mutex_);
        drives_.push_back(drive);
    }
    drive->setStateObserver([weak = weak_from_this(), name = drive->name()] {
        if (const auto registry = weak.lock()) {
            registry->postStateCheck(name);
        }
    });
}

void DriveRegistry::driveAppeared(const std::shared_ptr<Drive> &drive) {
    waitForSearch();
    add(drive);
    postToMain([name = drive->name()](DriveRegistry &registry) {
        registry.updateWatched(name); // By a handle that was made before the drive came.
        if (auto *delegate = registry.lastDelegate_.get()) {
            delegate->deviceDidAppeared(name);
        }
        registry.tellState(name);
    });
}

void DriveRegistry::driveDisappeared(const std::string &name) {
    waitForSearch();
    if (const std::shared_ptr<Drive> drive = findPresent(name)) {
        drive->setStateObserver(nullptr);
        const std::lock_guard lock(mutex_);
        drives_.erase(std::remove(drives_.begin(), drives_.end(), drive), drives_.end());
    }
    postToMain([name](DriveRegistry &registry) {
        if (auto *delegate = registry.lastDelegate_.get()) {
            delegate->deviceDidDisappeared(name);
        }
    });
}

void DriveRegistry::postToMain(std::function<void(DriveRegistry &)> task) {
    post_([weak = weak_from_this(), task = std::move(task)] {
        const std::shared_ptr<DriveRegistry> registry = weak.lock();
        if (registry != nullptr && !registry->ended_) {
            task(*registry);
        }
    });
}

void DriveRegistry::postStateCheck(const std::string &name) {
    postToMain([name](DriveRegistry &registry) { registry.tellState(name); });
}

/// Told apart for each delegate, from what it knows: a change that was undone before it was told,
/// or that happened before the delegate was set, is none.
void DriveRegistry::tellState(const std::string &name) {
    if (taken_.contains(name)) {
        return;
    }
    const std::shared_ptr<Drive> drive = findPresent(name);
    if (drive == nullptr) {
        return; // Its going is told otherwise.
    }
    const std::vector<std::shared_ptr<DeviceWatch>> watches = watches_;
    for (const std::shared_ptr<DeviceWatch> &watch : watches) {
        if (watch->name != name || watch->seen == drive->state()) {
            continue;
        }
        watch->seen = drive->state();
        if (auto *delegate = watch->delegate.get()) {
            delegate->deviceStatusDidChanged();
        }
    }
}

bool DriveRegistry::take(const std::string &name) {
    return taken_.insert(name).second;
}

void DriveRegistry::release(const std::string &name) {
    taken_.erase(name);
}

void DriveRegistry::settle(const std::string &name) {
    tellState(name);
}

std::unique_ptr<ScorcherDevice> DriveRegistry::makeHandle(const std::string &name) {
    auto watch = std::make_shared<DeviceWatch>();
    watch->name = name;
    watches_.push_back(watch);
    find(name); // Searches, if nobody has yet.
    updateWatched(name);
    watch->seen = stateOf(findPresent(name));
    return std::make_unique<DeviceHandle>(shared_from_this(), std::move(watch));
}

void DriveRegistry::setDelegate(DeviceWatch &watch, ScorcherDeviceDelegate *delegate) {
    if (delegate != watch.delegate.get()) {
        watch.delegate.set(delegate);
        watch.seen = stateOf(find(watch.name));
    }
    if (delegate != nullptr) {
        lastDelegate_.set(delegate);
        lastSetter_ = &watch;
    } else if (lastSetter_ == &watch) {
        lastDelegate_.set(nullptr);
    }
}

void DriveRegistry::updateWatched(const std::string &name) {
    if (const std::shared_ptr<Drive> drive = findPresent(name)) {
        drive->setWatched(std::any_of(watches_.begin(), watches_.end(),
                                      [&name](const auto &watch) { return watch->name == name; }));
    }
}

void DriveRegistry::forget(const DeviceWatch *watch) {
    const std::string name = watch->name;
    watches_.erase(std::remove_if(watches_.begin(), watches_.end(),
                                  [watch](const auto &other) { return other.get() == watch; }),
                   watches_.end());
    if (lastSetter_ == watch) {
        lastSetter_ = nullptr; // Its address may come back; its delegate goes on being told.
    }
    updateWatched(name);
}

} // namespace scorch
