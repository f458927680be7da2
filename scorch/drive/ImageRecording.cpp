// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/drive/ImageRecording.h"

#include "scorch/drive/DiscError.h"
#include "scorch/drive/ImageCommit.h"
#include "scorch/drive/ImageDrive.h"
#include "scorch/drive/ImageFileName.h"
#include "scorch/drive/TargetError.h"
#include "scorch/support/Text.h"
#include "scorch/support/Utf8.h"

#include <utility>

namespace scorch {
namespace {

/// Sectors that are read and written at once: about a megabyte.
constexpr std::size_t copySectors = 512;
/// Room that a file system needs besides the image: a cue sheet, folder entries, block maps.
constexpr std::uint64_t bookkeepingBytes = 65'536;

ScorchError readBackError(const std::filesystem::path &folder, std::string detail) {
    return {ScorchErrorCode::verifyFailed,
            localized("The disc image was written to the folder “%@”, but it could not be read "
                      "back to compare it. Check the device that the folder is on, then try again.",
                      {readableText(folder.native())}),
            std::move(detail)};
}

} // namespace

ImageRecording::ImageRecording(TargetFolder folder, const DiscContent &content)
    : folder_(std::move(folder)), volumeName_(content.volumeName()) {
    for (std::size_t index = 0; index < content.trackCount(); ++index) {
        const TrackLayout &track = content.track(index);
        tracks_.push_back(track);
        starts_.push_back(imageBytes_);
        imageBytes_ += static_cast<std::uint64_t>(track.sectors) * sectorBytes(track.kind);
    }
}

ImageRecording::~ImageRecording() {
    image_.reset();
    sheet_.reset();
    if (drive_ != nullptr) {
        drive_->recordingEnded();
    }
}

Outcome<std::unique_ptr<ImageRecording>> ImageRecording::create(const ImageDriveOptions &options,
                                                                const DiscContent &content,
                                                                const std::stop_token &stop) {
    auto folder = TargetFolder::open(options.folder, options.create);
    if (!folder) {
        return Interruption(folder.error());
    }
    folder->removeStaleFiles();
    std::unique_ptr<ImageRecording> recording(new ImageRecording(std::move(*folder), content));
    if (stop.stop_requested()) {
        return Interruption(Cancelled{});
    }
    if (auto opened = recording->openFiles(); !opened) {
        return Interruption(opened.error());
    }
    return recording;
}

Result<void> ImageRecording::openFiles() {
    const std::uint64_t needed = imageBytes_ + bookkeepingBytes;
    const std::uint64_t available = folder_.availableBytes();
    auto image = TemporaryImageFile::create(folder_);
    if (!image) {
        return image.error(); // Rather the folder that may not be written to than its free space.
    }
    image_ = std::move(*image);
    if (available < needed) {
        return targetFullError(folder_.path(), needed, available);
    }
    if (!tracks_.empty() && tracks_.front().kind == TrackKind::audio) {
        auto sheet = TemporaryImageFile::create(folder_);
        if (!sheet) {
            return sheet.error();
        }
        sheet_ = std::move(*sheet);
    }
    return image_->reserve(imageBytes_);
}

void ImageRecording::holdDrive(std::shared_ptr<ImageDrive> drive) {
    drive_ = std::move(drive);
}

Outcome<> ImageRecording::record(DiscContent &content, RecordObserver &observer,
                                 const std::stop_token &stop) {
    for (std::size_t index = 0; index < tracks_.size(); ++index) {
        if (auto recorded = recordTrack(content, index, observer, stop); !recorded) {
            return recorded;
        }
    }
    observer.closedSession();
    observer.finishing();
    auto flushed = image_->flush(stop);
    image_->dropCache();
    return flushed;
}

Outcome<> ImageRecording::recordTrack(DiscContent &content, std::size_t index,
                                      RecordObserver &observer, const std::stop_token &stop) {
    observer.openingTrack(index + 1, tracks_.size());
    auto source = content.openTrack(index, stop);
    if (!source) {
        return source.error();
    }
    observer.writingTrack(index + 1, tracks_.size());
    const std::int64_t before = sectorsWritten_;
    if (auto copied = copy(**source, tracks_[index], observer, stop); !copied) {
        return copied;
    }
    if (sectorsWritten_ - before != tracks_[index].sectors) {
        return Interruption(wrongLengthError(content.nameAt(index, sectorsWritten_ - before)));
    }
    observer.closedTrack(index + 1, tracks_.size());
    return {};
}

Outcome<> ImageRecording::copy(SectorSource &source, const TrackLayout &layout,
                               RecordObserver &observer, const std::stop_token &stop) {
    const std::size_t bytesPerSector = sectorBytes(layout.kind);
    const std::int64_t end = sectorsWritten_ + layout.sectors;
    std::vector<std::byte> buffer(copySectors * bytesPerSector);
    while (true) {
        if (stop.stop_requested()) {
            return Interruption(Cancelled{});
        }
        const auto count = source.read(buffer, stop);
        if (!count) {
            return count.error();
        }
        sectorsWritten_ += static_cast<std::int64_t>(*count / bytesPerSector);
        if (*count == 0 || sectorsWritten_ > end) {
            return {}; // The caller looks at the length.
        }
        if (auto written = image_->append(std::span(buffer).first(*count), stop); !written) {
            return written;
        }
        observer.wroteSectors(sectorsWritten_);
    }
}

Outcome<> ImageRecording::readBack(std::size_t track, std::int64_t firstSector,
                                   std::span<std::byte> buffer, const std::stop_token &stop) {
    if (stop.stop_requested()) {
        return Interruption(Cancelled{});
    }
    const std::uint64_t position =
        starts_[track] + static_cast<std::uint64_t>(firstSector) * sectorBytes(tracks_[track].kind);
    if (auto read = image_->read(position, buffer); !read) {
        return Interruption(readBackError(folder_.path(), read.error().detail()));
    }
    return {};
}

Result<void> ImageRecording::commit() {
    const bool isSound = sheet_ != nullptr;
    const std::string stem =
        imageFileStem(volumeName_, isSound ? TrackKind::audio : TrackKind::data);
    auto committed = isSound
                         ? commitAudioImage(folder_, *image_, *sheet_, stem, volumeName_, tracks_)
                         : commitDataImage(folder_, *image_, stem);
    if (committed && drive_ != nullptr) {
        drive_->discWritten();
    }
    return committed;
}

} // namespace scorch
