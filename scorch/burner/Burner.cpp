// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/burner/Burner.h"

#include "scorch/burner/BurnerRuns.h"

#include <utility>

namespace scorch {
namespace {

const Item &asItem(const BurnItem &item) {
    return static_cast<const Item &>(item);
}

} // namespace

std::shared_ptr<Burner> Burner::create(std::unique_ptr<DiscKind> kind, BurnerServices services) {
    return std::shared_ptr<Burner>(new Burner(std::move(kind), std::move(services)));
}

Burner::Burner(std::unique_ptr<DiscKind> kind, BurnerServices services)
    : kind_(std::move(kind)),
      services_(std::move(services)),
      announcer_([this](std::function<void()> task) { post(std::move(task)); },
                 [this] { return settleCapacity(); }) {}

Burner::~Burner() {
    shutDown();
}

void Burner::post(std::function<void()> task) {
    services_.post([weak = weak_from_this(), task = std::move(task)] {
        const std::shared_ptr<Burner> self = weak.lock();
        if (self != nullptr && !self->ended_) {
            task();
        }
    });
}

bool Burner::settleCapacity() {
    return kind_->settle(list_.items(), [weak = weak_from_this()] {
        if (const std::shared_ptr<Burner> self = weak.lock()) {
            self->announcer_.run();
        }
    });
}

void Burner::requestStop() {
    if (check_ != nullptr) {
        check_->stop.request_stop();
    }
    if (burn_ != nullptr) {
        burn_->stop.request_stop();
    }
}

void Burner::shutDown() {
    ended_ = true;
    announcer_.shutDown();
    requestStop();
    check_.reset();
    if (burn_ != nullptr) {
        const std::string driveName = burn_->request.drive->name();
        burn_.reset();
        services_.drives->release(driveName);
    }
    kind_->shutDown();
}

void Burner::setDelegate(ScorchDelegate *delegate) {
    announcer_.setDelegate(delegate);
}

void Burner::clearAll() {
    kind_->forget(list_.clear());
    announcer_.answer([](ScorchDelegate &delegate) { delegate.allFilesDidCleared(); },
                      Announcer::Wait::forCapacityWhenIdle);
}

std::vector<ItemRef> Burner::removeFromList(const std::vector<BurnItemRef> &items) {
    std::vector<ItemRef> removed = list_.remove(items);
    if (!removed.empty()) {
        kind_->forget(removed);
    }
    return removed;
}

void Burner::removeItem(const BurnItemRef &item) {
    if (!removeFromList({item}).empty()) {
        announcer_.answer([item](ScorchDelegate &delegate) { delegate.burnItemDidDelete(item); },
                          Announcer::Wait::forCapacityWhenIdle);
    }
}

void Burner::removeItems(const std::vector<BurnItemRef> &items) {
    const std::vector<ItemRef> removed = removeFromList(items);
    if (removed.empty()) {
        return;
    }
    announcer_.answer([gone = std::vector<BurnItemRef>(removed.begin(), removed.end())](
                          ScorchDelegate &delegate) { delegate.burnItemsDidDelete(gone); },
                      Announcer::Wait::forCapacityWhenIdle);
}

void Burner::moveBurnItemTo(const IndexSet &rows, std::int64_t destination) {
    // Ascending: some row is in the list unless the first that is not negative lies behind it.
    const auto first = rows.lower_bound(0);
    if (first == rows.end() || *first >= list_.count()) {
        return;
    }
    list_.move(rows, destination);
    announcer_.answer([](ScorchDelegate &delegate) { delegate.burnItemDidSorted(); });
}

std::int64_t Burner::numberOfChildrenOfBurnItem(const BurnItemRef &item) const {
    return item == nullptr ? list_.count() : 0;
}

BurnItemRef Burner::childOfBurnItem(std::int64_t index, const BurnItemRef &parent) const {
    return parent == nullptr ? list_.at(index) : nullptr;
}

ItemProperties Burner::propertyOfBurnItem(const BurnItemRef &item) const {
    return item != nullptr ? asItem(*item).properties() : ItemProperties();
}

std::uint64_t Burner::usedCapacity() const {
    return kind_->usedCapacity();
}

bool Burner::isContentOverflowForDevice(const ScorcherDevice *device) const {
    if (device == nullptr) {
        return false;
    }
    const std::int64_t free = kind_->freeCapacity(*device);
    return usedCapacity() > (free > 0 ? static_cast<std::uint64_t>(free) : 0);
}

} // namespace scorch
