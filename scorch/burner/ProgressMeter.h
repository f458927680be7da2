// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/burner/BurnEvents.h"
#include "scorch/support/Clock.h"

#include <cstdint>
#include <optional>

namespace scorch {

/// Turns sectors written and read back into what a person reads: the part of the whole job that is
/// done, which never falls and is short of 1 until the job has ended, and the time left, which runs
/// down like a clock and follows the measured speed slowly, so that it can be read. Pure: it is
/// given the time with each call. One thread.
class ProgressMeter {
public:
    /// `sectors` of the whole disc; `verified` if they are read back after they were written.
    ProgressMeter(std::int64_t sectors, bool verified);

    /// A stage was announced, whose text stays to be read for a second: no report before.
    void stageBegan(Moment now);

    /// Sectors of the whole disc written, or read back, so far. A report if one is due: at most
    /// four a second, and none before the speed has been measured.
    std::optional<BurnProgress> wrote(std::int64_t sectors, Moment now);
    std::optional<BurnProgress> verified(std::int64_t sectors, Moment now);

private:
    std::optional<BurnProgress> advance(Moment now);
    double workDone() const;
    void measure(Moment now);
    void steer(Moment now);

    const double totalWork_;
    std::int64_t written_ = 0;
    std::int64_t verified_ = 0;
    double fraction_ = 0;

    std::optional<Moment> measuredAt_; ///< Of the last measurement of the speed.
    double measuredWork_ = 0;
    double measuredSeconds_ = 0; ///< In all.
    double speed_ = 0;           ///< Work a second, smoothed.

    std::optional<double> shownSeconds_; ///< Left, as last shown.
    Moment shownAt_;

    std::optional<Moment> stageAt_;
    std::optional<Moment> reportAt_;
};

} // namespace scorch
