// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/burner/ProgressMeter.h"

#include <algorithm>
#include <chrono>
#include <cmath>

namespace scorch {
namespace {

using Seconds = std::chrono::duration<double>;

/// Reading a sector back, counted in writing one: discs and disc images alike are read at twice
/// the speed at which they are written, roughly.
constexpr double verifyWork = 0.5;
/// What remains when the last sector is through: closing, flushing, naming.
constexpr double closingShare = 0.01;

constexpr auto reportInterval = std::chrono::milliseconds(250);
constexpr auto stageReadingTime = std::chrono::seconds(1);
constexpr Seconds measureInterval(0.25);
/// How long a change of speed takes to show: long enough for a drive that waits for its buffer.
constexpr double smoothingSeconds = 4;
constexpr double framesPerSecond = 75;

/// How far the clock that runs down may be off before it is put right faster.
double toleratedSeconds(double shown) {
    return std::max(1.5, shown * 0.1);
}

} // namespace

ProgressMeter::ProgressMeter(std::int64_t sectors, bool verified)
    : totalWork_(static_cast<double>(std::max<std::int64_t>(sectors, 1)) *
                 (verified ? 1 + verifyWork : 1) * (1 + closingShare)) {}

void ProgressMeter::stageBegan(Moment now) {
    stageAt_ = now;
    if (!measuredAt_) {
        measuredAt_ = now;
    }
}

std::optional<BurnProgress> ProgressMeter::wrote(std::int64_t sectors, Moment now) {
    written_ = std::max(written_, sectors);
    return advance(now);
}

std::optional<BurnProgress> ProgressMeter::verified(std::int64_t sectors, Moment now) {
    verified_ = std::max(verified_, sectors);
    return advance(now);
}

double ProgressMeter::workDone() const {
    return static_cast<double>(written_) + static_cast<double>(verified_) * verifyWork;
}

std::optional<BurnProgress> ProgressMeter::advance(Moment now) {
    fraction_ = std::max(fraction_, std::min(workDone() / totalWork_, 1.0));
    measure(now);
    if (stageAt_ && now - *stageAt_ < stageReadingTime) {
        return std::nullopt;
    }
    if (speed_ <= 0 || (reportAt_ && now - *reportAt_ < reportInterval)) {
        return std::nullopt;
    }
    reportAt_ = now;
    steer(now);
    const double seconds = std::max(std::ceil(*shownSeconds_), 1.0);
    return BurnProgress{fraction_, static_cast<std::uint64_t>(seconds * framesPerSecond)};
}

void ProgressMeter::measure(Moment now) {
    if (!measuredAt_) {
        measuredAt_ = now;
        measuredWork_ = workDone();
        return;
    }
    const Seconds passed = now - *measuredAt_;
    if (passed < measureInterval) {
        return;
    }
    const double work = workDone();
    const double current = (work - measuredWork_) / passed.count();
    measuredSeconds_ += passed.count();
    // At first the plain average of what was measured; later what is newer weighs more.
    const double horizon = std::min(measuredSeconds_, smoothingSeconds);
    speed_ += (current - speed_) * std::min(passed.count() / horizon, 1.0);
    measuredAt_ = now;
    measuredWork_ = work;
}

/// The time left runs down by itself. The measured value pulls it, gently while both are close,
/// and never makes it run backwards for a trifle.
void ProgressMeter::steer(Moment now) {
    const double estimate = std::max(totalWork_ - workDone(), 0.0) / speed_;
    if (!shownSeconds_) {
        shownSeconds_ = estimate;
        shownAt_ = now;
        return;
    }
    const double before = *shownSeconds_;
    const double expected = std::max(before - Seconds(now - shownAt_).count(), 0.0);
    const double off = estimate - expected;
    const bool close = std::abs(off) <= toleratedSeconds(expected);
    const double steered = expected + off * (close ? 0.05 : 0.2);
    shownSeconds_ = close ? std::min(steered, before) : steered;
    shownAt_ = now;
}

} // namespace scorch
