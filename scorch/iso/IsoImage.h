// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/iso/IsoTree.h"
#include "scorch/support/Result.h"
#include "scorch/support/SectorSource.h"

#include <cstdint>
#include <memory>
#include <stop_token>
#include <string>
#include <vector>

namespace scorch {

/// The size in bytes (a multiple of 2048) of the image that these entries make, tail padding of 150
/// sectors included: to the block what IsoImage streams. Blocks; any thread, several at once.
Outcome<std::uint64_t> isoImageSize(const std::vector<IsoRootEntry> &entries,
                                    const std::stop_token &stop);

/// An ISO 9660 image (ECMA-119 with Joliet and Rock Ridge) of a list of entries, made as it is
/// read. Contents lie in the order of the list. One thread.
class IsoImage {
public:
    virtual ~IsoImage() = default;
    IsoImage(const IsoImage &) = delete;
    IsoImage &operator=(const IsoImage &) = delete;

    /// Lays the image out. `volumeName` is UTF-8 and is cut at a character to what each descriptor
    /// can hold. Looks at every file: one that is gone or no longer as it was scanned is an error
    /// here, before anything is recorded. No two entries have the same name. Blocks; notices a
    /// stop request between two files.
    static Outcome<std::unique_ptr<IsoImage>> create(const std::vector<IsoRootEntry> &entries,
                                                     const std::string &volumeName,
                                                     const std::stop_token &stop);

    /// Bytes; a multiple of 2048.
    virtual std::uint64_t size() const = 0;

    /// The stream, from its beginning. A file that vanished, shrank, grew or was written to since
    /// it was scanned, or that cannot be read, is an error that names it. Files are read ahead on a
    /// thread of the source, which its destructor joins. The image outlives its source.
    virtual std::unique_ptr<SectorSource> openSource() = 0;

    /// The path inside the image of the file whose content stands at a sector, for a person to
    /// read (UTF-8), without a leading slash; empty for the directory area and padding. Of a file
    /// with several names the first in the list. Valid at any time.
    virtual std::string fileAt(std::int64_t sector) const = 0;

protected:
    IsoImage() = default;
};

} // namespace scorch
