// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/ScorcherDeviceDelegate.h"
#include "tests/scorch/burner/BurnerHarness.h"

#include <gmock/gmock.h>

#include <filesystem>

using namespace scorch;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

/// Writes into the log of the burner, so that the order of both is seen.
class StatusInto final : public ScorcherDeviceDelegate {
public:
    explicit StatusInto(ScorchLog &log) : log_(log) {}
    void deviceStatusDidChanged() override { log_.words.emplace_back("status"); }

private:
    ScorchLog &log_;
};

class BurnerBurning : public BurnerHarness {
protected:
    void SetUp() override {
        burner_ = makeAudioBurner();
        add(*burner_, {"a", "b"});
        burner_->setDelegate(&log_);
    }
    void burn() {
        log_.clear();
        burner_->burnWithDeviceDiscNamed(device_.get(), "Disc");
        EXPECT_THAT(log_.words, IsEmpty());
        runUntil([this] { return log_.burnOver(); });
    }
    ScorchErrorCode code() const { return log_.error ? log_.error->category() : ScorchErrorCode{}; }

    std::shared_ptr<Burner> burner_;
    ScorchLog log_;
};

} // namespace

TEST_F(BurnerBurning, IsToldFromStartToDone) {
    burn();
    EXPECT_THAT(log_.words, ElementsAre("started", "preparing", "open 1/2", "write 1/2",
                                        "close 1/2", "open 2/2", "write 2/2", "close 2/2",
                                        "session", "finishing", "verifying", "done"));
    EXPECT_EQ(drive_->volumeName(), "Disc");
    EXPECT_EQ(drive_->bytesRecorded(), 600U * 2352);
}

TEST_F(BurnerBurning, VerificationIsLeftOutWhenItIsNotWanted) {
    verify_ = false;
    burn();
    EXPECT_FALSE(log_.has("verifying"));
    EXPECT_TRUE(log_.has("done"));
}

TEST_F(BurnerBurning, AnEmptyListIsAPlainError) {
    burner_->clearAll();
    queue_.runPending();
    burn();
    EXPECT_THAT(log_.words, ElementsAre("error"));
    EXPECT_EQ(code(), ScorchErrorCode::nothingToBurn);
}

TEST_F(BurnerBurning, MoreThan99TracksAreAPlainError) {
    std::vector<std::string> names;
    names.reserve(97);
    for (int index = 0; index < 97; ++index) {
        names.push_back("song " + std::to_string(index));
    }
    add(*burner_, names);
    burner_->setDelegate(&log_);
    burn();
    EXPECT_TRUE(log_.has("done")); // 99 are fine.
    drive_->setState(FakeDrive::blankCd(359'849));
    add(*burner_, {"one more"});
    burner_->setDelegate(&log_);
    burn();
    EXPECT_THAT(log_.words, ElementsAre("error"));
    EXPECT_EQ(code(), ScorchErrorCode::tooManyTracks);
    EXPECT_THAT(log_.error->localizedDescription(), HasSubstr("100"));
}

TEST_F(BurnerBurning, NoDriveIsAPlainError) {
    for (const char *name : {"", "No such drive"}) {
        log_.clear();
        const auto handle = drives_->makeHandle(name);
        burner_->burnWithDeviceDiscNamed(handle.get(), "Disc");
        queue_.runPending();
        EXPECT_THAT(log_.words, ElementsAre("error"));
        EXPECT_EQ(code(), ScorchErrorCode::noDrive);
    }
    log_.clear();
    burner_->burnWithDeviceDiscNamed(nullptr, "Disc");
    queue_.runPending();
    EXPECT_EQ(code(), ScorchErrorCode::noDrive);
}

TEST_F(BurnerBurning, ABusyBurnerIsAPlainErrorAndTheBurnGoesOn) {
    Gate gate;
    drive_->setStep([&gate](const std::string &step, const std::stop_token &stop) {
        if (step == "write 1") {
            gate.pass(stop);
        }
        return Outcome<>();
    });
    burner_->burnWithDeviceDiscNamed(device_.get(), "Disc");
    runUntilWord(log_, "write 1/2");
    burner_->burnWithDeviceDiscNamed(device_.get(), "Other");
    runUntilWord(log_, "error");
    EXPECT_EQ(code(), ScorchErrorCode::burnerBusy);
    EXPECT_FALSE(burner_->addFiles(files({"c"})));
    gate.open();
    runUntilWord(log_, "done");
    EXPECT_EQ(drive_->volumeName(), "Disc");
}

TEST_F(BurnerBurning, ACheckThatRunsKeepsTheBurnFromStarting) {
    Gate gate;
    onProbe_ = [&gate](const std::string &, const std::stop_token &stop) -> AudioProbe {
        gate.pass(stop);
        return AudioInfo{};
    };
    burner_->addFiles(files({"c"}));
    burner_->burnWithDeviceDiscNamed(device_.get(), "Disc");
    runUntilWord(log_, "error");
    EXPECT_EQ(code(), ScorchErrorCode::burnerBusy);
    gate.open();
    runUntilWord(log_, "check end");
}

TEST_F(BurnerBurning, ADriveThatBurnsForTheOtherBurnerIsBusy) {
    Gate gate;
    drive_->setStep([&gate](const std::string &step, const std::stop_token &stop) {
        if (step == "begin") {
            gate.pass(stop);
        }
        return Outcome<>();
    });
    const auto other = makeDataBurner();
    add(*other, {"file"});
    ScorchLog otherLog;
    other->setDelegate(&otherLog);
    burner_->burnWithDeviceDiscNamed(device_.get(), "Disc");
    other->burnWithDeviceDiscNamed(device_.get(), "Disc");
    runUntilWord(otherLog, "error");
    EXPECT_THAT(otherLog.words, ElementsAre("error"));
    EXPECT_EQ(otherLog.error->category(), ScorchErrorCode::driveBusy);
    gate.open();
    runUntilWord(log_, "done");
}

TEST_F(BurnerBurning, WhatDoesNotFitIsAnErrorBeforeAnythingIsWritten) {
    drive_->setState(FakeDrive::blankCd(599));
    burn();
    EXPECT_THAT(log_.words, ElementsAre("started", "preparing", "error"));
    EXPECT_EQ(code(), ScorchErrorCode::doesNotFit);
    EXPECT_EQ(drive_->bytesRecorded(), 0U);
}

TEST_F(BurnerBurning, ASongThatIsGoneIsNamedBeforeAnythingIsWritten) {
    std::filesystem::remove(folder_ / "b");
    burn();
    EXPECT_THAT(log_.words, ElementsAre("started", "preparing", "error"));
    EXPECT_EQ(code(), ScorchErrorCode::sourceMissing);
    EXPECT_THAT(log_.error->localizedDescription(), HasSubstr((folder_ / "b").string()));
    EXPECT_EQ(drive_->bytesRecorded(), 0U);
}

TEST_F(BurnerBurning, AfterAFailureTheListIsKeptAndTheNextBurnWorks) {
    for (const char *failing :
         {"begin", "open 1", "write 2", "session", "finishing", "read back", "commit"}) {
        drive_->setStep([failing](const std::string &step, const std::stop_token &) -> Outcome<> {
            return step == failing
                       ? Interruption(ScorchError(ScorchErrorCode::writeFailed, "failed"))
                       : Outcome<>();
        });
        burn();
        EXPECT_EQ(log_.words.back(), "error") << failing;
        EXPECT_EQ(log_.count("error"), 1U);
        EXPECT_THAT(namesIn(*burner_), ElementsAre("a", "b"));
        drive_->setStep(nullptr);
        burn();
        EXPECT_EQ(log_.words.back(), "done") << failing;
        drive_->setState(FakeDrive::blankCd(359'849));
    }
}

TEST_F(BurnerBurning, ADifferenceNamesTheSong) {
    drive_->spoil(1, 12);
    burn();
    EXPECT_EQ(code(), ScorchErrorCode::verifyFailed);
    EXPECT_THAT(log_.error->localizedDescription(), HasSubstr("Track 2, “b”"));
}

TEST_F(BurnerBurning, TheHandleMayBeFreedWhileItBurns) {
    burner_->burnWithDeviceDiscNamed(device_.get(), "Disc");
    device_.reset();
    runUntilWord(log_, "done");
}

TEST_F(BurnerBurning, ListsMayChangeWhileTheyAreBurned) {
    Gate gate;
    drive_->setStep([&gate](const std::string &step, const std::stop_token &stop) {
        if (step == "begin") {
            gate.pass(stop);
        }
        return Outcome<>();
    });
    burner_->burnWithDeviceDiscNamed(device_.get(), "Disc");
    EXPECT_TRUE(runUntilWord(log_, "preparing"));
    burner_->clearAll();
    runUntilWord(log_, "cleared");
    gate.open();
    runUntilWord(log_, "done");
    EXPECT_EQ(drive_->bytesRecorded(), 600U * 2352);
}

TEST_F(BurnerBurning, TheStateOfTheDriveIsToldOnceAndBehindTheEnd) {
    StatusInto status(log_);
    device_->setDelegate(&status);
    burner_->burnWithDeviceDiscNamed(device_.get(), "Disc");
    drive_->setState({.canWriteCd = true, .checking = true, .disc = {}});
    drive_->setState(FakeDrive::blankCd(359'849));
    log_.onWord = [this](const std::string &word) {
        if (word == "done") {
            EXPECT_FALSE(device_->isDiscBlank()); // True already when the end is told.
            EXPECT_FALSE(drive_->isRecording());
        }
    };
    runUntilWord(log_, "done");
    queue_.runPending();
    EXPECT_EQ(log_.count("status"), 1U);
    EXPECT_EQ(log_.words.back(), "status");
}

TEST_F(BurnerBurning, AFailedBurnOfAnImageChangesNoState) {
    StatusInto status(log_);
    device_->setDelegate(&status);
    drive_->setStep([](const std::string &, const std::stop_token &) -> Outcome<> {
        return Interruption(ScorchError(ScorchErrorCode::writeFailed, "failed"));
    });
    burn();
    queue_.runPending();
    EXPECT_FALSE(log_.has("status"));
}

TEST_F(BurnerBurning, ABurnMayBeStartedFromTheEndOfTheOneBefore) {
    log_.onWord = [this](const std::string &word) {
        if (word == "done" && log_.count("done") == 1) {
            drive_->setState(FakeDrive::blankCd(359'849));
            burner_->burnWithDeviceDiscNamed(device_.get(), "Second");
        }
    };
    burner_->burnWithDeviceDiscNamed(device_.get(), "First");
    runUntil([this] { return log_.count("done") == 2; });
    EXPECT_EQ(drive_->volumeName(), "Second");
    EXPECT_FALSE(log_.has("error"));
}

TEST_F(BurnerBurning, ADataBurnIsOneTrack) {
    const auto data = makeDataBurner();
    add(*data, {"x", "y"});
    ScorchLog log;
    data->setDelegate(&log);
    data->burnWithDeviceDiscNamed(device_.get(), "Data");
    runUntilWord(log, "done");
    EXPECT_EQ(log.count("write 1/1"), 1U);
    EXPECT_EQ(drive_->bytesRecorded(), data->usedCapacity());
}
