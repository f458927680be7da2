// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/BurnCommand.h"

#include "cli/DriveChoice.h"
#include "tests/support/FakeEngine.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>

using namespace cli;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

/// Notes what it is told, in words.
class NotingReporter : public Reporter {
public:
    void step(const BurnStep &step) override { notes.push_back(stepText(step)); }
    void checking(const std::string &name, std::int64_t index, std::int64_t count) override {
        notes.push_back(name + ' ' + std::to_string(index) + '/' + std::to_string(count));
    }
    void refused(const RefusedFile &file, RefusalKind kind) override {
        notes.push_back((kind == RefusalKind::protectedFile ? "protected " : "incompatible ") +
                        refusalText(file));
    }
    void progress(double fraction, std::uint64_t leftFrames) override {
        notes.push_back(std::to_string(static_cast<int>(fraction * 100)) + "% " +
                        std::to_string(leftFrames));
    }
    void finished(const BurnSummary &summary) override {
        notes.emplace_back("finished");
        done = summary;
    }
    void failed(const ScorchError &error) override {
        notes.push_back("failed: " + error.localizedDescription());
    }
    void cancelled(const ScorcherDevice *device) override {
        notes.emplace_back(device != nullptr ? "cancelled: " + cli::discWord(*device)
                                             : "cancelled");
    }

    std::vector<std::string> notes;
    std::optional<BurnSummary> done;
};

class BurnCommandTest : public testing::Test {
protected:
    BurnCommandTest() {
        engine.addDrive("A");
        request.files = {"a.mp3", "b.mp3"};
        request.name = "Mix";
    }

    void start() {
        command.emplace(request, reporter, [this](ExitCode code) { ended.push_back(code); });
        command->start();
    }

    FakeScorcher &burner() {
        return request.kind == DiscKind::audio ? engine.audio() : engine.data();
    }
    ScorchDelegate &burnerSays() { return *burner().delegate(); }

    /// The check accepts both files.
    void startAndCheck() {
        start();
        burner().append("a", 300);
        burner().append("b", 300);
        burner().used = 600;
        burnerSays().addFilesProgressDidEnd({});
    }

    FakeEngine engine;
    BurnRequest request;
    NotingReporter reporter;
    std::vector<ExitCode> ended;
    std::optional<BurnCommand> command;
};

} // namespace

TEST_F(BurnCommandTest, FilesAreCheckedByTheBurnerOfTheKind) {
    request.kind = DiscKind::data;
    start();
    ASSERT_EQ(engine.data().addedFiles.size(), 1U);
    EXPECT_EQ(engine.data().addedFiles[0][1].path, "b.mp3");
    EXPECT_THAT(engine.audio().calls, IsEmpty());
    EXPECT_THAT(ended, IsEmpty());
}

TEST_F(BurnCommandTest, CheckedListIsBurnedUnderItsName) {
    startAndCheck();
    EXPECT_THAT(burner().burns, ElementsAre(std::pair<std::string, std::string>("A", "Mix")));
    EXPECT_THAT(ended, IsEmpty());
}

TEST_F(BurnCommandTest, EveryStageIsReportedInOrder) {
    startAndCheck();
    reporter.notes.clear();
    ScorchDelegate &says = burnerSays();
    says.burnProgressDidStarted();
    says.burnProgressIsPreparing();
    says.burnProgressIsOpeningTrackOf(1, 1);
    says.burnProgressIsWriteingTrackOf(1, 1);
    says.burnProgressDidChanagedLefttime(0.5, 750);
    says.burnProgressDidCloseTrackOf(1, 1);
    says.burnProgressDidCloseSession();
    says.burnProgressIsFinishing();
    says.burnProgressIsVerifying();
    says.burnProgressDidDone();
    EXPECT_THAT(reporter.notes,
                ElementsAre("Preparing", "Opening track 1 of 1", "Writing track 1 of 1", "50% 750",
                            "Closed track 1 of 1", "Closed the session", "Finishing the disc",
                            "Verifying", "finished"));
    EXPECT_THAT(ended, ElementsAre(ExitCode::done));
}

TEST_F(BurnCommandTest, SummaryTellsWhatIsOnTheDisc) {
    startAndCheck();
    burnerSays().burnProgressDidDone();
    ASSERT_TRUE(reporter.done);
    EXPECT_EQ(reporter.done->items, 2);
    EXPECT_EQ(reporter.done->capacity, 600U);
    EXPECT_EQ(reporter.done->discName, "Mix");
    EXPECT_EQ(reporter.done->driveName, "A");
    EXPECT_FALSE(reporter.done->verified) << "no verification was reported";
}

TEST_F(BurnCommandTest, ProgressOfTheCheckIsReported) {
    start();
    burnerSays().addFilesProgressDidChangedIndexOf("a.mp3", 1, 2);
    EXPECT_THAT(reporter.notes, ElementsAre("Checking files", "a.mp3 1/2"));
}

TEST_F(BurnCommandTest, RefusedFilesAreNamedAndTheRestIsBurned) {
    start();
    burner().append("a", 300);
    burnerSays().addFilesProgressDidEnd(
        AddFilesResult({{"p.m4p", "Locked."}}, {{"b.txt", "No sound."}}));
    EXPECT_THAT(reporter.notes, ElementsAre("Checking files", "protected p.m4p: Locked.",
                                            "incompatible b.txt: No sound."));
    ASSERT_EQ(burner().burns.size(), 1U);
    burnerSays().burnProgressDidDone();
    EXPECT_EQ(reporter.done->leftOut, 2U);
    EXPECT_THAT(ended, ElementsAre(ExitCode::done));
}

TEST_F(BurnCommandTest, NothingAcceptedIsNothingToBurn) {
    start();
    burnerSays().addFilesProgressDidEnd(AddFilesResult({}, {{"b.txt", "No sound."}}));
    EXPECT_THAT(ended, ElementsAre(ExitCode::nothingToBurn));
    EXPECT_THAT(burner().burns, IsEmpty());
}

TEST_F(BurnCommandTest, ListBeyondTheDiscIsNotBurned) {
    burner().overflows = true;
    start();
    burner().append("a", 1);
    burner().used = 359849 + 4500;
    burnerSays().addFilesProgressDidEnd({});
    EXPECT_THAT(ended, ElementsAre(ExitCode::doesNotFit));
    EXPECT_THAT(burner().burns, IsEmpty());
    EXPECT_THAT(reporter.notes.back(), HasSubstr("1:00:00 too little"));
}

TEST_F(BurnCommandTest, DataBeyondTheDiscIsToldInBytes) {
    request.kind = DiscKind::data;
    burner().overflows = true;
    start();
    burner().append("a", 1);
    burner().used = 736'970'752 + 1'500'000;
    burnerSays().addFilesProgressDidEnd({});
    EXPECT_THAT(ended, ElementsAre(ExitCode::doesNotFit));
    EXPECT_THAT(reporter.notes.back(), HasSubstr("1.5 MB too little"));
}

TEST_F(BurnCommandTest, DiscThatIsNotBlankFailsAsSuchAndNotAsTooSmall) {
    engine.drive("A").isBlank = false;
    burner().overflows = true; // As a disc without room has it.
    startAndCheck();
    EXPECT_THAT(ended, ElementsAre(ExitCode::failed));
    EXPECT_THAT(reporter.notes.back(), HasSubstr("not blank"));
}

TEST_F(BurnCommandTest, DiscThatIsBeingExaminedIsWaitedFor) {
    engine.drive("A").isChecking = true;
    startAndCheck();
    EXPECT_THAT(burner().burns, IsEmpty());
    engine.deviceDelegate()->deviceStatusDidChanged();
    EXPECT_THAT(burner().burns, IsEmpty());
    engine.drive("A").isChecking = false;
    engine.deviceDelegate()->deviceStatusDidChanged();
    EXPECT_EQ(burner().burns.size(), 1U);
    engine.deviceDelegate()->deviceStatusDidChanged();
    EXPECT_EQ(burner().burns.size(), 1U) << "burned once";
}

TEST_F(BurnCommandTest, DriveThatGoesWhileItIsWaitedForIsAFailure) {
    engine.drive("A").isChecking = true;
    startAndCheck();
    engine.deviceDelegate()->deviceDidDisappeared("B");
    EXPECT_THAT(ended, IsEmpty());
    engine.deviceDelegate()->deviceDidDisappeared("A");
    EXPECT_THAT(ended, ElementsAre(ExitCode::failed));
}

TEST_F(BurnCommandTest, ErrorsEndWithTheirExitCode) {
    const std::pair<ScorchErrorCode, ExitCode> table[] = {
        {ScorchErrorCode::tooManyTracks, ExitCode::doesNotFit},
        {ScorchErrorCode::doesNotFit, ExitCode::doesNotFit},
        {ScorchErrorCode::nothingToBurn, ExitCode::nothingToBurn},
        {ScorchErrorCode::targetMissing, ExitCode::failed},
        {ScorchErrorCode::verifyFailed, ExitCode::failed},
    };
    for (const auto &[error, exitCode] : table) {
        ended.clear();
        startAndCheck();
        burnerSays().burnProgressDidError({error, "Trouble."});
        EXPECT_THAT(ended, ElementsAre(exitCode)) << static_cast<int>(error);
        EXPECT_EQ(reporter.notes.back(), "failed: Trouble.");
    }
}

TEST_F(BurnCommandTest, NoDriveIsAFailureBeforeTheCheck) {
    engine.drives.clear();
    start();
    EXPECT_THAT(ended, ElementsAre(ExitCode::failed));
    EXPECT_THAT(engine.audio().calls, IsEmpty());
}

TEST_F(BurnCommandTest, BurnerThatTakesNoFilesIsAFailure) {
    burner().acceptsFiles = false;
    start();
    EXPECT_THAT(ended, ElementsAre(ExitCode::failed));
}

TEST_F(BurnCommandTest, CancelDuringTheCheckWaitsForItsEnd) {
    start();
    command->cancel();
    command->cancel();
    EXPECT_EQ(burner().count("cancelToAddFiles"), 1);
    EXPECT_THAT(ended, IsEmpty());
    burnerSays().addFilesProgressDidCanceled();
    EXPECT_THAT(ended, ElementsAre(ExitCode::cancelled));
}

TEST_F(BurnCommandTest, CancelThatComesAsTheCheckEndsBurnsNothing) {
    start();
    burner().append("a", 300);
    command->cancel();
    burnerSays().addFilesProgressDidEnd({});
    EXPECT_THAT(burner().burns, IsEmpty());
    EXPECT_THAT(ended, ElementsAre(ExitCode::cancelled));
}

TEST_F(BurnCommandTest, CancelDuringTheBurnStopsItOnceAndWaitsForRest) {
    startAndCheck();
    command->cancel();
    command->cancel();
    EXPECT_EQ(burner().count("stopBurn"), 1);
    EXPECT_THAT(ended, IsEmpty());
    burnerSays().burnProgressDidChanagedLefttime(0.5, 1);
    EXPECT_EQ(reporter.notes.back(), "Cancelling") << "no progress over it";
    burnerSays().burnProgressDidCanceled();
    EXPECT_THAT(ended, ElementsAre(ExitCode::cancelled));
    EXPECT_EQ(reporter.notes.back(), "cancelled");
}

TEST_F(BurnCommandTest, CancelTellsWhatItLeftOfTheDisc) {
    startAndCheck();
    command->cancel();
    engine.drive("A").isChecking = true;
    burnerSays().burnProgressDidCanceled();
    EXPECT_THAT(ended, IsEmpty());
    engine.deviceDelegate()->deviceStatusDidChanged();
    EXPECT_THAT(ended, IsEmpty()) << "it is still being examined";
    engine.drive("A").isChecking = false;
    engine.drive("A").isBlank = false;
    engine.deviceDelegate()->deviceStatusDidChanged();
    EXPECT_THAT(ended, ElementsAre(ExitCode::cancelled));
    EXPECT_EQ(reporter.notes.back(), "cancelled: written");
}

TEST_F(BurnCommandTest, CancelTellsWhatItLeftOfADiscThatIsExaminedAlready) {
    startAndCheck();
    command->cancel();
    engine.drive("A").isBlank = false;
    burnerSays().burnProgressDidCanceled();
    EXPECT_THAT(ended, ElementsAre(ExitCode::cancelled));
    EXPECT_EQ(reporter.notes.back(), "cancelled: written");
}

TEST_F(BurnCommandTest, SecondCancelDoesNotWaitForTheDisc) {
    startAndCheck();
    command->cancel();
    engine.drive("A").isChecking = true;
    burnerSays().burnProgressDidCanceled();
    command->cancel();
    command->cancel();
    EXPECT_THAT(ended, ElementsAre(ExitCode::cancelled));
    EXPECT_EQ(reporter.notes.back(), "cancelled");
}

TEST_F(BurnCommandTest, DriveThatGoesWhileItsDiscIsLookedAtEndsTheWait) {
    startAndCheck();
    command->cancel();
    engine.drive("A").isChecking = true;
    burnerSays().burnProgressDidCanceled();
    engine.deviceDelegate()->deviceDidDisappeared("A");
    EXPECT_THAT(ended, ElementsAre(ExitCode::cancelled));
}

TEST_F(BurnCommandTest, CancelThatCameTooLateIsTheErrorThatTheEngineReports) {
    startAndCheck();
    command->cancel();
    burnerSays().burnProgressDidError({ScorchErrorCode::finishedBeforeStop, "It was complete."});
    EXPECT_THAT(ended, ElementsAre(ExitCode::failed));
}

TEST_F(BurnCommandTest, CancelWhileTheDiscIsWaitedForEndsAtOnce) {
    engine.drive("A").isChecking = true;
    startAndCheck();
    command->cancel();
    EXPECT_THAT(ended, ElementsAre(ExitCode::cancelled));
    EXPECT_EQ(burner().count("stopBurn"), 0);
}

TEST_F(BurnCommandTest, CancelBeforeTheStartEndsAtOnceAndNothingStarts) {
    command.emplace(request, reporter, [this](ExitCode code) { ended.push_back(code); });
    command->cancel();
    command->start();
    EXPECT_THAT(ended, ElementsAre(ExitCode::cancelled));
    EXPECT_THAT(burner().calls, IsEmpty());
}

TEST_F(BurnCommandTest, CancelAfterTheEndChangesNothing) {
    startAndCheck();
    burnerSays().burnProgressDidDone();
    command->cancel();
    EXPECT_THAT(ended, ElementsAre(ExitCode::done));
}
