// SPDX-License-Identifier: GPL-2.0-or-later
// What goes wrong on the recorder reaches programs as it would from a real drive.
#include "tests/recorder/tests/Programs.h"

#include <gmock/gmock.h>

using namespace recorder;
using testing::HasSubstr;

namespace {

const std::string kDevice = "/dev/sr0";

} // namespace

TEST_F(Programs, WriteErrorReachesTheProgramWithItsSense) {
    scene.control("write-error 200\n");
    const CommandResult result =
        run({"cdrskin", "dev=" + kDevice, "-sao", "-audio", wav("1.wav", 310, 1)});
    EXPECT_NE(result.exitCode, 0);
    EXPECT_THAT(result.output, HasSubstr("[3 0C 00]"));
    EXPECT_EQ(scene.disc().trackAt(1)->recorded, 200);
    EXPECT_TRUE(scene.disc().hasOpenSession());
}

TEST_F(Programs, PowerCalibrationFailureLeavesTheDiscBlank) {
    scene.control("power-calibration\n");
    const CommandResult result =
        run({"wodim", "dev=" + kDevice, "gracetime=0", "-sao", "-audio", wav("1.wav", 310, 1)});
    EXPECT_NE(result.exitCode, 0);
    EXPECT_THAT(result.output, HasSubstr("Sense Code: 0x73 Qual 0x03"));
    EXPECT_EQ(scene.disc(), blankDisc(DiscKind::CdR));
}

TEST_F(Programs, LossOfStreamingEndsTheBurn) {
    scene.control("loss-of-streaming 100\n");
    const CommandResult result =
        run({"wodim", "dev=" + kDevice, "gracetime=0", "-sao", "-audio", wav("1.wav", 310, 1)});
    EXPECT_NE(result.exitCode, 0);
    EXPECT_THAT(result.output, HasSubstr("Sense Code: 0x0C Qual 0x09"));
}

TEST_F(Programs, RefusedTextIsRefusedBeforeAnythingIsWritten) {
    scene.control("refuse-cd-text\n");
    folder.write("disc.toc", "CD_DA\nCD_TEXT { LANGUAGE_MAP { 0 : EN }\n"
                             "LANGUAGE 0 { TITLE \"A\" PERFORMER \"B\" } }\nTRACK AUDIO\n"
                             "CD_TEXT { LANGUAGE 0 { TITLE \"A\" PERFORMER \"B\" } }\nFILE \"" +
                                 wav("1.wav", 310, 1) + "\" 0\n");
    const std::vector<std::string> withText = {"cdrdao",           "write",         "-n",
                                               "--device",         kDevice,         "--driver",
                                               "generic-mmc:0x10", path("disc.toc")};
    EXPECT_NE(run(withText).exitCode, 0);
    EXPECT_EQ(scene.disc(), blankDisc(DiscKind::CdR));
    mustRun({"cdrdao", "write", "-n", "--device", kDevice, path("disc.toc")});
}

TEST_F(Programs, DriveThatDoesNotAnswerIsGivenUp) {
    scene.control("silent 0\n");
    EXPECT_NE(run({"wodim", "dev=" + kDevice, "-atip"}).exitCode, 0);
}

TEST_F(Programs, UnpluggedDriveIsNotFound) {
    scene.control("vanished\n");
    EXPECT_THAT(run({"wodim", "dev=" + kDevice, "-atip"}).output, HasSubstr("No such file"));
    scene.control("no-device\n");
    EXPECT_THAT(run({"wodim", "dev=" + kDevice, "-atip"}).output,
                HasSubstr("No such device or address"));
    scene.control("");
    mustRun({"wodim", "dev=" + kDevice, "-atip"});
}

TEST_F(Programs, ForbiddenDriveSaysSo) {
    scene.control("no-permission\n");
    EXPECT_THAT(run({"wodim", "dev=" + kDevice, "-atip"}).output, HasSubstr("Permission denied"));
}

TEST_F(Programs, CdparanoiaHearsTheReadOffset) {
    mustRun({"wodim", "dev=" + kDevice, "gracetime=0", "-sao", "-audio", wav("1.wav", 310, 1)});
    scene.control("read-offset 30\n");
    mustRun({"cdparanoia", "-q", "-r", "-d", kDevice, "1", path("read.raw")});
    const Bytes read = bytes("read.raw");
    const Bytes sent = sound(310, 1);
    ASSERT_EQ(read.size(), sent.size());
    EXPECT_TRUE(std::equal(read.begin() + 120, read.end(), sent.begin()));
    EXPECT_EQ(Bytes(read.begin(), read.begin() + 120), Bytes(120, 0));
}

TEST_F(Programs, FlippedByteIsReadWithoutAnError) {
    mustRun({"wodim", "dev=" + kDevice, "gracetime=0", "-sao", "-data", isoImage()});
    scene.control("flip 200 7\n");
    mustRun({"dd", "if=" + kDevice, "of=" + path("read.iso"), "bs=64k"});
    Bytes expected = bytes("image.iso");
    expected[200 * kUserDataBytes + 7] ^= 0xffU;
    EXPECT_EQ(bytes("read.iso"), expected);
}

TEST_F(Programs, TrayOpenedByHandIsTakenIn) {
    scene.startLog();
    scene.control("tray open\n");
    mustRun({"wodim", "dev=" + kDevice, "-atip"});
    EXPECT_THAT(scene.log(), HasSubstr(" 1b 00 00 00 03 00 "));
    EXPECT_THAT(scene.log(), HasSubstr("sense 02 3a 02"));
}
