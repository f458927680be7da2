// SPDX-License-Identifier: GPL-2.0-or-later
// What a drive can do wrong, and requests to stop.
#include "tests/scorch/libburn/RecordingTest.h"
#include "tests/support/GivenTime.h"

#include <gmock/gmock.h>

#include <chrono>

using namespace recorder;
using namespace scorch;
using namespace std::chrono_literals;
using testing::HasSubstr;

namespace {

class RecordingFaults : public RecordingTest {
protected:
    /// The error of a recording on which this happens at a stage.
    ScorchError failureWhen(const std::string &happens, const std::string &at = "write 2") {
        scene_.control("slow 2000\n");
        atStage_ = [this, happens, at](const std::string &stage) {
            if (stage == at) {
                scene_.control("slow 2000\n" + happens + "\n");
            }
        };
        // A lead-in with texts is slow.
        FakeContent content(TrackKind::audio, {300, 1000, 300}, "");
        ScorchError failure = failureOf(content);
        atStage_ = nullptr;
        return failure;
    }

    /// A new disc takes a recording as if nothing had happened.
    void expectNextDiscToWork() {
        scene_.makeDisc(blankDisc(DiscKind::CdR), "next");
        scene_.control("disc next\n");
        stop_ = std::stop_source();
        FakeContent content(TrackKind::audio, {300});
        const auto recorded = record(content);
        EXPECT_TRUE(recorded) << errorOf(recorded.error()).detail();
        EXPECT_TRUE(scene_.disc("next").isFinal);
    }
};

} // namespace

TEST_F(RecordingFaults, WriteErrorNamesTheSectorAndTheSense) {
    scene_.control("write-error 500\n");
    FakeContent content(TrackKind::audio, {300, 400});
    const ScorchError failure = failureOf(content);
    EXPECT_EQ(failure.category(), ScorchErrorCode::writeFailed);
    EXPECT_THAT(failure.localizedDescription(), HasSubstr("sector 4"));
    EXPECT_THAT(failure.detail(), HasSubstr("3/0C/00"));
    EXPECT_THAT(log(), testing::Contains(HasSubstr("[3 0C 00]"))) << "with libburn's own words";
}

TEST_F(RecordingFaults, PowerCalibrationFailureIsTold) {
    scene_.control("power-calibration\n");
    FakeContent content(TrackKind::data, {500});
    const ScorchError failure = failureOf(content);
    EXPECT_EQ(failure.category(), ScorchErrorCode::writeFailed);
    EXPECT_THAT(failure.detail(), HasSubstr("3/73/03"));
    EXPECT_EQ(scene_.disc(), blankDisc(DiscKind::CdR));
}

TEST_F(RecordingFaults, LossOfStreamingIsTold) {
    scene_.control("loss-of-streaming 400\n");
    FakeContent content(TrackKind::data, {500});
    EXPECT_THAT(failureOf(content).detail(), HasSubstr("3/0C/09"));
}

TEST_F(RecordingFaults, DriveThatVanishesIsGone) {
    EXPECT_EQ(failureWhen("vanished").category(), ScorchErrorCode::driveGone);
    expectNextDiscToWork();
}

TEST_F(RecordingFaults, DriveThatDoesNotAnswerAnyMoreIsSilent) {
    EXPECT_EQ(failureWhen("silent 20").category(), ScorchErrorCode::driveSilent);
    expectNextDiscToWork();
}

TEST_F(RecordingFaults, TrackThatIsBrokenOffIsNotContinuedWithTheNext) {
    EXPECT_EQ(failureWhen("silent 20", "write 1").category(), ScorchErrorCode::driveSilent);
    expectNextDiscToWork();
}

TEST_F(RecordingFaults, DriveThatFallsSilentBeforeTheFirstCommandIsSilent) {
    FakeContent content(TrackKind::audio, {300});
    auto begun = begin(content);
    ASSERT_TRUE(begun);
    scene_.control("silent 20\n");
    SilentObserver observer;
    const auto recorded = (*begun)->record(content, observer, stop_.get_token());
    ASSERT_FALSE(recorded);
    EXPECT_EQ(errorOf(recorded.error()).category(), ScorchErrorCode::driveSilent);
    begun->reset();
    expectNextDiscToWork();
}

TEST_F(RecordingFaults, DriveThatNeverComesToRestIsGivenUp) {
    patience_.rest = 100ms;
    const GivenTime taken;
    EXPECT_EQ(failureWhen("silent 1000").category(), ScorchErrorCode::driveSilent);
    EXPECT_LT(taken.elapsed(), 6s);
    scene_.control(""); // It answers again, and is given free when the program ends.
}

TEST_F(RecordingFaults, DriveThatTakesNothingIsGivenUp) {
    patience_.progress = 300ms;
    scene_.control("slow 20\n");
    FakeContent content(TrackKind::data, {1000});
    EXPECT_EQ(failureOf(content).category(), ScorchErrorCode::driveSilent);
}

TEST_F(RecordingFaults, TrayThatIsOpenedIsTold) {
    const ScorchError failure = failureWhen("tray open");
    EXPECT_EQ(failure.category(), ScorchErrorCode::noDisc);
    EXPECT_THAT(failure.detail(), HasSubstr("2/3A/02"));
    expectNextDiscToWork();
}

TEST_F(RecordingFaults, TrayThatIsOpenedAfterTheLastSectorIsTold) {
    EXPECT_EQ(failureWhen("tray open", "finishing").category(), ScorchErrorCode::noDisc);
}

TEST_F(RecordingFaults, DriveThatIsHeldIsBusyAtOnce) {
    scene_.control("busy\n");
    FakeContent content(TrackKind::audio, {300});
    const GivenTime taken;
    EXPECT_EQ(failureOf(content).category(), ScorchErrorCode::driveBusy);
    EXPECT_LT(taken.elapsed(), 1s);
}

TEST_F(RecordingFaults, DriveThatMayNotBeOpenedIsTold) {
    scene_.control("no-permission\n");
    FakeContent content(TrackKind::audio, {300});
    EXPECT_EQ(failureOf(content).category(), ScorchErrorCode::driveNotAllowed);
}

TEST_F(RecordingFaults, DiscThatIsNoBlankCdIsRefused) {
    FakeContent content(TrackKind::data, {300});
    ASSERT_TRUE(record(content));
    EXPECT_EQ(failureOf(content).category(), ScorchErrorCode::discNotBlank);
    scene_.control("disc none\n");
    EXPECT_EQ(failureOf(content).category(), ScorchErrorCode::noDisc);
}

TEST_F(RecordingFaults, ContentThatDoesNotFitIsRefusedBeforeAnythingIsWritten) {
    Disc small = blankDisc(DiscKind::CdR);
    small.capacity = 699;
    insert(small);
    FakeContent content(TrackKind::audio, {300, 400});
    EXPECT_EQ(failureOf(content).category(), ScorchErrorCode::doesNotFit);
    EXPECT_EQ(scene_.disc(), small);
}

TEST_F(RecordingFaults, HundredTracksAreRefusedBeforeAnythingIsWritten) {
    FakeContent content(TrackKind::audio, std::vector<std::int64_t>(100, 300));
    EXPECT_EQ(failureOf(content).category(), ScorchErrorCode::tooManyTracks);
    EXPECT_EQ(scene_.disc(), blankDisc(DiscKind::CdR));
}

TEST_F(RecordingFaults, StopInTheMiddleCancelsAndTheNextDiscWorks) {
    scene_.control("slow 2000\n");
    atStage_ = [this](const std::string &stage) {
        if (stage == "write 2") {
            stop_.request_stop();
        }
    };
    FakeContent content(TrackKind::audio, {300, 60'000}, "");
    const auto recorded = record(content);
    ASSERT_FALSE(recorded);
    EXPECT_TRUE(isCancelled(recorded.error()));
    EXPECT_FALSE(recording_->isComplete());
    EXPECT_TRUE(scene_.disc().hasOpenSession());
    atStage_ = nullptr;
    expectNextDiscToWork();
}

TEST_F(RecordingFaults, StopUnblocksASourceThatWaits) {
    FakeContent content(TrackKind::audio, {300, 60'000}, "");
    const auto token = stop_.get_token();
    GivenTime sinceAsked;
    content.beforeRead = [&](std::int64_t sector) -> Outcome<> {
        if (sector < 40'000) { // Behind what the ring holds, so while the drive writes.
            return {};
        }
        sinceAsked.restart();
        stop_.request_stop();
        return Interruption(Cancelled{}); // As a source does that notices it.
    };
    const auto recorded = record(content);
    ASSERT_FALSE(recorded);
    EXPECT_TRUE(isCancelled(recorded.error()));
    EXPECT_LT(sinceAsked.elapsed(), 5s) << "the drive is brought to rest, no more";
}

TEST_F(RecordingFaults, StopBeforeTheFirstSectorLeavesTheDiscBlank) {
    FakeContent content(TrackKind::audio, {300});
    content.beforeRead = [this](std::int64_t /*sector*/) -> Outcome<> {
        stop_.request_stop();
        return {};
    };
    const auto recorded = record(content);
    ASSERT_FALSE(recorded);
    EXPECT_TRUE(isCancelled(recorded.error()));
    EXPECT_EQ(scene_.disc(), blankDisc(DiscKind::CdR));
}

TEST_F(RecordingFaults, StopBehindTheLastSectorComesTooLate) {
    atStage_ = [this](const std::string &stage) {
        if (stage == "finishing") {
            stop_.request_stop();
        }
    };
    FakeContent content(TrackKind::audio, {300});
    EXPECT_TRUE(record(content));
    EXPECT_TRUE(recording_->isComplete());
    EXPECT_TRUE(scene_.disc().isFinal);
}
