// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/drive/Drive.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

/// A drive that a test is in charge of. It records into memory, goes through the stages of a
/// recording, and at each of them asks the test what is to happen.
class FakeDrive final : public scorch::Drive {
public:
    explicit FakeDrive(std::string name);

    /// Called on the burn thread before each step: "begin", "open 1", "write 1", "close 1",
    /// "session", "finishing", "read back", "commit". May wait; what it answers is the outcome of
    /// the step if it is no success.
    using StepFunction =
        std::function<scorch::Outcome<>(const std::string &step, const std::stop_token &stop)>;
    void setStep(StepFunction step);

    void setState(const scorch::DriveState &state);
    void setDisc(const scorch::DiscState &disc);
    /// Flips a bit of what is read back of the sector of a track.
    void spoil(std::size_t track, std::int64_t sector) { spoilt_ = {track, sector}; }

    /// Only these sectors of the first track can be read back.
    void limitReading(scorch::SectorRange range) { readable_ = range; }
    /// A recording is complete before it is committed, as on a CD.
    void completeWhenRecorded() { isCompleteWhenRecorded_ = true; }

    bool isRecording() const;
    int ejections() const { return ejections_; }
    bool isWatched() const { return watched_; }
    std::size_t bytesRecorded() const { return bytesRecorded_; }
    std::string volumeName() const { return volumeName_; }

    const std::string &name() const override { return name_; }
    scorch::DriveState state() const override;
    void setStateObserver(std::function<void()> changed) override;
    void setWatched(bool watched) override { watched_ = watched; }
    void eject() override { ++ejections_; }
    scorch::Outcome<std::unique_ptr<scorch::DiscRecording>>
    beginRecording(const scorch::DiscContent &content, const std::stop_token &stop) override;

    static scorch::DriveState blankCd(std::int64_t sectors);

private:
    friend class FakeRecording;
    struct Place {
        std::size_t track;
        std::int64_t sector;
    };

    scorch::Outcome<> take(const std::string &step, const std::stop_token &stop);

    const std::string name_;
    mutable std::mutex mutex_;
    scorch::DriveState state_;
    std::function<void()> changed_;
    StepFunction step_;
    bool recording_ = false;
    std::optional<Place> spoilt_;
    std::optional<scorch::SectorRange> readable_;
    bool isCompleteWhenRecorded_ = false;
    int ejections_ = 0;
    bool watched_ = false;
    std::size_t bytesRecorded_ = 0;
    std::string volumeName_;
};
