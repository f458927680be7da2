// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/drive/ImageFileName.h"

#include <gtest/gtest.h>

using namespace scorch;

TEST(ImageFileName, SlashesAndControlCharactersBecomeUnderscores) {
    EXPECT_EQ(imageFileStem("a/b\nc\x7F", TrackKind::data), "a_b_c_");
    EXPECT_EQ(imageFileStem("a\u0085b", TrackKind::data), "a_b");
    EXPECT_EQ(imageFileStem(std::string("a\0b", 3), TrackKind::data), "a_b");
}

TEST(ImageFileName, AnEmptyOrBlankNameIsUntitled) {
    EXPECT_EQ(imageFileStem("", TrackKind::data), "Untitled");
    EXPECT_EQ(imageFileStem("  ", TrackKind::audio), "Untitled");
}

TEST(ImageFileName, NoImageIsHidden) {
    EXPECT_EQ(imageFileStem(".hidden", TrackKind::data), "_hidden");
    EXPECT_EQ(imageFileStem("..", TrackKind::data), "_.");
}

TEST(ImageFileName, OnlyASoundImagesNameLosesItsQuotes) {
    EXPECT_EQ(imageFileStem("a \"b\"", TrackKind::audio), "a 'b'");
    EXPECT_EQ(imageFileStem("a \"b\"", TrackKind::data), "a \"b\"");
}

TEST(ImageFileName, BytesThatAreNoTextAreReplaced) {
    EXPECT_EQ(imageFileStem("a\xFF", TrackKind::data), "a\uFFFD");
}

TEST(ImageFileName, FurtherImagesOfANameAreNumbered) {
    EXPECT_EQ(numberedFileName("Disc", 1, ".iso", 255), "Disc.iso");
    EXPECT_EQ(numberedFileName("Disc", 2, ".iso", 255), "Disc 2.iso");
    EXPECT_EQ(numberedFileName("Disc", 10, ".cue", 255), "Disc 10.cue");
}

TEST(ImageFileName, ALongNameIsCutAtACharacterWithItsNumberAndEndingKept) {
    std::string longName;
    for (int count = 0; count < 100; ++count) {
        longName += "日"; // Three bytes each.
    }
    const std::string first = numberedFileName(longName, 1, ".iso", 255);
    EXPECT_EQ(first.size(), 83U * 3 + 4); // 84 would be one byte too many.
    EXPECT_TRUE(first.ends_with("日.iso"));
    EXPECT_TRUE(numberedFileName(longName, 2, ".iso", 255).ends_with("日 2.iso"));
    EXPECT_LE(numberedFileName(longName, 12345, ".iso", 255).size(), 255U);
}

TEST(ImageFileName, ThePortableNameHasNothingThatFatRefuses) {
    EXPECT_EQ(portableFileStem("a:b*c?d\"e<f>g|h\\i"), "a_b_c_d_e_f_g_h_i");
    EXPECT_EQ(portableFileStem("What. . "), "What____");
    EXPECT_EQ(portableFileStem("Vol. 1"), "Vol. 1");
}
