// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/Json.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <limits>

using cli::JsonObject;

TEST(Json, MembersStandInOneLine) {
    EXPECT_EQ(JsonObject("x").add("a", "b").add("n", std::int64_t{-3}).add("t", true).line(),
              "{\"event\":\"x\",\"a\":\"b\",\"n\":-3,\"t\":true}\n");
}

TEST(Json, LargestNumbersAreWhole) {
    EXPECT_EQ(JsonObject("x").add("n", std::numeric_limits<std::uint64_t>::max()).line(),
              "{\"event\":\"x\",\"n\":18446744073709551615}\n");
}

TEST(Json, TextIsEscaped) {
    EXPECT_EQ(JsonObject("x").add("a", "\"\\\n\x1b\x7f\xC2\x9B/\xC3\xA9").line(),
              "{\"event\":\"x\",\"a\":\"\\\"\\\\\\u000a\\u001b\\u007f\\u009b/\xC3\xA9\"}\n");
}

TEST(Json, BytesThatAreNoTextAreReplaced) {
    EXPECT_EQ(JsonObject("x").add("a", "\xC2\xFF").line(),
              "{\"event\":\"x\",\"a\":\"\xEF\xBF\xBD\xEF\xBF\xBD\"}\n");
}

TEST(Json, PathThatIsNoTextKeepsItsBytesBeside) {
    EXPECT_EQ(JsonObject("x").addPath("/a b").line(), "{\"event\":\"x\",\"path\":\"/a b\"}\n");
    EXPECT_EQ(JsonObject("x").addPath("/a %\xE9").line(),
              "{\"event\":\"x\",\"path\":\"/a %\xEF\xBF\xBD\","
              "\"pathPercentEncoded\":\"/a%20%25%E9\"}\n");
}

TEST(Json, FractionsHaveFourPlacesAndAPoint) {
    EXPECT_EQ(JsonObject("x").addFraction("f", 0.25).line(), "{\"event\":\"x\",\"f\":0.2500}\n");
    EXPECT_EQ(JsonObject("x").addFraction("f", 1).line(), "{\"event\":\"x\",\"f\":1.0000}\n");
}

TEST(Json, FractionThatIsNoNumberIsZero) {
    EXPECT_EQ(JsonObject("x").addFraction("f", std::nan("")).line(), "{\"event\":\"x\",\"f\":0}\n");
    EXPECT_EQ(JsonObject("x").addFraction("f", HUGE_VAL).line(), "{\"event\":\"x\",\"f\":0}\n");
}
