// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/mmc/Sense.h"

#include <cstdint>
#include <optional>
#include <string>

namespace scorch {

/// Something that libburn had to say.
struct LibburnMessage {
    bool isError = false; ///< SORRY or worse.
    int code = 0;         ///< As in libburn's list of error codes.
    int systemError = 0;  ///< An errno value, 0 where there is none.
    std::string text;     ///< English, with sense codes where a command failed.
};

/// The sense triple in a message: "… [3 0C 00] Medium error …". Nothing where there is none or
/// where it says that there was no error.
std::optional<Sense> senseIn(const LibburnMessage &message);

/// Where writing failed, as LBA: "SCSI error on write(1191,13): …".
std::optional<std::int64_t> sectorIn(const LibburnMessage &message);

/// Something went wrong with the recording itself. A drive that does not know a command that only
/// asks it for something, or sets a speed, is not that.
bool isWriteFailure(const LibburnMessage &message);

/// libburn took no job, as it was still at work on the one before.
bool isBusyRefusal(const LibburnMessage &message);

/// The drive did not accept the plan of the session.
bool isCueSheetRefusal(const LibburnMessage &message);

/// libburn's worker has written, or failed to, and goes: nothing follows about that job.
bool isWorkerEnd(const LibburnMessage &message);

/// A command was lost because the drive is not there any more.
bool isLostConnection(const LibburnMessage &message);

/// The drive did not answer a command.
bool isTimeOut(const LibburnMessage &message);

} // namespace scorch
