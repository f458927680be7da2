// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/burner/BurnErrors.h"
#include "scorch/burner/BurnJob.h"
#include "tests/scorch/drive/FakeContent.h"
#include "tests/scorch/drive/FakeDrive.h"

#include <gmock/gmock.h>

#include <stdexcept>

using namespace scorch;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

std::string wordFor(const BurnStage &stage) {
    const std::string place = std::to_string(stage.track) + '/' + std::to_string(stage.count);
    switch (stage.kind) {
    case BurnStageKind::preparing:
        return "preparing";
    case BurnStageKind::openingTrack:
        return "open " + place;
    case BurnStageKind::writingTrack:
        return "write " + place;
    case BurnStageKind::closedTrack:
        return "close " + place;
    case BurnStageKind::closedSession:
        return "session";
    case BurnStageKind::finishing:
        return "finishing";
    case BurnStageKind::verifying:
        return "verifying";
    }
    return {};
}

class Observer final : public BurnObserver {
public:
    std::vector<std::string> words;
    std::vector<BurnProgress> progress;
    void stageBegan(const BurnStage &stage) override { words.push_back(wordFor(stage)); }
    void progressed(const BurnProgress &report) override { progress.push_back(report); }
};

class BurnJobTest : public testing::Test {
protected:
    BurnEnd run(TrackKind kind, const std::vector<std::int64_t> &sectors) {
        request_.drive = drive_;
        request_.makeContent = [this, kind, sectors](const std::stop_token &) {
            auto content = std::make_unique<FakeContent>(kind, sectors, "Name");
            content->beforeRead = beforeRead_;
            return Outcome<std::unique_ptr<DiscContent>>(std::move(content));
        };
        return runBurn(request_, observer_, stop_.get_token());
    }
    static std::string errorOf(const BurnEnd &end) {
        const auto *error = std::get_if<ScorchError>(&end);
        return error != nullptr ? error->localizedDescription() : "no error";
    }
    static ScorchErrorCode codeOf(const BurnEnd &end) {
        return std::get<ScorchError>(end).category();
    }

    std::shared_ptr<FakeDrive> drive_ = std::make_shared<FakeDrive>("Drive");
    BurnRequest request_;
    Observer observer_;
    std::stop_source stop_;
    std::function<Outcome<>(std::int64_t)> beforeRead_;
};

const std::vector<std::string> steps = {"begin",     "open 1",    "write 1", "close 1",
                                        "open 2",    "write 2",   "close 2", "session",
                                        "finishing", "read back", "commit"};

} // namespace

TEST_F(BurnJobTest, GoesThroughAllStagesInOrder) {
    EXPECT_TRUE(std::holds_alternative<BurnDone>(run(TrackKind::audio, {300, 301})));
    EXPECT_THAT(observer_.words,
                ElementsAre("preparing", "open 1/2", "write 1/2", "close 1/2", "open 2/2",
                            "write 2/2", "close 2/2", "session", "finishing", "verifying"));
    EXPECT_EQ(drive_->bytesRecorded(), 601 * audioSectorBytes);
    EXPECT_EQ(drive_->volumeName(), "Name");
    EXPECT_FALSE(drive_->isRecording());
    EXPECT_FALSE(drive_->state().disc.blank);
}

TEST_F(BurnJobTest, VerificationCanBeLeftOut) {
    request_.verify = false;
    drive_->spoil(0, 10);
    EXPECT_TRUE(std::holds_alternative<BurnDone>(run(TrackKind::data, {1000})));
    EXPECT_THAT(observer_.words, testing::Not(testing::Contains("verifying")));
}

TEST_F(BurnJobTest, ADifferenceIsNamedToTheSectorOfItsTrack) {
    drive_->spoil(1, 1023);
    const BurnEnd end = run(TrackKind::audio, {300, 2000});
    EXPECT_EQ(codeOf(end), ScorchErrorCode::verifyFailed);
    EXPECT_THAT(errorOf(end), HasSubstr("Track 2, “song 2 at 1023”"));
    EXPECT_TRUE(drive_->state().disc.blank);
}

TEST_F(BurnJobTest, ADifferenceInTheVeryLastSectorIsFound) {
    drive_->spoil(0, 1024);
    EXPECT_EQ(codeOf(run(TrackKind::data, {1025})), ScorchErrorCode::verifyFailed);
}

TEST_F(BurnJobTest, AListThatDoesNotFitIsRefusedBeforeAnythingIsWritten) {
    drive_->setState(FakeDrive::blankCd(999));
    EXPECT_EQ(codeOf(run(TrackKind::data, {1000})), ScorchErrorCode::doesNotFit);
    EXPECT_EQ(drive_->bytesRecorded(), 0U);
    drive_->setState(FakeDrive::blankCd(1000));
    EXPECT_TRUE(std::holds_alternative<BurnDone>(run(TrackKind::data, {1000})));
}

TEST_F(BurnJobTest, ADriveThatIsBeingCheckedIsAskedWhenTheRecordingBegins) {
    drive_->setState({.canWriteCd = true, .checking = true, .disc = {}});
    EXPECT_TRUE(std::holds_alternative<BurnDone>(run(TrackKind::data, {1000})));
    drive_->setState({.canWriteCd = true, .checking = true, .disc = {}});
    drive_->setStep([](const std::string &step, const std::stop_token &) -> Outcome<> {
        return step == "begin" ? Interruption(noDriveError("Drive")) : Outcome<>();
    });
    EXPECT_EQ(codeOf(run(TrackKind::data, {1000})), ScorchErrorCode::noDrive);
}

TEST_F(BurnJobTest, ADiscThatIsCheckedAnewMeanwhileHasNotBecomeTooSmall) {
    request_.drive = drive_;
    request_.makeContent = [this](const std::stop_token &) {
        drive_->setState({.canWriteCd = true, .checking = true, .disc = {}});
        return Outcome<std::unique_ptr<DiscContent>>(std::make_unique<FakeContent>(
            TrackKind::data, std::vector<std::int64_t>{1000}, "Name"));
    };
    EXPECT_TRUE(std::holds_alternative<BurnDone>(runBurn(request_, observer_, {})));
}

TEST_F(BurnJobTest, ADiscThatCannotBeBurnedIsRefusedBeforeSourcesAreOpened) {
    drive_->setDisc({});
    request_.makeContent = nullptr;
    request_.drive = drive_;
    EXPECT_EQ(codeOf(runBurn(request_, observer_, {})), ScorchErrorCode::noDisc);
    EXPECT_THAT(observer_.words, ElementsAre("preparing"));
}

TEST_F(BurnJobTest, AnErrorOfAnyStepEndsTheBurnAndLeavesTheDriveAtRest) {
    for (const std::string &failing : steps) {
        drive_->setState(FakeDrive::blankCd(359'849));
        drive_->setStep([&failing](const std::string &step, const std::stop_token &) -> Outcome<> {
            return step == failing
                       ? Interruption(ScorchError(ScorchErrorCode::writeFailed, "at " + step))
                       : Outcome<>();
        });
        EXPECT_EQ(errorOf(run(TrackKind::audio, {300, 300})), "at " + failing);
        EXPECT_FALSE(drive_->isRecording());
        EXPECT_TRUE(drive_->state().disc.blank);
    }
}

TEST_F(BurnJobTest, AStopAtAnyStepBeforeTheCommitCancels) {
    for (const std::string &stopping : steps) {
        drive_->setState(FakeDrive::blankCd(359'849));
        stop_ = std::stop_source();
        drive_->setStep([&](const std::string &step, const std::stop_token &) -> Outcome<> {
            if (step == stopping) {
                stop_.request_stop();
            }
            return {};
        });
        const BurnEnd end = run(TrackKind::audio, {300, 300});
        if (stopping == "commit") {
            EXPECT_TRUE(std::holds_alternative<BurnDone>(end)); // Too late: the disc is complete.
        } else {
            EXPECT_TRUE(std::holds_alternative<Cancelled>(end)) << stopping;
            EXPECT_TRUE(drive_->state().disc.blank) << stopping;
        }
        EXPECT_FALSE(drive_->isRecording());
    }
}

TEST_F(BurnJobTest, AStopThatComesAfterTheDiscIsCompleteDoesNotUndoIt) {
    drive_->completeWhenRecorded();
    drive_->setStep([&](const std::string &step, const std::stop_token &) -> Outcome<> {
        if (step == "read back") {
            stop_.request_stop();
        }
        return {};
    });
    EXPECT_TRUE(std::holds_alternative<BurnDone>(run(TrackKind::audio, {300, 2000})));
    EXPECT_FALSE(drive_->state().disc.blank);
}

TEST_F(BurnJobTest, SectorsThatCannotBeReadBackAreNotCompared) {
    drive_->limitReading({2, 599});
    for (const std::int64_t unreachable : {0, 1, 599}) {
        drive_->setState(FakeDrive::blankCd(359'849));
        drive_->spoil(0, unreachable);
        EXPECT_TRUE(std::holds_alternative<BurnDone>(run(TrackKind::audio, {600, 300})));
    }
    for (const std::int64_t reachable : {2, 513, 598}) {
        drive_->setState(FakeDrive::blankCd(359'849));
        drive_->spoil(0, reachable);
        EXPECT_EQ(codeOf(run(TrackKind::audio, {600, 300})), ScorchErrorCode::verifyFailed);
    }
}

TEST_F(BurnJobTest, ASourceThatFailsEndsTheBurn) {
    beforeRead_ = [](std::int64_t sector) -> Outcome<> {
        return sector < 64 ? Outcome<>()
                           : Interruption(ScorchError(ScorchErrorCode::sourceTooShort, "short"));
    };
    EXPECT_EQ(codeOf(run(TrackKind::audio, {300})), ScorchErrorCode::sourceTooShort);
    EXPECT_FALSE(drive_->isRecording());
}

TEST_F(BurnJobTest, NoExceptionLeavesTheJob) {
    drive_->setStep([](const std::string &, const std::stop_token &) -> Outcome<> {
        throw std::runtime_error("boom");
    });
    const BurnEnd end = run(TrackKind::audio, {300});
    EXPECT_EQ(codeOf(end), ScorchErrorCode::internal);
    EXPECT_THAT(errorOf(end), HasSubstr("boom"));
}

TEST_F(BurnJobTest, ProgressRisesThroughWritingAndVerifying) {
    std::int64_t milliseconds = 0;
    request_.clock = [&milliseconds] {
        milliseconds += 120;
        return Moment(std::chrono::milliseconds(milliseconds));
    };
    EXPECT_TRUE(std::holds_alternative<BurnDone>(run(TrackKind::data, {20'000})));
    ASSERT_GT(observer_.progress.size(), 20U);
    double last = 0;
    for (const BurnProgress &report : observer_.progress) {
        EXPECT_GE(report.fraction, last);
        EXPECT_LT(report.fraction, 1);
        last = report.fraction;
    }
    EXPECT_GT(last, 0.8);
}
