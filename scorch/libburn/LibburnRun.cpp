// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/libburn/LibburnRun.h"

#include "scorch/libburn/RecordingErrors.h"

#include <algorithm>
#include <thread>
#include <utility>
#include <vector>

namespace scorch {
namespace {

using namespace std::chrono_literals;

/// How often libburn is asked; a stop request is noticed as often.
constexpr auto lookInterval = 50ms;
/// How often it is looked whether libburn's worker has gone.
constexpr auto workerInterval = 5ms;
/// So much room is waited for before the sources are asked again.
constexpr std::size_t worthwhileBytes = 1U << 18U;

} // namespace

Outcome<> LibburnRun::write(const std::optional<CdText> &text, int speed,
                            const std::stop_token &stop) {
    if (auto started = start(text, speed, stop); !started) {
        return started;
    }
    progressed_ = Clock::now();
    looked_ = {};
    follow(stop);
    auto ended = result();
    const std::vector<LibburnMessage> errors = parts_.inbox.errors();
    wasTextRefused_ = !ended && !reason_ && !wasGivenUp_ && text &&
                      parts_.ring->bytesTaken() == 0 &&
                      std::any_of(errors.begin(), errors.end(), isCueSheetRefusal);
    return ended;
}

/// A refusal for a worker that still lives would look like success from then on.
Outcome<> LibburnRun::start(const std::optional<CdText> &text, int speed,
                            const std::stop_token &stop) {
    const auto deadline = Clock::now() + parts_.patience.worker;
    while (true) {
        auto start = LibburnSession::Start::impossible;
        bool isIdle = true;
        const bool didRun = parts_.thread.run([&] {
            parts_.inbox.clear();
            start = parts_.session.write(parts_.plan, text, speed, parts_.ring);
            isIdle = parts_.session.isIdle();
        });
        if (!didRun || start == LibburnSession::Start::impossible) {
            wasTextRefused_ = didRun && text.has_value();
            return Interruption(errorOfDrive());
        }
        const std::vector<LibburnMessage> errors = parts_.inbox.errors();
        const bool isRefused = isIdle && std::any_of(errors.begin(), errors.end(), isBusyRefusal);
        if (start == LibburnSession::Start::asked && !isRefused) {
            return {};
        }
        if (stop.stop_requested()) {
            return Interruption(Cancelled{});
        }
        if (Clock::now() > deadline) {
            return Interruption(errorOfDrive());
        }
        std::this_thread::sleep_for(lookInterval);
    }
}

void LibburnRun::follow(const std::stop_token &stop) {
    while (!isIdle_ && !wasGivenUp_) {
        if (!isBrokenOff_ && stop.stop_requested() && !isAllTaken()) {
            breakOff(Cancelled{});
        }
        if (!isBrokenOff_) {
            feed(stop);
        }
        if (Clock::now() - looked_ >= lookInterval) {
            watch();
        }
        if (!isIdle_) {
            pause();
        }
    }
    if (isIdle_) {
        awaitWorkersEnd();
    }
}

/// Its last messages say why it failed, and must not be taken for those of the next job.
void LibburnRun::awaitWorkersEnd() {
    const auto deadline = Clock::now() + parts_.patience.worker;
    while (!parts_.inbox.hasWorkerEnded() && Clock::now() < deadline) {
        std::this_thread::sleep_for(workerInterval);
        parts_.thread.run([] {});
    }
}

void LibburnRun::feed(const std::stop_token &stop) {
    if (parts_.pump.isFinished()) {
        return;
    }
    if (auto fed = parts_.pump.step(stop); !fed) {
        breakOff(fed.error());
    }
}

void LibburnRun::watch() {
    looked_ = Clock::now();
    parts_.thread.run([this] { isIdle_ = parts_.session.isIdle(); });
    const std::uint64_t taken = parts_.ring->bytesTaken();
    parts_.stages.reached(static_cast<std::int64_t>(taken / parts_.plan.bytesPerSector()));
    if (taken != takenBefore_) {
        takenBefore_ = taken;
        progressed_ = looked_;
    }
    if (isIdle_) {
        return;
    }
    const auto quiet = looked_ - progressed_;
    if (isBrokenOff_) {
        wasGivenUp_ = quiet > parts_.patience.rest;
    } else if (parts_.inbox.hasFailure()) {
        breakOff(std::nullopt); // libburn goes on where a drive does not answer.
    } else if (quiet > parts_.patience.progress) {
        breakOff(driveError(
            {.kind = MmcError::Kind::timedOut, .sense = {}, .systemError = 0, .command = "writing"},
            parts_.context));
    }
}

/// Until there is something to do, or to look at.
void LibburnRun::pause() {
    if (isBrokenOff_ || parts_.pump.isFinished()) {
        std::this_thread::sleep_for(lookInterval);
    } else {
        parts_.ring->waitForRoom(worthwhileBytes, lookInterval);
    }
}

/// First the drive, so that the end of the source is not taken for the end of the track.
void LibburnRun::breakOff(std::optional<Interruption> reason) {
    isBrokenOff_ = true;
    reason_ = std::move(reason);
    parts_.thread.run([this] { parts_.session.cancel(); });
    parts_.ring->abort();
    progressed_ = Clock::now();
}

bool LibburnRun::isAllTaken() const {
    const auto total = static_cast<std::uint64_t>(parts_.plan.total());
    return parts_.ring->bytesTaken() == total * parts_.plan.bytesPerSector();
}

Outcome<> LibburnRun::result() {
    if (reason_) {
        return *reason_;
    }
    if (wasGivenUp_ || parts_.inbox.hasFailure()) {
        return Interruption(errorOfDrive());
    }
    bool isWell = false;
    std::vector<TrackCounters> counters;
    parts_.thread.run([&] {
        isWell = parts_.session.wroteWell();
        counters = parts_.session.counters();
    });
    if (!isWell || parts_.inbox.hasFailure()) {
        return Interruption(errorOfDrive());
    }
    for (std::size_t index = 0; index < parts_.plan.sectors.size(); ++index) {
        const auto planned =
            static_cast<std::uint64_t>(parts_.plan.sectors[index]) * parts_.plan.bytesPerSector();
        if (counters[index].read != planned || counters[index].written != planned) {
            return Interruption(wrongDiscError(
                parts_.context.driveName,
                "track " + std::to_string(index + 1) + ": " + std::to_string(counters[index].read) +
                    " bytes read, " + std::to_string(counters[index].written) + " written, of " +
                    std::to_string(planned)));
        }
    }
    return {};
}

ScorchError LibburnRun::errorOfDrive() const {
    return recordingError(parts_.inbox.errors(), parts_.context);
}

} // namespace scorch
