// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/ScorchString.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

constexpr std::int64_t smallest = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();

std::string duration(std::int64_t frames) {
    return stringWithDurationFramesEnabled(frames, false);
}

std::string exactDuration(std::int64_t frames) {
    return stringWithDurationFramesEnabled(frames, true);
}

class FileSize : public testing::Test {
protected:
    void TearDown() override { ScorchHooks::shared() = {}; }
};

} // namespace

TEST(Duration, MinutesRunPastAnHour) {
    EXPECT_EQ(duration(0), "0:00");
    EXPECT_EQ(duration(75 * 9), "0:09");
    EXPECT_EQ(duration(75 * 60), "1:00");
    EXPECT_EQ(duration(359'849), "79:57");
    EXPECT_EQ(duration(std::int64_t{75} * 60 * 1234), "1234:00");
}

TEST(Duration, RestOfASecondIsDropped) {
    EXPECT_EQ(duration(74), "0:00");
    EXPECT_EQ(duration(75), "0:01");
    EXPECT_EQ(duration(75 * 60 - 1), "0:59");
}

TEST(Duration, FramesStandBehindTheSeconds) {
    EXPECT_EQ(exactDuration(0), "0:00:00");
    EXPECT_EQ(exactDuration(74), "0:00:74");
    EXPECT_EQ(exactDuration(359'849), "79:57:74");
    EXPECT_EQ(exactDuration(75 * 61 + 5), "1:01:05");
}

TEST(Duration, NegativeValueKeepsItsSign) {
    EXPECT_EQ(duration(-75), "-0:01");
    EXPECT_EQ(duration(-75 * 61), "-1:01");
    EXPECT_EQ(exactDuration(-1), "-0:00:01");
}

TEST(Duration, ZeroHasNoSign) {
    EXPECT_EQ(duration(-74), "0:00");
    EXPECT_EQ(exactDuration(0), "0:00:00");
}

TEST(Duration, LimitsOfTheTypeAreShown) {
    EXPECT_EQ(exactDuration(largest), "2049638230412172:24:07");
    EXPECT_EQ(exactDuration(smallest), "-2049638230412172:24:08");
}

TEST_F(FileSize, BelowAThousandBytesAreCounted) {
    EXPECT_EQ(stringWithFilesize(0), "0 bytes");
    EXPECT_EQ(stringWithFilesize(1), "1 byte");
    EXPECT_EQ(stringWithFilesize(2), "2 bytes");
    EXPECT_EQ(stringWithFilesize(999), "999 bytes");
}

TEST_F(FileSize, UnitsAreThoseOfFileManagers) {
    EXPECT_EQ(stringWithFilesize(1000), "1.0 kB");
    EXPECT_EQ(stringWithFilesize(12'345), "12.3 kB");
    EXPECT_EQ(stringWithFilesize(736'970'752), "737.0 MB");
    EXPECT_EQ(stringWithFilesize(4'700'000'000), "4.7 GB");
    EXPECT_EQ(stringWithFilesize(2'000'000'000'000), "2.0 TB");
    EXPECT_EQ(stringWithFilesize(3'000'000'000'000'000), "3.0 PB");
    EXPECT_EQ(stringWithFilesize(largest), "9.2 EB");
}

TEST_F(FileSize, HalfOfATenthIsRoundedUp) {
    EXPECT_EQ(stringWithFilesize(1049), "1.0 kB");
    EXPECT_EQ(stringWithFilesize(1050), "1.1 kB");
    EXPECT_EQ(stringWithFilesize(1'249'999), "1.2 MB");
    EXPECT_EQ(stringWithFilesize(1'250'000), "1.3 MB");
}

TEST_F(FileSize, RoundingNeverShowsAThousandOfAUnit) {
    EXPECT_EQ(stringWithFilesize(999'949), "999.9 kB");
    EXPECT_EQ(stringWithFilesize(999'950), "1.0 MB");
    EXPECT_EQ(stringWithFilesize(999'949'999), "999.9 MB");
    EXPECT_EQ(stringWithFilesize(999'950'000), "1.0 GB");
    EXPECT_EQ(stringWithFilesize(999'950'000'000'000'000), "1.0 EB");
}

TEST_F(FileSize, NegativeValueKeepsItsSign) {
    EXPECT_EQ(stringWithFilesize(-1), "-1 byte");
    EXPECT_EQ(stringWithFilesize(-1500), "-1.5 kB");
    EXPECT_EQ(stringWithFilesize(smallest), "-9.2 EB");
}

TEST_F(FileSize, DecimalMarkIsTheUsers) {
    ScorchHooks::shared().decimalMark = [] {
        return std::string("\xD9\xAB");
    };
    EXPECT_EQ(stringWithFilesize(1500), "1\xD9\xAB"
                                        "5 kB");
    EXPECT_EQ(stringWithFilesize(500), "500 bytes");
}

TEST_F(FileSize, UnitsAreTranslated) {
    ScorchHooks::shared().localizedText = [](std::string_view key) {
        return key == "bytes" ? std::string("octets") : key == "kB" ? "ko" : std::string(key);
    };
    EXPECT_EQ(stringWithFilesize(5), "5 octets");
    EXPECT_EQ(stringWithFilesize(5000), "5.0 ko");
    EXPECT_EQ(stringWithFilesize(1), "1 byte");
}
