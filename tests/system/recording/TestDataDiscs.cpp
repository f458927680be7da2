// SPDX-License-Identifier: GPL-2.0-or-later
// Data discs, read back by programs that are not ours.
#include "tests/system/recording/RecordingDiscs.h"

#include <gmock/gmock.h>

#include <csignal>
#include <filesystem>

using namespace recorder;
using testing::AllOf;
using testing::ContainsRegex;
using testing::HasSubstr;
using testing::Not;

namespace {

class DataDiscs : public RecordingDiscs {
protected:
    /// Larger than the ring, so that it is still being read while the drive writes.
    std::vector<std::string> largeBurn() const {
        return burning("data", "Large", {sparseFile("large", 100U << 20U)});
    }
};

} // namespace

TEST_F(DataDiscs, FilesAreReadBackToTheLastSector) {
    const std::string large = samples(2000, 1);
    file("tree/large.bin", large);
    file("tree/deep/caf\xe9.txt", "bytes");
    mustBurn(burning("data", "Photos", {path("tree")}));
    mustRun({"xorriso", "-osirrox", "on", "-indev", "/dev/sr0", "-extract", "/", path("copy")});
    EXPECT_TRUE(readFile(folder / "copy/tree/large.bin") == large);
    EXPECT_EQ(readFile(folder / "copy/tree/deep/caf\xe9.txt"), "bytes");
    EXPECT_THAT(mustRun({"isoinfo", "-d", "-i", "/dev/sr0"}), HasSubstr("Volume id: Photos"));
    mustRun({"dd", "if=/dev/sr0", "of=" + path("whole.iso"), "bs=64k"});
    EXPECT_EQ(std::filesystem::file_size(folder / "whole.iso"),
              static_cast<std::uintmax_t>(scene.disc().sessions[0].leadOut) * 2048);
}

TEST_F(DataDiscs, FlippedByteNamesTheFile) {
    scene.control("flip 300 7\n");
    EXPECT_EQ(burn(burning("data", "Files", {file("numbers.bin", samples(1000, 1))})), 1);
    EXPECT_THAT(errors, HasSubstr("“numbers.bin” is not on the disc as it was sent"));
}

TEST_F(DataDiscs, SectorThatCannotBeReadNamesTheFileAndTheSense) {
    scene.control("read-error 300\n");
    EXPECT_EQ(burn(burning("data", "Files", {file("numbers.bin", samples(1000, 1))})), 1);
    EXPECT_THAT(errors, AllOf(HasSubstr("“numbers.bin” cannot be read back"), HasSubstr("3/11/00"),
                              HasSubstr("sector 300")));
}

TEST_F(DataDiscs, SourceThatShrinksInTheMiddleIsAnErrorThatNamesIt) {
    scene.control("slow 5000\n");
    ScorchProcess scorch(largeBurn(), environment());
    ASSERT_TRUE(scorch.waitForOutput("Writing track 1")) << scorch.errors();
    std::filesystem::resize_file(path("large"), 1000);
    EXPECT_EQ(scorch.wait(), 1);
    EXPECT_THAT(scorch.errors(), HasSubstr("large"));
    EXPECT_TRUE(scene.disc().hasOpenSession()) << "and it is no success";
    expectDriveToBeFree();
}

TEST_F(DataDiscs, UsedDiscIsRefused) {
    mustBurn(burning("data", "Files", {file("one.txt", "one")}));
    const Disc before = scene.disc();
    EXPECT_EQ(burn(burning("data", "Files", {file("two.txt", "two")})), 1);
    EXPECT_THAT(errors, HasSubstr("not blank"));
    EXPECT_EQ(scene.disc(), before);
}

TEST_F(DataDiscs, SignalInTheMiddleLeavesTheDriveFree) {
    scene.control("slow 3000\n");
    for (const int signal : {SIGINT, SIGTERM}) {
        scene.makeDisc(blankDisc(DiscKind::CdR));
        ScorchProcess scorch(largeBurn(), environment());
        ASSERT_TRUE(scorch.waitForOutput("Writing track 1")) << scorch.errors();
        scorch.sendSignal(signal);
        EXPECT_EQ(scorch.wait(), 130) << scorch.output();
        EXPECT_THAT(scorch.errors(),
                    HasSubstr("cancelled. Disc now: a CD that is not blank (CD-R)"));
    }
    expectDriveToBeFree();
}

TEST_F(DataDiscs, WriteErrorIsToldWithItsSense) {
    scene.control("write-error 200\n");
    EXPECT_EQ(burn(burning("data", "Files", {file("numbers.bin", samples(1000, 1))})), 1);
    EXPECT_THAT(errors, AllOf(HasSubstr("could not be written at sector"), HasSubstr("3/0C/00")));
    expectDriveToBeFree();
}

TEST_F(DataDiscs, DriveThatVanishesInTheMiddleIsTold) {
    scene.control("slow 3000\n");
    ScorchProcess scorch(largeBurn(), environment());
    ASSERT_TRUE(scorch.waitForOutput("Writing track 1")) << scorch.errors();
    scene.control("vanished\n");
    EXPECT_EQ(scorch.wait(), 1) << scorch.output();
    EXPECT_THAT(scorch.errors(), HasSubstr("has been disconnected"));
    expectNextDiscToWork();
}

TEST_F(DataDiscs, HeldDriveIsToldAndLeftLocked) {
    scene.control("busy\n");
    scene.startLog();
    EXPECT_EQ(burn(burning("data", "Files", {file("one.txt", "one")})), 1);
    EXPECT_THAT(errors, HasSubstr("uses the drive"));
    EXPECT_THAT(scene.log(), Not(ContainsRegex("(^|\n)[0-9]+ 1e "))); // Its lock is another's.
}
