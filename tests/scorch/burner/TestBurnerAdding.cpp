// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/scorch/burner/BurnerHarness.h"

#include <gmock/gmock.h>

using namespace scorch;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class BurnerAdding : public BurnerHarness {
protected:
    void SetUp() override {
        burner_ = makeAudioBurner();
        burner_->setDelegate(&log_);
    }

    std::shared_ptr<Burner> burner_;
    ScorchLog log_;
};

class BurnerAddingData : public BurnerHarness {
protected:
    void SetUp() override {
        burner_ = makeDataBurner();
        burner_->setDelegate(&log_);
    }
    void addFrom(const std::vector<std::string> &names) {
        log_.clear();
        ASSERT_TRUE(burner_->addFiles(files(names)));
        ASSERT_TRUE(runUntil([this] { return log_.checkOver(); }));
    }

    std::shared_ptr<Burner> burner_;
    ScorchLog log_;
};

} // namespace

TEST_F(BurnerAdding, IsToldFromStartToEnd) {
    EXPECT_TRUE(burner_->addFiles(files({"a", "b"})));
    EXPECT_THAT(log_.words, IsEmpty());
    ASSERT_TRUE(runUntilWord(log_, "check end"));
    EXPECT_THAT(log_.words, ElementsAre("check started", "check a 1/2", "added item", "added item",
                                        "check end"));
    EXPECT_THAT(namesIn(*burner_), ElementsAre("a", "b"));
}

TEST_F(BurnerAdding, AnEmptyListIsNotAccepted) {
    EXPECT_FALSE(burner_->addFiles({}));
    queue_.runPending();
    EXPECT_THAT(log_.words, IsEmpty());
}

TEST_F(BurnerAdding, AnAcceptedItemIsInTheListWhenItIsTold) {
    log_.onWord = [this](const std::string &word) {
        if (word == "added item") {
            EXPECT_EQ(burner_->numberOfChildrenOfBurnItem(nullptr),
                      static_cast<std::int64_t>(log_.count("added item")));
            EXPECT_EQ(burner_->usedCapacity(), 300 * log_.count("added item"));
        }
    };
    burner_->addFiles(files({"a", "b", "c"}));
    runUntilWord(log_, "check end");
    EXPECT_EQ(log_.count("added item"), 3U);
}

TEST_F(BurnerAdding, TheEndNamesWhatWasRefused) {
    onProbe_ = [](const std::string &name, const std::stop_token &) -> AudioProbe {
        if (name == "locked") {
            return AudioRefusal{RefusalKind::protectedFile, "copy protection"};
        }
        if (name == "text") {
            return AudioRefusal{RefusalKind::incompatibleFile, "no sound"};
        }
        return AudioInfo{};
    };
    burner_->addFiles(files({"locked", "song", "text"}));
    runUntilWord(log_, "check end");
    const auto &locked = log_.result.valueForKey("protected-files");
    const auto &refused = log_.result.valueForKey("incompatible-files");
    ASSERT_EQ(locked.size(), 1U);
    ASSERT_EQ(refused.size(), 1U);
    EXPECT_EQ(locked[0].path.filename(), "locked");
    EXPECT_EQ(refused[0].reason, "no sound");
    EXPECT_THAT(namesIn(*burner_), ElementsAre("song"));
}

TEST_F(BurnerAdding, ASecondCallJoinsTheRunningCheck) {
    Gate gate;
    onProbe_ = [&gate](const std::string &, const std::stop_token &stop) -> AudioProbe {
        gate.pass(stop);
        return AudioInfo{};
    };
    burner_->addFiles(files({"a"}));
    runUntilWord(log_, "check started");
    EXPECT_TRUE(gate.waitForVisitor());
    EXPECT_TRUE(burner_->addFiles(files({"b"})));
    gate.open();
    runUntilWord(log_, "check end");
    EXPECT_EQ(log_.count("check started"), 1U);
    EXPECT_EQ(log_.count("check end"), 1U);
    EXPECT_THAT(namesIn(*burner_), ElementsAre("a", "b"));
}

TEST_F(BurnerAdding, FilesThatComeWhenTheThreadHasEndedStillJoin) {
    burner_->addFiles(files({"a"}));
    log_.onWord = [this](const std::string &word) {
        if (word == "added item" && log_.count(word) == 1) {
            // The thread has found nothing more to do when the next task, its end, is queued.
            while (queue_.pending() == 0) {
                std::this_thread::yield();
            }
            EXPECT_TRUE(burner_->addFiles(files({"b"})));
        }
    };
    runUntilWord(log_, "check end");
    EXPECT_EQ(log_.count("check started"), 1U);
    EXPECT_THAT(namesIn(*burner_), ElementsAre("a", "b"));
}

TEST_F(BurnerAdding, ACancelKeepsWhatWasAccepted) {
    Gate gate;
    onProbe_ = [&gate](const std::string &name, const std::stop_token &stop) -> AudioProbe {
        if (name == "b") {
            gate.pass(stop);
            return Cancelled{};
        }
        return AudioInfo{};
    };
    burner_->addFiles(files({"a", "b", "c"}));
    runUntilWord(log_, "added item");
    burner_->cancelToAddFiles();
    EXPECT_FALSE(log_.has("check canceled"));
    runUntilWord(log_, "check canceled");
    EXPECT_FALSE(log_.has("check end"));
    EXPECT_THAT(namesIn(*burner_), ElementsAre("a"));
}

TEST_F(BurnerAdding, ACancelThatComesWithTheEndIsACancel) {
    burner_->addFiles(files({"a"}));
    runUntilWord(log_, "added item");
    // The thread is at its end or nearly so; its end has not been told.
    burner_->cancelToAddFiles();
    runUntil([this] { return log_.checkOver(); });
    EXPECT_TRUE(log_.has("check canceled"));
    EXPECT_FALSE(log_.has("check end"));
}

TEST_F(BurnerAdding, ACancelBeforeTheStartWasToldIsAnsweredToo) {
    burner_->addFiles(files({"a"}));
    burner_->cancelToAddFiles();
    runUntilWord(log_, "check canceled");
    EXPECT_THAT(log_.words, ElementsAre("check started", "check canceled"));
}

TEST_F(BurnerAdding, FilesAddedAfterACancelAreACheckOfTheirOwn) {
    Gate gate;
    onProbe_ = [&gate](const std::string &name, const std::stop_token &stop) -> AudioProbe {
        if (name == "a") {
            gate.pass(stop);
            return Cancelled{};
        }
        return AudioInfo{};
    };
    burner_->addFiles(files({"a"}));
    runUntilWord(log_, "check started");
    EXPECT_TRUE(gate.waitForVisitor());
    burner_->cancelToAddFiles();
    EXPECT_TRUE(burner_->addFiles(files({"b"})));
    runUntilWord(log_, "check end");
    EXPECT_THAT(log_.words, ElementsAre("check started", "check a 1/1", "check canceled",
                                        "check started", "check b 1/1", "added item", "check end"));
}

TEST_F(BurnerAdding, CancellingNothingIsIgnored) {
    burner_->cancelToAddFiles();
    queue_.runPending();
    EXPECT_THAT(log_.words, IsEmpty());
}

TEST_F(BurnerAdding, AnExceptionOfTheCheckEndsItWithARefusal) {
    onProbe_ = nullptr;
    auto kind = std::make_unique<DataKind>(
        DataKindServices{.check = {.count = [](const auto &, const auto &) -> std::uint64_t {
                                       throw std::runtime_error("boom");
                                   },
                                   .scan = {},
                                   .clock = clock_},
                         .imageSize = {},
                         .makeContent = {},
                         .post = queue_.poster()});
    burner_ = Burner::create(std::move(kind), {queue_.poster(), clock_, drives_, [] {
                                                   return true;
                                               }});
    burner_->setDelegate(&log_);
    burner_->addFiles(files({"a"}));
    runUntilWord(log_, "check end");
    EXPECT_EQ(log_.result.valueForKey("incompatible-files").size(), 1U);
}

TEST_F(BurnerAddingData, TwoOfTheSameNameGetANumber) {
    addFrom({"x/song.mp3", "y/song.mp3", "z/song.mp3"});
    EXPECT_THAT(namesIn(*burner_), ElementsAre("song.mp3", "song (2).mp3", "song (3).mp3"));
    burner_->removeItem(burner_->childOfBurnItem(0, nullptr));
    addFrom({"w/song.mp3"});
    EXPECT_THAT(namesIn(*burner_), ElementsAre("song (2).mp3", "song (3).mp3", "song.mp3"));
}

TEST_F(BurnerAddingData, ThousandsOfFilesAreAcceptedEachWithItsCall) {
    std::vector<BurnFile> many;
    const auto path = folder_.write("file", "x");
    many.assign(5000, {path, {}, {}});
    ASSERT_TRUE(burner_->addFiles(many));
    runUntilWord(log_, "check end");
    EXPECT_EQ(log_.count("added item"), 5000U);
    EXPECT_EQ(burner_->numberOfChildrenOfBurnItem(nullptr), 5000);
}
