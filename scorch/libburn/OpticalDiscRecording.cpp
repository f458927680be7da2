// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/libburn/OpticalDiscRecording.h"

#include "scorch/libburn/RecordedDisc.h"
#include "scorch/libburn/RecordingErrors.h"
#include "scorch/libburn/SpeedChoice.h"
#include "scorch/support/FileDescriptor.h"
#include "scorch/support/Log.h"

#include <cerrno>
#include <fcntl.h>
#include <limits>
#include <utility>
#include <variant>

namespace scorch {
namespace {

MmcError openError(int error) {
    MmcError::Kind kind = MmcError::Kind::other;
    if (error == EBUSY) {
        kind = MmcError::Kind::busy;
    } else if (error == EACCES || error == EPERM) {
        kind = MmcError::Kind::noPermission;
    } else if (error == ENOENT || error == ENODEV || error == ENXIO) {
        kind = MmcError::Kind::gone;
    }
    return {.kind = kind, .sense = {}, .systemError = error, .command = "open for writing"};
}

/// The drive is gone or mute, or the disc is not in it any more.
bool isDriveAway(const MmcError &error) {
    constexpr std::uint8_t notReady = 2;
    constexpr std::uint8_t unitAttention = 6;
    const bool hasLostDisc = error.kind == MmcError::Kind::sense &&
                             (error.sense.key == notReady || error.sense.key == unitAttention);
    return error.kind == MmcError::Kind::gone || error.kind == MmcError::Kind::timedOut ||
           hasLostDisc;
}

/// libburn tries for six seconds before it says that a drive is in use.
std::optional<MmcError> exclusionOf(const std::filesystem::path &node) {
    const FileDescriptor device(
        open(node.c_str(), O_RDWR | O_EXCL | O_NONBLOCK | O_CLOEXEC)); // NOLINT(*-vararg)
    return device.valid() ? std::nullopt : std::optional(openError(errno));
}

} // namespace

OpticalDiscRecording::OpticalDiscRecording(std::shared_ptr<LibburnThread> thread,
                                           const RecordingTarget &target,
                                           const DiscContent &content,
                                           const RecordingPatience &patience)
    : thread_(std::move(thread)),
      context_{.driveName = target.driveName, .node = target.node, .sector = std::nullopt},
      plan_(planSession(content)),
      patience_(patience),
      reference_(plan_.kind == TrackKind::audio) {}

OpticalDiscRecording::~OpticalDiscRecording() {
    release();
}

Outcome<std::unique_ptr<DiscRecording>>
OpticalDiscRecording::create(std::shared_ptr<LibburnThread> thread, const RecordingTarget &target,
                             const DiscContent &content, const std::stop_token &stop,
                             const RecordingPatience &patience) {
    std::unique_ptr<OpticalDiscRecording> recording(
        new OpticalDiscRecording(std::move(thread), target, content, patience));
    if (const auto exclusion = exclusionOf(target.node)) {
        return Interruption(driveError(*exclusion, recording->context_));
    }
    if (auto examined = recording->examine(stop); !examined) {
        return examined.error();
    }
    if (auto grabbed = recording->grab(); !grabbed) {
        return grabbed.error();
    }
    return std::unique_ptr<DiscRecording>(std::move(recording));
}

Outcome<> OpticalDiscRecording::examine(const std::stop_token &stop) {
    auto device = MmcDevice::open(context_.node);
    if (!device) {
        return Interruption(driveError(device.error(), context_));
    }
    const auto medium = examineMedium(*device, patience_.ready, stop);
    if (stop.stop_requested()) {
        return Interruption(Cancelled{});
    }
    if (!medium) {
        return Interruption(driveError(medium.error(), context_));
    }
    if (const auto refusal = refusalOf(*medium, plan_, context_.driveName)) {
        return Interruption(*refusal);
    }
    speeds_ = medium->writeSpeeds;
    return {};
}

Outcome<> OpticalDiscRecording::grab() {
    inbox_ = thread_->subscribe();
    const bool didRun = thread_->run([this] { session_ = LibburnSession::grab(context_.node); });
    if (!didRun || session_ == nullptr) {
        return Interruption(recordingError(inbox_->errors(), context_));
    }
    return {};
}

void OpticalDiscRecording::release() {
    if (session_ != nullptr) {
        thread_->run([this] { session_.reset(); });
    }
    inbox_.reset();
}

Outcome<> OpticalDiscRecording::record(DiscContent &content, RecordObserver &observer,
                                       const std::stop_token &stop) {
    content_ = &content;
    auto written = write(content, observer, stop);
    release();
    if (!written) {
        return written;
    }
    auto checked = checkDisc();
    isComplete_ = checked.ok();
    return checked;
}

Outcome<> OpticalDiscRecording::write(DiscContent &content, RecordObserver &observer,
                                      const std::stop_token &stop) {
    ring_ = std::make_shared<SectorRing>(ringBytes(speeds_, plan_.bytesPerSector(), plan_.total()));
    ContentPump pump(content, plan_, *ring_, reference_);
    StageReporter stages(plan_, observer);
    stages.begin();
    if (auto filled = fillRing(pump, stop); !filled) {
        return filled;
    }
    const LibburnRun::Parts parts{.thread = *thread_,
                                  .session = *session_,
                                  .inbox = *inbox_,
                                  .ring = ring_,
                                  .pump = pump,
                                  .stages = stages,
                                  .plan = plan_,
                                  .context = context_,
                                  .patience = patience_};
    const auto attempt = [&](const std::optional<CdText> &text, bool &isTextRefused) {
        LibburnRun run(parts);
        auto ended = run.write(text, speed_, stop);
        isTextRefused = run.wasTextRefused();
        if (run.wasGivenUp()) {
            thread_->leave(std::move(session_));
        }
        return ended;
    };
    bool isTextRefused = false;
    auto written = attempt(planText(content), isTextRefused);
    if (isTextRefused) {
        logLine("CD-TEXT: the drive does not write it; left out");
        ring_->resume();
        written = attempt(std::nullopt, isTextRefused);
    }
    return written;
}

/// Full at the start, so that a slow source is noticed before the drive has to wait for it.
Outcome<> OpticalDiscRecording::fillRing(ContentPump &pump, const std::stop_token &stop) {
    using Seconds = std::chrono::duration<double>;
    const auto begin = std::chrono::steady_clock::now();
    while (!pump.isFinished() && !ring_->isFull()) {
        if (auto filled = pump.step(stop); !filled) {
            return filled;
        }
    }
    const double seconds = Seconds(std::chrono::steady_clock::now() - begin).count();
    const double rate = pump.isFinished() || seconds <= 0
                            ? std::numeric_limits<double>::infinity()
                            : static_cast<double>(pump.sectorsPut()) / seconds;
    speed_ = chooseSpeed(speeds_, rate);
    return {};
}

std::optional<CdText> OpticalDiscRecording::planText(const DiscContent &content) const {
    if (plan_.kind != TrackKind::audio) {
        return std::nullopt;
    }
    CdTextPlan plan = planCdText(content);
    for (const std::string &note : plan.notes) {
        logLine(note);
    }
    return std::move(plan.text);
}

/// The last word on a disc is the drive's: libburn says that it wrote well what never got there.
Outcome<> OpticalDiscRecording::checkDisc() {
    auto device = MmcDevice::open(context_.node);
    if (!device) {
        return Interruption(driveError(device.error(), context_));
    }
    const auto medium = examineMedium(*device, patience_.ready);
    if (!medium) {
        return Interruption(driveError(medium.error(), context_));
    }
    if (medium->kind == MediumState::Kind::none) {
        constexpr std::uint8_t closed = 0x01;
        constexpr std::uint8_t open = 0x02;
        const Sense notPresent{.key = 2, .asc = 0x3A, .ascq = medium->trayOpen ? open : closed};
        return Interruption(senseError(notPresent, context_, "after writing"));
    }
    if (const auto difference = differenceFromPlan(*medium, plan_)) {
        return Interruption(wrongDiscError(context_.driveName, *difference));
    }
    reader_.emplace(std::move(*device));
    sound_.emplace(*reader_, reference_.pieces(), plan_.total());
    return {};
}

Outcome<SectorRange> OpticalDiscRecording::readableSectors(std::size_t track, std::int64_t sectors,
                                                           const std::stop_token &stop) {
    if (plan_.kind != TrackKind::audio) {
        return SectorRange{0, sectors};
    }
    const auto reach = sound_->reach(stop);
    if (!reach) {
        return readError(track, reach.error());
    }
    const std::int64_t start = plan_.start(track);
    return SectorRange{std::max<std::int64_t>(reach->first - start, 0),
                       std::min(reach->end - start, sectors)};
}

Outcome<> OpticalDiscRecording::readBack(std::size_t track, std::int64_t firstSector,
                                         std::span<std::byte> buffer, const std::stop_token &stop) {
    const std::int64_t lba = plan_.start(track) + firstSector;
    const auto read = plan_.kind == TrackKind::audio ? sound_->read(lba, buffer, stop)
                                                     : reader_->readData(lba, buffer, stop);
    if (!read) {
        return readError(track, read.error());
    }
    return {};
}

/// `track` is the one that was asked for; a drive's offset makes its reads reach into others.
Interruption OpticalDiscRecording::readError(std::size_t track,
                                             const ReadInterruption &interruption) const {
    if (std::holds_alternative<Cancelled>(interruption)) {
        return Cancelled{};
    }
    const auto &failure = std::get<ReadFailure>(interruption);
    if (isDriveAway(failure.error)) {
        return unverifiedError(context_.driveName, failure.error.detail());
    }
    while (track + 1 < plan_.sectors.size() && failure.sector >= plan_.start(track + 1)) {
        ++track;
    }
    const std::int64_t sector = failure.sector - plan_.start(track);
    return readBackError(plan_.kind, track, content_->nameAt(track, sector),
                         failure.error.detail() + ", track " + std::to_string(track + 1) +
                             ", sector " + std::to_string(sector));
}

} // namespace scorch
