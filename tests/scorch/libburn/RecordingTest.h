// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/libburn/OpticalDiscRecording.h"
#include "tests/recorder/DriveScene.h"
#include "tests/scorch/drive/FakeContent.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <mutex>
#include <stop_token>
#include <string>
#include <vector>

/// Hears everything and says nothing.
class SilentObserver final : public scorch::RecordObserver {
public:
    void openingTrack(std::size_t /*track*/, std::size_t /*count*/) override {}
    void writingTrack(std::size_t /*track*/, std::size_t /*count*/) override {}
    void closedTrack(std::size_t /*track*/, std::size_t /*count*/) override {}
    void closedSession() override {}
    void finishing() override {}
    void wroteSectors(std::int64_t /*sectors*/) override {}
};

/// An emulated recorder of its own for each test, in a process that has it preloaded, and
/// recordings on it.
class RecordingTest : public testing::Test {
protected:
    RecordingTest();
    /// Nobody holds the drive any more, and its door is not locked.
    ~RecordingTest() override;

    void insert(const recorder::Disc &disc) const { scene_.makeDisc(disc); }

    /// Takes the drive and records.
    scorch::Outcome<> record(scorch::DiscContent &content);
    scorch::Outcome<std::unique_ptr<scorch::DiscRecording>> begin(scorch::DiscContent &content);
    /// The error of a recording that must fail.
    ScorchError failureOf(scorch::DiscContent &content);
    static ScorchError errorOf(const scorch::Interruption &interruption);

    /// The lines of the engine's log.
    std::vector<std::string> log() const;
    /// The user data of the first sectors of the disc.
    std::string soundOnDisc(std::int64_t sectors) const;
    std::string dataOnDisc(std::int64_t sectors) const;

    /// Called with "open 1", "write 1", "close 1", "session", "finishing" as the recording gets
    /// there.
    std::function<void(const std::string &stage)> atStage_;
    std::stop_source stop_;
    scorch::RecordingPatience patience_;
    const std::string name_;
    const recorder::DriveScene scene_;
    std::shared_ptr<scorch::LibburnThread> thread_ = std::make_shared<scorch::LibburnThread>();
    std::unique_ptr<scorch::DiscRecording> recording_; ///< The last one.
    std::vector<std::string> stages_;

private:
    mutable std::mutex logMutex_;
    std::vector<std::string> log_;
};
