// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/mmc/DriveNames.h"

namespace scorch {

std::string driveName(const FoundDevice &device, const std::set<std::string> &inUse) {
    const std::string plain = driveText(device.identity.vendor + ' ' + device.identity.model);
    std::string name = plain.empty() ? "CD drive" : plain;
    while (inUse.contains(name)) {
        name += " (" + device.node.filename().native() + ')';
    }
    return name;
}

} // namespace scorch
