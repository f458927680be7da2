// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/drive/ImageDrive.h"

#include "scorch/drive/ImageRecording.h"
#include "scorch/support/Text.h"

#include <utility>

namespace scorch {
namespace {

std::int64_t sectorsOf(const DiscContent &content) {
    std::int64_t sectors = 0;
    for (std::size_t index = 0; index < content.trackCount(); ++index) {
        sectors += content.track(index).sectors;
    }
    return sectors;
}

ScorchError busyError(const std::string &name) {
    return {
        ScorchErrorCode::driveBusy,
        localized("The drive “%@” is busy with another disc. Wait until it has finished.", {name})};
}

ScorchError usedDiscError(const std::string &name) {
    return {ScorchErrorCode::discNotBlank,
            localized("The disc in “%@” is not blank. Eject it and insert a blank disc.", {name})};
}

ScorchError tooLongError(const std::string &name, std::int64_t sectors, std::int64_t free) {
    return {ScorchErrorCode::doesNotFit,
            localized("The list does not fit on the disc in “%@”. Remove something from the list.",
                      {name}),
            std::to_string(sectors) + " sectors, free " + std::to_string(free)};
}

} // namespace

std::shared_ptr<ImageDrive> ImageDrive::create(ImageDriveOptions options, std::string name) {
    return std::shared_ptr<ImageDrive>(new ImageDrive(std::move(options), std::move(name)));
}

ImageDrive::ImageDrive(ImageDriveOptions options, std::string name)
    : options_(std::move(options)), name_(std::move(name)) {
    state_ = {.canWriteCd = true, .checking = false, .disc = blankDisc()};
}

DiscState ImageDrive::blankDisc() const {
    return {.present = true,
            .isCd = true,
            .blank = true,
            .freeSectors = blankDiscSectors(options_.minutes)};
}

DriveState ImageDrive::state() const {
    const std::lock_guard lock(mutex_);
    return state_;
}

void ImageDrive::setStateObserver(std::function<void()> changed) {
    const std::lock_guard lock(mutex_);
    changed_ = std::move(changed);
}

void ImageDrive::setDisc(const DiscState &disc) {
    std::function<void()> changed;
    {
        const std::lock_guard lock(mutex_);
        if (state_.disc == disc) {
            return;
        }
        state_.disc = disc;
        changed = changed_;
    }
    if (changed) {
        changed();
    }
}

ScorcherDeviceDescription ImageDrive::description() const {
    ScorcherDeviceDescription description;
    description.node = options_.folder;
    return description;
}

void ImageDrive::eject() {
    {
        const std::lock_guard lock(mutex_);
        if (recording_) {
            return;
        }
    }
    setDisc(blankDisc());
}

void ImageDrive::discWritten() {
    setDisc({.present = true, .isCd = true, .blank = false, .freeSectors = 0});
}

void ImageDrive::recordingEnded() {
    const std::lock_guard lock(mutex_);
    recording_ = false;
}

Outcome<std::unique_ptr<DiscRecording>> ImageDrive::beginRecording(const DiscContent &content,
                                                                   const std::stop_token &stop) {
    const std::int64_t sectors = sectorsOf(content);
    {
        const std::lock_guard lock(mutex_);
        if (recording_) {
            return Interruption(busyError(name_));
        }
        if (!state_.disc.blank) {
            return Interruption(usedDiscError(name_));
        }
        if (sectors > state_.disc.freeSectors) {
            return Interruption(tooLongError(name_, sectors, state_.disc.freeSectors));
        }
        recording_ = true;
    }
    auto recording = ImageRecording::create(options_, content, stop);
    if (!recording) {
        recordingEnded();
        return recording.error();
    }
    (*recording)->holdDrive(shared_from_this());
    return std::unique_ptr<DiscRecording>(std::move(*recording));
}

} // namespace scorch
