// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/recorder/preload/Drives.h"

#include <cstdio>
#include <sys/types.h>

namespace recorder::preload {

/// Opens a drive as the kernel opens a block device: O_EXCL is a claim that a second O_EXCL finds
/// taken (EBUSY), and ends with the last duplicate of the descriptor; without O_NONBLOCK the tray
/// is closed and a readable disc is needed. A descriptor, or -1 with errno.
int openDevice(int number, int flags);

/// The same for a stream, which can only read and position itself.
FILE *openDeviceStream(int number, const char *mode);
/// The descriptor below such a stream, which libc knows nothing of; -1 for other streams.
int descriptorOfStream(FILE *stream);

/// read(), pread() and lseek() on a descriptor of a drive.
ssize_t readDevice(int number, int descriptor, void *buffer, size_t count);
ssize_t readDeviceAt(int number, void *buffer, size_t count, off_t offset);
off_t seekDevice(int number, int descriptor, off_t offset, int whence);

} // namespace recorder::preload
