// SPDX-License-Identifier: GPL-2.0-or-later
// What a drive's thread does.
#include "scorch/mmc/OpticalDrive.h"

#include "engine/ScorchHooks.h"
#include "scorch/mmc/DriveErrors.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace scorch {

void OpticalDrive::work() {
    std::unique_lock lock(mutex_);
    while (true) {
        const Order order = awaitOrder(lock);
        if (order == Order::end) {
            finished_ = true;
            changed_.notify_all();
            return;
        }
        work_ = std::stop_source();
        working_ = true;
        const std::stop_token stop = work_.get_token();
        lock.unlock();
        carryOut(order, stop);
        lock.lock();
        working_ = false;
        nextGlance_ = std::chrono::steady_clock::now() + services_.glanceInterval;
        changed_.notify_all();
    }
}

OpticalDrive::Order OpticalDrive::awaitOrder(std::unique_lock<std::mutex> &lock) {
    while (true) {
        if (const Order order = dueOrder(); order != Order::none) {
            return order;
        }
        const bool isGlancing = watched_ && !recording_ && (!isToldOfMedia_ || obstacle_);
        const bool isUnlocking = unlockWanted_ && !recording_;
        if (isUnlocking) {
            changed_.wait_until(lock,
                                isGlancing ? std::min(nextGlance_, nextUnlock_) : nextUnlock_);
        } else if (isGlancing) {
            changed_.wait_until(lock, nextGlance_);
        } else {
            changed_.wait(lock);
        }
    }
}

/// With the mutex held.
OpticalDrive::Order OpticalDrive::dueOrder() const {
    if (ended_) {
        return Order::end;
    }
    if (recording_) {
        return Order::none;
    }
    if (unlockWanted_ && std::chrono::steady_clock::now() >= nextUnlock_) {
        return Order::unlock;
    }
    if (ejectWanted_) {
        return Order::eject;
    }
    if (!watched_) {
        return Order::none;
    }
    if (wanted_ != Wanted::nothing) {
        return Order::examine;
    }
    const bool isToGlance = !isToldOfMedia_ || obstacle_;
    return isToGlance && std::chrono::steady_clock::now() >= nextGlance_ ? Order::glance
                                                                         : Order::none;
}

void OpticalDrive::carryOut(Order order, const std::stop_token &stop) {
    switch (order) {
    case Order::unlock:
        unlockDoor();
        break;
    case Order::eject:
        ejectDisc();
        break;
    case Order::examine:
        examine(stop);
        break;
    case Order::glance:
        glance(stop);
        break;
    default:
        break;
    }
}

void OpticalDrive::examine(const std::stop_token &stop) {
    {
        const std::lock_guard lock(mutex_);
        wanted_ = Wanted::nothing;
    }
    take(examineDrive(examined_, stop));
}

void OpticalDrive::take(const DriveFindings &findings) {
    DriveState before;
    {
        const std::lock_guard lock(mutex_);
        before = state_;
        if (findings.isInterrupted()) {
            return; // Whoever interrupted says what comes next.
        }
        state_.canWriteCd = findings.canWriteCd.value_or(state_.canWriteCd);
        lastGlance_ = findings.tray;
        obstacle_ = findings.obstacle;
        if (findings.medium != medium_) {
            ejectFailure_.reset(); // It was about the disc before.
        }
        medium_ = findings.medium;
        if (wanted_ != Wanted::openly) { // Else it has changed again, and is still being checked.
            state_.checking = false;
            state_.disc = discState(findings.medium);
        }
    }
    if (findings.failure && findings.failure->kind == MmcError::Kind::gone) {
        services_.gone(examined_.node);
    }
    tellIfChanged(before);
}

void OpticalDrive::glance(const std::stop_token &stop) {
    std::optional<MediaEvent> before;
    bool isToBeExamined = false;
    {
        const std::lock_guard lock(mutex_);
        before = lastGlance_;
        isToBeExamined = obstacle_.has_value();
    }
    if (isToBeExamined) { // Perhaps it answers now.
        examine(stop);
        return;
    }
    const Result<MediaEvent, MmcError> event = glanceAtDrive(examined_, before);
    if (event && !event->changed) {
        return;
    }
    // A disc that is there is worth the word; that none is there any more is found out at once.
    mediumChanged(event && event->mediumPresent ? MediumNews::changed : MediumNews::perhaps);
}

/// A drive that fell silent in a recording was given free, but could not be told to open its door:
/// it is tried until it answers. Where another program has the drive open by now the lock is not
/// ours any more: the kernel lifts it when nobody has the drive open.
void OpticalDrive::unlockDoor() {
    Result<MmcDevice, MmcError> device = services_.open(examined_.node);
    bool isDone = false;
    constexpr int attempts = 2; // The first may be answered with what happened meanwhile.
    for (int attempt = 0; device && !isDone && attempt < attempts; ++attempt) {
        const Result<void, MmcError> unlocked = device->unlock();
        isDone = unlocked || unlocked.error().kind == MmcError::Kind::busy;
    }
    const std::lock_guard lock(mutex_);
    unlockWanted_ = !isDone;
    nextUnlock_ = std::chrono::steady_clock::now() + services_.glanceInterval;
}

void OpticalDrive::ejectDisc() {
    {
        const std::lock_guard lock(mutex_);
        ejectWanted_ = false;
    }
    std::optional<ScorchError> failure;
    Result<MmcDevice, MmcError> device = services_.open(examined_.node);
    const DriveErrorContext context{
        .driveName = examined_.name, .node = examined_.node, .sector = std::nullopt};
    if (!device) {
        failure = driveError(device.error(), context);
    } else if (const auto writer = otherWriter(examined_.node)) {
        failure = driveError(*writer, context); // Its lock must stay.
    } else if (const Result<void, MmcError> ejected = device->eject(); !ejected) {
        failure = ejectError(ejected.error(), context);
    }
    const auto &log = ScorchHooks::shared().log;
    if (failure && log) { // Nobody waits for an answer.
        log("eject: " + failure->localizedDescription() + " (" + failure->detail() + ")");
    }
    {
        const std::lock_guard lock(mutex_);
        ejectFailure_ = failure;
    }
    mediumChanged(MediumNews::perhaps);
}

} // namespace scorch
