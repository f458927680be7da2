// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/drive/Drive.h"
#include "scorch/drive/ImageDriveOptions.h"

#include <functional>
#include <memory>
#include <mutex>
#include <stop_token>
#include <string>

namespace scorch {

/// A drive whose discs are files in a folder: "NAME.iso" for data, "NAME.cue" with "NAME.bin" for
/// sound. It always holds a disc: a blank CD-R until that is burned; eject puts a new blank in. The
/// images stay in the folder. Any thread.
class ImageDrive final : public Drive, public std::enable_shared_from_this<ImageDrive> {
public:
    static std::shared_ptr<ImageDrive> create(ImageDriveOptions options, std::string name);

    const std::string &name() const override { return name_; }
    DriveState state() const override;
    void setStateObserver(std::function<void()> changed) override;
    ScorcherDeviceDescription description() const override;
    void eject() override;
    Outcome<std::unique_ptr<DiscRecording>> beginRecording(const DiscContent &content,
                                                           const std::stop_token &stop) override;

private:
    friend class ImageRecording;

    ImageDrive(ImageDriveOptions options, std::string name);

    DiscState blankDisc() const;
    /// Puts another disc in and tells the observer if it is not the same.
    void setDisc(const DiscState &disc);
    /// The recording has become final: the disc is full.
    void discWritten();
    /// The recording is over, one way or the other.
    void recordingEnded();

    const ImageDriveOptions options_;
    const std::string name_;
    mutable std::mutex mutex_; ///< Guards all below.
    DriveState state_;
    std::function<void()> changed_;
    bool recording_ = false;
};

} // namespace scorch
