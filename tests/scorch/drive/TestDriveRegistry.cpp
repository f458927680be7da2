// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/drive/DriveRegistry.h"
#include "tests/scorch/drive/FakeDrive.h"
#include "tests/support/TestMainQueue.h"

#include <gmock/gmock.h>

#include <atomic>
#include <future>
#include <thread>

using namespace scorch;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class FakeSource final : public DriveSource {
public:
    explicit FakeSource(std::vector<std::shared_ptr<Drive>> drives) : drives_(std::move(drives)) {}

    std::vector<std::shared_ptr<Drive>> search(Observer told) override {
        observer = std::move(told);
        ++searches;
        if (gate.valid()) {
            gate.wait();
        }
        return drives_;
    }

    std::atomic<int> searches = 0;
    Observer observer;
    std::shared_future<void> gate;

private:
    std::vector<std::shared_ptr<Drive>> drives_;
};

class DeviceLog final : public ScorcherDeviceDelegate {
public:
    std::vector<std::string> words;
    void deviceStatusDidChanged() override { words.emplace_back("status"); }
    void deviceDidDisappeared(const std::string &name) override { words.push_back("-" + name); }
    void deviceDidAppeared(const std::string &name) override { words.push_back("+" + name); }
};

class DriveRegistryTest : public testing::Test {
protected:
    DriveRegistryTest() {
        auto source =
            std::make_unique<FakeSource>(std::vector<std::shared_ptr<Drive>>{first_, second_});
        source_ = source.get();
        std::vector<std::unique_ptr<DriveSource>> sources;
        sources.push_back(std::move(source));
        registry_ = DriveRegistry::create(std::move(sources), queue_.poster());
    }

    static DriveState usedCd() {
        return {.canWriteCd = true,
                .checking = false,
                .disc = {.present = true, .isCd = true, .blank = false, .freeSectors = 0}};
    }

    TestMainQueue queue_;
    std::shared_ptr<FakeDrive> first_ = std::make_shared<FakeDrive>("First");
    std::shared_ptr<FakeDrive> second_ = std::make_shared<FakeDrive>("Second");
    FakeSource *source_ = nullptr;
    std::shared_ptr<DriveRegistry> registry_;
};

} // namespace

TEST_F(DriveRegistryTest, SearchesOnceAndNamesTheDrivesInOrder) {
    EXPECT_THAT(registry_->names(), ElementsAre("First", "Second"));
    EXPECT_THAT(registry_->names(), ElementsAre("First", "Second"));
    EXPECT_EQ(source_->searches, 1);
}

TEST_F(DriveRegistryTest, EverybodyWaitsForTheFirstSearch) {
    std::promise<void> found;
    source_->gate = found.get_future().share();
    auto one = std::async(std::launch::async, [this] { return registry_->names(); });
    auto other = std::async(std::launch::async, [this] { return registry_->names(); });
    found.set_value();
    EXPECT_EQ(one.get().size(), 2U);
    EXPECT_EQ(other.get().size(), 2U);
    EXPECT_EQ(source_->searches, 1);
}

TEST_F(DriveRegistryTest, AHandleOnNoDriveAnswersFalseAndZero) {
    for (const char *name : {"", "No such drive"}) {
        const auto handle = registry_->makeHandle(name);
        EXPECT_EQ(handle->deviceName(), name);
        EXPECT_FALSE(handle->cdBurnEnabled());
        EXPECT_FALSE(handle->isCheckingDisc());
        EXPECT_FALSE(handle->isDiscInDevice());
        EXPECT_FALSE(handle->isDiscBlank());
        EXPECT_FALSE(handle->isCDDisc());
        EXPECT_EQ(handle->freeTimeOfDisc(), 0);
        EXPECT_EQ(handle->freeSizeOfDisc(), 0);
        handle->eject();
    }
}

TEST_F(DriveRegistryTest, AHandleShowsTheStateOfItsDrive) {
    const auto handle = registry_->makeHandle("First");
    EXPECT_TRUE(handle->isDiscInDevice() && handle->isDiscBlank() && handle->isCDDisc());
    EXPECT_EQ(handle->freeTimeOfDisc(), 359'849);
    EXPECT_EQ(handle->freeSizeOfDisc(), 359'849LL * 2048);
    first_->setState({.canWriteCd = true, .checking = true, .disc = {}});
    EXPECT_TRUE(handle->isCheckingDisc());
    EXPECT_FALSE(handle->isDiscInDevice());
    first_->setState(usedCd());
    EXPECT_FALSE(handle->isDiscBlank());
    EXPECT_EQ(handle->freeTimeOfDisc(), 0);
}

TEST_F(DriveRegistryTest, CdBurnEnabledIsTrueExactlyForDrivesThatCannotWrite) {
    const auto handle = registry_->makeHandle("First");
    EXPECT_FALSE(handle->cdBurnEnabled());
    first_->setState({});
    EXPECT_TRUE(handle->cdBurnEnabled());
}

TEST_F(DriveRegistryTest, OnlyABlankCdHasFreeTime) {
    const auto handle = registry_->makeHandle("First");
    DriveState state = FakeDrive::blankCd(2'295'104);
    state.disc.isCd = false; // A blank DVD.
    first_->setState(state);
    EXPECT_EQ(handle->freeTimeOfDisc(), 0);
    EXPECT_EQ(handle->freeSizeOfDisc(), 0);
}

TEST_F(DriveRegistryTest, AChangeIsToldToEachDelegateOfThatDriveLater) {
    DeviceLog one;
    DeviceLog other;
    const auto handle = registry_->makeHandle("First");
    const auto otherHandle = registry_->makeHandle("Second");
    handle->setDelegate(&one);
    otherHandle->setDelegate(&other);
    first_->setState(usedCd());
    EXPECT_THAT(one.words, IsEmpty());
    queue_.runPending();
    EXPECT_THAT(one.words, ElementsAre("status"));
    EXPECT_THAT(other.words, IsEmpty());
}

TEST_F(DriveRegistryTest, AChangeThatWasUndoneIsNone) {
    DeviceLog log;
    const auto handle = registry_->makeHandle("First");
    handle->setDelegate(&log);
    const DriveState before = first_->state();
    first_->setState(usedCd());
    first_->setState(before);
    queue_.runPending();
    EXPECT_THAT(log.words, IsEmpty());
}

TEST_F(DriveRegistryTest, ADelegateHearsNothingOfChangesBeforeItWasSet) {
    DeviceLog log;
    const auto handle = registry_->makeHandle("First");
    first_->setState(usedCd());
    handle->setDelegate(&log);
    queue_.runPending();
    EXPECT_THAT(log.words, IsEmpty());
}

TEST_F(DriveRegistryTest, ADestroyedDelegateAndAFreedHandleHearNothing) {
    DeviceLog log;
    auto handle = registry_->makeHandle("First");
    auto second = registry_->makeHandle("First");
    auto gone = std::make_unique<DeviceLog>();
    handle->setDelegate(gone.get());
    second->setDelegate(&log);
    first_->setState(usedCd());
    gone.reset();
    second.reset();
    queue_.runPending();
    EXPECT_THAT(log.words, IsEmpty());
}

TEST_F(DriveRegistryTest, ArrivalAndRemovalGoToTheDelegateSetLast) {
    DeviceLog early;
    DeviceLog last;
    const auto handle = registry_->makeHandle("First");
    handle->setDelegate(&early);
    const auto empty = registry_->makeHandle("");
    empty->setDelegate(&last);
    source_->observer.appeared(std::make_shared<FakeDrive>("Third"));
    source_->observer.disappeared("First");
    EXPECT_THAT(registry_->names(), ElementsAre("Second", "Third"));
    EXPECT_THAT(last.words, IsEmpty());
    queue_.runPending();
    EXPECT_THAT(last.words, ElementsAre("+Third", "-First"));
    EXPECT_THAT(early.words, IsEmpty());
    EXPECT_FALSE(handle->isDiscInDevice());
}

TEST_F(DriveRegistryTest, ArrivalIsToldToADelegateWhoseHandleHasGone) {
    DeviceLog log;
    registry_->makeHandle("First")->setDelegate(&log);
    source_->observer.appeared(std::make_shared<FakeDrive>("Third"));
    queue_.runPending();
    EXPECT_THAT(log.words, ElementsAre("+Third"));
}

TEST_F(DriveRegistryTest, ArrivalReachesNobodyAfterTheDelegateWasTakenOffOrDestroyed) {
    DeviceLog log;
    const auto handle = registry_->makeHandle("First");
    handle->setDelegate(&log);
    handle->setDelegate(nullptr);
    source_->observer.appeared(std::make_shared<FakeDrive>("Third"));
    queue_.runPending();
    EXPECT_THAT(log.words, IsEmpty());
    auto gone = std::make_unique<DeviceLog>();
    handle->setDelegate(gone.get());
    source_->observer.disappeared("Third");
    gone.reset();
    queue_.runPending();
}

TEST_F(DriveRegistryTest, TakingOneHandlesDelegateOffLeavesTheOneSetLater) {
    DeviceLog log;
    const auto old = registry_->makeHandle("First");
    const auto current = registry_->makeHandle("Second");
    old->setDelegate(&log);
    current->setDelegate(&log);
    old->setDelegate(nullptr);
    source_->observer.disappeared("First");
    queue_.runPending();
    EXPECT_THAT(log.words, ElementsAre("-First"));
}

TEST_F(DriveRegistryTest, ADriveThatComesBackIsTheHandlesAgain) {
    const auto handle = registry_->makeHandle("First");
    source_->observer.disappeared("First");
    EXPECT_FALSE(handle->isDiscInDevice());
    source_->observer.appeared(first_);
    EXPECT_TRUE(handle->isDiscInDevice());
}

TEST_F(DriveRegistryTest, ADriveIsWatchedFromItsFirstHandleToItsLast) {
    registry_->names();
    EXPECT_FALSE(first_->isWatched());
    auto one = registry_->makeHandle("First");
    auto other = registry_->makeHandle("First");
    EXPECT_TRUE(first_->isWatched());
    EXPECT_FALSE(second_->isWatched());
    one.reset();
    EXPECT_TRUE(first_->isWatched());
    other.reset();
    EXPECT_FALSE(first_->isWatched());
}

TEST_F(DriveRegistryTest, ADriveThatComesForAHandleThatWaitsIsWatched) {
    const auto third = std::make_shared<FakeDrive>("Third");
    const auto handle = registry_->makeHandle("Third");
    registry_->names();
    source_->observer.appeared(third);
    queue_.runPending();
    EXPECT_TRUE(third->isWatched());
}

TEST_F(DriveRegistryTest, ADriveThatComesDuringTheSearchIsToldAfterIt) {
    std::promise<void> found;
    source_->gate = found.get_future().share();
    auto search = std::async(std::launch::async, [this] { return registry_->names(); });
    while (source_->searches == 0) {
        std::this_thread::yield();
    }
    auto going = std::async(std::launch::async, [this] { source_->observer.disappeared("First"); });
    found.set_value();
    going.get();
    search.get();
    EXPECT_THAT(registry_->names(), ElementsAre("Second"));
}

TEST_F(DriveRegistryTest, ChangesDuringABurnAreToldOnceAfterIt) {
    DeviceLog log;
    const auto handle = registry_->makeHandle("First");
    handle->setDelegate(&log);
    EXPECT_TRUE(registry_->take("First"));
    EXPECT_FALSE(registry_->take("First"));
    first_->setState({.canWriteCd = true, .checking = true, .disc = {}});
    queue_.runPending();
    first_->setState(usedCd());
    queue_.runPending();
    EXPECT_THAT(log.words, IsEmpty());
    registry_->release("First");
    registry_->settle("First");
    EXPECT_THAT(log.words, ElementsAre("status"));
    queue_.runPending();
    EXPECT_THAT(log.words, ElementsAre("status"));
}

TEST_F(DriveRegistryTest, ABurnThatChangesNothingIsNotTold) {
    DeviceLog log;
    const auto handle = registry_->makeHandle("First");
    handle->setDelegate(&log);
    registry_->take("First");
    registry_->release("First");
    registry_->settle("First");
    EXPECT_THAT(log.words, IsEmpty());
}

TEST_F(DriveRegistryTest, RemovalIsToldDuringABurnToo) {
    DeviceLog log;
    const auto handle = registry_->makeHandle("First");
    handle->setDelegate(&log);
    registry_->take("First");
    source_->observer.disappeared("First");
    queue_.runPending();
    EXPECT_THAT(log.words, ElementsAre("-First"));
}

TEST_F(DriveRegistryTest, EjectReachesTheDriveUnlessItBurns) {
    const auto handle = registry_->makeHandle("First");
    handle->eject();
    EXPECT_EQ(first_->ejections(), 1);
    registry_->take("First");
    handle->eject();
    EXPECT_EQ(first_->ejections(), 1);
}

TEST_F(DriveRegistryTest, NothingIsToldAfterTheEnd) {
    DeviceLog log;
    const auto handle = registry_->makeHandle("First");
    handle->setDelegate(&log);
    first_->setState(usedCd());
    registry_->shutDown();
    registry_->shutDown();
    queue_.runPending();
    EXPECT_THAT(log.words, IsEmpty());
    EXPECT_THAT(registry_->names(), IsEmpty());
    EXPECT_FALSE(handle->isDiscInDevice());
}

TEST_F(DriveRegistryTest, AHandleMayOutliveTheEngine) {
    const auto handle = registry_->makeHandle("First");
    registry_.reset();
    EXPECT_TRUE(handle->isDiscInDevice());
}
