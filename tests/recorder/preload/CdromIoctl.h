// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/recorder/preload/KernelDriver.h"

namespace recorder::preload {

/// What an ioctl on a drive returns: an error number, or a result that is not negative.
struct IoctlResult {
    int error = 0;
    int value = 0;
};

/// The ioctls of CD drives, generic SCSI and block devices, carried out by commands as the kernel
/// does. ENOTTY for those that a CD drive does not have.
IoctlResult cdromIoctl(int number, unsigned long request, void *argument);

} // namespace recorder::preload
