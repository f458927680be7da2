// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/mmc/NodePoll.h"

#include "scorch/mmc/MmcDevice.h"
#include "scorch/mmc/ScsiDevices.h"

#include <sys/stat.h>

#include <string>

namespace scorch {
namespace {

namespace fs = std::filesystem;

/// As many as the programs of this field look for.
constexpr int mostDrives = 32;

fs::path nodeOf(int number) {
    return "/dev/sr" + std::to_string(number);
}

Result<DriveIdentity, MmcError> identifyNode(const fs::path &node) {
    Result<MmcDevice, MmcError> device = MmcDevice::open(node);
    if (const auto identity = identityFromSystem(node.filename().native())) {
        const bool isGone = !device && device.error().kind == MmcError::Kind::gone;
        return isGone ? Result<DriveIdentity, MmcError>(device.error()) : *identity;
    }
    if (!device) {
        return device.error();
    }
    return inquire(*device);
}

} // namespace

NodeAccess systemNodeAccess() {
    return {.exists =
                [](const fs::path &node) {
                    struct stat status {};
                    return ::stat(node.c_str(), &status) == 0 && S_ISBLK(status.st_mode);
                },
            .identify = identifyNode};
}

bool NodePoll::isGone(const fs::path &node) const {
    const Result<DriveIdentity, MmcError> identity = access_.identify(node);
    return !identity && identity.error().kind == MmcError::Kind::gone;
}

NodePoll::Changes NodePoll::poll(const std::set<fs::path> &suspects) {
    Changes changes;
    for (int number = 0; number < mostDrives; ++number) {
        const fs::path node = nodeOf(number);
        const bool isThere = access_.exists(node);
        if (known_.contains(node)) {
            if (!isThere || (suspects.contains(node) && isGone(node))) {
                known_.erase(node);
                changes.disappeared.push_back(node);
            }
        } else if (isThere) {
            Result<DriveIdentity, MmcError> identity = access_.identify(node);
            if (identity || identity.error().kind != MmcError::Kind::gone) {
                known_.insert(node);
                changes.appeared.push_back(
                    {.node = node, .identity = identity ? *identity : DriveIdentity()});
            }
        }
    }
    return changes;
}

} // namespace scorch
