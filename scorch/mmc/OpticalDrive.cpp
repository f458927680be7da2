// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/mmc/OpticalDrive.h"

#include "scorch/drive/DiscError.h"
#include "scorch/mmc/DriveErrors.h"
#include "scorch/mmc/HeldRecording.h"
#include "scorch/support/Text.h"
#include "scorch/support/WorkerThread.h"

#include <algorithm>
#include <system_error>
#include <utility>
#include <variant>

namespace scorch {
namespace {

/// It was somebody else who locked the door, then, and who needs it locked.
bool isHeldByOthers(const Interruption &failure) {
    const auto *const error = std::get_if<ScorchError>(&failure);
    return error != nullptr && error->category() == ScorchErrorCode::driveBusy;
}

} // namespace

std::shared_ptr<OpticalDrive> OpticalDrive::create(const FoundDevice &device, std::string name,
                                                   bool isToldOfMedia,
                                                   OpticalDriveServices services) {
    return std::shared_ptr<OpticalDrive>(
        new OpticalDrive(device, std::move(name), isToldOfMedia, std::move(services)));
}

OpticalDrive::OpticalDrive(const FoundDevice &device, std::string name, bool isToldOfMedia,
                           OpticalDriveServices services)
    : examined_{.name = std::move(name),
                .node = device.node,
                .open = services.open,
                .patience = services.patience},
      identity_(device.identity),
      isToldOfMedia_(isToldOfMedia),
      services_(std::move(services)) {
    state_.canWriteCd = true; // Until it says otherwise.
}

OpticalDrive::~OpticalDrive() {
    requestEnd();
    if (thread_.joinable()) {
        thread_.join();
    }
}

DriveState OpticalDrive::state() const {
    const std::lock_guard lock(mutex_);
    return state_;
}

void OpticalDrive::setStateObserver(std::function<void()> changed) {
    const std::lock_guard lock(mutex_);
    observer_ = std::move(changed);
}

ScorcherDeviceDescription OpticalDrive::description() const {
    const std::lock_guard lock(mutex_);
    const std::optional<ScorchError> &problem = obstacle_ ? obstacle_ : ejectFailure_;
    return {.vendor = identity_.vendor,
            .model = identity_.model,
            .revision = identity_.revision,
            .node = examined_.node,
            .medium = mediumName(medium_),
            .writeSpeeds = medium_.writeSpeeds,
            .problem = problem ? problem->localizedDescription() : std::string()};
}

std::optional<ScorchError> OpticalDrive::obstacle() const {
    const std::lock_guard lock(mutex_);
    return obstacle_;
}

void OpticalDrive::tellIfChanged(const DriveState &before) {
    std::function<void()> observer;
    {
        const std::lock_guard lock(mutex_);
        if (state_ == before || ended_) {
            return;
        }
        observer = observer_;
    }
    if (observer) {
        observer();
    }
}

void OpticalDrive::wantOpenly() {
    wanted_ = Wanted::openly;
    state_.checking = true;
    state_.disc = {};
    changed_.notify_all();
}

void OpticalDrive::ensureThread() {
    if (thread_.joinable() || ended_) {
        return;
    }
    try {
        thread_ = startWorkerThread("scorch-drive", [this] { work(); });
    } catch (const std::system_error &failure) {
        state_.checking = false;
        obstacle_ =
            ScorchError(ScorchErrorCode::internal, localized("The drive “%@” cannot be used (%@).",
                                                             {examined_.name, failure.what()}));
    }
}

void OpticalDrive::setWatched(bool watched) {
    DriveState before;
    {
        const std::lock_guard lock(mutex_);
        if (watched_ == watched) {
            return;
        }
        before = state_;
        watched_ = watched;
        if (!watched && !recording_) {
            wanted_ = Wanted::nothing;
            work_.request_stop();
        } else if (watched && !recording_ && !ended_) {
            wantOpenly();
            ensureThread();
        }
    }
    tellIfChanged(before);
}

void OpticalDrive::mediumChanged(MediumNews news) {
    DriveState before;
    {
        const std::lock_guard lock(mutex_);
        before = state_;
        if (!watched_ || recording_ || ended_) {
            return; // It will be examined when it is looked at again.
        }
        if (news == MediumNews::changed) {
            ejectFailure_.reset();
            wantOpenly();
        } else {
            wanted_ = std::max(wanted_, Wanted::quietly);
            changed_.notify_all();
        }
    }
    tellIfChanged(before);
}

void OpticalDrive::eject() {
    DriveState before;
    {
        const std::lock_guard lock(mutex_);
        if (recording_ || ended_) {
            return;
        }
        before = state_;
        ejectWanted_ = true;
        ejectFailure_.reset();
        if (watched_) {
            wantOpenly(); // A tray takes seconds, and what it holds then is to be found out.
        }
        work_.request_stop(); // A disc that is being examined goes out all the same.
        ensureThread();
        changed_.notify_all();
    }
    tellIfChanged(before);
}

void OpticalDrive::requestEnd() {
    const std::lock_guard lock(mutex_);
    ended_ = true;
    state_.checking = false;
    work_.request_stop();
    changed_.notify_all();
}

void OpticalDrive::awaitEnd() {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return finished_ || !thread_.joinable(); });
}

bool OpticalDrive::hasEnded() const {
    const std::lock_guard lock(mutex_);
    return finished_ || !thread_.joinable();
}

Outcome<> OpticalDrive::prepareRecording(const std::stop_token &stop) {
    {
        std::unique_lock lock(mutex_);
        if (!changed_.wait(lock, stop, [this] { return !working_; })) {
            return Interruption(Cancelled{});
        }
    }
    const DriveFindings findings = examineDrive(examined_, stop);
    if (findings.isInterrupted()) {
        return Interruption(Cancelled{});
    }
    take(findings);
    if (findings.obstacle) {
        return Interruption(*findings.obstacle);
    }
    if (const auto error = discError(examined_.name, state())) {
        return Interruption(*error);
    }
    return {};
}

Outcome<std::unique_ptr<DiscRecording>> OpticalDrive::beginRecording(const DiscContent &content,
                                                                     const std::stop_token &stop) {
    {
        const std::lock_guard lock(mutex_);
        if (recording_) {
            return Interruption(driveBusyError(examined_.name));
        }
        recording_ = true;
        wanted_ = Wanted::nothing; // The examination that follows is the newest there can be.
        ejectWanted_ = false;      // And a tray must not open behind the burn.
        work_.request_stop();
    }
    if (auto prepared = prepareRecording(stop); !prepared) {
        recordingEnded(Door::untouched);
        return prepared.error();
    }
    const RecordingTarget target{.driveName = examined_.name, .node = examined_.node};
    auto recording = services_.record(target, content, stop);
    if (!recording) {
        recordingEnded(isHeldByOthers(recording.error()) ? Door::untouched : Door::perhapsLocked);
        return recording.error();
    }
    return std::unique_ptr<DiscRecording>(
        std::make_unique<HeldRecording>(std::move(*recording), [drive = shared_from_this()] {
            drive->recordingEnded(Door::perhapsLocked);
        }));
}

void OpticalDrive::recordingEnded(Door door) {
    DriveState before;
    {
        const std::lock_guard lock(mutex_);
        before = state_;
        recording_ = false;
        if (door == Door::perhapsLocked) {
            unlockWanted_ = true;
            nextUnlock_ = {};
        }
        if (!ended_) {
            if (watched_) {
                wantOpenly();
            }
            ensureThread();
            changed_.notify_all();
        }
    }
    tellIfChanged(before);
}

} // namespace scorch
