// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/scorch/burner/BurnerHarness.h"

#include <gmock/gmock.h>

using namespace scorch;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class BurnerList : public BurnerHarness {
protected:
    void SetUp() override {
        burner_ = makeAudioBurner();
        add(*burner_, {"a", "b", "c", "d"});
        burner_->setDelegate(&log_);
    }
    BurnItemRef item(std::int64_t index) const { return burner_->childOfBurnItem(index, nullptr); }

    std::shared_ptr<Burner> burner_;
    ScorchLog log_;
};

} // namespace

TEST_F(BurnerList, AnItemHasNoChildren) {
    EXPECT_EQ(burner_->numberOfChildrenOfBurnItem(nullptr), 4);
    EXPECT_EQ(burner_->numberOfChildrenOfBurnItem(item(0)), 0);
    EXPECT_EQ(burner_->childOfBurnItem(0, item(0)), nullptr);
    EXPECT_EQ(item(4), nullptr);
    EXPECT_EQ(item(-1), nullptr);
}

TEST_F(BurnerList, NullHasNoPropertiesAndARemovedItemKeepsItsOwn) {
    EXPECT_THAT(burner_->propertyOfBurnItem(nullptr), IsEmpty());
    const BurnItemRef first = item(0);
    burner_->removeItem(first);
    EXPECT_EQ(
        std::get<std::string>(burner_->propertyOfBurnItem(first).at(kScorchItemDisplayNameKey)),
        "a");
}

TEST_F(BurnerList, ChangesActAtOnceAndAreToldLater) {
    burner_->removeItem(item(0));
    EXPECT_THAT(namesIn(*burner_), ElementsAre("b", "c", "d"));
    burner_->moveBurnItemTo({2}, 0);
    EXPECT_THAT(namesIn(*burner_), ElementsAre("d", "b", "c"));
    burner_->removeItems({item(0), item(1)});
    EXPECT_THAT(namesIn(*burner_), ElementsAre("c"));
    burner_->clearAll();
    EXPECT_THAT(namesIn(*burner_), IsEmpty());
    EXPECT_THAT(log_.words, IsEmpty());
    queue_.runPending();
    EXPECT_THAT(log_.words, ElementsAre("deleted item", "sorted", "deleted 2 items", "cleared"));
}

TEST_F(BurnerList, TheSumFollowsEveryChange) {
    EXPECT_EQ(burner_->usedCapacity(), 1200U);
    burner_->removeItem(item(0));
    EXPECT_EQ(burner_->usedCapacity(), 900U);
    burner_->removeItems({item(0), item(1)});
    EXPECT_EQ(burner_->usedCapacity(), 300U);
    burner_->clearAll();
    EXPECT_EQ(burner_->usedCapacity(), 0U);
}

TEST_F(BurnerList, NullAndItemsOfNoListAreIgnored) {
    const BurnItemRef gone = item(0);
    burner_->removeItem(gone);
    queue_.runPending();
    log_.clear();
    burner_->removeItem(nullptr);
    burner_->removeItem(gone);
    burner_->removeItems({});
    burner_->removeItems({nullptr, gone});
    burner_->moveBurnItemTo({}, 0);
    burner_->moveBurnItemTo({-1, 17}, 0);
    queue_.runPending();
    EXPECT_THAT(log_.words, IsEmpty());
    EXPECT_EQ(burner_->numberOfChildrenOfBurnItem(nullptr), 3);
}

TEST_F(BurnerList, TheListOverflowsWhenItTakesMoreThanIsFree) {
    drive_->setState(FakeDrive::blankCd(1200));
    EXPECT_FALSE(burner_->isContentOverflowForDevice(device_.get()));
    drive_->setState(FakeDrive::blankCd(1199));
    EXPECT_TRUE(burner_->isContentOverflowForDevice(device_.get()));
    EXPECT_FALSE(burner_->isContentOverflowForDevice(nullptr));
}

TEST_F(BurnerList, WithoutABlankDiscAnyContentOverflows) {
    drive_->setDisc({});
    EXPECT_TRUE(burner_->isContentOverflowForDevice(device_.get()));
    burner_->clearAll();
    EXPECT_FALSE(burner_->isContentOverflowForDevice(device_.get()));
}

TEST_F(BurnerList, ACallFromInsideACallbackIsAnsweredBehindIt) {
    log_.onWord = [this](const std::string &word) {
        if (word == "sorted") {
            burner_->clearAll();
            EXPECT_THAT(log_.words, ElementsAre("sorted"));
        }
    };
    burner_->moveBurnItemTo({0}, 4);
    queue_.runPending();
    EXPECT_THAT(log_.words, ElementsAre("sorted", "cleared"));
}
