// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/DriveChoice.h"
#include "cli/DrivesCommand.h"
#include "engine/ScorcherDevice.h"
#include "tests/cli/CapturedOutput.h"
#include "tests/support/FakeEngine.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <fstream>

#include <fcntl.h>
#include <unistd.h>

using namespace cli;
using testing::HasSubstr;
using testing::Optional;

namespace {

class Drives : public testing::Test {
protected:
    std::string word() {
        engine.drives = {drive};
        return discWord(*ScorcherDevice::initWithDeviceName(drive.name));
    }

    std::string text() {
        engine.drives = {drive};
        return discText(*ScorcherDevice::initWithDeviceName(drive.name));
    }

    FakeDrive drive{"A"};
    FakeEngine engine;
};

} // namespace

TEST_F(Drives, StateOfTheDiscIsOneWord) {
    EXPECT_EQ(word(), "blank");
    drive.isBlank = false;
    EXPECT_EQ(word(), "written");
    drive.isCD = false;
    EXPECT_EQ(word(), "other");
    drive.hasDisc = false;
    EXPECT_EQ(word(), "none");
    drive.isChecking = true;
    EXPECT_EQ(word(), "checking");
    drive.cannotBurn = true;
    EXPECT_EQ(word(), "unusable");
}

TEST_F(Drives, FreeTimeAndSizeOfABlankDiscAreShown) {
    EXPECT_EQ(text(), "blank CD, 79:57 or 737.0 MB free");
    drive.hasDisc = false;
    EXPECT_EQ(text(), "no disc");
}

TEST_F(Drives, KindOfTheDiscIsNamedWhereItIsKnown) {
    drive.description.medium = "CD-R";
    EXPECT_EQ(text(), "blank CD-R, 79:57 or 737.0 MB free");
    drive.isBlank = false;
    EXPECT_EQ(text(), "a CD that is not blank (CD-R)");
    drive.isCD = false;
    drive.description.medium = "DVD+R";
    EXPECT_EQ(text(), "a disc that is not a CD (DVD+R)");
}

TEST_F(Drives, AProblemOfTheDriveIsToldInsteadOfItsDisc) {
    drive.hasDisc = false;
    drive.description.problem = "You are not allowed to use it.";
    EXPECT_EQ(text(), "You are not allowed to use it.");
    EXPECT_EQ(discProblem(*ScorcherDevice::initWithDeviceName("A")),
              "You are not allowed to use it.");
}

TEST_F(Drives, ProblemSaysWhatToDo) {
    engine.drives = {drive};
    const auto handle = ScorcherDevice::initWithDeviceName("A");
    EXPECT_EQ(discProblem(*handle), std::nullopt);
    engine.drive("A").isBlank = false;
    EXPECT_THAT(discProblem(*handle), Optional(HasSubstr("Insert a blank CD")));
    engine.drive("A").hasDisc = false;
    EXPECT_THAT(discProblem(*handle), Optional(HasSubstr("no disc in \"A\"")));
    engine.drive("A").cannotBurn = true;
    EXPECT_THAT(discProblem(*handle), Optional(HasSubstr("cannot write")));
}

TEST(DriveChoice, OnlyDriveNeedsNoName) {
    EXPECT_EQ(std::get<std::string>(chooseDrive({"A"}, "")), "A");
}

TEST(DriveChoice, SeveralDrivesNeedAName) {
    const auto choice = chooseDrive({"A", "B"}, "");
    EXPECT_EQ(std::get<DriveProblem>(choice).exitCode, ExitCode::usage);
    EXPECT_THAT(std::get<DriveProblem>(choice).text, HasSubstr("\n  A\n  B"));
    EXPECT_EQ(std::get<std::string>(chooseDrive({"A", "B"}, "B")), "B");
}

TEST(DriveChoice, FolderWinsOverTheRecordersThatAreThere) {
    const auto choice = chooseDrive({"A", "Disc image (x)"}, "", DriveKind::imageDrive);
    EXPECT_EQ(std::get<std::string>(choice), "Disc image (x)");
}

TEST_F(Drives, ADeviceNodeNamesItsDrive) {
    const TemporaryFolder folder;
    const std::filesystem::path node = folder.path() / "sr1";
    std::ofstream(node).put(' ');
    std::filesystem::create_symlink("sr1", folder.path() / "cdrom");
    engine.drives = {FakeDrive{"A"}, FakeDrive{"B"}};
    engine.drive("B").description.node = node;
    const std::vector<std::string> names = {"A", "B"};
    EXPECT_EQ(driveNamed(names, node.native()), "B");
    EXPECT_EQ(driveNamed(names, folder.path() / "cdrom"), "B");
    EXPECT_EQ(driveNamed(names, "/no/such/node"), "/no/such/node");
    EXPECT_EQ(driveNamed(names, "A"), "A");
    EXPECT_EQ(driveNamed(names, ""), "");
    EXPECT_EQ(engine.livingHandles, 0);
}

TEST(DriveChoice, UnknownNameAndNoDriveAreFailures) {
    const auto unknown = chooseDrive({"A"}, "B");
    EXPECT_EQ(std::get<DriveProblem>(unknown).exitCode, ExitCode::failed);
    EXPECT_THAT(std::get<DriveProblem>(unknown).text, HasSubstr("\"B\""));
    EXPECT_THAT(std::get<DriveProblem>(unknown).text, HasSubstr("\n  A"));
    EXPECT_THAT(std::get<DriveProblem>(chooseDrive({}, "")).text, HasSubstr("--image-drive"));
}

TEST_F(Drives, CommandPrintsALineADrive) {
    engine.drives = {drive, FakeDrive{"B\x1b"}};
    engine.drive("A").hasDisc = false;
    CapturedOutput out;
    CapturedOutput err;
    EXPECT_EQ(runDrivesCommand({}, out.output(), err.output()), ExitCode::done);
    EXPECT_EQ(out.text(), "A: no disc\nB\\x1b: blank CD, 79:57 or 737.0 MB free\n");
    EXPECT_EQ(err.text(), "");
}

TEST_F(Drives, CommandTellsWhatADriveIs) {
    drive.description = {.vendor = "EXAMPLE",
                         .model = "CD-RW 52X",
                         .revision = "1.00",
                         .node = "/dev/sr0",
                         .medium = "CD-R",
                         .writeSpeeds = {9173, 5645, 1411},
                         .problem = {}};
    engine.drives = {drive};
    CapturedOutput out;
    CapturedOutput json;
    CapturedOutput err;
    runDrivesCommand({}, out.output(), err.output());
    runDrivesCommand({std::nullopt, true}, json.output(), err.output());
    EXPECT_EQ(out.text(), "A: blank CD-R, 79:57 or 737.0 MB free; written at 52x 32x 8x, "
                          "EXAMPLE CD-RW 52X, firmware 1.00, /dev/sr0\n");
    engine.drive("A").isBlank = false;
    EXPECT_EQ(driveText(*ScorcherDevice::initWithDeviceName("A")),
              "EXAMPLE CD-RW 52X, firmware 1.00, /dev/sr0")
        << "nothing is going to be written on a used disc";
    EXPECT_THAT(json.text(), HasSubstr(R"("medium":"CD-R","vendor":"EXAMPLE","model":"CD-RW 52X",)"
                                       R"("revision":"1.00","writeSpeeds":[9173,5645,1411],)"
                                       R"("path":"/dev/sr0"})"));
}

TEST_F(Drives, CommandDoesNotWaitForeverForADisc) {
    drive.isChecking = true;
    engine.drives = {drive};
    CapturedOutput out;
    CapturedOutput err;
    runDrivesCommand({}, out.output(), err.output(), std::chrono::milliseconds(1));
    EXPECT_EQ(out.text(), "A: examining the disc\n");
}

TEST_F(Drives, CommandPrintsJson) {
    engine.drives = {drive};
    CapturedOutput out;
    CapturedOutput err;
    EXPECT_EQ(runDrivesCommand({std::nullopt, true}, out.output(), err.output()), ExitCode::done);
    EXPECT_EQ(out.text(), "{\"event\":\"drive\",\"name\":\"A\",\"disc\":\"blank\","
                          "\"freeFrames\":359849,\"freeBytes\":736970752}\n");
}

TEST_F(Drives, CommandSaysWhenThereIsNone) {
    CapturedOutput out;
    CapturedOutput err;
    EXPECT_EQ(runDrivesCommand({}, out.output(), err.output()), ExitCode::done);
    EXPECT_EQ(out.text(), "");
    EXPECT_THAT(err.text(), HasSubstr("no CD drive"));
}

TEST_F(Drives, CommandFailsWhenItsOutputCannotBeWritten) {
    engine.drives = {drive};
    const int full = open("/dev/full", O_WRONLY | O_CLOEXEC);
    ASSERT_GE(full, 0);
    Output out(full);
    CapturedOutput err;
    EXPECT_EQ(runDrivesCommand({}, out, err.output()), ExitCode::failed);
    EXPECT_THAT(err.text(), HasSubstr("standard output"));
    close(full);
}
