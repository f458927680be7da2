// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/scorch/burner/BurnerHarness.h"

#include <gmock/gmock.h>

using namespace scorch;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class BurnerDelegates : public BurnerHarness {
protected:
    void SetUp() override { burner_ = makeAudioBurner(); }
    void TearDown() override { gate_.open(); }

    /// Starts a burn that waits at a step of the drive.
    void burnTo(ScorchLog &log, const std::string &step) {
        add(*burner_, {"a"});
        burner_->setDelegate(&log);
        drive_->setStep([this, step](const std::string &taken, const std::stop_token &stop) {
            if (taken == step) {
                gate_.pass(stop);
            }
            return Outcome<>();
        });
        burner_->burnWithDeviceDiscNamed(device_.get(), "Disc");
        EXPECT_TRUE(runUntilWord(log, "started"));
        EXPECT_TRUE(gate_.waitForVisitor());
        queue_.runPending();
    }

    std::shared_ptr<Burner> burner_;
    Gate gate_;
};

} // namespace

TEST_F(BurnerDelegates, AnAnswerQueuedForADestroyedDelegateReachesNobody) {
    add(*burner_, {"a", "b"});
    auto gone = std::make_unique<ScorchLog>();
    burner_->setDelegate(gone.get());
    burner_->removeItem(burner_->childOfBurnItem(0, nullptr));
    gone.reset();
    ScorchLog next;
    burner_->setDelegate(&next);
    queue_.runPending();
    EXPECT_THAT(next.words, IsEmpty());
}

TEST_F(BurnerDelegates, AnAnswerQueuedForAReplacedDelegateReachesNobody) {
    add(*burner_, {"a"});
    ScorchLog first;
    ScorchLog second;
    burner_->setDelegate(&first);
    burner_->clearAll();
    burner_->stopBurn();
    burner_->burnWithDeviceDiscNamed(nullptr, "");
    burner_->setDelegate(&second);
    burner_->setDelegate(&first); // Another client's life, though the same object.
    queue_.runPending();
    EXPECT_THAT(first.words, IsEmpty());
    EXPECT_THAT(second.words, IsEmpty());
}

TEST_F(BurnerDelegates, ADelegateSetDuringABurnIsToldWhereItStandsFirst) {
    ScorchLog first;
    burnTo(first, "write 1");
    ScorchLog second;
    burner_->setDelegate(&second);
    EXPECT_THAT(second.words, IsEmpty());
    queue_.runPending();
    EXPECT_THAT(second.words, ElementsAre("started", "write 1/1"));
    gate_.open();
    runUntilWord(second, "done");
    EXPECT_EQ(second.count("started"), 1U);
    EXPECT_THAT(first.words, testing::Not(Contains("done")));
}

TEST_F(BurnerDelegates, ItIsToldBeforeAnEventThatWasQueuedEarlier) {
    ScorchLog first;
    burnTo(first, "commit");
    gate_.open();
    while (drive_->isRecording() || queue_.pending() == 0) {
        std::this_thread::yield(); // Until the end of the burn is queued.
    }
    ScorchLog second;
    burner_->setDelegate(&second);
    runUntil([&second] { return second.burnOver(); });
    EXPECT_THAT(second.words, ElementsAre("started", "verifying", "done"));
}

TEST_F(BurnerDelegates, ADelegateSetDuringACheckIsToldWhereItStandsFirst) {
    onProbe_ = [this](const std::string &name, const std::stop_token &stop) -> AudioProbe {
        if (name == "b") {
            gate_.pass(stop);
        }
        return AudioInfo{};
    };
    ScorchLog first;
    burner_->setDelegate(&first);
    burner_->addFiles(files({"a", "b"}));
    runUntilWord(first, "added item");
    ScorchLog second;
    burner_->setDelegate(&second);
    queue_.runPending();
    EXPECT_THAT(second.words, ElementsAre("check started", "check a 1/2"));
    gate_.open();
    runUntilWord(second, "check end");
    EXPECT_EQ(second.count("check started"), 1U);
    EXPECT_EQ(second.count("added item"), 1U);
}

TEST_F(BurnerDelegates, OneSetBeforeTheStartWasToldIsToldOnce) {
    ScorchLog first;
    ScorchLog second;
    burner_->setDelegate(&first);
    burner_->addFiles(files({"a"}));
    burner_->setDelegate(&second);
    runUntilWord(second, "check end");
    EXPECT_EQ(second.count("check started"), 1U);
    EXPECT_THAT(first.words, IsEmpty());
}

TEST_F(BurnerDelegates, ABurnGoesOnWithoutADelegateAndANewOneCanStopIt) {
    auto first = std::make_unique<ScorchLog>();
    burnTo(*first, "write 1");
    first.reset();
    ScorchLog second;
    burner_->setDelegate(&second);
    queue_.runPending();
    EXPECT_THAT(second.words, ElementsAre("started", "write 1/1"));
    burner_->stopBurn();
    runUntil([&second] { return second.burnOver(); });
    EXPECT_EQ(second.words.back(), "canceled");
}

TEST_F(BurnerDelegates, SettingTheSameDelegateAgainReplaysNothing) {
    ScorchLog log;
    burnTo(log, "write 1");
    const std::size_t before = log.words.size();
    burner_->setDelegate(&log);
    queue_.runPending();
    EXPECT_EQ(log.words.size(), before);
}

TEST_F(BurnerDelegates, OneSetAfterTheEndHearsNothingOfIt) {
    ScorchLog first;
    burnTo(first, "commit");
    gate_.open();
    runUntilWord(first, "done");
    ScorchLog second;
    burner_->setDelegate(&second);
    queue_.runPending();
    EXPECT_THAT(second.words, IsEmpty());
}

TEST_F(BurnerDelegates, ADelegateMayDestroyItselfInsideACallback) {
    add(*burner_, {"a"});
    auto log = std::make_unique<ScorchLog>();
    burner_->setDelegate(log.get());
    log->onWord = [&log](const std::string &) {
        // The callback's own object must outlive the call that destroys its delegate.
        const auto keep = log->onWord;
        log.reset();
    };
    burner_->moveBurnItemTo({0}, 1);
    burner_->clearAll();
    queue_.runPending();
    EXPECT_EQ(log, nullptr);
}
