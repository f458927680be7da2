// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/recorder/Disc.h"
#include "tests/recorder/Files.h"

#include <filesystem>
#include <optional>
#include <string>
#include <utility>

namespace recorder {

/// A disc in a folder: `state`, the text of formatDisc, and `sectors`, 2352 bytes for each sector
/// from 00:00:00 on, with holes where nothing was written. Data sectors have sync and header there;
/// their error correction is computed when it is asked for. Keeps `sectors` open from the first use
/// to release(), which its owner calls at the end of each command: a program may close all
/// descriptors it finds in between, and two processes may use the same disc in turns.
class DiscStore {
public:
    explicit DiscStore(std::filesystem::path folder) : folder_(std::move(folder)) {}

    const std::filesystem::path &folder() const { return folder_; }

    /// Makes the folder if it is missing and puts this disc into it. False if it cannot.
    bool create(const Disc &disc) const;

    /// Nothing if there is no disc in the folder or its state cannot be understood (`error` says
    /// why; empty if there is none).
    std::optional<Disc> load(std::string &error) const;
    bool save(const Disc &disc) const;

    /// Whole sectors from `first` on. False if they could not be stored.
    bool write(Lba first, ByteView sectors) const;

    /// Fills `bytes` from a place of the recording, counted in bytes from the first byte of sector
    /// 00:00:00; zeros in front of it and where nothing was written. False on a failure.
    bool read(std::int64_t offset, ByteSpan bytes) const;

    /// Takes away the contents of all sectors.
    bool eraseSectors() const;

    void release() const { sectors_.reset(); }

    /// Where a sector begins in `sectors`.
    static std::int64_t offsetOf(Lba lba) {
        return (std::int64_t{lba} - kProgramStart) * static_cast<std::int64_t>(kRawSectorBytes);
    }

private:
    std::filesystem::path statePath() const { return folder_ / "state"; }
    std::filesystem::path sectorsPath() const { return folder_ / "sectors"; }

    /// -1 if the file cannot be opened or made.
    int sectors() const;

    std::filesystem::path folder_;
    mutable std::optional<Descriptor> sectors_;
};

} // namespace recorder
