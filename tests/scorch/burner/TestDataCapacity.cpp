// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/scorch/burner/BurnerHarness.h"

#include <gmock/gmock.h>

using namespace scorch;
using testing::ElementsAre;

namespace {

/// Of the harness: what an image without files takes.
constexpr std::uint64_t emptyImage = 183 * std::uint64_t{2048};

class DataCapacity : public BurnerHarness {
protected:
    void SetUp() override {
        burner_ = makeDataBurner();
        burner_->setDelegate(&log_);
    }
    void TearDown() override { gate_.open(); }

    /// The image of so many one-sector files.
    static std::uint64_t imageOf(std::uint64_t files) { return emptyImage + files * 2048 + 2048; }

    std::shared_ptr<Burner> burner_;
    ScorchLog log_;
    Gate gate_;
};

} // namespace

TEST_F(DataCapacity, AnEmptyListTakesNothing) {
    EXPECT_EQ(burner_->usedCapacity(), 0U);
    add(*burner_, {"a"});
    EXPECT_GT(burner_->usedCapacity(), 0U);
    burner_->clearAll();
    EXPECT_EQ(burner_->usedCapacity(), 0U);
}

TEST_F(DataCapacity, IsExactWhenTheEndOfTheCheckIsTold) {
    std::uint64_t atEnd = 0;
    log_.onWord = [this, &atEnd](const std::string &word) {
        if (word == "check end") {
            atEnd = burner_->usedCapacity();
        }
    };
    burner_->addFiles(files({"a", "b"}));
    runUntilWord(log_, "check end");
    EXPECT_EQ(atEnd, imageOf(2));
}

TEST_F(DataCapacity, IsNeverTooSmallWhileTheCheckRuns) {
    log_.onWord = [this](const std::string &word) {
        if (word == "added item") {
            EXPECT_GE(burner_->usedCapacity(), imageOf(log_.count("added item")));
        }
    };
    burner_->addFiles(files({"a", "b", "c"}));
    runUntilWord(log_, "check end");
}

TEST_F(DataCapacity, IsExactWhenARemovalIsTold) {
    add(*burner_, {"a", "b", "c"});
    burner_->setDelegate(&log_);
    std::vector<std::uint64_t> told;
    log_.onWord = [this, &told](const std::string &) {
        told.push_back(burner_->usedCapacity());
    };
    burner_->removeItem(burner_->childOfBurnItem(0, nullptr));
    EXPECT_GE(burner_->usedCapacity(), imageOf(2)); // Not too small meanwhile.
    runUntilWord(log_, "deleted item");
    burner_->removeItems({burner_->childOfBurnItem(0, nullptr)});
    runUntilWord(log_, "deleted 1 items");
    burner_->clearAll();
    runUntilWord(log_, "cleared");
    EXPECT_THAT(told, ElementsAre(imageOf(2), imageOf(1), 0U));
}

TEST_F(DataCapacity, IsFoundOutAgainIfTheListHasChangedMeanwhile) {
    add(*burner_, {"a", "b", "c"});
    burner_->setDelegate(&log_);
    onSize_ = [this](const std::stop_token &) {
        if (sizesAsked_ == 2) {
            gate_.pass();
        }
    };
    burner_->removeItem(burner_->childOfBurnItem(0, nullptr));
    queue_.runPending();
    EXPECT_TRUE(gate_.waitForVisitor());
    burner_->removeItem(burner_->childOfBurnItem(0, nullptr));
    gate_.open();
    runUntil([this] { return log_.count("deleted item") == 2; });
    EXPECT_EQ(burner_->usedCapacity(), imageOf(1));
    EXPECT_EQ(sizesAsked_, 3);
}

TEST_F(DataCapacity, CallsBehindARemovalKeepTheirOrder) {
    add(*burner_, {"a", "b", "c"});
    burner_->setDelegate(&log_);
    onSize_ = [this](const std::stop_token &stop) {
        gate_.pass(stop);
    };
    burner_->removeItem(burner_->childOfBurnItem(0, nullptr));
    burner_->moveBurnItemTo({0}, 2);
    burner_->addFiles(files({"d"}));
    queue_.runPending();
    EXPECT_TRUE(log_.words.empty());
    gate_.open();
    runUntilWord(log_, "check end");
    EXPECT_THAT(log_.words, ElementsAre("deleted item", "sorted", "check started", "check d 1/1",
                                        "added item", "check end"));
}

TEST_F(DataCapacity, ARemovalDuringACheckIsToldAtOnce) {
    add(*burner_, {"a", "b"});
    burner_->setDelegate(&log_);
    onScan_ = [this](const std::string &, const std::stop_token &stop) {
        gate_.pass(stop);
    };
    burner_->addFiles(files({"c"}));
    runUntilWord(log_, "check started");
    EXPECT_TRUE(gate_.waitForVisitor());
    burner_->removeItem(burner_->childOfBurnItem(0, nullptr));
    runUntilWord(log_, "deleted item");
    EXPECT_FALSE(log_.has("check end"));
    EXPECT_GE(burner_->usedCapacity(), imageOf(1));
    gate_.open();
    runUntilWord(log_, "check end");
    EXPECT_EQ(burner_->usedCapacity(), imageOf(2));
}

TEST_F(DataCapacity, FilesThatJoinWhileTheSizeIsFoundOutAreInTheEnd) {
    onSize_ = [this](const std::stop_token &) {
        if (sizesAsked_ == 1) {
            gate_.pass();
        }
    };
    burner_->addFiles(files({"a"}));
    runUntilWord(log_, "added item");
    runUntil([this] { return sizesAsked_ == 1; });
    burner_->addFiles(files({"b"}));
    gate_.open();
    runUntilWord(log_, "check end");
    EXPECT_EQ(log_.count("check started"), 1U);
    EXPECT_EQ(burner_->usedCapacity(), imageOf(2));
}

TEST_F(DataCapacity, ACancelledCheckIsExactToo) {
    onScan_ = [this](const std::string &name, const std::stop_token &stop) {
        if (name == "b") {
            gate_.pass(stop);
        }
    };
    burner_->addFiles(files({"a", "b"}));
    runUntilWord(log_, "added item");
    burner_->cancelToAddFiles();
    runUntilWord(log_, "check canceled");
    EXPECT_EQ(burner_->usedCapacity(), imageOf(1));
}

TEST_F(DataCapacity, AMoveChangesNothing) {
    add(*burner_, {"a", "b"});
    burner_->setDelegate(&log_);
    const int before = sizesAsked_;
    burner_->moveBurnItemTo({0}, 2);
    queue_.runPending();
    EXPECT_THAT(log_.words, ElementsAre("sorted"));
    EXPECT_EQ(sizesAsked_, before);
}

TEST_F(DataCapacity, ShuttingDownJoinsTheThreadThatLaysOut) {
    onSize_ = [this](const std::stop_token &stop) {
        gate_.pass(stop);
    };
    burner_->addFiles(files({"a"}));
    runUntil([this] { return sizesAsked_ == 1; });
    burner_->shutDown();
    queue_.runPending();
    EXPECT_FALSE(log_.has("check end"));
}
