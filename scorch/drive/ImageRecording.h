// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/drive/Drive.h"
#include "scorch/drive/ImageDriveOptions.h"
#include "scorch/drive/TargetFolder.h"
#include "scorch/drive/TemporaryImageFile.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <stop_token>
#include <string>
#include <vector>

namespace scorch {

class ImageDrive;

/// A recording into files of a folder. Nothing stands under a final name before commit has
/// succeeded, and nothing is left if it is destroyed before. A stop request is noticed within what
/// a read of the content and two megabytes of writing take.
class ImageRecording final : public DiscRecording {
public:
    /// Opens the folder, makes the temporary files and takes the room for them.
    static Outcome<std::unique_ptr<ImageRecording>> create(const ImageDriveOptions &options,
                                                           const DiscContent &content,
                                                           const std::stop_token &stop);
    ~ImageRecording() override;

    /// The drive that is told of the end.
    void holdDrive(std::shared_ptr<ImageDrive> drive);

    Outcome<> record(DiscContent &content, RecordObserver &observer,
                     const std::stop_token &stop) override;
    Outcome<> readBack(std::size_t track, std::int64_t firstSector, std::span<std::byte> buffer,
                       const std::stop_token &stop) override;
    Result<void> commit() override;

private:
    ImageRecording(TargetFolder folder, const DiscContent &content);

    Result<void> openFiles();
    Outcome<> recordTrack(DiscContent &content, std::size_t index, RecordObserver &observer,
                          const std::stop_token &stop);
    Outcome<> copy(SectorSource &source, const TrackLayout &layout, RecordObserver &observer,
                   const std::stop_token &stop);

    TargetFolder folder_;
    std::string volumeName_;
    std::vector<TrackLayout> tracks_;
    std::vector<std::uint64_t> starts_; ///< Bytes in the image at which each track begins.
    std::uint64_t imageBytes_ = 0;
    std::unique_ptr<TemporaryImageFile> image_;
    std::unique_ptr<TemporaryImageFile> sheet_; ///< Sound only.
    std::int64_t sectorsWritten_ = 0;
    std::shared_ptr<ImageDrive> drive_;
};

} // namespace scorch
