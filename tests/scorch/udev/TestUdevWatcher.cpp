// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/udev/UdevWatcher.h"

#include "tests/scorch/udev/Testbed.h"

#include <gmock/gmock.h>

#include <chrono>
#include <condition_variable>
#include <mutex>

using namespace scorch;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class UdevWatcherTest : public testing::Test {
protected:
    /// The nodes that the search finds.
    std::vector<std::string> search() {
        watcher_ = UdevWatcher::create(testbed_.control());
        EXPECT_NE(watcher_, nullptr);
        std::vector<std::string> nodes;
        found_ = watcher_->search(
            {.appeared = [this](const FoundDevice &device) { add('+' + device.node.native()); },
             .disappeared = [this](const std::filesystem::path &node) { add('-' + node.native()); },
             .mediumChanged =
                 [this](const std::filesystem::path &node, MediumNews news) {
                     add((news == MediumNews::changed ? '!' : '?') + node.native());
                 }});
        for (const FoundDevice &device : found_) {
            nodes.push_back(device.node);
        }
        return nodes;
    }
    /// What has been told, once it is so much; waits for ten seconds at most.
    std::vector<std::string> told(std::size_t count) {
        std::unique_lock lock(mutex_);
        changed_.wait_for(lock, std::chrono::seconds(10), [&] { return told_.size() >= count; });
        return told_;
    }

    Testbed testbed_;
    std::vector<FoundDevice> found_;
    std::unique_ptr<UdevWatcher> watcher_;

private:
    void add(std::string word) {
        const std::lock_guard lock(mutex_);
        told_.push_back(std::move(word));
        changed_.notify_all();
    }

    std::mutex mutex_;
    std::condition_variable changed_;
    std::vector<std::string> told_;

    void TearDown() override { watcher_.reset(); }
};

} // namespace

TEST_F(UdevWatcherTest, WhereUdevDoesNotRunThereIsNone) {
    EXPECT_EQ(UdevWatcher::create("/no/such/file"), nullptr);
}

TEST_F(UdevWatcherTest, TheSearchFindsOpticalDrivesInTheOrderOfTheirNumbers) {
    testbed_.put("sr10", "ACME    \n", "DRW-24          \n");
    testbed_.put("sr2", "ACME    \n", "DRW-2\n");
    testbed_.putDisk("sda");
    testbed_.putDisk("srx");
    EXPECT_THAT(search(), ElementsAre("/dev/sr2", "/dev/sr10"));
    EXPECT_EQ(found_[1].identity,
              (DriveIdentity{.vendor = "ACME", .model = "DRW-24", .revision = "1.00"}));
}

TEST_F(UdevWatcherTest, DrivesThatComeAndGoAreTold) {
    testbed_.put("sr0", "ACME\n", "DRW-24\n");
    search();
    testbed_.put("sr1", "ACME\n", "DRW-24\n");
    testbed_.tell("sr1", "add");
    EXPECT_THAT(told(1), ElementsAre("+/dev/sr1"));
    testbed_.remove("sr0");
    EXPECT_THAT(told(2), ElementsAre("+/dev/sr1", "-/dev/sr0"));
}

TEST_F(UdevWatcherTest, ADriveThatIsKnownDoesNotAppearTwice) {
    testbed_.put("sr0", "ACME\n", "DRW-24\n");
    search();
    testbed_.tell("sr0", "add");
    testbed_.tell("sr0", "change");
    EXPECT_THAT(told(1), ElementsAre("?/dev/sr0"));
}

TEST_F(UdevWatcherTest, ADiscThatComesOrGoesIsTold) {
    testbed_.put("sr0", "ACME\n", "DRW-24\n");
    search();
    testbed_.tellOfMedium("sr0");
    EXPECT_THAT(told(1), ElementsAre("!/dev/sr0"));
}

TEST_F(UdevWatcherTest, OtherDisksAreNoNews) {
    testbed_.put("sr0", "ACME\n", "DRW-24\n");
    search();
    testbed_.putDisk("sda");
    testbed_.tell("sda", "add");
    testbed_.tell("sr0", "change");
    EXPECT_THAT(told(1), ElementsAre("?/dev/sr0"));
}

TEST_F(UdevWatcherTest, DiscsAreToldOfWhereTheKernelLooksForThem) {
    testbed_.put("sr0", "ACME\n", "DRW-24\n");
    search();
    EXPECT_FALSE(watcher_->tellsOfMedia("/dev/sr0")) << "no setting at all";
    testbed_.setCommonPolling(2000);
    EXPECT_TRUE(watcher_->tellsOfMedia("/dev/sr0"));
    testbed_.setPolling("sr0", 0);
    EXPECT_FALSE(watcher_->tellsOfMedia("/dev/sr0"));
    testbed_.setPolling("sr0", 500);
    testbed_.setCommonPolling(0);
    EXPECT_TRUE(watcher_->tellsOfMedia("/dev/sr0"));
}

TEST_F(UdevWatcherTest, EndsWithoutASearchToo) {
    EXPECT_NE(UdevWatcher::create(testbed_.control()), nullptr);
    EXPECT_THAT(search(), IsEmpty());
}
