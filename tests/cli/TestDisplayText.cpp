// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/DisplayText.h"

#include <gtest/gtest.h>

using namespace cli;

TEST(DisplayText, TextStaysAsItIs) {
    EXPECT_EQ(displayText("Caf\xC3\xA9 \xE6\x97\xA5\xE6\x9C\xAC \xF0\x9F\x8E\xB5"),
              "Caf\xC3\xA9 \xE6\x97\xA5\xE6\x9C\xAC \xF0\x9F\x8E\xB5");
}

TEST(DisplayText, BytesThatAreNoTextAreShownAsNumbers) {
    EXPECT_EQ(displayText("caf\xE9.mp3"), "caf\\xe9.mp3");
    EXPECT_EQ(displayText("\xC3"), "\\xc3");
    EXPECT_EQ(displayText("\xE6\x97"), "\\xe6\\x97");
}

TEST(DisplayText, TerminalIsNotDrivenByAFileName) {
    EXPECT_EQ(displayText("a\x1b[2J\n\x7f"), "a\\x1b[2J\\x0a\\x7f");
    EXPECT_EQ(displayText("\xC2\x9B"), "\\xc2\\x9b");          // CSI of C1
    EXPECT_EQ(displayText("\xE2\x80\xAE"), "\\xe2\\x80\\xae"); // right-to-left override
    EXPECT_EQ(displayText(std::string_view("a\0b", 3)), "a\\x00b");
}

TEST(DisplayText, Utf8IsJudgedStrictly) {
    EXPECT_TRUE(isUtf8(""));
    EXPECT_TRUE(isUtf8("\xF4\x8F\xBF\xBF"));
    EXPECT_FALSE(isUtf8("\xC0\x80"));         // overlong
    EXPECT_FALSE(isUtf8("\xE0\x80\x80"));     // overlong
    EXPECT_FALSE(isUtf8("\xED\xA0\x80"));     // surrogate
    EXPECT_FALSE(isUtf8("\xF4\x90\x80\x80")); // beyond Unicode
    EXPECT_FALSE(isUtf8("\x80"));
    EXPECT_FALSE(isUtf8("\xF8\x88\x80\x80\x80"));
}

TEST(DisplayText, RepairReplacesByteByByte) {
    EXPECT_EQ(repairedUtf8("a\xFF\xE9z"), "a\xEF\xBF\xBD\xEF\xBF\xBDz");
}

TEST(DisplayText, ColumnsFollowTheWidthOfCharacters) {
    EXPECT_EQ(columnsOf("abc"), 3U);
    EXPECT_EQ(columnsOf("\xE6\x97\xA5\xE6\x9C\xAC"), 4U); // two wide ones
    EXPECT_EQ(columnsOf("e\xCC\x81"), 1U);                // a combining accent
}

TEST(DisplayText, CutIsAtACharacterAndWithinTheColumns) {
    EXPECT_EQ(elided("abcdef", 6), "abcdef");
    EXPECT_EQ(elided("abcdef", 4), "abc…");
    EXPECT_EQ(elided("\xE6\x97\xA5\xE6\x9C\xAC\xE8\xAA\x9E", 4), "\xE6\x97\xA5…");
    EXPECT_EQ(elided("abc", 1), "…");
    EXPECT_EQ(elided("abc", 0), "");
}
