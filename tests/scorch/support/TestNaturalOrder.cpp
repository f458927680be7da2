// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/support/NaturalOrder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

using scorch::naturalLess;

namespace {

void expectOrder(const std::vector<std::string> &ascending) {
    for (std::size_t i = 0; i < ascending.size(); ++i) {
        for (std::size_t j = 0; j < ascending.size(); ++j) {
            EXPECT_EQ(naturalLess(ascending[i], ascending[j]), i < j)
                << '"' << ascending[i] << "\" and \"" << ascending[j] << '"';
        }
    }
}

} // namespace

TEST(NaturalOrder, NumbersCompareByValue) {
    expectOrder({"0", "1", "2", "9", "10", "99", "100"});
    expectOrder({"Track 1.mp3", "Track 2.mp3", "Track 10.mp3"});
    expectOrder({"1-2-3", "1-2-10", "1-10-1", "2"});
}

TEST(NaturalOrder, NumbersOfAnyLengthCompareByValue) {
    const std::string big = "1" + std::string(60, '0');
    expectOrder({"18446744073709551615", "18446744073709551616", big, big.substr(0, 60) + "1"});
}

TEST(NaturalOrder, LeadingZerosOnlyBreakTies) {
    expectOrder({"1", "01", "001", "2", "02"});
    expectOrder({"1a", "01a", "1b"});
    expectOrder({"0", "00", "000"});
    expectOrder({"1 01", "01 1"});
}

TEST(NaturalOrder, CaseOnlyBreaksTies) {
    expectOrder({"A", "a", "B", "b"});
    expectOrder({"ALPHA 2", "alpha 2", "Alpha 10"});
}

TEST(NaturalOrder, PrefixComesFirst) {
    expectOrder({"", "a", "a1", "a1b", "ab"});
}

TEST(NaturalOrder, BytesBeyondAsciiFollowTheLetters) {
    expectOrder({"z", "\x80", "\xc3\xa9", "\xff"});
}

TEST(NaturalOrder, DigitsStandBetweenTheBytesAroundThem) {
    expectOrder({" x", "/x", "0", "5", "12", ":x", "x"});
}

TEST(NaturalOrder, IsATotalOrderOverRandomNames) {
    std::mt19937 random(7); // NOLINT(*-msc51-cpp): the same names in every run
    static constexpr std::string_view letters = "0019aAbB ._\xff";
    std::vector<std::string> names(60);
    for (std::string &name : names) {
        name.resize(random() % 6);
        std::generate(name.begin(), name.end(), [&] { return letters[random() % letters.size()]; });
    }
    for (const std::string &a : names) {
        for (const std::string &b : names) {
            EXPECT_EQ(naturalLess(a, b) + naturalLess(b, a), a == b ? 0 : 1);
            for (const std::string &c : names) {
                EXPECT_TRUE(!naturalLess(a, b) || !naturalLess(b, c) || naturalLess(a, c));
            }
        }
    }
}
