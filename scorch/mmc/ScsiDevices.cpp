// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/mmc/ScsiDevices.h"

#include <fstream>
#include <system_error>

namespace scorch {
namespace {

std::string attribute(const std::filesystem::path &device, const char *name) {
    std::ifstream file(device / name);
    std::string text;
    std::getline(file, text);
    return driveText(text);
}

} // namespace

std::optional<DriveIdentity> identityFromSystem(const std::string &name,
                                                const std::filesystem::path &folder) {
    std::error_code ignored; // No such folder: a system without such devices.
    for (std::filesystem::directory_iterator entry(folder, ignored), end; !ignored && entry != end;
         entry.increment(ignored)) {
        std::error_code absent;
        if (std::filesystem::exists(entry->path() / "block" / name, absent)) {
            return DriveIdentity{.vendor = attribute(entry->path(), "vendor"),
                                 .model = attribute(entry->path(), "model"),
                                 .revision = attribute(entry->path(), "rev")};
        }
    }
    return std::nullopt;
}

} // namespace scorch
