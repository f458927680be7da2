// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/mmc/MmcCommands.h"

#include <filesystem>
#include <functional>
#include <vector>

namespace scorch {

/// An optical drive that the system shows.
struct FoundDevice {
    std::filesystem::path node;
    DriveIdentity identity; ///< Empty texts where the system does not tell.

    bool operator==(const FoundDevice &) const = default;
};

/// What is known of a change in a drive.
enum class MediumNews {
    changed, ///< A disc came or went.
    perhaps, ///< Something may be different: another program has written.
};

/// Finds the device nodes of optical drives and follows them, without a command to any of them that
/// would disturb it.
class DeviceWatcher {
public:
    /// Called on a thread of the watcher's, one call at a time, under no lock; never for a node
    /// that is not there in its view, and in the order of events.
    struct Observer {
        std::function<void(const FoundDevice &)> appeared;
        std::function<void(const std::filesystem::path &node)> disappeared;
        std::function<void(const std::filesystem::path &node, MediumNews news)> mediumChanged;
    };

    /// The destructor returns when the observer is not called any more.
    virtual ~DeviceWatcher() = default;
    DeviceWatcher(const DeviceWatcher &) = delete;
    DeviceWatcher &operator=(const DeviceWatcher &) = delete;

    /// The drives that are there, in the order of their numbers; what comes and goes from then on
    /// is told to the observer. Called once. Blocks; any thread.
    virtual std::vector<FoundDevice> search(Observer observer) = 0;

    /// Whether mediumChanged is told of that drive. If not, whoever cares has to ask the drive.
    virtual bool tellsOfMedia(const std::filesystem::path &node) const = 0;

    /// The node was found to lead nowhere: it will be looked at soon. Any thread; returns at once.
    virtual void suspect(const std::filesystem::path &node) = 0;

protected:
    DeviceWatcher() = default;
};

} // namespace scorch
