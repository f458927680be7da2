// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "cli/CommandLine.h"
#include "cli/ExitCode.h"
#include "cli/Reporter.h"
#include "engine/ScorchDelegate.h"
#include "engine/ScorcherDeviceDelegate.h"

#include <functional>
#include <memory>

class Scorcher;
class ScorcherDevice;

namespace cli {

/// Burns one list from start to end: chooses the drive, checks the files, sees whether they fit,
/// burns, and says how the program ends. Main thread only. Neither the reporter nor what `ended`
/// refers to is owned.
class BurnCommand : private ScorchDelegate, private ScorcherDeviceDelegate {
public:
    /// `ended` is called once, last, also from inside start().
    BurnCommand(BurnRequest request, Reporter &reporter, std::function<void(ExitCode)> ended);
    ~BurnCommand() override;

    /// Waits for the engine's first search for drives, and returns at once otherwise.
    void start();

    /// Asks the engine to stop whatever it does. `ended` is called when the drive is at rest and
    /// has told what is left of the disc; a request in the meantime does without the latter.
    void cancel();

private:
    enum class State { idle, checking, waitingForDisc, burning, lookingAtDisc, ended };

    void addFilesProgressDidCanceled() override;
    void addFilesProgressDidChangedIndexOf(const std::string &name, std::int64_t index,
                                           std::int64_t count) override;
    void addFilesProgressDidEnd(const AddFilesResult &result) override;
    void burnProgressDidError(const ScorchError &error) override;
    void burnProgressIsPreparing() override;
    void burnProgressDidCanceled() override;
    void burnProgressDidChanagedLefttime(double fraction, std::uint64_t lefttime) override;
    void burnProgressIsOpeningTrackOf(std::uint64_t track, std::uint64_t count) override;
    void burnProgressIsWriteingTrackOf(std::uint64_t track, std::uint64_t count) override;
    void burnProgressDidCloseTrackOf(std::uint64_t track, std::uint64_t count) override;
    void burnProgressDidCloseSession() override;
    void burnProgressIsFinishing() override;
    void burnProgressIsVerifying() override;
    void burnProgressDidDone() override;

    void deviceStatusDidChanged() override;
    void deviceDidDisappeared(const std::string &deviceName) override;

    void refuse(const std::vector<RefusedFile> &files, RefusalKind kind);
    void examineDisc();
    void burn();
    void fail(const ScorchError &error);
    void endCancelled(const ScorcherDevice *device);
    void end(ExitCode exitCode);

    const BurnRequest request_;
    Reporter &reporter_;
    const std::function<void(ExitCode)> ended_;
    State state_ = State::idle;
    bool cancelling_ = false;
    std::shared_ptr<Scorcher> burner_;
    std::unique_ptr<ScorcherDevice> device_;
    BurnSummary summary_;
};

} // namespace cli
