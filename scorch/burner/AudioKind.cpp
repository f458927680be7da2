// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/burner/AudioKind.h"

#include "scorch/burner/BurnErrors.h"

#include <utility>

namespace scorch {
namespace {

std::uint64_t sectorsOf(const Item &item) {
    return static_cast<std::uint64_t>(static_cast<const AudioItem &>(item).sectors);
}

} // namespace

AudioKind::AudioKind(AudioCheckServices checkServices, FeederFactory makeFeeder)
    : checkServices_(std::move(checkServices)), makeFeeder_(std::move(makeFeeder)) {}

CheckFunction AudioKind::check() const {
    return [services = checkServices_](CheckQueue &queue, CheckSink &sink,
                                       const std::stop_token &stop) {
        return checkSongs(services, queue, sink, stop);
    };
}

void AudioKind::adopt(Item &item) {
    sectors_ += sectorsOf(item);
}

void AudioKind::forget(const std::vector<ItemRef> &items) {
    for (const ItemRef &item : items) {
        sectors_ -= sectorsOf(*item);
    }
}

bool AudioKind::settle(const std::vector<ItemRef> & /*list*/, std::function<void()> /*settled*/) {
    return true;
}

std::int64_t AudioKind::freeCapacity(const ScorcherDevice &device) const {
    return device.freeTimeOfDisc();
}

std::optional<ScorchError> AudioKind::refusal(const std::vector<ItemRef> &list) const {
    if (list.size() > maximumTracks) {
        return tooManyTracksError(list.size());
    }
    return std::nullopt;
}

ContentFactory AudioKind::content(std::vector<ItemRef> list, std::string discName) const {
    return [list = std::move(list), discName = std::move(discName),
            makeFeeder = makeFeeder_](const std::stop_token &stop) {
        return AudioContent::create(list, discName, makeFeeder, stop);
    };
}

} // namespace scorch
