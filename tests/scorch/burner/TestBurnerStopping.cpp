// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/scorch/burner/BurnerHarness.h"

#include <gmock/gmock.h>

using namespace scorch;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

class BurnerStopping : public BurnerHarness {
protected:
    void SetUp() override {
        burner_ = makeAudioBurner();
        add(*burner_, {"a"});
        burner_->setDelegate(&log_);
    }
    /// Starts a burn whose drive waits at a step until it is stopped or the gate is opened.
    void burnTo(const std::string &step) {
        drive_->setStep([this, step](const std::string &taken, const std::stop_token &stop) {
            if (taken == step) {
                gate_.pass(stop);
            }
            return Outcome<>();
        });
        burner_->burnWithDeviceDiscNamed(device_.get(), "Disc");
        queue_.runOne(); // The start.
        EXPECT_TRUE(gate_.waitForVisitor());
        queue_.runPending();
    }

    std::shared_ptr<Burner> burner_;
    ScorchLog log_;
    Gate gate_;
};

} // namespace

TEST_F(BurnerStopping, AnIdleBurnerAnswersAtOnceButLater) {
    burner_->stopBurn();
    EXPECT_THAT(log_.words, IsEmpty());
    queue_.runPending();
    EXPECT_THAT(log_.words, ElementsAre("canceled"));
}

TEST_F(BurnerStopping, AfterAStopOnlyTheEndIsTold) {
    burnTo("write 1");
    burner_->stopBurn();
    log_.clear();
    runUntil([this] { return log_.burnOver(); });
    queue_.runPending();
    EXPECT_THAT(log_.words, ElementsAre("canceled"));
    EXPECT_THAT(namesIn(*burner_), ElementsAre("a"));
    EXPECT_FALSE(drive_->isRecording());
}

TEST_F(BurnerStopping, StagesThatWereQueuedBeforeTheStopAreNotTold) {
    drive_->setStep([this](const std::string &step, const std::stop_token &stop) {
        if (step == "write 1") {
            gate_.pass(stop);
        }
        return Outcome<>();
    });
    burner_->burnWithDeviceDiscNamed(device_.get(), "Disc");
    queue_.runOne();
    EXPECT_TRUE(gate_.waitForVisitor());
    EXPECT_GT(queue_.pending(), 0U); // Preparing, opening, writing.
    burner_->stopBurn();
    runUntil([this] { return log_.burnOver(); });
    EXPECT_THAT(log_.words, ElementsAre("started", "canceled"));
}

TEST_F(BurnerStopping, AStopBeforeTheStartWasToldNeverStarts) {
    burner_->burnWithDeviceDiscNamed(device_.get(), "Disc");
    burner_->stopBurn();
    queue_.runPending();
    EXPECT_THAT(log_.words, ElementsAre("canceled"));
    EXPECT_EQ(drive_->bytesRecorded(), 0U);
    log_.clear();
    burner_->burnWithDeviceDiscNamed(device_.get(), "Disc");
    runUntilWord(log_, "done"); // The drive is free again.
}

TEST_F(BurnerStopping, AStopThatComesWithTheEndIsToldTruthfully) {
    burnTo("commit");
    burner_->stopBurn();
    gate_.open();
    log_.clear();
    runUntil([this] { return log_.burnOver(); });
    EXPECT_THAT(log_.words, ElementsAre("error"));
    EXPECT_EQ(log_.error->category(), ScorchErrorCode::finishedBeforeStop);
    EXPECT_THAT(log_.error->localizedDescription(), HasSubstr("can be used"));
    EXPECT_FALSE(drive_->state().disc.blank);
}

TEST_F(BurnerStopping, AStopWhenTheEndIsQueuedAlreadyIsToldTruthfullyToo) {
    burnTo("commit");
    gate_.open();
    runUntil([this] { return !drive_->isRecording() && queue_.pending() > 0; });
    log_.clear();
    if (!log_.has("done")) {
        burner_->stopBurn();
        runUntil([this] { return log_.burnOver(); });
        EXPECT_FALSE(log_.has("done"));
    }
}

TEST_F(BurnerStopping, AStopFromInsideDoneIsAnsweredWithCanceled) {
    log_.onWord = [this](const std::string &word) {
        if (word == "done") {
            burner_->stopBurn(); // Nothing burns any more.
        }
    };
    burner_->burnWithDeviceDiscNamed(device_.get(), "Disc");
    runUntilWord(log_, "canceled");
    EXPECT_EQ(log_.count("done"), 1U);
}

TEST_F(BurnerStopping, AFailureAfterAStopIsAnError) {
    drive_->setStep([this](const std::string &step, const std::stop_token &stop) -> Outcome<> {
        if (step != "write 1") {
            return {};
        }
        gate_.pass(stop);
        return Interruption(ScorchError(ScorchErrorCode::writeFailed, "failed"));
    });
    burner_->burnWithDeviceDiscNamed(device_.get(), "Disc");
    runUntilWord(log_, "write 1/1");
    burner_->stopBurn();
    burner_->stopBurn();
    runUntil([this] { return log_.burnOver(); });
    EXPECT_EQ(log_.words.back(), "error");
    EXPECT_FALSE(log_.has("canceled"));
}

TEST_F(BurnerStopping, ShuttingDownEndsABurnWithoutAWord) {
    burnTo("write 1");
    log_.clear();
    burner_->shutDown();
    EXPECT_FALSE(drive_->isRecording());
    burner_->shutDown();
    queue_.runPending();
    EXPECT_THAT(log_.words, IsEmpty());
}

TEST_F(BurnerStopping, ShuttingDownEndsACheckWithoutAWord) {
    onProbe_ = [this](const std::string &, const std::stop_token &stop) -> AudioProbe {
        gate_.pass(stop);
        return Cancelled{};
    };
    burner_->addFiles(files({"b"}));
    queue_.runOne();
    EXPECT_TRUE(gate_.waitForVisitor());
    log_.clear();
    burner_->shutDown();
    queue_.runPending();
    EXPECT_THAT(log_.words, IsEmpty());
}

TEST_F(BurnerStopping, NothingIsAcceptedAfterTheEnd) {
    burner_->shutDown();
    EXPECT_FALSE(burner_->addFiles(files({"b"})));
    burner_->burnWithDeviceDiscNamed(device_.get(), "Disc");
    burner_->stopBurn();
    burner_->clearAll();
    burner_->cancelToAddFiles();
    queue_.runPending();
    EXPECT_THAT(log_.words, IsEmpty());
}

TEST_F(BurnerStopping, ABurnerMayBeDestroyedWhileItBurns) {
    burnTo("write 1");
    burner_.reset();
    EXPECT_FALSE(drive_->isRecording());
    queue_.runPending();
}
