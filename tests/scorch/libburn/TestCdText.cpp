// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/libburn/CdText.h"
#include "tests/scorch/drive/FakeContent.h"

#include <gmock/gmock.h>

using namespace scorch;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

/// The plan for an album with these texts.
CdTextPlan planned(const std::vector<CdText::Texts> &tracks, const std::string &title = "") {
    FakeContent content(TrackKind::audio, std::vector<std::int64_t>(tracks.size(), 300), title);
    for (std::size_t index = 0; index < tracks.size(); ++index) {
        content.layout(index).title = tracks[index].title;
        content.layout(index).performer = tracks[index].performer;
    }
    return planCdText(content);
}

/// Ninety-nine tracks whose texts are so many times this letter.
CdTextPlan plannedLong(std::size_t length, const char *letter = "x") {
    std::string text;
    for (std::size_t at = 0; at < length; ++at) {
        text += letter;
    }
    return planned(std::vector<CdText::Texts>(99, {text, text}), text);
}

} // namespace

TEST(CdTextPlanning, TitlesPerformersAndTheDiscsNameAreSaid) {
    const CdTextPlan plan = planned({{"One", "A"}, {"Two", "B"}}, "Album");
    ASSERT_TRUE(plan.text);
    EXPECT_EQ(plan.text->code, CdTextCode::latin1);
    EXPECT_EQ(plan.text->disc.title, "Album");
    EXPECT_EQ(plan.text->disc.performer, "");
    EXPECT_THAT(plan.text->tracks,
                ElementsAre(CdText::Texts{"One", "A"}, CdText::Texts{"Two", "B"}));
    EXPECT_THAT(plan.notes, IsEmpty());
}

TEST(CdTextPlanning, PerformerOfAllTracksIsThatOfTheDisc) {
    EXPECT_EQ(planned({{"One", "A"}, {"Two", "A"}}).text->disc.performer, "A");
}

TEST(CdTextPlanning, NothingToSayIsNoText) {
    EXPECT_FALSE(planned({{"", ""}, {"", ""}}).text);
}

TEST(CdTextPlanning, JapaneseIsSaidInMsJis) {
    const CdTextPlan plan = planned({{"夜想曲", "坂本"}, {"Two", "B"}}, "Album");
    EXPECT_EQ(plan.text->code, CdTextCode::msJis);
    EXPECT_EQ(plan.text->tracks[0].title, "\x96\xE9\x91\x7A\x8B\xC8");
    EXPECT_EQ(plan.text->disc.title.size(), 10U);
    EXPECT_THAT(plan.notes, IsEmpty());
}

TEST(CdTextPlanning, OneJapaneseTextIsReasonEnough) {
    EXPECT_EQ(planned({{"One", "A"}, {"Two", "B"}, {"ｶﾅ", "C"}}).text->code, CdTextCode::msJis);
}

// MS-JIS has their letters, but hardly a player that people would read them on.
TEST(CdTextPlanning, GreekAndCyrillicAreNoReasonForMsJis) {
    EXPECT_EQ(planned({{"Кино", "Ωμέγα"}, {"Two", "B"}}).text->code, CdTextCode::latin1);
}

TEST(CdTextPlanning, TextThatCannotBeSaidIsLeftOutWithANote) {
    const CdTextPlan plan = planned({{"Группа", "Ä"}, {"Two", "Кино"}, {"3", "Кино"}});
    EXPECT_EQ(plan.text->code, CdTextCode::latin1);
    EXPECT_EQ(plan.text->tracks[0], (CdText::Texts{"", "\xC4"}));
    EXPECT_EQ(plan.text->tracks[1], (CdText::Texts{"Two", ""}));
    EXPECT_THAT(plan.notes, ElementsAre(HasSubstr("“Группа”"), HasSubstr("“Кино”")));
}

TEST(CdTextPlanning, TextsAreCutUntilTheyFitIntoOneBlock) {
    for (const std::size_t length : {5U, 10U, 11U, 20U, 160U, 400U}) {
        const CdTextPlan plan = plannedLong(length);
        ASSERT_TRUE(plan.text);
        EXPECT_LE(packCount(*plan.text), mostPacks) << length;
        EXPECT_EQ(plan.notes.empty(), length <= 11) << length;
    }
}

TEST(CdTextPlanning, NoMoreIsCutThanMustBe) {
    const CdTextPlan plan = plannedLong(100);
    EXPECT_EQ(plan.text->tracks[98].title.size(), 14U);
    CdText longer = *plan.text;
    for (CdText::Texts &texts : longer.tracks) {
        texts.title += 'x';
        texts.performer += 'x';
    }
    EXPECT_GT(packCount(longer), mostPacks);
}

TEST(CdTextPlanning, CutsFallBetweenCharacters) {
    const CdTextPlan plan = plannedLong(50, "語");
    ASSERT_TRUE(plan.text);
    EXPECT_LE(packCount(*plan.text), mostPacks);
    EXPECT_EQ(plan.text->tracks[0].title.size() % 2, 0U);
    EXPECT_EQ(plan.text->tracks[0].title.substr(0, 2), "\x8C\xEA");
}

TEST(CdTextPacks, AreCountedWithTerminatorsAndSizes) {
    CdText text;
    EXPECT_EQ(packCount(text), 0U);
    text.disc.title = "Album";
    text.tracks = {{"Hello", ""}, {"Hello", ""}}; // 18 bytes
    EXPECT_EQ(packCount(text), 2U + 3U);
    text.tracks[0].title = "Hello, world"; // 25 bytes
    EXPECT_EQ(packCount(text), 3U + 3U);
    text.tracks[0].performer = "A"; // 4 bytes
    EXPECT_EQ(packCount(text), 3U + 1U + 3U);
}
