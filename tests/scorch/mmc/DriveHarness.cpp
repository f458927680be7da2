// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/scorch/mmc/DriveHarness.h"

#include <chrono>

using namespace scorch;
using namespace std::chrono_literals;

namespace {

class IdleRecording final : public DiscRecording {
public:
    Outcome<> record(DiscContent &, RecordObserver &, const std::stop_token &) override {
        return {};
    }
    Outcome<> readBack(std::size_t, std::int64_t, std::span<std::byte>,
                       const std::stop_token &) override {
        return {};
    }
    Result<void> commit() override { return {}; }
};

} // namespace

OpticalDriveServices DriveHarness::services() {
    OpticalDriveServices services;
    services.open = [this](const std::filesystem::path &) {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [this] { return !isHeld_; });
        lock.unlock();
        return recorder_.open();
    };
    services.record = [this](const RecordingTarget &target, const DiscContent &,
                             const std::stop_token &) -> Outcome<std::unique_ptr<DiscRecording>> {
        const std::lock_guard lock(mutex_);
        target_ = target;
        return std::unique_ptr<DiscRecording>(std::make_unique<IdleRecording>());
    };
    services.gone = [this](const std::filesystem::path &node) {
        const std::lock_guard lock(mutex_);
        gone_.push_back(node);
        changed_.notify_all();
    };
    services.patience = 10s;
    services.glanceInterval = 1ms;
    return services;
}

std::shared_ptr<OpticalDrive> DriveHarness::makeDrive(bool isToldOfMedia,
                                                      const std::filesystem::path &node) {
    const FoundDevice device{.node = node,
                             .identity = {.vendor = "ACME", .model = "DRW-24", .revision = "1.0"}};
    auto drive = OpticalDrive::create(device, "ACME DRW-24", isToldOfMedia, services());
    drive->setStateObserver([this] { notify(); });
    return drive;
}

void DriveHarness::hold() {
    const std::lock_guard lock(mutex_);
    isHeld_ = true;
}

void DriveHarness::release() {
    const std::lock_guard lock(mutex_);
    isHeld_ = false;
    changed_.notify_all();
}

void DriveHarness::notify() {
    const std::lock_guard lock(mutex_);
    changed_.notify_all();
}

bool DriveHarness::waitFor(const std::function<bool()> &condition) {
    const auto end = std::chrono::steady_clock::now() + 10s;
    while (!condition()) {
        std::unique_lock lock(mutex_);
        if (std::chrono::steady_clock::now() >= end) {
            return false;
        }
        changed_.wait_for(lock, 10ms); // A change between the question and here is seen then.
    }
    return true;
}

bool DriveHarness::waitUntilChecked(const OpticalDrive &drive) {
    return waitFor([&drive] { return !drive.state().checking; });
}

std::optional<RecordingTarget> DriveHarness::target() const {
    const std::lock_guard lock(mutex_);
    return target_;
}

std::vector<std::filesystem::path> DriveHarness::gone() const {
    const std::lock_guard lock(mutex_);
    return gone_;
}
