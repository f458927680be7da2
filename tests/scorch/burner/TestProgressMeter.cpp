// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/burner/ProgressMeter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

using namespace scorch;
using namespace std::chrono_literals;

namespace {

constexpr std::int64_t sectors = 100'000;

class ProgressMeterTest : public testing::Test {
protected:
    /// Writes up to `end` at a speed, told every 10 ms; keeps the reports.
    void writeTo(std::int64_t end, double sectorsPerSecond) {
        double position = static_cast<double>(position_);
        while (position_ < end) {
            now_ += 10ms;
            position += sectorsPerSecond / 100;
            position_ = std::min(end, static_cast<std::int64_t>(position));
            keep(meter_.wrote(position_, now_));
        }
    }
    void verifyTo(std::int64_t end, double sectorsPerSecond) {
        double position = 0;
        while (position < static_cast<double>(end)) {
            now_ += 10ms;
            position += sectorsPerSecond / 100;
            keep(meter_.verified(std::min(end, static_cast<std::int64_t>(position)), now_));
        }
    }
    void keep(const std::optional<BurnProgress> &report) {
        if (report) {
            reports_.push_back(*report);
            times_.push_back(now_);
        }
    }

    ProgressMeter meter_{sectors, true};
    Moment now_{1h};
    std::int64_t position_ = 0;
    std::vector<BurnProgress> reports_;
    std::vector<Moment> times_;
};

} // namespace

TEST_F(ProgressMeterTest, ReportsAtMostFourTimesASecond) {
    meter_.stageBegan(now_);
    writeTo(sectors, 10'000);
    ASSERT_GT(reports_.size(), 20U);
    for (std::size_t index = 1; index < times_.size(); ++index) {
        EXPECT_GE(times_[index] - times_[index - 1], 250ms);
    }
}

TEST_F(ProgressMeterTest, AStagesTextStandsForASecond) {
    meter_.stageBegan(now_);
    const Moment first = now_;
    writeTo(sectors / 2, 10'000);
    ASSERT_FALSE(times_.empty());
    EXPECT_GE(times_.front() - first, 1s);
    meter_.stageBegan(now_);
    const Moment second = now_;
    const std::size_t before = times_.size();
    writeTo(sectors, 10'000);
    ASSERT_GT(times_.size(), before);
    EXPECT_GE(times_[before] - second, 1s);
}

TEST_F(ProgressMeterTest, TheFractionNeverFallsAndIsShortOfOne) {
    meter_.stageBegan(now_);
    writeTo(sectors, 10'000);
    meter_.stageBegan(now_);
    verifyTo(sectors, 20'000);
    double last = 0;
    for (const BurnProgress &report : reports_) {
        EXPECT_GE(report.fraction, last);
        EXPECT_LT(report.fraction, 1);
        last = report.fraction;
    }
    EXPECT_GT(last, 0.9);
}

TEST_F(ProgressMeterTest, TheFractionCoversTheVerificationToo) {
    meter_.stageBegan(now_);
    writeTo(sectors, 10'000);
    EXPECT_LT(reports_.back().fraction, 0.7);
    ProgressMeter unverified(sectors, false);
    unverified.stageBegan(now_);
    unverified.wrote(sectors / 2, now_ + 1s);
    const auto report = unverified.wrote(sectors, now_ + 2s);
    ASSERT_TRUE(report);
    EXPECT_GT(report->fraction, 0.95);
}

TEST_F(ProgressMeterTest, ASectorCountThatFallsIsNotBelieved) {
    meter_.stageBegan(now_);
    const auto high = meter_.wrote(sectors / 2, now_ + 2s);
    const auto low = meter_.wrote(10, now_ + 3s);
    ASSERT_TRUE(high && low);
    EXPECT_EQ(high->fraction, low->fraction);
}

TEST_F(ProgressMeterTest, TheTimeLeftIsTheRestAtTheMeasuredSpeed) {
    meter_.stageBegan(now_);
    writeTo(sectors / 2, 1'000); // 50 s; as much again to write, and as much to read back.
    const double seconds = static_cast<double>(reports_.back().leftFrames) / 75;
    EXPECT_NEAR(seconds, 100, 5);
}

TEST_F(ProgressMeterTest, TheTimeLeftIsInWholeSecondsAndNeverZero) {
    meter_.stageBegan(now_);
    writeTo(sectors, 10'000);
    verifyTo(sectors, 20'000);
    for (const BurnProgress &report : reports_) {
        EXPECT_EQ(report.leftFrames % 75, 0U);
        EXPECT_GE(report.leftFrames, 75U);
    }
}

TEST_F(ProgressMeterTest, TheTimeLeftRunsDownEvenlyAtAnUnevenSpeed) {
    meter_.stageBegan(now_);
    // A drive that takes in a buffer and then waits: the speed alternates every 300 ms.
    for (int step = 0; position_ < sectors; ++step) {
        const double speed = step % 2 == 0 ? 1'900 : 100;
        writeTo(std::min<std::int64_t>(position_ + static_cast<std::int64_t>(speed * 0.3), sectors),
                speed);
    }
    int rises = 0;
    for (std::size_t index = 1; index < reports_.size(); ++index) {
        rises += reports_[index].leftFrames > reports_[index - 1].leftFrames ? 1 : 0;
        const double change = std::abs(static_cast<double>(reports_[index].leftFrames) -
                                       static_cast<double>(reports_[index - 1].leftFrames));
        EXPECT_LE(change, 10 * 75.0);
    }
    EXPECT_LE(rises, 3);
}

TEST_F(ProgressMeterTest, ADriveThatBecomesSlowIsNoticedWithinSeconds) {
    meter_.stageBegan(now_);
    writeTo(sectors / 4, 10'000);
    writeTo(sectors / 4 + 20'000, 1'000); // For 20 s.
    const double seconds = static_cast<double>(reports_.back().leftFrames) / 75;
    EXPECT_NEAR(seconds, (sectors * 0.55 + sectors * 0.5) / 1'000, 20);
}

TEST_F(ProgressMeterTest, NothingIsReportedBeforeAnythingWasMeasured) {
    meter_.stageBegan(now_);
    EXPECT_FALSE(meter_.wrote(0, now_ + 5s));
    EXPECT_TRUE(meter_.wrote(1'000, now_ + 6s));
}
