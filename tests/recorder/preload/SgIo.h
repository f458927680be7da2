// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/recorder/preload/KernelDriver.h"

namespace recorder::preload {

/// SG_IO with the header of version 3. `argument` is the program's sg_io_hdr. 0, or an error
/// number.
int sgIo(const KernelDriver &driver, void *argument);

/// CDROM_SEND_PACKET; `argument` is a cdrom_generic_command. 0, or an error number.
int sendPacket(const KernelDriver &driver, void *argument);

} // namespace recorder::preload
