// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/support/FileDescriptor.h"
#include "tests/recorder/DriveScene.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/system/ScorchProcess.h"

#include <gmock/gmock.h>

#include <chrono>
#include <fcntl.h>
#include <unistd.h>

using recorder::DiscKind;
using recorder::DriveScene;
using testing::HasSubstr;
using testing::Not;

namespace {

class ScorchDrives : public testing::Test {
protected:
    /// What `scorch drives` prints about the drives below the root.
    std::string lines(const std::vector<std::string> &more = {}) {
        std::vector<std::string> arguments = {"drives"};
        arguments.insert(arguments.end(), more.begin(), more.end());
        ScorchProcess scorch(arguments, environment());
        EXPECT_EQ(scorch.wait(), 0);
        errors_ = scorch.errors();
        return scorch.output();
    }
    std::vector<std::string> environment() const {
        return {"CD_RECORDER=" + root_.path().string(), "LD_PRELOAD=" RECORDER_LIBRARY,
                "SCORCH_UDEV=0", "ASAN_OPTIONS=verify_asan_link_order=0"};
    }
    /// The end of `scorch burn` with these arguments; its complaint is in errors_.
    int burn(const std::vector<std::string> &more) {
        std::vector<std::string> arguments = {"burn", "--data", root_.write("file", "text")};
        arguments.insert(arguments.end(), more.begin(), more.end());
        ScorchProcess scorch(arguments, environment());
        const int status = scorch.wait();
        errors_ = scorch.errors();
        return status;
    }
    DriveScene drive(const std::string &name = "sr0") const {
        return DriveScene(root_.path(), name);
    }

    const TemporaryFolder root_;
    std::string errors_;
};

recorder::Disc discWith(DiscKind kind, bool isFinal) {
    recorder::Track track;
    track.pregap = 150;
    track.end = 750;
    track.recorded = 750;
    recorder::Disc disc = recorder::blankDisc(kind);
    disc.sessions = {{.tracks = {track}, .isClosed = true, .leadOut = 750}};
    disc.isFinal = isFinal;
    return disc;
}

} // namespace

TEST_F(ScorchDrives, NoDriveIsSaidSo) {
    EXPECT_EQ(lines(), "");
    EXPECT_THAT(errors_, HasSubstr("no CD drive was found"));
}

TEST_F(ScorchDrives, ALineHasAllThatIsToBeKnown) {
    drive().describe("vendor ACME\nproduct DRW-24\nrevision 2.01\nspeeds 48 24 8\n");
    drive().makeDisc(recorder::blankDisc(DiscKind::CdR));
    EXPECT_EQ(lines(), "ACME DRW-24: blank CD-R, 79:57 or 737.0 MB free; written at 48x 24x 8x, "
                       "ACME DRW-24, firmware 2.01, /dev/sr0\n");
}

TEST_F(ScorchDrives, EachDiscIsToldAsItIs) {
    drive("sr0").makeDisc(recorder::blankDisc(DiscKind::CdRw));
    drive("sr1").makeDisc(discWith(DiscKind::CdR, true));
    drive("sr2").makeDisc(discWith(DiscKind::CdR, false));
    drive("sr3").makeDisc(discWith(DiscKind::CdRom, true));
    drive("sr4").makeDisc(recorder::blankDisc(DiscKind::DvdR));
    const DriveScene empty = drive("sr5");
    drive("sr6").describe("writes no\n");
    const std::string text = lines();
    EXPECT_THAT(text, HasSubstr("RECORDER: blank CD-RW, 79:57"));
    EXPECT_THAT(text, HasSubstr("(sr1): a CD that is not blank (CD-R)"));
    EXPECT_THAT(text, HasSubstr("(sr2): a CD that is not blank (CD-R)"));
    EXPECT_THAT(text, HasSubstr("(sr3): a CD that is not blank (CD-ROM)"));
    EXPECT_THAT(text, HasSubstr("(sr4): a disc that is not a CD (DVD-R)"));
    EXPECT_THAT(text, HasSubstr("(sr5): no disc"));
    EXPECT_THAT(text, HasSubstr("(sr6): cannot write CDs"));
}

TEST_F(ScorchDrives, ADiscThatIsBeingReadIsWaitedFor) {
    drive().makeDisc(recorder::blankDisc(DiscKind::CdR), "other");
    drive().control("becoming-ready 5\ndisc other #1\n");
    EXPECT_THAT(lines(), HasSubstr("blank CD-R"));
}

TEST_F(ScorchDrives, ADriveThatMayNotBeUsedIsShownWithTheReason) {
    drive().describe("vendor ACME\nproduct DRW-24\n");
    drive().control("no-permission\n");
    EXPECT_THAT(lines(), HasSubstr("ACME DRW-24: You are not allowed to use the drive "
                                   "“ACME DRW-24”: it belongs to the group “"));
    EXPECT_THAT(lines({"--json"}), HasSubstr(R"("problem":"You are not allowed)"));
    EXPECT_EQ(burn({}), 1);
    EXPECT_THAT(errors_, HasSubstr("Ask an administrator to add you to this group"));
}

TEST_F(ScorchDrives, ADriveThatDoesNotAnswerHoldsNoOtherUp) {
    drive("sr0").control("silent 300\n");
    drive("sr1").makeDisc(recorder::blankDisc(DiscKind::CdR));
    const std::string text = lines();
    EXPECT_THAT(text, HasSubstr("does not answer"));
    EXPECT_THAT(text, HasSubstr("\nEXAMPLE CD-RW RECORDER: blank CD-R"));
}

TEST_F(ScorchDrives, LookingAtADriveLeavesItUnlockedAndFree) {
    drive().makeDisc(recorder::blankDisc(DiscKind::CdR));
    drive().startLog();
    lines();
    const std::string log = drive().log();
    EXPECT_THAT(log, HasSubstr("51")); // READ DISC INFORMATION: the drive was asked.
    for (const char *command : {"\n1e", "\n1b", "\n55", "\n5b", "\nbb"}) {
        EXPECT_THAT(log, Not(HasSubstr(command)));
    }
}

TEST_F(ScorchDrives, AUsedDiscThatCanBeErasedIsToldFromOneThatCannot) {
    drive().makeDisc(discWith(DiscKind::CdRw, true));
    EXPECT_EQ(burn({}), 1);
    EXPECT_THAT(errors_,
                HasSubstr("The CD-RW in \"EXAMPLE CD-RW RECORDER\" is not blank. Erase it"));
    drive("sr1").makeDisc(discWith(DiscKind::CdR, true));
    EXPECT_EQ(burn({"--drive", "/dev/sr1"}), 1);
    EXPECT_THAT(errors_, HasSubstr("(sr1)\" is not blank. Insert a blank CD"));
}

TEST_F(ScorchDrives, ADriveOnWhichAnotherProgramBurnsIsNotAskedAboutItsDisc) {
    drive().makeDisc(recorder::blankDisc(DiscKind::CdR));
    lines(); // Makes the file that stands for the device.
    const scorch::FileDescriptor other(
        ::open((drive().folder() / "node").c_str(), O_RDWR | O_CLOEXEC)); // NOLINT(*-vararg)
    ASSERT_TRUE(other.valid());
    drive().startLog();
    const std::string process = "(" + std::to_string(::getpid()) + ")";
    EXPECT_THAT(lines(), HasSubstr(process + " uses the drive"));
    EXPECT_EQ(burn({}), 1);
    EXPECT_THAT(errors_, HasSubstr(process + " uses the drive"));
    // Readiness, table of contents, configuration, disc and track information.
    EXPECT_THAT(drive().log(), Not(testing::ContainsRegex("(^|\n)[0-9]+ (00|43|46|51|52) ")));
    EXPECT_THAT(drive().log(), testing::ContainsRegex("(^|\n)[0-9]+ 12 ")) << "but who it is";
}

TEST_F(ScorchDrives, BurnTakesADriveByItsNode) {
    drive("sr0").makeDisc(recorder::blankDisc(DiscKind::CdR));
    drive("sr1").makeDisc(discWith(DiscKind::CdR, true));
    EXPECT_EQ(burn({"--drive", "/dev/sr1"}), 1);
    EXPECT_THAT(errors_, HasSubstr("(sr1)\" is not blank"));
    EXPECT_EQ(burn({"--drive", "/dev/sr7"}), 1);
    EXPECT_THAT(errors_, HasSubstr("no drive named \"/dev/sr7\""));
    EXPECT_EQ(burn({}), 2) << "there are two";
}
