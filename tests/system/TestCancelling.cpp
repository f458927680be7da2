// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/HeldImages.h"
#include "tests/system/Burning.h"

#include <gmock/gmock.h>

#include <csignal>

namespace {

using testing::AnyOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class Cancelling : public Burning {
protected:
    /// More than is written at once, so that the program asks between the pieces.
    std::vector<std::string> largeBurn() const {
        return burnArguments("data", "Large", {sparseFile("large", 100U << 20U)});
    }

    /// Sends the signal when the text appears; the burn ends in one of its two honest ways.
    void expectAllOrNothing(const std::string &at, int signal) const {
        ScorchProcess scorch(
            burnArguments("audio", "Song", {silentSong("song.wav", 600), medium("song.mp3")}));
        EXPECT_TRUE(scorch.waitForOutput(at)) << scorch.output() << scorch.errors();
        scorch.sendSignal(signal);
        const int exitCode = scorch.wait();
        if (exitCode == 0) {
            EXPECT_THAT(images(), ElementsAre("Song.bin", "Song.cue"));
            std::filesystem::remove_all(imageFolder);
            std::filesystem::create_directory(imageFolder);
        } else if (exitCode == 130) {
            EXPECT_THAT(images(), IsEmpty());
        } else { // The disc was complete before the signal could be heeded, and it says so.
            EXPECT_EQ(exitCode, 1) << scorch.errors();
            EXPECT_THAT(images(), ElementsAre("Song.bin", "Song.cue")) << scorch.errors();
            std::filesystem::remove_all(imageFolder);
            std::filesystem::create_directory(imageFolder);
        }
    }
};

} // namespace

TEST_F(Cancelling, CtrlCWhileWritingLeavesNothing) {
    const HeldImages held(imageFolder);
    ScorchProcess scorch(largeBurn(), held.environment());
    ASSERT_TRUE(scorch.waitForOutput("Writing track 1")) << scorch.errors();
    scorch.sendSignal(SIGINT);
    EXPECT_TRUE(scorch.waitForOutput("Cancelling"));
    held.release();
    EXPECT_EQ(scorch.wait(), 130) << scorch.output();
    EXPECT_THAT(images(), IsEmpty());
    EXPECT_THAT(scorch.errors(), HasSubstr("cancelled"));
}

TEST_F(Cancelling, SecondCtrlCDoesNotBreakTheCancel) {
    const HeldImages held(imageFolder);
    ScorchProcess scorch(largeBurn(), held.environment());
    ASSERT_TRUE(scorch.waitForOutput("Writing track 1")) << scorch.errors();
    for (int i = 0; i < 5; ++i) {
        scorch.sendSignal(SIGINT);
    }
    EXPECT_TRUE(scorch.waitForOutput("Cancelling"));
    scorch.sendSignal(SIGINT);
    held.release();
    EXPECT_EQ(scorch.wait(), 130);
    EXPECT_THAT(images(), IsEmpty());
}

TEST_F(Cancelling, TerminateAndHangUpCancelAsWell) {
    for (const int signal : {SIGTERM, SIGHUP}) {
        const HeldImages held(imageFolder);
        ScorchProcess scorch(largeBurn(), held.environment());
        ASSERT_TRUE(scorch.waitForOutput("Writing track 1")) << scorch.errors();
        scorch.sendSignal(signal);
        EXPECT_TRUE(scorch.waitForOutput("Cancelling"));
        held.release();
        EXPECT_EQ(scorch.wait(), 130);
        EXPECT_THAT(images(), IsEmpty());
    }
}

TEST_F(Cancelling, EveryStageEndsWithAllOrNothing) {
    for (const char *stage :
         {"Checking", "Preparing", "Opening track 1", "Writing track 1", "Closed track 1",
          "Writing track 2", "Closed the session", "Finishing", "Verifying"}) {
        SCOPED_TRACE(stage);
        expectAllOrNothing(stage, SIGINT);
    }
}

TEST_F(Cancelling, KilledProgramLeavesNothingUnderAFinalName) {
    for (const char *stage : {"Writing track 1", "Finishing", "Verifying"}) {
        SCOPED_TRACE(stage);
        ScorchProcess scorch(burnArguments("audio", "Song", {silentSong("song.wav", 600)}));
        ASSERT_TRUE(scorch.waitForOutput(stage)) << scorch.errors();
        scorch.sendSignal(SIGKILL);
        EXPECT_THAT(scorch.wait(), AnyOf(128 + SIGKILL, 0));
        // A sheet without its sound would be half a disc.
        const std::vector<std::string> left = visibleImages();
        EXPECT_TRUE(left.empty() || left == std::vector<std::string>({"Song.bin", "Song.cue"}))
            << testing::PrintToString(left);
        std::filesystem::remove_all(imageFolder);
        std::filesystem::create_directory(imageFolder);
    }
}

TEST_F(Cancelling, NextBurnAfterAKilledOneSucceeds) {
    {
        const HeldImages held(imageFolder);
        ScorchProcess scorch(largeBurn(), held.environment());
        ASSERT_TRUE(scorch.waitForOutput("Writing track 1")) << scorch.errors();
        scorch.sendSignal(SIGKILL);
        EXPECT_EQ(scorch.wait(), 128 + SIGKILL);
        EXPECT_THAT(visibleImages(), IsEmpty());
    }
    burn("audio", "Next", {medium("short.wav")});
    EXPECT_THAT(visibleImages(), ElementsAre("Next.bin", "Next.cue"));
}

TEST_F(Cancelling, ReaderThatGoesAwayDoesNotEndTheBurn) {
    {
        ScorchProcess scorch(burnArguments("audio", "Gone", {medium("song.flac")}));
        ASSERT_TRUE(scorch.waitForOutput("Checking"));
        scorch.closeOutput();
        EXPECT_EQ(scorch.wait(), 0) << scorch.errors();
    }
    EXPECT_THAT(images(), ElementsAre("Gone.bin", "Gone.cue"));
}
