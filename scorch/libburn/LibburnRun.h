// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/libburn/ContentPump.h"
#include "scorch/libburn/LibburnSession.h"
#include "scorch/libburn/LibburnThread.h"
#include "scorch/libburn/StageReporter.h"
#include "scorch/mmc/DriveErrors.h"
#include "scorch/support/Result.h"

#include <chrono>
#include <memory>
#include <optional>
#include <stop_token>

namespace scorch {

/// How long a recording waits for a drive.
struct RecordingPatience {
    /// For a disc to become ready, before and after it is written.
    std::chrono::milliseconds ready{60'000};
    /// For the next sector to be taken, or the end to come: longer than any drive takes to adjust
    /// its laser, to write texts into the lead-in, or to close a disc at its lowest speed.
    std::chrono::milliseconds progress{300'000};
    /// For rest, after writing was broken off.
    std::chrono::milliseconds rest{120'000};
    /// For libburn's worker to go when the drive is idle: until then libburn refuses new jobs. It
    /// takes half a second.
    std::chrono::milliseconds worker{5'000};
};

/// One attempt to write a session on a drive that libburn holds: feeds the ring, follows libburn,
/// and finds out how it ended, on which libburn's word is not enough. The burn thread alone.
class LibburnRun {
public:
    struct Parts {
        LibburnThread &thread;
        LibburnSession &session;
        MessageInbox &inbox;
        std::shared_ptr<SectorRing> ring;
        ContentPump &pump;
        StageReporter &stages;
        const SessionPlan &plan;
        DriveErrorContext context;
        RecordingPatience patience;
    };
    explicit LibburnRun(Parts parts) : parts_(std::move(parts)) {}

    /// Writes. Blocks until the drive is at rest, or is given up (wasGivenUp). A stop request, a
    /// source that fails and an error of the drive break the writing off within 200 ms; a stop
    /// request behind the last sector comes too late and is not heeded.
    Outcome<> write(const std::optional<CdText> &text, int speed, const std::stop_token &stop);

    /// The drive refused a plan with texts before it took any sector: it may take one without.
    bool wasTextRefused() const { return wasTextRefused_; }
    /// The drive did not come to rest: libburn still uses the session, which must be left to its
    /// thread.
    bool wasGivenUp() const { return wasGivenUp_; }

private:
    using Clock = std::chrono::steady_clock;

    Outcome<> start(const std::optional<CdText> &text, int speed, const std::stop_token &stop);
    void follow(const std::stop_token &stop);
    void feed(const std::stop_token &stop);
    void watch();
    void pause();
    void awaitWorkersEnd();
    void breakOff(std::optional<Interruption> reason);
    bool isAllTaken() const;
    Outcome<> result();
    ScorchError errorOfDrive() const;

    Parts parts_;
    std::optional<Interruption> reason_; ///< Ours, for which the writing was broken off.
    bool isBrokenOff_ = false;
    bool isIdle_ = false;
    bool wasTextRefused_ = false;
    bool wasGivenUp_ = false;
    std::uint64_t takenBefore_ = 0;
    Clock::time_point looked_;
    Clock::time_point progressed_;
};

} // namespace scorch
