// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/burner/Announcer.h"

#include <utility>

namespace scorch {
namespace {

void sendStage(ScorchDelegate &delegate, const BurnStage &stage) {
    switch (stage.kind) {
    case BurnStageKind::preparing:
        delegate.burnProgressIsPreparing();
        break;
    case BurnStageKind::openingTrack:
        delegate.burnProgressIsOpeningTrackOf(stage.track, stage.count);
        break;
    case BurnStageKind::writingTrack:
        delegate.burnProgressIsWriteingTrackOf(stage.track, stage.count);
        break;
    case BurnStageKind::closedTrack:
        delegate.burnProgressDidCloseTrackOf(stage.track, stage.count);
        break;
    case BurnStageKind::closedSession:
        delegate.burnProgressDidCloseSession();
        break;
    case BurnStageKind::finishing:
        delegate.burnProgressIsFinishing();
        break;
    case BurnStageKind::verifying:
        delegate.burnProgressIsVerifying();
        break;
    }
}

} // namespace

Announcer::Announcer(PostTask post, Settle settle)
    : post_(std::move(post)), settle_(std::move(settle)) {}

void Announcer::setDelegate(ScorchDelegate *delegate) {
    if (delegate == delegate_.get()) {
        return;
    }
    delegate_.set(delegate);
    ++generation_;
    replayDue_ = delegate != nullptr && (checkRuns_ || burnRuns_);
    if (replayDue_) {
        post_([this] { replayIfNew(); });
    }
}

void Announcer::answer(Call call, Wait wait) {
    later(
        [this, generation = generation_, call = std::move(call)] {
            if (generation == generation_) {
                tell(call);
            }
        },
        wait);
}

void Announcer::later(Step step, Wait wait) {
    steps_.push_back({std::move(step), wait});
    postRun();
}

void Announcer::now(Step step, Wait wait) {
    steps_.push_back({std::move(step), wait});
    run();
}

void Announcer::postRun() {
    post_([this] { run(); });
}

/// A step may run an event loop of its own, and with it this: each is taken off before it is run,
/// so that the order holds.
void Announcer::run() {
    while (!ended_ && !steps_.empty() && mayRun(steps_.front().wait)) {
        const Step step = std::move(steps_.front().step);
        steps_.pop_front();
        step();
    }
}

bool Announcer::mayRun(Wait wait) {
    if (wait == Wait::no || (wait == Wait::forCapacityWhenIdle && checkRuns_)) {
        return true;
    }
    return settle_();
}

void Announcer::shutDown() {
    ended_ = true;
    steps_.clear();
}

void Announcer::replayIfNew() {
    if (ended_ || !std::exchange(replayDue_, false)) {
        return;
    }
    if (ScorchDelegate *const delegate = delegate_.get()) {
        replayTo(*delegate);
    }
}

void Announcer::replayTo(ScorchDelegate &delegate) const {
    // Copies, and the slot again each time: any of these calls may end in another state.
    const auto present = [this, &delegate] {
        return delegate_.get() == &delegate;
    };
    if (checkRuns_) {
        delegate.addFilesProgressDidStarted();
        if (const auto progress = checkProgress_; progress && present()) {
            delegate.addFilesProgressDidChangedIndexOf(progress->name, progress->index,
                                                       progress->count);
        }
    }
    if (burnRuns_ && present()) {
        const auto stage = burnStage_;
        const auto progress = burnProgress_;
        const bool stageLast = stageIsLatest_; // What is sent last is what the client shows.
        delegate.burnProgressDidStarted();
        if (stage && !stageLast && present()) {
            sendStage(delegate, *stage);
        }
        if (progress && present()) {
            delegate.burnProgressDidChanagedLefttime(progress->fraction, progress->leftFrames);
        }
        if (stage && stageLast && present()) {
            sendStage(delegate, *stage);
        }
    }
}

void Announcer::tell(const Call &call) {
    replayIfNew();
    if (ScorchDelegate *const delegate = delegate_.get()) {
        call(*delegate);
    }
}

void Announcer::tellCheckStarted() {
    checkRuns_ = true;
    checkProgress_.reset();
    tell([](ScorchDelegate &delegate) { delegate.addFilesProgressDidStarted(); });
}

void Announcer::tellCheckProgress(CheckProgress progress) {
    replayIfNew();
    checkProgress_ = progress;
    tell([&progress](ScorchDelegate &delegate) {
        delegate.addFilesProgressDidChangedIndexOf(progress.name, progress.index, progress.count);
    });
}

void Announcer::tellCheckEnded(const Call &call) {
    replayIfNew();
    checkRuns_ = false;
    checkProgress_.reset();
    tell(call);
}

void Announcer::tellBurnStarted() {
    burnRuns_ = true;
    burnStage_.reset();
    burnProgress_.reset();
    tell([](ScorchDelegate &delegate) { delegate.burnProgressDidStarted(); });
}

void Announcer::tellBurnStage(const BurnStage &stage) {
    replayIfNew();
    burnStage_ = stage;
    stageIsLatest_ = true;
    tell([&stage](ScorchDelegate &delegate) { sendStage(delegate, stage); });
}

void Announcer::tellBurnProgress(const BurnProgress &progress) {
    replayIfNew();
    burnProgress_ = progress;
    stageIsLatest_ = false;
    tell([&progress](ScorchDelegate &delegate) {
        delegate.burnProgressDidChanagedLefttime(progress.fraction, progress.leftFrames);
    });
}

void Announcer::tellBurnEnded(const Call &call) {
    replayIfNew();
    burnRuns_ = false;
    burnStage_.reset();
    burnProgress_.reset();
    tell(call);
}

} // namespace scorch
