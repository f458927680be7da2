// SPDX-License-Identifier: GPL-2.0-or-later
// The burner's checks of files.
#include "scorch/burner/Burner.h"
#include "scorch/burner/BurnerRuns.h"
#include "scorch/support/Text.h"
#include "scorch/support/WorkerThread.h"

#include <exception>
#include <iterator>
#include <system_error>
#include <utility>

namespace scorch {
namespace {

void appendTo(std::vector<RefusedFile> &list, std::vector<RefusedFile> &&more) {
    std::move(more.begin(), more.end(), std::back_inserter(list));
}

RefusedFile brokenOff(const char *reason) {
    return {{}, localized("The files could not be checked to the end (%@).", {reason})};
}

CheckRefusals runSafely(const CheckFunction &check, CheckQueue &queue, CheckSink &sink,
                        const std::stop_token &stop) {
    try {
        return check(queue, sink, stop);
    } catch (const std::exception &failure) {
        return {{}, {brokenOff(failure.what())}};
    }
}

} // namespace

Burner::CheckRun::~CheckRun() {
    stop.request_stop();
    if (thread.joinable()) {
        thread.join();
    }
}

void Burner::CheckRun::join(std::vector<BurnFile> files) {
    if (!late.empty() || !queue.join(files)) {
        std::move(files.begin(), files.end(), std::back_inserter(late));
    }
}

void Burner::CheckRun::accepted(std::shared_ptr<Item> item) {
    burner_.post([burner = &burner_, item = std::move(item)] { burner->itemAccepted(item); });
}

void Burner::CheckRun::progressed(CheckProgress progress) {
    burner_.post([burner = &burner_, progress = std::move(progress)] {
        burner->announcer_.now(
            [burner, progress] { burner->announcer_.tellCheckProgress(progress); });
    });
}

bool Burner::addFiles(std::vector<BurnFile> files) {
    if (files.empty() || burn_ != nullptr || ended_) {
        return false;
    }
    if (check_ == nullptr) {
        startCheck(std::move(files));
    } else if (check_->cancelRequested) {
        std::move(files.begin(), files.end(), std::back_inserter(nextCheck_));
    } else {
        check_->join(std::move(files));
    }
    return true;
}

void Burner::cancelToAddFiles() {
    if (check_ == nullptr) {
        return;
    }
    check_->cancelRequested = true;
    check_->stop.request_stop();
    check_->late.clear();
    nextCheck_.clear();
}

void Burner::startCheck(std::vector<BurnFile> files) {
    check_ = std::make_unique<CheckRun>(*this);
    check_->join(std::move(files));
    announcer_.later([this] {
        announcer_.tellCheckStarted();
        if (check_ != nullptr) {
            runCheck();
        }
    });
}

void Burner::runCheck() {
    CheckRun *const run = check_.get();
    try {
        run->thread = startWorkerThread("scorch-check", [this, run, check = kind_->check()] {
            CheckRefusals refusals = runSafely(check, run->queue, *run, run->stop.get_token());
            post([this, refusals = std::move(refusals)] { checkThreadEnded(refusals); });
        });
    } catch (const std::system_error &failure) {
        run->cancelRequested = false;
        checkThreadEnded({{}, {brokenOff(failure.what())}});
    }
}

void Burner::itemAccepted(const std::shared_ptr<Item> &item) {
    kind_->adopt(*item);
    list_.append(item);
    announcer_.now([this, item] {
        announcer_.tell([&item](ScorchDelegate &delegate) { delegate.fileDidAdded(item); });
    });
}

void Burner::checkThreadEnded(CheckRefusals refusals) {
    if (check_->thread.joinable()) {
        check_->thread.join(); // At its end already.
    }
    appendTo(check_->refusals.protectedFiles, std::move(refusals.protectedFiles));
    appendTo(check_->refusals.incompatibleFiles, std::move(refusals.incompatibleFiles));
    announcer_.now([this] { endCheck(); }, Announcer::Wait::forCapacity);
}

void Burner::endCheck() {
    if (!check_->late.empty()) {
        check_->queue.reopen();
        check_->queue.join(check_->late);
        check_->late.clear();
        runCheck();
        return;
    }
    const std::unique_ptr<CheckRun> run = std::move(check_);
    if (!nextCheck_.empty()) {
        startCheck(std::exchange(nextCheck_, {}));
    }
    if (run->cancelRequested) {
        announcer_.tellCheckEnded(
            [](ScorchDelegate &delegate) { delegate.addFilesProgressDidCanceled(); });
        return;
    }
    const AddFilesResult result(std::move(run->refusals.protectedFiles),
                                std::move(run->refusals.incompatibleFiles));
    announcer_.tellCheckEnded(
        [&result](ScorchDelegate &delegate) { delegate.addFilesProgressDidEnd(result); });
}

} // namespace scorch
