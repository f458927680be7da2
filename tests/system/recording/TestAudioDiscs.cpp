// SPDX-License-Identifier: GPL-2.0-or-later
// Audio discs, read back by programs that are not ours.
#include "tests/system/recording/RecordingDiscs.h"

#include <gmock/gmock.h>

using namespace recorder;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

namespace {

class AudioDiscs : public RecordingDiscs {};

} // namespace

TEST_F(AudioDiscs, SoundAndWesternTextsAreReadBackByOthers) {
    mustBurn(burning(
        "audio", "Été à Köln",
        {song("1.flac", 310, 1, "Ænima", "Björk"), song("2.flac", 450, 2, "Don’t", "Motörhead")}));
    EXPECT_TRUE(soundReadBack() == samples(310, 1) + samples(450, 2));
    const std::string info = mustRun({"cd-info", "--no-device-info", "-C", "/dev/sr0"});
    EXPECT_THAT(info, AllOf(HasSubstr("TITLE: Été à Köln"), HasSubstr("TITLE: Ænima"),
                            HasSubstr("PERFORMER: Björk"), HasSubstr("TITLE: Don't"),
                            HasSubstr("PERFORMER: Motörhead")));
    EXPECT_THAT(info, AllOf(HasSubstr("1: 00:02:00  000000 audio"), HasSubstr("000310 audio"),
                            HasSubstr("000760 leadout")));
}

TEST_F(AudioDiscs, JapaneseTextsAreReadBackByOthers) {
    mustBurn(burning("audio", "東京", {song("1.flac", 310, 1, "夜想曲", "坂本")}));
    EXPECT_THAT(mustRun({"cd-info", "--no-device-info", "-C", "/dev/sr0"}),
                AllOf(HasSubstr("東京"), HasSubstr("夜想曲"), HasSubstr("坂本"),
                      HasSubstr("Language 0 'Japanese'")));
}

TEST_F(AudioDiscs, TextThatCannotBeSaidIsLeftOutAndLogged) {
    mustBurn(burning("audio", "Mix", {song("1.flac", 310, 1, "Группа", "Кино")}));
    EXPECT_THAT(errors, AllOf(HasSubstr("left out “Группа”"), HasSubstr("left out “Кино”")));
    EXPECT_THAT(mustRun({"cd-info", "--no-device-info", "-C", "/dev/sr0"}), HasSubstr("Mix"));
}

TEST_F(AudioDiscs, DriveThatRefusesTextsStillGetsTheSound) {
    scene.control("refuse-cd-text\n");
    mustBurn(burning("audio", "Album", {song("1.flac", 310, 1, "One", "A")}));
    EXPECT_THAT(errors, HasSubstr("CD-TEXT"));
    EXPECT_TRUE(soundReadBack() == samples(310, 1));
}

TEST_F(AudioDiscs, DriveThatReadsLateOrEarlyIsNoDamagedDisc) {
    for (const char *control : {"read-offset 667\n", "read-offset -1164\n"}) {
        scene.makeDisc(blankDisc(DiscKind::CdR));
        scene.control(control);
        mustBurn(burning("audio", "Album", {song("1.flac", 310, 1, "One", "A")}));
        EXPECT_THAT(output, HasSubstr("verified"));
    }
}

TEST_F(AudioDiscs, FlippedByteNamesTheSong) {
    scene.control("read-offset 667\nflip 500 7\n");
    EXPECT_EQ(
        burn(burning("audio", "Album",
                     {song("1.flac", 310, 1, "One", "A"), song("2.flac", 450, 2, "Two", "B")})),
        1);
    EXPECT_THAT(errors, AllOf(HasSubstr("Track 2"), HasSubstr("B - Two")));
}

TEST_F(AudioDiscs, FlippedByteIsNotLookedForWithoutVerification) {
    scene.control("flip 100 7\n");
    std::vector<std::string> arguments =
        burning("audio", "Album", {song("1.flac", 310, 1, "One", "A")});
    arguments.insert(arguments.begin() + 1, "--no-verify");
    mustBurn(arguments);
    EXPECT_THAT(output, Not(HasSubstr("Verifying")));
}

TEST_F(AudioDiscs, ListThatDoesNotFitLeavesTheDiscBlank) {
    Disc small = blankDisc(DiscKind::CdR);
    small.capacity = 700;
    scene.makeDisc(small);
    EXPECT_EQ(
        burn(burning("audio", "Album",
                     {song("1.flac", 310, 1, "One", "A"), song("2.flac", 391, 2, "Two", "B")})),
        3);
    EXPECT_THAT(errors, HasSubstr("do not fit"));
    EXPECT_EQ(scene.disc(), small);
}
