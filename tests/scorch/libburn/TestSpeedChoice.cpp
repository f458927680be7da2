// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/libburn/SpeedChoice.h"

#include "scorch/support/DiscContent.h"

#include <gmock/gmock.h>

#include <limits>

using namespace scorch;

namespace {

const std::vector<int> speeds = {9173, 5645, 2822, 1411, 706}; // 52x 32x 16x 8x 4x

/// What the sources deliver, in multiples of 1x.
int chosenAt(double multiple) {
    return chooseSpeed(speeds, multiple * sectorsPerSecondAt1x);
}

} // namespace

TEST(SpeedChoice, SourcesThatAreFastEnoughGetTheFastest) {
    EXPECT_EQ(chosenAt(std::numeric_limits<double>::infinity()), 9173);
    EXPECT_EQ(chosenAt(65.1), 9173);
}

TEST(SpeedChoice, AFifthIsKeptInHand) {
    EXPECT_EQ(chosenAt(64.9), 5645);
    EXPECT_EQ(chosenAt(40.1), 5645);
    EXPECT_EQ(chosenAt(39.9), 2822);
    EXPECT_EQ(chosenAt(5.1), 706);
}

TEST(SpeedChoice, SlowestIsTakenWhereNoneIsSlowEnough) {
    EXPECT_EQ(chosenAt(1.0), 706);
    EXPECT_EQ(chosenAt(0.0), 706);
}

TEST(SpeedChoice, DriveThatNamesNoSpeedsChoosesItself) {
    EXPECT_EQ(chooseSpeed({}, 1000), 0);
}

TEST(SpeedChoice, OrderOfTheListDoesNotMatter) {
    EXPECT_EQ(chooseSpeed({706, 9173, 1411}, 1000 * sectorsPerSecondAt1x), 9173);
}

TEST(RingSize, LastsFourSecondsAtTheFastestSpeed) {
    for (const std::vector<int> &list : {speeds, std::vector<int>{4234}, std::vector<int>{}}) {
        const double fastest = list.empty() ? 9173 : list.front();
        const auto bytes = static_cast<double>(ringBytes(list, audioSectorBytes, 359'849));
        EXPECT_GE(bytes, 4 * fastest * 1000);
    }
}

TEST(RingSize, StaysWithinItsLimits) {
    EXPECT_GE(ringBytes({176}, audioSectorBytes, 359'849), 3'990'000U);
    EXPECT_LE(ringBytes({20'000}, audioSectorBytes, 359'849), 40'000'000U);
    EXPECT_EQ(ringBytes(speeds, audioSectorBytes, 300), 300 * audioSectorBytes);
    EXPECT_EQ(ringBytes(speeds, dataSectorBytes, 359'849) % dataSectorBytes, 0U);
}
