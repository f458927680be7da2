// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/mmc/DeviceWatcher.h"
#include "scorch/mmc/MmcError.h"
#include "scorch/support/Result.h"

#include <filesystem>
#include <functional>
#include <set>
#include <vector>

namespace scorch {

/// How a device node is looked at.
struct NodeAccess {
    /// Cheap: whether the node is there at all.
    std::function<bool(const std::filesystem::path &node)> exists;
    /// Opens the node and finds out who is behind it. Kind::gone where nobody is.
    std::function<Result<DriveIdentity, MmcError>(const std::filesystem::path &node)> identify;
};

/// The real thing: stat, and an open that neither waits for a disc nor closes the tray.
NodeAccess systemNodeAccess();

/// Finds drives by their nodes, /dev/sr0 to /dev/sr31, where nothing tells of them. A node that is
/// known is looked at by its name only; it is opened when it is new or suspected. One thread.
class NodePoll {
public:
    explicit NodePoll(NodeAccess access) : access_(std::move(access)) {}

    struct Changes {
        std::vector<std::filesystem::path> disappeared;
        std::vector<FoundDevice> appeared;
    };

    /// What is different since the last call. `suspects`: nodes to be opened once more.
    Changes poll(const std::set<std::filesystem::path> &suspects = {});

private:
    bool isGone(const std::filesystem::path &node) const;

    NodeAccess access_;
    std::set<std::filesystem::path> known_;
};

} // namespace scorch
