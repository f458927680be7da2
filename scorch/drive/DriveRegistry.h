// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/DelegateSlot.h"
#include "engine/ScorcherDevice.h"
#include "engine/ScorcherDeviceDelegate.h"
#include "scorch/drive/Drive.h"
#include "scorch/drive/DriveSource.h"
#include "scorch/support/PostTask.h"

#include <functional>
#include <memory>
#include <mutex>
#include <set>
#include <string>
#include <vector>

namespace scorch {

/// What a handle and the registry share: the drive's name, who is told, and what they know.
struct DeviceWatch {
    std::string name;
    DelegateSlot<ScorcherDeviceDelegate> delegate;
    DriveState seen; ///< As the delegate was last told, or found it when it was set.
};

/// The drives of the process, and who wants to hear of them. Drives are looked for once, by the
/// first who asks. Main thread only, but for names and find. Made by create; handles keep it alive.
class DriveRegistry final : public std::enable_shared_from_this<DriveRegistry> {
public:
    static std::shared_ptr<DriveRegistry> create(std::vector<std::unique_ptr<DriveSource>> sources,
                                                 PostTask post);
    ~DriveRegistry();
    DriveRegistry(const DriveRegistry &) = delete;
    DriveRegistry &operator=(const DriveRegistry &) = delete;

    /// The names of the drives that are present, each once. Any thread; waits for the first search.
    std::vector<std::string> names();

    /// Null where no drive of that name is present. Any thread; waits for the first search.
    std::shared_ptr<Drive> find(const std::string &name);

    std::unique_ptr<ScorcherDevice> makeHandle(const std::string &name);

    /// Takes a drive for a burn: changes of its state are not told until settle. False if it is
    /// taken already.
    bool take(const std::string &name);
    bool isTaken(const std::string &name) const { return taken_.contains(name); }
    /// The drive can be taken again.
    void release(const std::string &name);
    /// Tells of what has changed while the drive was taken, unless it is taken again.
    void settle(const std::string &name);

    /// Ends all telling and forgets the drives. No callback follows.
    void shutDown();

private:
    friend class DeviceHandle;

    DriveRegistry(std::vector<std::unique_ptr<DriveSource>> sources, PostTask post);

    void search();
    void waitForSearch();
    void add(const std::shared_ptr<Drive> &drive);
    void driveAppeared(const std::shared_ptr<Drive> &drive);
    void driveDisappeared(const std::string &name);
    void postStateCheck(const std::string &name);
    void tellState(const std::string &name);
    void updateWatched(const std::string &name);
    void postToMain(std::function<void(DriveRegistry &)> task);
    std::shared_ptr<Drive> findPresent(const std::string &name);

    void setDelegate(DeviceWatch &watch, ScorcherDeviceDelegate *delegate);
    void forget(const DeviceWatch *watch);

    std::vector<std::unique_ptr<DriveSource>> sources_;
    const PostTask post_;
    std::once_flag searched_;
    std::mutex mutex_; ///< Guards drives_.
    std::vector<std::shared_ptr<Drive>> drives_;

    std::vector<std::shared_ptr<DeviceWatch>> watches_;
    std::set<std::string> taken_;
    DelegateSlot<ScorcherDeviceDelegate> lastDelegate_;
    const DeviceWatch *lastSetter_ = nullptr; ///< Only compared, never followed.
    bool ended_ = false;
};

} // namespace scorch
