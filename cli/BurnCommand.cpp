// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/BurnCommand.h"

#include "cli/DriveChoice.h"
#include "engine/ScorchString.h"
#include "engine/Scorcher.h"
#include "engine/ScorcherDevice.h"

#include <utility>

namespace cli {
namespace {

ExitCode exitCodeFor(ScorchErrorCode code) {
    switch (code) {
    case ScorchErrorCode::tooManyTracks:
    case ScorchErrorCode::doesNotFit:
        return ExitCode::doesNotFit;
    case ScorchErrorCode::nothingToBurn:
        return ExitCode::nothingToBurn;
    default:
        return ExitCode::failed;
    }
}

std::string overflowText(DiscKind kind, std::uint64_t used, const ScorcherDevice &device) {
    const auto needed = static_cast<std::int64_t>(used);
    if (kind == DiscKind::audio) {
        const std::int64_t room = device.freeTimeOfDisc();
        const auto text = [](std::int64_t frames) {
            return stringWithDurationFramesEnabled(frames, true);
        };
        return "The songs do not fit on the disc: they take " + text(needed) + ", it has " +
               text(room) + ", which is " + text(needed - room) +
               " too little (minutes:seconds:frames). Leave some out.";
    }
    const std::int64_t room = device.freeSizeOfDisc();
    return "The files do not fit on the disc: they take " + stringWithFilesize(needed) +
           ", it has " + stringWithFilesize(room) + ", which is " +
           stringWithFilesize(needed - room) + " too little. Leave some out.";
}

} // namespace

BurnCommand::BurnCommand(BurnRequest request, Reporter &reporter,
                         std::function<void(ExitCode)> ended)
    : request_(std::move(request)), reporter_(reporter), ended_(std::move(ended)) {}

BurnCommand::~BurnCommand() = default;

void BurnCommand::start() {
    if (state_ == State::ended) {
        return;
    }
    const std::vector<std::string> drives = ScorcherDevice::devices();
    auto choice = chooseDrive(drives, driveNamed(drives, request_.drive),
                              request_.imageDrive ? DriveKind::imageDrive : DriveKind::any);
    if (const auto *problem = std::get_if<DriveProblem>(&choice)) {
        reporter_.failed({ScorchErrorCode::noDrive, problem->text});
        end(problem->exitCode);
        return;
    }
    device_ = ScorcherDevice::initWithDeviceName(std::get<std::string>(choice));
    device_->setDelegate(this);
    burner_ =
        request_.kind == DiscKind::audio ? Scorcher::audioCDBurner() : Scorcher::dataCDBurner();
    burner_->setDelegate(this);
    std::vector<BurnFile> files;
    files.reserve(request_.files.size());
    for (const std::filesystem::path &path : request_.files) {
        files.push_back({path, {}, {}});
    }
    state_ = State::checking;
    reporter_.step({BurnStage::checking});
    if (!burner_->addFiles(std::move(files))) {
        fail({ScorchErrorCode::burnerBusy, "The burner is busy."});
    }
}

void BurnCommand::cancel() {
    if (state_ == State::lookingAtDisc) {
        endCancelled(nullptr);
    }
    if (cancelling_ || state_ == State::ended) {
        return;
    }
    cancelling_ = true;
    switch (state_) {
    case State::checking:
        reporter_.step({BurnStage::cancelling});
        burner_->cancelToAddFiles();
        break;
    case State::burning:
        reporter_.step({BurnStage::cancelling});
        burner_->stopBurn();
        break;
    default: // Nothing runs that would answer.
        endCancelled(nullptr);
    }
}

void BurnCommand::addFilesProgressDidCanceled() {
    endCancelled(nullptr);
}

void BurnCommand::addFilesProgressDidChangedIndexOf(const std::string &name, std::int64_t index,
                                                    std::int64_t count) {
    if (!cancelling_) {
        reporter_.checking(name, index, count);
    }
}

void BurnCommand::addFilesProgressDidEnd(const AddFilesResult &result) {
    refuse(result.valueForKey(AddFilesResult::protectedFilesKey), RefusalKind::protectedFile);
    refuse(result.valueForKey(AddFilesResult::incompatibleFilesKey), RefusalKind::incompatibleFile);
    if (cancelling_) { // The check was at its end when the request came.
        addFilesProgressDidCanceled();
        return;
    }
    summary_.items = burner_->numberOfChildrenOfBurnItem(nullptr);
    if (summary_.items == 0) {
        fail({ScorchErrorCode::nothingToBurn,
              "There is nothing to burn: none of the files can go on the disc."});
        return;
    }
    if (device_->isCheckingDisc()) {
        state_ = State::waitingForDisc;
        reporter_.step({BurnStage::waitingForDisc});
        return;
    }
    examineDisc();
}

void BurnCommand::refuse(const std::vector<RefusedFile> &files, RefusalKind kind) {
    for (const RefusedFile &file : files) {
        reporter_.refused(file, kind);
    }
    summary_.leftOut += files.size();
}

void BurnCommand::deviceStatusDidChanged() {
    if (state_ == State::waitingForDisc && !device_->isCheckingDisc()) {
        examineDisc();
    } else if (state_ == State::lookingAtDisc && !device_->isCheckingDisc()) {
        endCancelled(device_.get());
    }
}

void BurnCommand::deviceDidDisappeared(const std::string &deviceName) {
    if (state_ == State::lookingAtDisc && deviceName == device_->deviceName()) {
        endCancelled(nullptr);
    } else if (state_ == State::waitingForDisc && deviceName == device_->deviceName()) {
        fail({ScorchErrorCode::driveGone, "The drive was disconnected."});
    }
}

void BurnCommand::examineDisc() {
    if (const std::optional<std::string> problem = discProblem(*device_)) {
        fail({ScorchErrorCode::noDisc, *problem});
    } else if (burner_->isContentOverflowForDevice(device_.get())) {
        fail({ScorchErrorCode::doesNotFit,
              overflowText(request_.kind, burner_->usedCapacity(), *device_)});
    } else {
        burn();
    }
}

void BurnCommand::burn() {
    summary_.kind = request_.kind;
    summary_.capacity = burner_->usedCapacity();
    summary_.discName = request_.name;
    summary_.driveName = device_->deviceName();
    summary_.verified = false;
    state_ = State::burning;
    burner_->burnWithDeviceDiscNamed(device_.get(), request_.name);
}

void BurnCommand::burnProgressDidError(const ScorchError &error) {
    fail(error);
}

/// A disc cannot be taken back: what the burn made of it is found out by looking.
void BurnCommand::burnProgressDidCanceled() {
    state_ = State::lookingAtDisc;
    device_->setDelegate(nullptr); // During the burn nothing was told; from now on each change is.
    device_->setDelegate(this);
    if (device_->isCheckingDisc()) {
        reporter_.step({BurnStage::waitingForDisc});
    } else { // It may have looked already, faster than this was called.
        const bool isUsed = device_->isDiscInDevice() && !device_->isDiscBlank();
        endCancelled(isUsed ? device_.get() : nullptr);
    }
}

void BurnCommand::burnProgressDidChanagedLefttime(double fraction, std::uint64_t lefttime) {
    if (!cancelling_) {
        reporter_.progress(fraction, lefttime);
    }
}

void BurnCommand::burnProgressIsPreparing() {
    reporter_.step({BurnStage::preparing});
}

void BurnCommand::burnProgressIsOpeningTrackOf(std::uint64_t track, std::uint64_t count) {
    reporter_.step({BurnStage::openingTrack, track, count});
}

void BurnCommand::burnProgressIsWriteingTrackOf(std::uint64_t track, std::uint64_t count) {
    reporter_.step({BurnStage::writingTrack, track, count});
}

void BurnCommand::burnProgressDidCloseTrackOf(std::uint64_t track, std::uint64_t count) {
    reporter_.step({BurnStage::closedTrack, track, count});
}

void BurnCommand::burnProgressDidCloseSession() {
    reporter_.step({BurnStage::closedSession});
}

void BurnCommand::burnProgressIsFinishing() {
    reporter_.step({BurnStage::finishing});
}

void BurnCommand::burnProgressIsVerifying() {
    summary_.verified = true;
    reporter_.step({BurnStage::verifying});
}

void BurnCommand::burnProgressDidDone() {
    reporter_.finished(summary_);
    end(ExitCode::done);
}

void BurnCommand::fail(const ScorchError &error) {
    reporter_.failed(error);
    end(exitCodeFor(error.category()));
}

void BurnCommand::endCancelled(const ScorcherDevice *device) {
    reporter_.cancelled(device);
    end(ExitCode::cancelled);
}

void BurnCommand::end(ExitCode exitCode) {
    state_ = State::ended;
    ended_(exitCode);
}

} // namespace cli
