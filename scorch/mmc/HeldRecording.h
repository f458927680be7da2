// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/drive/Drive.h"

#include <functional>
#include <memory>
#include <utility>

namespace scorch {

/// A recording that tells when it is over and the drive at rest.
class HeldRecording final : public DiscRecording {
public:
    HeldRecording(std::unique_ptr<DiscRecording> recording, std::function<void()> ended)
        : recording_(std::move(recording)), ended_(std::move(ended)) {}
    ~HeldRecording() override {
        recording_.reset();
        ended_();
    }

    Outcome<> record(DiscContent &content, RecordObserver &observer,
                     const std::stop_token &stop) override {
        return recording_->record(content, observer, stop);
    }
    Outcome<> readBack(std::size_t track, std::int64_t firstSector, std::span<std::byte> buffer,
                       const std::stop_token &stop) override {
        return recording_->readBack(track, firstSector, buffer, stop);
    }
    Outcome<SectorRange> readableSectors(std::size_t track, std::int64_t sectors,
                                         const std::stop_token &stop) override {
        return recording_->readableSectors(track, sectors, stop);
    }
    bool isComplete() const override { return recording_->isComplete(); }
    Result<void> commit() override { return recording_->commit(); }

private:
    std::unique_ptr<DiscRecording> recording_;
    std::function<void()> ended_;
};

} // namespace scorch
