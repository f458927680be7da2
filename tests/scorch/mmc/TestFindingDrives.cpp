// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/mmc/DriveNames.h"
#include "scorch/mmc/NodePoll.h"
#include "scorch/mmc/PollingWatcher.h"
#include "scorch/mmc/ScsiDevices.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <condition_variable>
#include <fstream>
#include <map>
#include <mutex>

using namespace scorch;
using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace fs = std::filesystem;

namespace {

MmcError errorOf(MmcError::Kind kind) {
    return {.kind = kind, .sense = {}, .systemError = 0, .command = "open"};
}

/// Device nodes that a test puts there and takes away. Any thread.
class FakeNodes {
public:
    void put(const fs::path &node, Result<DriveIdentity, MmcError> identity = DriveIdentity()) {
        const std::lock_guard lock(mutex_);
        nodes_.insert_or_assign(node, std::move(identity));
    }
    void take(const fs::path &node) {
        const std::lock_guard lock(mutex_);
        nodes_.erase(node);
    }
    int openings() const {
        const std::lock_guard lock(mutex_);
        return openings_;
    }
    NodeAccess access() {
        return {.exists =
                    [this](const fs::path &node) {
                        const std::lock_guard lock(mutex_);
                        return nodes_.contains(node);
                    },
                .identify = [this](const fs::path &node) -> Result<DriveIdentity, MmcError> {
                    const std::lock_guard lock(mutex_);
                    ++openings_;
                    const auto found = nodes_.find(node);
                    return found != nodes_.end()
                               ? found->second
                               : Result<DriveIdentity, MmcError>(errorOf(MmcError::Kind::gone));
                }};
    }

private:
    mutable std::mutex mutex_;
    std::map<fs::path, Result<DriveIdentity, MmcError>> nodes_;
    int openings_ = 0;
};

DriveIdentity acme() {
    return {.vendor = "ACME", .model = "DRW-24", .revision = "1.0"};
}

/// What a watcher told, to be waited for.
class Told {
public:
    DeviceWatcher::Observer observer() {
        return {.appeared = [this](const FoundDevice &device) { add("+" + device.node.native()); },
                .disappeared = [this](const fs::path &node) { add("-" + node.native()); },
                .mediumChanged =
                    [](const fs::path &, MediumNews) {
                    }};
    }
    /// Waits until so many words are there, for ten seconds at most.
    std::vector<std::string> words(std::size_t count) {
        std::unique_lock lock(mutex_);
        changed_.wait_for(lock, 10s, [&] { return words_.size() >= count; });
        return words_;
    }

private:
    void add(std::string word) {
        const std::lock_guard lock(mutex_);
        words_.push_back(std::move(word));
        changed_.notify_all();
    }

    std::mutex mutex_;
    std::condition_variable changed_;
    std::vector<std::string> words_;
};

void write(const fs::path &path, const std::string &text) {
    std::ofstream(path) << text;
}

} // namespace

TEST(DriveNames, ConsistOfMakerAndModel) {
    EXPECT_EQ(driveName({.node = "/dev/sr0", .identity = acme()}, {}), "ACME DRW-24");
    EXPECT_EQ(driveName({.node = "/dev/sr0", .identity = {}}, {}), "CD drive");
}

TEST(DriveNames, ALikeDriveGetsItsNodeBehindItsName) {
    const FoundDevice device{.node = "/dev/sr1", .identity = acme()};
    EXPECT_EQ(driveName(device, {"ACME DRW-24"}), "ACME DRW-24 (sr1)");
    EXPECT_EQ(driveName(device, {"ACME DRW-24", "ACME DRW-24 (sr1)"}), "ACME DRW-24 (sr1) (sr1)");
}

TEST(NodePoll, FindsTheNodesThatAreThereInTheirOrder) {
    FakeNodes nodes;
    nodes.put("/dev/sr31", acme());
    nodes.put("/dev/sr2", acme());
    nodes.put("/dev/sr32", acme());
    NodePoll poll(nodes.access());
    const std::vector<FoundDevice> found = poll.poll().appeared;
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[0], (FoundDevice{.node = "/dev/sr2", .identity = acme()}));
    EXPECT_EQ(found[1].node, "/dev/sr31");
    EXPECT_THAT(poll.poll().appeared, IsEmpty());
}

TEST(NodePoll, AKnownNodeIsNotOpenedAgain) {
    FakeNodes nodes;
    nodes.put("/dev/sr0");
    NodePoll poll(nodes.access());
    poll.poll();
    const int before = nodes.openings();
    poll.poll();
    EXPECT_EQ(nodes.openings(), before);
}

TEST(NodePoll, ANodeBehindWhichNobodyIsIsNoDrive) {
    FakeNodes nodes;
    nodes.put("/dev/sr0", errorOf(MmcError::Kind::gone));
    NodePoll poll(nodes.access());
    EXPECT_THAT(poll.poll().appeared, IsEmpty());
    nodes.put("/dev/sr0", acme());
    EXPECT_EQ(poll.poll().appeared.size(), 1U);
}

TEST(NodePoll, ADriveThatMayNotBeOpenedIsShown) {
    FakeNodes nodes;
    nodes.put("/dev/sr0", errorOf(MmcError::Kind::noPermission));
    NodePoll poll(nodes.access());
    EXPECT_EQ(poll.poll().appeared.size(), 1U);
}

TEST(NodePoll, ADriveGoesWithItsNodeOrWhenItIsSuspectedRightly) {
    FakeNodes nodes;
    nodes.put("/dev/sr0");
    nodes.put("/dev/sr1");
    NodePoll poll(nodes.access());
    poll.poll();
    EXPECT_THAT(poll.poll({"/dev/sr1"}).disappeared, IsEmpty());
    nodes.take("/dev/sr0");
    nodes.put("/dev/sr1", errorOf(MmcError::Kind::gone));
    EXPECT_THAT(poll.poll().disappeared, ElementsAre("/dev/sr0"));
    EXPECT_THAT(poll.poll({"/dev/sr1"}).disappeared, ElementsAre("/dev/sr1"));
    EXPECT_THAT(poll.poll().appeared, IsEmpty());
}

TEST(PollingWatcher, TellsOfDrivesThatComeAndGo) {
    FakeNodes nodes;
    nodes.put("/dev/sr0", acme());
    Told told;
    PollingWatcher watcher(nodes.access(), 1ms);
    EXPECT_EQ(watcher.search(told.observer()).size(), 1U);
    EXPECT_FALSE(watcher.tellsOfMedia("/dev/sr0"));
    nodes.put("/dev/sr1");
    EXPECT_THAT(told.words(1), ElementsAre("+/dev/sr1"));
    nodes.take("/dev/sr0");
    EXPECT_THAT(told.words(2), ElementsAre("+/dev/sr1", "-/dev/sr0"));
}

TEST(PollingWatcher, LooksAtASuspectAtOnce) {
    FakeNodes nodes;
    nodes.put("/dev/sr0");
    Told told;
    PollingWatcher watcher(nodes.access(), 1h);
    watcher.search(told.observer());
    nodes.put("/dev/sr0", errorOf(MmcError::Kind::gone));
    watcher.suspect("/dev/sr0");
    EXPECT_THAT(told.words(1), ElementsAre("-/dev/sr0"));
}

TEST(PollingWatcher, EndsWithoutASearchAndInTheMiddleOfAWait) {
    FakeNodes nodes;
    const PollingWatcher idle(nodes.access(), 1h);
    PollingWatcher watcher(nodes.access(), 1h);
    EXPECT_THAT(watcher.search({}), IsEmpty());
}

TEST(ScsiDevices, TellWhoADriveIsWithoutOpeningIt) {
    const TemporaryFolder folder;
    for (const char *drive : {"0", "1"}) {
        const fs::path device = folder.path() / (std::string(drive) + ":0:0:0");
        fs::create_directories(device / "block" / (std::string("sr") + drive));
        write(device / "vendor", "ACME    \n");
        write(device / "model", std::string("DRW-") + drive + "           \n");
        write(device / "rev", "1.00\n");
    }
    EXPECT_EQ(identityFromSystem("sr1", folder.path()),
              (DriveIdentity{.vendor = "ACME", .model = "DRW-1", .revision = "1.00"}));
    EXPECT_EQ(identityFromSystem("sr2", folder.path()), std::nullopt);
    EXPECT_EQ(identityFromSystem("sr0", folder.path() / "missing"), std::nullopt);
}
