// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/drive/Drive.h"
#include "scorch/libburn/DiscReader.h"
#include "scorch/libburn/LibburnRun.h"
#include "scorch/libburn/LibburnThread.h"
#include "scorch/libburn/SoundReader.h"
#include "scorch/mmc/OpticalRecording.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <stop_token>
#include <string>
#include <vector>

namespace scorch {

/// A recording on a CD: one closed session at once. From create to the end of record libburn holds
/// the drive exclusively; after that the disc is only read, by commands of our own, so that what is
/// compared does not rest on what libburn believes. The burn thread alone.
class OpticalDiscRecording final : public DiscRecording {
public:
    /// Fails where the drive is held by another program or cannot be opened, and where the disc in
    /// it is not blank or too small. Blocks for a second, or while a disc gets ready.
    static Outcome<std::unique_ptr<DiscRecording>> create(std::shared_ptr<LibburnThread> thread,
                                                          const RecordingTarget &target,
                                                          const DiscContent &content,
                                                          const std::stop_token &stop,
                                                          const RecordingPatience &patience = {});
    ~OpticalDiscRecording() override;

    Outcome<> record(DiscContent &content, RecordObserver &observer,
                     const std::stop_token &stop) override;
    Outcome<SectorRange> readableSectors(std::size_t track, std::int64_t sectors,
                                         const std::stop_token &stop) override;
    Outcome<> readBack(std::size_t track, std::int64_t firstSector, std::span<std::byte> buffer,
                       const std::stop_token &stop) override;
    bool isComplete() const override { return isComplete_; }
    /// Nothing is left to do: the disc is closed.
    Result<void> commit() override { return {}; }

private:
    OpticalDiscRecording(std::shared_ptr<LibburnThread> thread, const RecordingTarget &target,
                         const DiscContent &content, const RecordingPatience &patience);

    Outcome<> examine(const std::stop_token &stop);
    Outcome<> grab();
    void release();
    Outcome<> write(DiscContent &content, RecordObserver &observer, const std::stop_token &stop);
    Outcome<> fillRing(ContentPump &pump, const std::stop_token &stop);
    std::optional<CdText> planText(const DiscContent &content) const;
    Outcome<> checkDisc();
    Interruption readError(std::size_t track, const ReadInterruption &interruption) const;

    const std::shared_ptr<LibburnThread> thread_;
    const DriveErrorContext context_;
    const SessionPlan plan_;
    const RecordingPatience patience_;
    std::vector<int> speeds_;
    std::shared_ptr<MessageInbox> inbox_;     ///< While libburn holds the drive.
    std::unique_ptr<LibburnSession> session_; ///< The same; released on libburn's thread.
    std::shared_ptr<SectorRing> ring_;
    OffsetReference reference_;
    int speed_ = 0;
    const DiscContent *content_ = nullptr; ///< Once recorded, for names.
    std::optional<DiscReader> reader_;
    std::optional<SoundReader> sound_;
    bool isComplete_ = false;
};

} // namespace scorch
