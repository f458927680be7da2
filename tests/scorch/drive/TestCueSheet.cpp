// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/drive/CueSheet.h"

#include <gmock/gmock.h>

using namespace scorch;
using testing::HasSubstr;
using testing::Not;

namespace {

TrackLayout song(std::int64_t sectors, std::string title = {}, std::string performer = {}) {
    return {TrackKind::audio, sectors, std::move(title), std::move(performer)};
}

} // namespace

TEST(CueSheet, TracksStandOneBehindTheOtherWithoutAGap) {
    const std::string sheet = cueSheet("", "a.bin", {song(300), song(75 * 61 + 3), song(300)});
    EXPECT_EQ(sheet, "FILE \"a.bin\" BINARY\n"
                     "  TRACK 01 AUDIO\n    INDEX 01 00:00:00\n"
                     "  TRACK 02 AUDIO\n    INDEX 01 00:04:00\n"
                     "  TRACK 03 AUDIO\n    INDEX 01 01:05:03\n");
}

TEST(CueSheet, CarriesTitlesAndPerformers) {
    const std::string sheet = cueSheet("Road trip", "r.bin", {song(300, "Blå", "音楽")});
    EXPECT_THAT(sheet, testing::StartsWith("TITLE \"Road trip\"\nFILE"));
    EXPECT_THAT(sheet, HasSubstr("    TITLE \"Blå\"\n    PERFORMER \"音楽\"\n"));
}

TEST(CueSheet, EmptyTextsAreLeftOut) {
    const std::string sheet = cueSheet("", "r.bin", {song(300)});
    EXPECT_THAT(sheet, Not(HasSubstr("TITLE")));
    EXPECT_THAT(sheet, Not(HasSubstr("PERFORMER")));
}

TEST(CueSheet, QuotesBecomeApostrophesAndControlCharactersSpaces) {
    const std::string sheet = cueSheet("A \"b\"", "r.bin", {song(300, "x\ny\t\x7F", "\"z\"")});
    EXPECT_THAT(sheet, HasSubstr("TITLE \"A 'b'\"\n"));
    EXPECT_THAT(sheet, HasSubstr("    TITLE \"x y  \"\n"));
    EXPECT_THAT(sheet, HasSubstr("    PERFORMER \"'z'\"\n"));
}

TEST(CueSheet, TheLastTrackOfTheLongestDiscHasItsPlace) {
    const std::vector<TrackLayout> tracks(99, song(4500));
    EXPECT_THAT(cueSheet("", "r.bin", tracks), HasSubstr("TRACK 99 AUDIO\n    INDEX 01 98:00:00"));
}
