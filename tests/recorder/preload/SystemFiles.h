// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>

namespace recorder::preload {

/// Files in which the kernel tells of its drives: /proc/sys/dev/cdrom/info and the SCSI devices in
/// /sys/bus/scsi/devices. They are laid down below CD_RECORDER, in `system`, and programs that ask
/// for them are sent there.
class SystemFiles {
public:
    /// The path to use in place of this one; `path` itself for all that is not ours. `storage`
    /// holds the text.
    static const char *redirect(const char *path, std::string &storage);
};

} // namespace recorder::preload
