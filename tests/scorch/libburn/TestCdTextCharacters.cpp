// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/libburn/CdTextCharacters.h"

#include <gmock/gmock.h>

using namespace scorch;

namespace {

/// All characters behind each other; "-" where the code cannot say the text.
std::string said(std::string_view text, CdTextCode code) {
    const auto characters = cdTextCharacters(text, code);
    if (!characters) {
        return "-";
    }
    std::string bytes;
    for (const std::string &character : *characters) {
        bytes += character;
    }
    return bytes;
}

std::string latin1(std::string_view text) {
    return said(text, CdTextCode::latin1);
}

std::string msJis(std::string_view text) {
    return said(text, CdTextCode::msJis);
}

} // namespace

TEST(CdTextLatin1, WesternLettersAreOneByteEach) {
    EXPECT_EQ(latin1("Ænima für Élise ÿ"), "\xC6nima f\xFCr \xC9lise \xFF");
    EXPECT_EQ(latin1(""), "");
}

TEST(CdTextLatin1, TypographyBecomesWhatReadsTheSame) {
    EXPECT_EQ(latin1("Don’t “Stop” – … Œuvre™"), "Don't \"Stop\" - ... OEuvre(TM)");
}

TEST(CdTextLatin1, LettersWithSeparateMarksAreComposed) {
    EXPECT_EQ(latin1("Caf\u0065\u0301 A\u030Angstro\u0308m"), "Caf\xE9 \xC5ngstr\xF6m");
}

TEST(CdTextLatin1, ControlCharactersAreSpaces) {
    EXPECT_EQ(latin1("a\tb\nc\x7F"), "a b c ");
    EXPECT_EQ(latin1(std::string_view("a\0b", 3)), "a b");
}

TEST(CdTextLatin1, OtherScriptsCannotBeSaid) {
    EXPECT_EQ(latin1("Кино"), "-");
    EXPECT_EQ(latin1("日本"), "-");
    EXPECT_EQ(latin1("Dvořák"), "-");
}

TEST(CdTextMsJis, EveryCharacterIsTwoBytes) {
    EXPECT_EQ(msJis("日本"), "\x93\xFA\x96\x7B");
    EXPECT_EQ(msJis("A1 "), "\x82\x60\x82\x50\x81\x40");
    const auto characters = cdTextCharacters("Ａbc 日'\"~", CdTextCode::msJis);
    ASSERT_TRUE(characters);
    for (const std::string &character : *characters) {
        EXPECT_EQ(character.size(), 2U);
    }
}

TEST(CdTextMsJis, NarrowKanaBecomeWide) {
    EXPECT_EQ(msJis("ｶﾞｯﾊﾟｳﾞ"), msJis("ガッパヴ"));
    EXPECT_EQ(msJis("か\u3099は\u309A"), msJis("がぱ"));
}

TEST(CdTextMsJis, LettersLoseAccentsThatItDoesNotHave) {
    EXPECT_EQ(msJis("Beyoncé"), msJis("Beyonce"));
}

TEST(CdTextMsJis, WaveDashIsKnownByItsOtherName) {
    EXPECT_EQ(msJis("〜"), "\x81\x60");
}

TEST(CdTextMsJis, OtherScriptsCannotBeSaid) {
    EXPECT_EQ(msJis("한국"), "-");
    EXPECT_EQ(msJis("😀"), "-");
}

TEST(CdTextCharacters, BytesThatAreNoTextCannotBeSaid) {
    EXPECT_EQ(latin1("caf\xE9"), "-");
    EXPECT_EQ(msJis("\xFF"), "-");
}
