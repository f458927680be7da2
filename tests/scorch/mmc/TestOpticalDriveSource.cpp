// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/mmc/OpticalDriveSource.h"

#include "scorch/drive/DriveRegistry.h"
#include "tests/scorch/mmc/RecorderTransport.h"
#include "tests/support/TestMainQueue.h"

#include <gmock/gmock.h>

#include <atomic>
#include <chrono>
#include <mutex>
#include <thread>

using namespace scorch;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// A watcher that finds and tells what a test says.
class FakeWatcher final : public DeviceWatcher {
public:
    struct Shared {
        std::vector<FoundDevice> found;
        Observer observer;
        std::atomic<int> suspicions = 0;
        bool tellsOfMedia = true;
    };
    explicit FakeWatcher(Shared &shared) : shared_(shared) {}
    std::vector<FoundDevice> search(Observer observer) override {
        shared_.observer = std::move(observer);
        return shared_.found;
    }
    bool tellsOfMedia(const std::filesystem::path &) const override { return shared_.tellsOfMedia; }
    void suspect(const std::filesystem::path &) override { ++shared_.suspicions; }

private:
    Shared &shared_;
};

FoundDevice device(const char *node) {
    return {.node = node, .identity = {.vendor = "ACME", .model = "DRW-24", .revision = "1.0"}};
}

class OpticalDriveSourceTest : public testing::Test {
protected:
    OpticalDriveSourceTest() {
        OpticalDriveServices services;
        services.open = [this](const std::filesystem::path &) {
            const std::lock_guard passing(gate_);
            return recorder_.open();
        };
        services.glanceInterval = std::chrono::milliseconds(1);
        std::vector<std::unique_ptr<DriveSource>> sources;
        sources.push_back(std::make_unique<OpticalDriveSource>(
            [this] {
                ++watchers_;
                return std::make_unique<FakeWatcher>(watcher_);
            },
            services));
        registry_ = DriveRegistry::create(std::move(sources), queue_.poster());
    }
    ~OpticalDriveSourceTest() override { registry_->shutDown(); }

    bool waitFor(const std::function<bool()> &condition) {
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
        while (!condition() && std::chrono::steady_clock::now() < end) {
            queue_.runPending();
            std::this_thread::yield();
        }
        return condition();
    }

    RecorderDrive recorder_;
    std::mutex gate_; ///< Locked by a test that wants drives to wait.
    FakeWatcher::Shared watcher_;
    std::atomic<int> watchers_ = 0;
    TestMainQueue queue_;
    std::shared_ptr<DriveRegistry> registry_;
};

class DeviceLog final : public ScorcherDeviceDelegate {
public:
    std::vector<std::string> words;
    void deviceStatusDidChanged() override { words.emplace_back("status"); }
    void deviceDidDisappeared(const std::string &name) override { words.push_back("-" + name); }
    void deviceDidAppeared(const std::string &name) override { words.push_back("+" + name); }
};

} // namespace

TEST_F(OpticalDriveSourceTest, NothingIsLookedForBeforeSomebodyAsks) {
    EXPECT_EQ(watchers_, 0);
    EXPECT_THAT(registry_->names(), IsEmpty());
    EXPECT_EQ(watchers_, 1);
}

TEST_F(OpticalDriveSourceTest, TheSearchTouchesNoDrive) {
    watcher_.found = {device("/dev/sr0"), device("/dev/sr1")};
    EXPECT_THAT(registry_->names(), ElementsAre("ACME DRW-24", "ACME DRW-24 (sr1)"));
    EXPECT_EQ(recorder_.openings(), 0);
}

TEST_F(OpticalDriveSourceTest, ANameStaysAsLongAsItsDriveIsThere) {
    watcher_.found = {device("/dev/sr1")};
    EXPECT_THAT(registry_->names(), ElementsAre("ACME DRW-24"));
    watcher_.observer.appeared(device("/dev/sr0"));
    EXPECT_THAT(registry_->names(), ElementsAre("ACME DRW-24", "ACME DRW-24 (sr0)"));
    watcher_.observer.disappeared("/dev/sr1");
    EXPECT_THAT(registry_->names(), ElementsAre("ACME DRW-24 (sr0)"));
    watcher_.observer.appeared(device("/dev/sr1"));
    EXPECT_THAT(registry_->names(), ElementsAre("ACME DRW-24 (sr0)", "ACME DRW-24"));
}

TEST_F(OpticalDriveSourceTest, ComingAndGoingIsToldOnTheMainThread) {
    DeviceLog log;
    const auto handle = registry_->makeHandle("");
    handle->setDelegate(&log);
    registry_->names();
    watcher_.observer.appeared(device("/dev/sr0"));
    watcher_.observer.disappeared("/dev/sr0");
    watcher_.observer.disappeared("/dev/sr5");
    EXPECT_THAT(log.words, IsEmpty());
    queue_.runPending();
    EXPECT_THAT(log.words, ElementsAre("+ACME DRW-24", "-ACME DRW-24"));
}

TEST_F(OpticalDriveSourceTest, AHandleBeginsTheCheckAndIsToldOfItsEnd) {
    recorder_.scene.makeDisc(blankCd());
    watcher_.found = {device("/dev/sr0")};
    DeviceLog log;
    std::unique_lock gate(gate_);
    const auto handle = registry_->makeHandle("ACME DRW-24");
    handle->setDelegate(&log);
    EXPECT_TRUE(handle->isCheckingDisc());
    gate.unlock();
    EXPECT_TRUE(waitFor([&] { return !handle->isCheckingDisc() && handle->isDiscBlank(); }));
    EXPECT_TRUE(waitFor([&] { return log.words == std::vector<std::string>{"status"}; }));
    EXPECT_EQ(handle->freeTimeOfDisc(), 359'849);
    EXPECT_EQ(handle->description().node, "/dev/sr0");
}

TEST_F(OpticalDriveSourceTest, AHandleOfADriveThatComesBackLooksAtItAgain) {
    recorder_.scene.makeDisc(blankCd());
    watcher_.found = {device("/dev/sr0")};
    const auto handle = registry_->makeHandle("ACME DRW-24");
    EXPECT_TRUE(waitFor([&] { return handle->isDiscBlank(); }));
    watcher_.observer.disappeared("/dev/sr0");
    EXPECT_FALSE(handle->isDiscBlank());
    watcher_.observer.appeared(device("/dev/sr0"));
    EXPECT_TRUE(waitFor([&] { return handle->isDiscBlank(); }));
}

TEST_F(OpticalDriveSourceTest, ADriveIsLeftAloneWhenItsLastHandleHasGone) {
    watcher_.tellsOfMedia = false;
    watcher_.found = {device("/dev/sr0")};
    auto first = registry_->makeHandle("ACME DRW-24");
    auto second = registry_->makeHandle("ACME DRW-24");
    EXPECT_TRUE(waitFor([&] { return !second->isCheckingDisc(); }));
    first.reset();
    const int before = recorder_.openings();
    EXPECT_TRUE(waitFor([&] { return recorder_.openings() > before; })) << "one still looks";
    const std::shared_ptr<Drive> drive = registry_->find("ACME DRW-24");
    second.reset();
    const std::lock_guard gate(gate_);
    drive->setWatched(true); // Begins anew, which it does only if nobody has been looking.
    EXPECT_TRUE(drive->state().checking);
    drive->setWatched(false);
}

TEST_F(OpticalDriveSourceTest, AMediumThatChangesIsPassedOnToItsDrive) {
    watcher_.found = {device("/dev/sr0")};
    const auto handle = registry_->makeHandle("ACME DRW-24");
    EXPECT_TRUE(waitFor([&] { return !handle->isCheckingDisc(); }));
    recorder_.scene.makeDisc(blankCd(), "other");
    recorder_.scene.control("disc other #1\n");
    std::unique_lock gate(gate_);
    watcher_.observer.mediumChanged("/dev/sr7", MediumNews::changed);
    watcher_.observer.mediumChanged("/dev/sr0", MediumNews::changed);
    EXPECT_TRUE(handle->isCheckingDisc());
    gate.unlock();
    EXPECT_TRUE(waitFor([&] { return handle->isDiscBlank(); }));
}

TEST_F(OpticalDriveSourceTest, ADriveThatLeadsNowhereIsSuspected) {
    watcher_.found = {device("/dev/sr0")};
    recorder_.scene.control("no-device\n");
    const auto handle = registry_->makeHandle("ACME DRW-24");
    EXPECT_TRUE(waitFor([&] { return watcher_.suspicions > 0; }));
}

TEST_F(OpticalDriveSourceTest, TheEndStopsADriveInTheMiddleOfACheck) {
    recorder_.scene.makeDisc(blankCd(), "other");
    recorder_.scene.control("becoming-ready 1000000\ndisc other #1\n");
    watcher_.found = {device("/dev/sr0")};
    std::unique_lock gate(gate_);
    const auto handle = registry_->makeHandle("ACME DRW-24");
    EXPECT_TRUE(handle->isCheckingDisc());
    gate.unlock();
    const auto begun = std::chrono::steady_clock::now();
    registry_->shutDown();
    EXPECT_LT(std::chrono::steady_clock::now() - begun, std::chrono::seconds(5));
}
