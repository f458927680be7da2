// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/mmc/MediumState.h"
#include "scorch/mmc/MmcDevice.h"
#include "scorch/mmc/MmcError.h"
#include "scorch/support/Result.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace scorch {

/// The questions that a drive is asked, one command each (MMC-5, SPC-3). None of them needs a
/// descriptor that is open for writing, spins a disc up or changes anything. A unit attention is
/// asked again, but by testUnitReady and readMediaEvent. Each blocks until the drive answers.

/// Who made a drive.
struct DriveIdentity {
    std::string vendor; ///< As the drive says it, without spaces around it; printable ASCII.
    std::string model;
    std::string revision; ///< Of its firmware.

    bool operator==(const DriveIdentity &) const = default;
};

/// Makes a text of a drive presentable: what is no printable ASCII becomes a space, runs of spaces
/// one, none are left at the ends.
std::string driveText(std::string_view text);

Result<DriveIdentity, MmcError> inquire(MmcDevice &device);

Result<void, MmcError> testUnitReady(MmcDevice &device);

/// GET EVENT STATUS NOTIFICATION, media class, polled.
struct MediaEvent {
    bool changed = false; ///< A disc came or went since anybody asked last.
    bool trayOpen = false;
    bool mediumPresent = false;
};
Result<MediaEvent, MmcError> readMediaEvent(MmcDevice &device);

/// Whether the drive can write CD-R or CD-RW, whatever is in it: by its features, by mode page 2Ah
/// where it knows none.
Result<bool, MmcError> readCanWriteCd(MmcDevice &device);

/// The profile of the medium: 0 where there is none or the drive cannot tell.
Result<unsigned, MmcError> readCurrentProfile(MmcDevice &device);

struct DiscInformation {
    MediumState::Contents contents = MediumState::Contents::unknown;
    bool erasable = false;
    std::optional<std::int64_t> lastLeadOutStart; ///< LBA; nothing where the drive does not say.
};
Result<DiscInformation, MmcError> readDiscInformation(MmcDevice &device);

/// The track that could be recorded next ("invisible", FFh).
struct NextTrackInformation {
    std::int64_t nextWritable = 0; ///< LBA.
    std::int64_t freeBlocks = 0;
};
Result<NextTrackInformation, MmcError> readNextTrackInformation(MmcDevice &device);

/// LBA of the last possible start of the lead-out, from the ATIP. Nothing where the groove says
/// something that cannot be.
Result<std::optional<std::int64_t>, MmcError> readAtipLeadOut(MmcDevice &device);

struct TableOfContents {
    std::vector<TocTrack> tracks;
    std::int64_t leadOut = 0;
};
Result<TableOfContents, MmcError> readTableOfContents(MmcDevice &device);

/// Write speeds for the disc that is in, kB/s, fastest first, each once; by mode page 2Ah where
/// the drive does not know GET PERFORMANCE.
Result<std::vector<int>, MmcError> readWriteSpeeds(MmcDevice &device);

} // namespace scorch
