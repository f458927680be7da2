// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/mmc/MmcCommands.h"

#include "tests/scorch/mmc/RecorderTransport.h"
#include "tests/scorch/mmc/ScriptedTransport.h"

#include <gmock/gmock.h>

using namespace scorch;
using testing::ElementsAre;
using Bytes = ScriptedTransport::Bytes;

namespace {

/// Mode page 2Ah behind its header.
Bytes capabilities(unsigned writes, const std::vector<int> &speeds) {
    Bytes page(8 + 32 + 4 * speeds.size());
    page[8] = 0x2A;
    page[11] = static_cast<std::uint8_t>(writes);
    page[8 + 31] = static_cast<std::uint8_t>(speeds.size());
    for (std::size_t index = 0; index < speeds.size(); ++index) {
        page[8 + 34 + 4 * index] = static_cast<std::uint8_t>(speeds[index] / 256);
        page[8 + 35 + 4 * index] = static_cast<std::uint8_t>(speeds[index] % 256);
    }
    return page;
}

} // namespace

TEST(MmcCommands, TextsOfADriveAreTrimmedAndMadePresentable) {
    EXPECT_EQ(driveText("  ASUS    "), "ASUS");
    EXPECT_EQ(driveText("DRW-24D5MT     "), "DRW-24D5MT");
    EXPECT_EQ(driveText("A  \x01\xFFZ"), "A Z");
    EXPECT_EQ(driveText(std::string(8, '\0')), "");
}

TEST(MmcCommands, InquiryTellsMakerModelAndFirmware) {
    RecorderDrive drive;
    drive.scene.describe("vendor ACME\nproduct DRW-24\nrevision 2.01\n");
    MmcDevice device = drive.device();
    EXPECT_EQ(*inquire(device),
              (DriveIdentity{.vendor = "ACME", .model = "DRW-24", .revision = "2.01"}));
}

TEST(MmcCommands, WhetherADriveWritesCdsIsKnownWithoutADisc) {
    RecorderDrive drive;
    MmcDevice device = drive.device();
    EXPECT_TRUE(*readCanWriteCd(device));
    drive.scene.describe("writes no\n");
    EXPECT_FALSE(*readCanWriteCd(device));
}

TEST(MmcCommands, ADriveWithoutFeaturesIsAskedForItsCapabilities) {
    for (const unsigned writes : {0U, 1U, 2U}) {
        MmcDevice device = ScriptedTransport::device({{0x5A, [writes](auto) {
                                                           return capabilities(writes, {});
                                                       }}});
        EXPECT_EQ(*readCanWriteCd(device), writes != 0);
    }
    MmcDevice mute = ScriptedTransport::device({});
    EXPECT_FALSE(readCanWriteCd(mute).ok());
}

TEST(MmcCommands, WriteSpeedsAreInOrderAndEachOnce) {
    MmcDevice device =
        ScriptedTransport::device({{0x5A, [](auto) {
                                        return capabilities(3, {706, 7056, 706, 2822, 0});
                                    }}});
    EXPECT_THAT(*readWriteSpeeds(device), ElementsAre(7056, 2822, 706));
}

TEST(MmcCommands, AMediaEventIsToldOnceAndTheTrayAlways) {
    RecorderDrive drive;
    drive.scene.makeDisc(blankCd());
    MmcDevice device = drive.device();
    EXPECT_TRUE(readMediaEvent(device)->mediumPresent);
    drive.scene.control("tray open #1\n");
    const MediaEvent opened = *readMediaEvent(device);
    EXPECT_TRUE(opened.changed);
    EXPECT_TRUE(opened.trayOpen);
    const MediaEvent later = *readMediaEvent(device);
    EXPECT_FALSE(later.changed);
    EXPECT_TRUE(later.trayOpen);
}

TEST(MmcCommands, ADriveThatTellsNoMediaEventsSaysSo) {
    MmcDevice device = ScriptedTransport::device({{0x4A, [](auto) {
                                                       return Bytes{0, 2, 0x80, 0};
                                                   }}});
    EXPECT_EQ(readMediaEvent(device).error().sense.key, 5);
}

TEST(MmcCommands, UnitAttentionsAreAskedAgainButNotForever) {
    int attentions = 2;
    MmcDevice device =
        ScriptedTransport::device({{0x46, [&attentions](auto) -> ScriptedTransport::Answer {
                                        if (attentions-- > 0) {
                                            return ScriptedTransport::sense(6, 0x28, 0);
                                        }
                                        return Bytes{0, 0, 0, 4, 0, 0, 0, 9};
                                    }}});
    EXPECT_EQ(*readCurrentProfile(device), 9U);
    MmcDevice sick = ScriptedTransport::device({{0x46, [](auto) {
                                                     return ScriptedTransport::sense(6, 0x29, 0);
                                                 }}});
    EXPECT_EQ(senseText(readCurrentProfile(sick).error().sense), "6/29/00");
}

TEST(MmcCommands, ATableOfContentsThatIsCutShortGivesTheTracksThatAreThere) {
    MmcDevice device = ScriptedTransport::device({{0x43, [](auto) {
                                                       Bytes toc = {0, 26, 1, 2};
                                                       toc.resize(12);
                                                       toc[5] = 0x14;
                                                       toc[6] = 1;
                                                       return toc;
                                                   }}});
    EXPECT_THAT(readTableOfContents(device)->tracks,
                ElementsAre(TocTrack{.number = 1, .isData = true, .start = 0}));
}
