// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/libburn/CdTextPacks.h"

#include <gmock/gmock.h>

using namespace scorch;
using testing::ElementsAre;
using testing::SizeIs;

namespace {

std::string hexadecimal(const CdTextPack &pack) {
    std::string text;
    for (const std::uint8_t byte : pack) {
        constexpr std::string_view digits = "0123456789abcdef";
        text += digits[byte / 16U];
        text += digits[byte % 16U];
    }
    return text;
}

std::vector<std::string> packsOf(const CdText &text) {
    std::vector<std::string> packs;
    for (const CdTextPack &pack : cdTextPacks(text)) {
        packs.push_back(hexadecimal(pack));
    }
    return packs;
}

/// The twelve bytes of contents of packs of one type, one behind the other.
std::string contentsOf(const std::vector<CdTextPack> &packs, unsigned type) {
    std::string contents;
    for (const CdTextPack &pack : packs) {
        if (pack[0] == type) {
            contents.append(pack.begin() + 4, pack.begin() + 16);
        }
    }
    return contents;
}

/// Two tracks in MS-JIS; the texts are of two-byte characters already.
CdText japaneseText() {
    return {.code = CdTextCode::msJis,
            .disc = {"\x89\xA9\x8B\xE0\x8F\x57", ""},
            .tracks = {{"\x91\x4F\x91\x74\x8B\xC8\x91\xE6\x88\xEA\x94\xD4", "\x88\xC0"},
                       {"\x93\xD9\x91\x96\x8B\xC8", "\x95\xCA\x95\x7B"}}};
}

} // namespace

// As another program writes these texts.
TEST(CdTextPacks, LatinTextsStandAsPlayersExpectThem) {
    const CdText text{.code = CdTextCode::latin1,
                      .disc = {"Golden album", ""},
                      .tracks = {{"Pr\xE9lude in a long form", "Anna"},
                                 {"Fugue", "Bert und die \xDC"
                                           "brigen"}}};
    EXPECT_THAT(
        packsOf(text),
        ElementsAre("80000000476f6c64656e20616c62756de4e7", "8000010c005072e96c75646520696e202bb8",
                    "8001020b61206c6f6e6720666f726d00a33c", "800203004675677565000000000000009dea",
                    "8100040000416e6e61004265727420755593", "810205066e642064696520dc627269676269",
                    "8102060f656e00000000000000000000d8d2", "8f0007000001020004030000000000002fbe",
                    "8f010800000000000000000309000000d6a6",
                    "8f0209000000000009000000000000000a4e"));
}

TEST(CdTextPacks, JapaneseTitlesStandAsPlayersExpectThem) {
    CdText text = japaneseText();
    text.tracks[0].performer = text.tracks[1].performer = "";
    const std::vector<std::string> packs = packsOf(text);
    ASSERT_THAT(packs, SizeIs(6));
    EXPECT_EQ(packs[0], "8000008089a98be08f570000914f9174b28c");
    EXPECT_EQ(packs[1], "800101828bc891e688ea94d4000093d9ad11");
    EXPECT_EQ(packs[2], "8002028191968bc80000000000000000d995");
}

TEST(CdTextPacks, EachPackOfTextSaysHowWideItsCharactersAre) {
    for (const CdTextPack &pack : cdTextPacks(japaneseText())) {
        EXPECT_EQ(pack[3] >= 0x80, pack[0] != 0x8F) << hexadecimal(pack);
    }
}

TEST(CdTextPacks, PositionIsThatOfTheFirstCharacterInItsText) {
    CdText text = japaneseText();
    text.disc.title = "\x82\x74\x82\x8E\x82\x94\x82\x89\x82\x94\x82\x8C\x82\x85\x82\x84";
    EXPECT_EQ(packsOf(text)[1].substr(0, 8), "80000186"); // Six characters stand before it.
}

TEST(CdTextPacks, TextsThatAreRepeatedStandInFull) {
    const CdText text{
        .code = CdTextCode::latin1, .disc = {"", "Anna"}, .tracks = {{"", "Anna"}, {"", "Anna"}}};
    EXPECT_THAT(contentsOf(cdTextPacks(text), 0x81).c_str(), testing::StrEq("Anna"));
    EXPECT_EQ(contentsOf(cdTextPacks(text), 0x81).substr(0, 15),
              std::string("Anna\0Anna\0Anna\0", 15));
}

TEST(CdTextPacks, AreAsManyAsWereCountedFor) {
    for (const CdTextCode code : {CdTextCode::latin1, CdTextCode::msJis}) {
        for (std::size_t length = 0; length <= 40; ++length) {
            const std::string title(2 * length, 'A');
            const CdText text{.code = code, .disc = {"AA", ""}, .tracks = {{title, "AA"}}};
            EXPECT_THAT(cdTextPacks(text), SizeIs(packCount(text))) << length;
        }
    }
}

TEST(CdTextPacks, SizesTellThePacksOfEachKindAndTheLast) {
    const CdText text{.code = CdTextCode::latin1,
                      .disc = {std::string(60, 't'), std::string(30, 'p')},
                      .tracks = std::vector<CdText::Texts>(12)};
    const std::vector<CdTextPack> packs = cdTextPacks(text);
    const std::string sizes = contentsOf(packs, 0x8F);
    EXPECT_EQ(sizes[2], 12);
    EXPECT_EQ(sizes[4] + sizes[5] + sizes[19], static_cast<int>(packs.size()));
    EXPECT_EQ(sizes[20] + 1, static_cast<int>(packs.size()));
}
