// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/burner/AudioCheck.h"
#include "scorch/burner/AudioContent.h"
#include "scorch/burner/DiscKind.h"

namespace scorch {

/// Audio CDs: songs are counted in CD frames, and their sum is exact at any time.
class AudioKind final : public DiscKind {
public:
    AudioKind(AudioCheckServices checkServices, FeederFactory makeFeeder);

    CheckFunction check() const override;
    void adopt(Item &item) override;
    void forget(const std::vector<ItemRef> &items) override;
    std::uint64_t usedCapacity() const override { return sectors_; }
    bool settle(const std::vector<ItemRef> &list, std::function<void()> settled) override;
    std::int64_t freeCapacity(const ScorcherDevice &device) const override;
    std::optional<ScorchError> refusal(const std::vector<ItemRef> &list) const override;
    ContentFactory content(std::vector<ItemRef> list, std::string discName) const override;
    void shutDown() override {}

private:
    const AudioCheckServices checkServices_;
    const FeederFactory makeFeeder_;
    std::uint64_t sectors_ = 0;
};

} // namespace scorch
