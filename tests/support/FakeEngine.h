// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/ScorchDelegate.h"
#include "engine/Scorcher.h"
#include "engine/ScorcherDevice.h"
#include "engine/ScorcherDeviceDelegate.h"

#include <condition_variable>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <utility>
#include <vector>

/// An entry of a fake burner's list: whatever properties a test gives it.
class FakeBurnItem final : public BurnItem {
public:
    explicit FakeBurnItem(ItemProperties properties) : properties_(std::move(properties)) {}
    const ItemProperties &properties() const { return properties_; }

private:
    ItemProperties properties_;
};

/// A burner that does nothing by itself: it keeps a list, notes what it is told, in order, and
/// leaves every callback to the test, which sends them through delegate().
class FakeScorcher final : public Scorcher {
public:
    // What it answers; the test sets these.
    bool acceptsFiles = true;
    bool overflows = false;
    std::uint64_t used = 0;

    // What it was told.
    std::vector<std::string> calls; ///< The operations that change something, oldest first.
    std::vector<std::vector<BurnFile>> addedFiles;
    std::vector<std::vector<BurnItemRef>> removed; ///< One entry for each removal.
    std::vector<std::pair<IndexSet, std::int64_t>> moves;
    std::vector<std::pair<std::string, std::string>> burns; ///< Drive ("" for null), disc name.
    mutable int usedCapacityCount = 0;
    mutable int childCount = 0;        ///< How often an item was asked for.
    mutable int childOutsideCount = 0; ///< The same with an index that does not exist.

    ScorchDelegate *delegate() const { return delegate_.get(); }
    int count(const std::string &call) const;

    /// Puts an item at the end of the list, with no callback.
    BurnItemRef append(const std::string &name, std::int64_t amount);
    /// The display names of the list, in order.
    std::vector<std::string> names() const;

    void setDelegate(ScorchDelegate *delegate) override { delegate_.set(delegate); }
    bool addFiles(std::vector<BurnFile> files) override;
    void cancelToAddFiles() override { calls.emplace_back("cancelToAddFiles"); }
    void clearAll() override;
    void removeItem(const BurnItemRef &item) override;
    void removeItems(const std::vector<BurnItemRef> &items) override;
    void moveBurnItemTo(const IndexSet &rows, std::int64_t destination) override;
    std::int64_t numberOfChildrenOfBurnItem(const BurnItemRef &item) const override;
    BurnItemRef childOfBurnItem(std::int64_t index, const BurnItemRef &parent) const override;
    ItemProperties propertyOfBurnItem(const BurnItemRef &item) const override;
    std::uint64_t usedCapacity() const override;
    bool isContentOverflowForDevice(const ScorcherDevice *device) const override;
    void burnWithDeviceDiscNamed(const ScorcherDevice *device,
                                 const std::string &discName) override;
    bool isBusy() const override { return busy; }
    bool busy = false;
    void stopBurn() override { calls.emplace_back("stopBurn"); }

private:
    void remove(const BurnItemRef &item);

    std::vector<std::shared_ptr<const FakeBurnItem>> items_;
    DelegateSlot<ScorchDelegate> delegate_;
};

/// The state of one fake drive; handles read it at each query.
struct FakeDrive {
    std::string name;
    bool cannotBurn = false;
    bool isChecking = false;
    bool hasDisc = true;
    bool isBlank = true;
    bool isCD = true;
    std::int64_t freeTime = 359849;                 // CD frames of an 80 minute disc.
    std::int64_t freeSize = 359849 * INT64_C(2048); // Bytes of it.
    ScorcherDeviceDescription description = {};
};

/// The engine for tests of its clients: defines the contract's static operations. One at a time;
/// the operations need one. Burners and handles must not outlive it.
class FakeEngine {
public:
    FakeEngine();
    ~FakeEngine();
    FakeEngine(const FakeEngine &) = delete;
    FakeEngine &operator=(const FakeEngine &) = delete;

    FakeScorcher &audio() { return *audio_; }
    FakeScorcher &data() { return *data_; }

    /// The drives that are present, in order. Change them before or between calls of devices();
    /// not while a search is held.
    std::vector<FakeDrive> drives;
    FakeDrive &drive(const std::string &name);
    /// A drive with a blank disc.
    FakeDrive &addDrive(const std::string &name);
    void removeDrive(const std::string &name);

    /// From now on devices() waits for releaseSearch().
    void holdSearch();
    void releaseSearch();

    /// How often devices() was called on the thread that made this object, and on others.
    int searchCountHere() const;
    int searchCountElsewhere() const;
    /// How many calls of devices() elsewhere have come to their end.
    int finishedSearchCount() const;

    /// The delegate that was set last on any handle: where drives that come and go are reported.
    ScorcherDeviceDelegate *deviceDelegate() const { return deviceDelegate_.get(); }

    std::vector<std::string> handles; ///< The names that handles were made with.
    int livingHandles = 0;            ///< Handles that exist now.
    std::vector<std::string> ejected; ///< The names of the drives that were told to eject.
    std::vector<std::string> queries; ///< Queries of drives, in order ("isDiscInDevice").
    int shutDownCount = 0;

    static FakeEngine &current();

private:
    friend class FakeDeviceHandle;
    friend class Scorcher;
    friend class ScorcherDevice;

    std::vector<std::string> search();

    std::shared_ptr<FakeScorcher> audio_ = std::make_shared<FakeScorcher>();
    std::shared_ptr<FakeScorcher> data_ = std::make_shared<FakeScorcher>();
    DelegateSlot<ScorcherDeviceDelegate> deviceDelegate_;

    const std::thread::id home_ = std::this_thread::get_id();
    mutable std::mutex mutex_;
    std::condition_variable released_;
    bool isHeld_ = false;
    int searchesHere_ = 0;
    int searchesElsewhere_ = 0;
    int finishedSearches_ = 0;
};
