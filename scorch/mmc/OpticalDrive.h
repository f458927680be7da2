// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/drive/Drive.h"
#include "scorch/mmc/DeviceWatcher.h"
#include "scorch/mmc/DriveExamination.h"
#include "scorch/mmc/OpticalRecording.h"
#include "scorch/support/Clock.h"

#include <chrono>
#include <condition_variable>
#include <filesystem>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <stop_token>
#include <string>
#include <thread>

namespace scorch {

/// What a drive needs of its surroundings.
struct OpticalDriveServices {
    OpenDrive open = MmcDevice::open;
    OpticalRecordingFactory record;
    /// The node leads nowhere. Any thread; must not block.
    std::function<void(const std::filesystem::path &node)> gone = [](const auto &) {
    };
    std::chrono::milliseconds patience{60'000}; ///< With a drive that is becoming ready.
    std::chrono::milliseconds glanceInterval{1'000};
};

/// A drive of the hardware. All that is asked of it is asked by a thread of its own
/// ("scorch-drive", from the first time that somebody looks at the drive), so that one that does
/// not answer holds nobody else up. The device is open for the time of an examination only, for
/// reading, not exclusively; nobody is kept from using it. While a recording holds the drive
/// nothing of this touches it. Any thread, but setWatched.
class OpticalDrive final : public Drive, public std::enable_shared_from_this<OpticalDrive> {
public:
    /// `isToldOfMedia`: mediumChanged is called for each change of the disc. If not, the drive is
    /// glanced at each second while somebody looks at it.
    static std::shared_ptr<OpticalDrive> create(const FoundDevice &device, std::string name,
                                                bool isToldOfMedia, OpticalDriveServices services);
    ~OpticalDrive() override;

    const std::filesystem::path &node() const { return examined_.node; }
    const std::string &name() const override { return examined_.name; }
    DriveState state() const override;
    void setStateObserver(std::function<void()> changed) override;
    void setWatched(bool watched) override;
    ScorcherDeviceDescription description() const override;
    std::optional<ScorchError> obstacle() const override;
    void eject() override;

    /// Waits until the thread has finished what it does, then examines the disc once more, so that
    /// the recording begins with what is true now.
    Outcome<std::unique_ptr<DiscRecording>> beginRecording(const DiscContent &content,
                                                           const std::stop_token &stop) override;

    void mediumChanged(MediumNews news);

    /// Ends the thread as soon as the command that runs has been answered; the drive answers from
    /// memory from then on. Returns at once.
    void requestEnd();
    /// Whether the thread has come to its end, so that nobody need wait for it.
    bool hasEnded() const;
    /// Waits for that, after requestEnd.
    void awaitEnd();

private:
    friend class HeldRecording;

    /// What the thread is to do next, and how openly a disc is to be examined.
    enum class Order { none, end, unlock, eject, examine, glance };
    enum class Wanted { nothing, quietly, openly };
    /// What a recording, or an attempt at one, leaves behind.
    enum class Door { untouched, perhapsLocked };

    OpticalDrive(const FoundDevice &device, std::string name, bool isToldOfMedia,
                 OpticalDriveServices services);

    void work();
    Order awaitOrder(std::unique_lock<std::mutex> &lock);
    Order dueOrder() const;
    void carryOut(Order order, const std::stop_token &stop);
    void examine(const std::stop_token &stop);
    void glance(const std::stop_token &stop);
    void ejectDisc();
    void unlockDoor();
    void ensureThread();

    void take(const DriveFindings &findings);
    void recordingEnded(Door door);
    /// With the mutex held: from now on the drive says that it is checking.
    void wantOpenly();
    /// Calls the observer if the state is another than `before`. Without the mutex.
    void tellIfChanged(const DriveState &before);
    Outcome<> prepareRecording(const std::stop_token &stop);

    const ExaminedDrive examined_;
    const DriveIdentity identity_;
    const bool isToldOfMedia_;
    const OpticalDriveServices services_;

    mutable std::mutex mutex_; ///< Guards all below.
    std::condition_variable_any changed_;
    std::function<void()> observer_;
    DriveState state_;
    MediumState medium_;
    std::optional<MediaEvent> lastGlance_;
    std::optional<ScorchError> obstacle_;
    std::optional<ScorchError> ejectFailure_; ///< Of the last time that the disc was to go out.
    bool watched_ = false;
    bool recording_ = false;
    bool working_ = false; ///< The thread is at the drive.
    bool ejectWanted_ = false;
    bool unlockWanted_ = false; ///< A recording may have had to leave the door locked.
    bool ended_ = false;
    bool finished_ = false; ///< The thread will do no more.
    Wanted wanted_ = Wanted::nothing;
    Moment nextGlance_{};
    Moment nextUnlock_{};
    std::stop_source work_; ///< Of what the thread does now.
    std::thread thread_;
};

} // namespace scorch
