// SPDX-License-Identifier: GPL-2.0-or-later
// The burner's burns.
#include "scorch/burner/BurnErrors.h"
#include "scorch/burner/Burner.h"
#include "scorch/burner/BurnerRuns.h"
#include "scorch/support/WorkerThread.h"

#include <system_error>
#include <utility>
#include <variant>

namespace scorch {

Burner::BurnRun::~BurnRun() {
    stop.request_stop();
    if (thread.joinable()) {
        thread.join();
    }
}

void Burner::BurnRun::stageBegan(const BurnStage &stage) {
    burner_.post([burner = &burner_, stage] {
        burner->announcer_.now([burner, stage] {
            if (burner->isBurningOn()) {
                burner->announcer_.tellBurnStage(stage);
            }
        });
    });
}

void Burner::BurnRun::progressed(const BurnProgress &progress) {
    burner_.post([burner = &burner_, progress] {
        burner->announcer_.now([burner, progress] {
            if (burner->isBurningOn()) {
                burner->announcer_.tellBurnProgress(progress);
            }
        });
    });
}

/// After a request to stop only the end of the burn is told.
bool Burner::isBurningOn() const {
    return burn_ != nullptr && !burn_->stopRequested;
}

std::optional<ScorchError> Burner::refusalToBurn(const std::shared_ptr<Drive> &drive,
                                                 const std::string &driveName) const {
    if (check_ != nullptr) {
        return burnerCheckingError();
    }
    if (burn_ != nullptr) {
        return burnerBurningError();
    }
    if (list_.count() == 0) {
        return nothingToBurnError();
    }
    if (auto error = kind_->refusal(list_.items())) {
        return error;
    }
    if (drive == nullptr) {
        return noDriveError(driveName);
    }
    if (services_.drives->isTaken(driveName)) {
        return driveBusyError(driveName);
    }
    return std::nullopt;
}

void Burner::burnWithDeviceDiscNamed(const ScorcherDevice *device, const std::string &discName) {
    if (ended_) {
        return;
    }
    const std::string driveName = device != nullptr ? device->deviceName() : std::string();
    std::shared_ptr<Drive> drive = services_.drives->find(driveName);
    if (const auto error = refusalToBurn(drive, driveName)) {
        announcer_.answer(
            [error](ScorchDelegate &delegate) { delegate.burnProgressDidError(*error); });
        return;
    }
    services_.drives->take(driveName);
    burn_ = std::make_unique<BurnRun>(
        *this, BurnRequest{.drive = std::move(drive),
                           .makeContent = kind_->content(list_.items(), discName),
                           .verify = services_.verify(),
                           .clock = services_.clock});
    announcer_.later([this] { beginBurn(); });
}

void Burner::stopBurn() {
    if (burn_ == nullptr) {
        announcer_.answer([](ScorchDelegate &delegate) { delegate.burnProgressDidCanceled(); });
        return;
    }
    burn_->stopRequested = true;
    burn_->stop.request_stop();
}

void Burner::beginBurn() {
    if (!isBurningOn()) {
        endBurn(Cancelled{}); // Stopped before anybody was told that it runs.
        return;
    }
    announcer_.tellBurnStarted();
    if (burn_ == nullptr) {
        return;
    }
    BurnRun *const run = burn_.get();
    try {
        run->thread = startWorkerThread("scorch-burn", [this, run] {
            const BurnEnd end = runBurn(run->request, *run, run->stop.get_token());
            post([this, end] { burnThreadEnded(end); });
        });
    } catch (const std::system_error &failure) {
        endBurn(internalError(failure.what()));
    }
}

void Burner::burnThreadEnded(const BurnEnd &end) {
    burn_->thread.join(); // At its end already.
    announcer_.now([this, end] { endBurn(end); });
}

void Burner::endBurn(const BurnEnd &end) {
    const std::unique_ptr<BurnRun> run = std::move(burn_);
    const std::string driveName = run->request.drive->name();
    services_.drives->release(driveName);
    // Told behind the end of the burn, whatever its callback does.
    post([this, driveName] { services_.drives->settle(driveName); });
    announcer_.tellBurnEnded([&end, &run](ScorchDelegate &delegate) {
        if (const auto *error = std::get_if<ScorchError>(&end)) {
            delegate.burnProgressDidError(*error);
        } else if (std::holds_alternative<Cancelled>(end)) {
            delegate.burnProgressDidCanceled();
        } else if (run->stopRequested) {
            delegate.burnProgressDidError(finishedBeforeStopError());
        } else {
            delegate.burnProgressDidDone();
        }
    });
}

} // namespace scorch
