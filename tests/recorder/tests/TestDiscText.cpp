// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/recorder/DiscText.h"
#include "tests/recorder/DriveProfile.h"
#include "tests/recorder/Faults.h"

#include <gtest/gtest.h>

using namespace recorder;

namespace {

Disc fullDisc() {
    Disc disc;
    disc.kind = DiscKind::CdRw;
    disc.catalog = "1234567890123";
    Track sound;
    sound.pregap = 150;
    sound.end = sound.recorded = 310;
    sound.isrc = "DEABC0812345";
    sound.indices = {100, 200};
    Track data;
    data.number = 2;
    data.form = SectorForm::Mode2Form1;
    data.control = kControlData;
    data.start = 11000;
    data.pregap = 150;
    data.end = 11302;
    data.recorded = 11200;
    data.runOut = 2;
    disc.sessions = {{{sound}, true, 310}, {{data}, false, 0}};
    disc.textPacks = {{0x80, 1, 2, 0xff}};
    return disc;
}

} // namespace

TEST(DiscText, WhatIsWrittenIsReadAgain) {
    std::string error;
    EXPECT_EQ(parseDisc(formatDisc(fullDisc()), error), fullDisc());
    EXPECT_EQ(parseDisc(formatDisc(Disc{}), error), Disc{});
    EXPECT_EQ(error, "");
}

TEST(DiscText, NamesTheLineThatIsWrong) {
    for (const char *wrong :
         {"kind cd-x", "lead-in 97:27", "capacity many", "catalog 12", "track 1 audio start 0",
          "session", "cd-text 80", "final now", "colour blue"}) {
        std::string error;
        EXPECT_FALSE(parseDisc("cd recorder disc\n\n" + std::string(wrong) + "\n", error));
        EXPECT_EQ(error, "line 3: " + std::string(wrong));
    }
}

TEST(DiscText, NeedsItsTitleAndSessionsWithTracks) {
    std::string error;
    EXPECT_FALSE(parseDisc("", error));
    EXPECT_FALSE(parseDisc("kind cd-r\n", error));
    EXPECT_FALSE(parseDisc("cd recorder disc\nsession open\n", error));
}

TEST(FaultsText, EveryStatementIsUnderstood) {
    std::string error;
    const auto faults =
        parseFaults("# a comment\ndisc other #2\ntray open\nwrite-error 10\n"
                    "loss-of-streaming 20\npower-calibration\nread-error 30\nflip 40 5\n"
                    "read-offset -6\nrefuse-cd-text\nsilent 7\nvanished\nno-device\nbusy\n"
                    "no-permission\njammed\nslow 75\nbecoming-ready 3\nlong-operation 4\n",
                    error);
    ASSERT_TRUE(faults) << error;
    Faults expected;
    expected.disc = "other #2";
    expected.tray = "open";
    expected.writeError = 10;
    expected.lossOfStreaming = 20;
    expected.readError = 30;
    expected.flipBlock = 40;
    expected.flipByte = 5;
    expected.readOffset = -6;
    expected.silentMs = 7;
    expected.jammed = true;
    expected.powerCalibration = expected.refuseCdText = expected.vanished = true;
    expected.noDevice = expected.busy = expected.noPermission = true;
    expected.sectorsPerSecond = 75;
    expected.becomingReady = 3;
    expected.longOperation = 4;
    EXPECT_EQ(*faults, expected);
}

TEST(FaultsText, WrongStatementsAreNamed) {
    for (const char *wrong : {"tray ajar", "write-error", "write-error x", "flip 1", "slow 0",
                              "unknown", "becoming-ready -1"}) {
        std::string error;
        EXPECT_FALSE(parseFaults(wrong, error)) << wrong;
        EXPECT_EQ(error, "line 1: " + std::string(wrong));
    }
}

TEST(DriveProfileText, EveryStatementIsUnderstood) {
    std::string error;
    const auto profile = parseDriveProfile("vendor ACME\nproduct TWO WORDS\nrevision 2.0\n"
                                           "serial 42\nwrites no\nspeeds 8 4\nbuffer 512\n",
                                           error);
    ASSERT_TRUE(profile) << error;
    const DriveProfile expected{"ACME", "TWO WORDS", "2.0", "42", false, {8, 4}, 512};
    EXPECT_EQ(*profile, expected);
    EXPECT_FALSE(parseDriveProfile("vendor LONGERTHAN8", error));
    EXPECT_FALSE(parseDriveProfile("speeds fast", error));
}
