// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/FakeEngine.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <utility>

namespace {

FakeEngine *currentEngine = nullptr;

} // namespace

/// A handle as the contract has it: false and zero for a drive that is not there.
class FakeDeviceHandle final : public ScorcherDevice {
public:
    explicit FakeDeviceHandle(std::string name) : name_(std::move(name)) {
        ++FakeEngine::current().livingHandles;
    }
    ~FakeDeviceHandle() override { --FakeEngine::current().livingHandles; }

    std::string deviceName() const override { return name_; }
    void setDelegate(ScorcherDeviceDelegate *delegate) override {
        if (delegate != nullptr) {
            FakeEngine::current().deviceDelegate_.set(delegate);
        } else if (delegate_.get() == FakeEngine::current().deviceDelegate_.get()) {
            FakeEngine::current().deviceDelegate_.set(nullptr);
        }
        delegate_.set(delegate);
    }
    bool cdBurnEnabled() const override { return ask("cdBurnEnabled", &FakeDrive::cannotBurn); }
    bool isCheckingDisc() const override { return ask("isCheckingDisc", &FakeDrive::isChecking); }
    bool isDiscInDevice() const override { return ask("isDiscInDevice", &FakeDrive::hasDisc); }
    bool isDiscBlank() const override { return ask("isDiscBlank", &FakeDrive::isBlank); }
    bool isCDDisc() const override { return ask("isCDDisc", &FakeDrive::isCD); }
    std::int64_t freeTimeOfDisc() const override {
        return ask("freeTimeOfDisc", &FakeDrive::freeTime);
    }
    std::int64_t freeSizeOfDisc() const override {
        return ask("freeSizeOfDisc", &FakeDrive::freeSize);
    }
    ScorcherDeviceDescription description() const override {
        return ask("description", &FakeDrive::description);
    }
    void eject() override { FakeEngine::current().ejected.push_back(name_); }

private:
    template <class Answer>
    Answer ask(const char *query, Answer FakeDrive::*field) const {
        FakeEngine &engine = FakeEngine::current();
        engine.queries.emplace_back(query);
        for (const FakeDrive &drive : engine.drives) {
            if (drive.name == name_) {
                return drive.*field;
            }
        }
        return Answer{};
    }

    std::string name_;
    DelegateSlot<ScorcherDeviceDelegate> delegate_;
};

int FakeScorcher::count(const std::string &call) const {
    return static_cast<int>(std::count(calls.begin(), calls.end(), call));
}

BurnItemRef FakeScorcher::append(const std::string &name, std::int64_t amount) {
    items_.push_back(std::make_shared<FakeBurnItem>(ItemProperties{
        {kScorchItemDisplayNameKey, name},
        {kScorchItemDurationKey, amount},
        {kScorchItemFileSizeKey, amount},
    }));
    return items_.back();
}

std::vector<std::string> FakeScorcher::names() const {
    std::vector<std::string> result;
    for (const auto &item : items_) {
        result.push_back(std::get<std::string>(item->properties().at(kScorchItemDisplayNameKey)));
    }
    return result;
}

bool FakeScorcher::addFiles(std::vector<BurnFile> files) {
    calls.emplace_back("addFiles");
    addedFiles.push_back(std::move(files));
    return acceptsFiles;
}

void FakeScorcher::clearAll() {
    calls.emplace_back("clearAll");
    items_.clear();
}

void FakeScorcher::remove(const BurnItemRef &item) {
    const auto end = std::remove_if(items_.begin(), items_.end(),
                                    [&item](const auto &other) { return other == item; });
    items_.erase(end, items_.end());
}

void FakeScorcher::removeItem(const BurnItemRef &item) {
    calls.emplace_back("removeItem");
    removed.push_back({item});
    remove(item);
}

void FakeScorcher::removeItems(const std::vector<BurnItemRef> &items) {
    calls.emplace_back("removeItems");
    removed.push_back(items);
    for (const BurnItemRef &item : items) {
        remove(item);
    }
}

void FakeScorcher::moveBurnItemTo(const IndexSet &rows, std::int64_t destination) {
    calls.emplace_back("moveBurnItemTo");
    moves.emplace_back(rows, destination);
    std::vector<std::shared_ptr<const FakeBurnItem>> moved;
    std::vector<std::shared_ptr<const FakeBurnItem>> others;
    for (std::size_t row = 0; row < items_.size(); ++row) {
        (rows.count(static_cast<std::int64_t>(row)) != 0 ? moved : others).push_back(items_[row]);
    }
    if (moved.empty()) {
        return;
    }
    const auto count = static_cast<std::int64_t>(moved.size());
    const std::int64_t start = *rows.rbegin() > destination ? destination : destination - count;
    const std::int64_t kept =
        std::clamp<std::int64_t>(start, 0, static_cast<std::int64_t>(others.size()));
    others.insert(others.begin() + kept, moved.begin(), moved.end());
    items_ = std::move(others);
}

std::int64_t FakeScorcher::numberOfChildrenOfBurnItem(const BurnItemRef &item) const {
    return item == nullptr ? static_cast<std::int64_t>(items_.size()) : 0;
}

BurnItemRef FakeScorcher::childOfBurnItem(std::int64_t index, const BurnItemRef &parent) const {
    ++childCount;
    if (parent != nullptr || index < 0 || index >= static_cast<std::int64_t>(items_.size())) {
        ++childOutsideCount;
        return nullptr;
    }
    return items_[static_cast<std::size_t>(index)];
}

ItemProperties FakeScorcher::propertyOfBurnItem(const BurnItemRef &item) const {
    const auto *const fake = static_cast<const FakeBurnItem *>(item.get());
    return fake != nullptr ? fake->properties() : ItemProperties{};
}

std::uint64_t FakeScorcher::usedCapacity() const {
    ++usedCapacityCount;
    return used;
}

bool FakeScorcher::isContentOverflowForDevice(const ScorcherDevice *device) const {
    return device != nullptr && overflows;
}

void FakeScorcher::burnWithDeviceDiscNamed(const ScorcherDevice *device,
                                           const std::string &discName) {
    calls.emplace_back("burn");
    burns.emplace_back(device != nullptr ? device->deviceName() : "", discName);
}

FakeEngine::FakeEngine() {
    EXPECT_EQ(currentEngine, nullptr) << "one fake engine at a time";
    currentEngine = this;
}

FakeEngine::~FakeEngine() {
    releaseSearch();
    EXPECT_EQ(livingHandles, 0) << "a handle outlives the engine";
    currentEngine = nullptr;
}

FakeEngine &FakeEngine::current() {
    if (currentEngine == nullptr) {
        throw std::logic_error("the test has no FakeEngine");
    }
    return *currentEngine;
}

FakeDrive &FakeEngine::drive(const std::string &name) {
    for (FakeDrive &candidate : drives) {
        if (candidate.name == name) {
            return candidate;
        }
    }
    throw std::logic_error("no fake drive " + name);
}

FakeDrive &FakeEngine::addDrive(const std::string &name) {
    FakeDrive added;
    added.name = name;
    return drives.emplace_back(added);
}

void FakeEngine::removeDrive(const std::string &name) {
    const auto end = std::remove_if(drives.begin(), drives.end(),
                                    [&name](const FakeDrive &drive) { return drive.name == name; });
    drives.erase(end, drives.end());
}

void FakeEngine::holdSearch() {
    const std::lock_guard lock(mutex_);
    isHeld_ = true;
}

void FakeEngine::releaseSearch() {
    const std::lock_guard lock(mutex_);
    isHeld_ = false;
    released_.notify_all();
}

int FakeEngine::searchCountHere() const {
    const std::lock_guard lock(mutex_);
    return searchesHere_;
}

int FakeEngine::searchCountElsewhere() const {
    const std::lock_guard lock(mutex_);
    return searchesElsewhere_;
}

int FakeEngine::finishedSearchCount() const {
    const std::lock_guard lock(mutex_);
    return finishedSearches_;
}

std::vector<std::string> FakeEngine::search() {
    std::unique_lock lock(mutex_);
    const bool isHere = std::this_thread::get_id() == home_;
    ++(isHere ? searchesHere_ : searchesElsewhere_);
    released_.wait(lock, [this] { return !isHeld_; });
    std::vector<std::string> names;
    for (const FakeDrive &drive : drives) {
        names.push_back(drive.name);
    }
    finishedSearches_ += isHere ? 0 : 1;
    return names;
}

std::shared_ptr<Scorcher> Scorcher::audioCDBurner() {
    return FakeEngine::current().audio_;
}

std::shared_ptr<Scorcher> Scorcher::dataCDBurner() {
    return FakeEngine::current().data_;
}

void Scorcher::shutDownAll() {
    // Also called at the end of a test program, when the test's engine has gone.
    if (currentEngine != nullptr) {
        ++currentEngine->shutDownCount;
    }
}

std::vector<std::string> ScorcherDevice::devices() {
    return FakeEngine::current().search();
}

std::unique_ptr<ScorcherDevice> ScorcherDevice::initWithDeviceName(const std::string &deviceName) {
    FakeEngine::current().handles.push_back(deviceName);
    return std::make_unique<FakeDeviceHandle>(deviceName);
}
