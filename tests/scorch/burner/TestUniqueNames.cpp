// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/burner/UniqueNames.h"

#include <gtest/gtest.h>

using scorch::UniqueNames;

TEST(UniqueNames, TheSecondOfANameGetsANumberBeforeItsEnding) {
    UniqueNames names;
    EXPECT_EQ(names.claim("song.mp3", false), "song.mp3");
    EXPECT_EQ(names.claim("song.mp3", false), "song (2).mp3");
    EXPECT_EQ(names.claim("song.mp3", false), "song (3).mp3");
    EXPECT_EQ(names.claim("a.tar.gz", false), "a.tar.gz");
    EXPECT_EQ(names.claim("a.tar.gz", false), "a.tar (2).gz");
}

TEST(UniqueNames, FoldersNamesWithoutEndingAndHiddenOnesGetItAtTheEnd) {
    UniqueNames names;
    for (const char *name : {"Vol. 1", "README", ".bashrc", "name.", "..."}) {
        names.claim(name, false);
    }
    EXPECT_EQ(names.claim("Vol. 1", true), "Vol. 1 (2)");
    EXPECT_EQ(names.claim("README", false), "README (2)");
    EXPECT_EQ(names.claim(".bashrc", false), ".bashrc (2)");
    EXPECT_EQ(names.claim("name.", false), "name. (2)");
    EXPECT_EQ(names.claim("...", false), "... (2)");
}

TEST(UniqueNames, AHiddenNameWithAnEndingKeepsIt) {
    UniqueNames names;
    names.claim(".config.bak", false);
    EXPECT_EQ(names.claim(".config.bak", false), ".config (2).bak");
}

TEST(UniqueNames, ANumberThatIsTakenIsPassedOver) {
    UniqueNames names;
    names.claim("a (2).txt", false);
    names.claim("a.txt", false);
    EXPECT_EQ(names.claim("a.txt", false), "a (3).txt");
}

TEST(UniqueNames, AReleasedNameIsFreeAgain) {
    UniqueNames names;
    names.claim("a.txt", false);
    names.claim("a.txt", false);
    names.release("a.txt");
    EXPECT_EQ(names.claim("a.txt", false), "a.txt");
    names.release("a (2).txt");
    EXPECT_EQ(names.claim("a.txt", false), "a (2).txt");
    names.clear();
    EXPECT_EQ(names.claim("a.txt", false), "a.txt");
}

TEST(UniqueNames, NamesAreBytes) {
    UniqueNames names;
    names.claim("\xFF.txt", false);
    EXPECT_EQ(names.claim("\xFF.txt", false), "\xFF (2).txt");
    EXPECT_EQ(names.claim("\xFE.txt", false), "\xFE.txt");
}

TEST(UniqueNames, ALongNameIsCutAtACharacter) {
    UniqueNames names;
    std::string name;
    for (int count = 0; count < 83; ++count) {
        name += "日";
    }
    name += ".txt"; // 253 bytes.
    names.claim(name, false);
    const std::string second = names.claim(name, false);
    EXPECT_LE(second.size(), 255U);
    EXPECT_TRUE(second.ends_with("日 (2).txt"));
}

TEST(UniqueNames, ThousandsOfOneNameAreCheap) {
    UniqueNames names;
    std::string last;
    for (int count = 0; count < 50'000; ++count) {
        last = names.claim("a.txt", false);
    }
    EXPECT_EQ(last, "a (50000).txt");
}
