// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/audio/AudioBackend.h"
#include "scorch/burner/Burner.h"
#include "scorch/burner/DataKind.h"
#include "scorch/drive/DriveRegistry.h"
#include "tests/scorch/burner/ScorchLog.h"
#include "tests/scorch/drive/FakeDrive.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/TestMainQueue.h"

#include <gtest/gtest.h>

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <set>
#include <stop_token>
#include <string>
#include <vector>

/// A door that threads wait at until the test opens it.
class Gate {
public:
    /// Waits until the gate is open or a stop is requested. Any thread.
    void pass(const std::stop_token &stop = {});
    void open();
    /// Waits until somebody waits at the gate.
    bool waitForVisitor();

private:
    std::mutex mutex_;
    std::condition_variable_any changed_;
    bool open_ = false;
    int visitors_ = 0;
};

/// Burners with a drive, a decoder and an image writer that a test is in charge of, on a main
/// queue that the test runs.
class BurnerHarness : public testing::Test {
protected:
    BurnerHarness();
    ~BurnerHarness() override;

    /// A burner for songs. A song is any file; its name is its title.
    std::shared_ptr<scorch::Burner> makeAudioBurner();
    /// A burner for files; the size of its image is the sum of the files and a sector for each.
    std::shared_ptr<scorch::Burner> makeDataBurner();

    /// Files that exist, named as told.
    std::vector<BurnFile> files(const std::vector<std::string> &names);
    /// Adds files to a burner and waits for the end of the check.
    void add(scorch::Burner &burner, const std::vector<std::string> &names);
    std::vector<std::string> namesIn(const scorch::Burner &burner) const;

    bool runUntil(const std::function<bool()> &done) { return queue_.runUntil(done); }
    bool runUntilWord(const ScorchLog &log, const std::string &word);

    TestMainQueue queue_;
    TemporaryFolder folder_;
    std::atomic<std::int64_t> milliseconds_{0}; ///< On the clock of checks and burns.
    scorch::Clock clock_;

    std::shared_ptr<FakeDrive> drive_ = std::make_shared<FakeDrive>("Drive");
    std::shared_ptr<scorch::DriveRegistry> drives_;
    std::unique_ptr<ScorcherDevice> device_;
    bool verify_ = true;

    /// Sectors of a song; 300 where nothing else is said.
    std::map<std::string, std::int64_t> songSectors_;
    /// Called on a probing thread with the name of each song; what it answers is the outcome.
    std::function<scorch::AudioProbe(const std::string &name, const std::stop_token &)> onProbe_;
    /// Called on the thread of a check before each file is scanned.
    std::function<void(const std::string &name, const std::stop_token &)> onScan_;
    /// Called on the thread that lays an image out.
    std::function<void(const std::stop_token &)> onSize_;
    std::atomic<int> sizesAsked_{0};
};
