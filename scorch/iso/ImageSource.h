// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/iso/IsoContents.h"
#include "scorch/iso/SourceFile.h"
#include "scorch/support/SectorSource.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace scorch {

/// The bytes of an image from its first sector to its last: directories, the contents read from
/// their files, zeros to the end. What it is given outlives it. One thread; read() notices a stop
/// request between two reads of at most 256 KiB.
class ImageSource final : public SectorSource {
public:
    ImageSource(std::span<const std::byte> directories, const IsoContents &contents);

    Outcome<std::size_t> read(std::span<std::byte> buffer, const std::stop_token &stop) override;

private:
    /// Each fills a part of `room` that is not empty and returns its size, 0 if it has no more.
    std::size_t readDirectories(std::span<std::byte> room);
    Result<std::size_t> readContents(std::span<std::byte> room);
    std::size_t readZeros(std::span<std::byte> room);

    std::span<const std::byte> directories_; ///< What is left of them.
    const IsoContents &contents_;
    std::size_t next_ = 0;           ///< The place in the contents of the file to open next.
    std::optional<SourceFile> file_; ///< The one being read.
    std::size_t zeros_ = 0;          ///< Bytes missing to the end of a sector, or of the tail.
    bool inTail_ = false;
};

} // namespace scorch
