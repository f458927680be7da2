// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/recorder/Recorder.h"

#include "tests/recorder/CommandTable.h"
#include "tests/recorder/Recording.h"
#include "tests/recorder/TextLines.h"
#include "tests/recorder/Tray.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <string_view>
#include <unistd.h>

namespace recorder {

namespace {

/// Parameter lists stand in the log, sectors do not.
constexpr std::size_t kLoggedBytes = 256;

template <std::size_t Size>
bool isNewOrder(const std::optional<std::string> &order, std::array<char, Size> &kept) {
    const std::string_view wanted = order ? std::string_view(*order) : std::string_view();
    if (wanted == kept.data() || wanted.size() >= kept.size()) {
        return false;
    }
    kept.fill('\0');
    std::copy(wanted.begin(), wanted.end(), kept.begin());
    return !wanted.empty();
}

/// An order without the number that makes it a new one.
std::string withoutNumber(const std::string &order) {
    const std::size_t mark = order.rfind(" #");
    return mark == std::string::npos ? order : order.substr(0, mark);
}

bool isAlive(std::int32_t process) {
    return process != 0 && (kill(process, 0) == 0 || errno == EPERM);
}

Answer notReady(DriveMemory &memory) {
    if (memory.notReadyPolls > 0) {
        --memory.notReadyPolls;
        return Answer::check(sense::kBecomingReady);
    }
    LongOperation &operation = memory.operation;
    --operation.pollsLeft;
    Sense sense = operation.isWriting ? sense::kLongWriteInProgress : sense::kOperationInProgress;
    sense.progress = static_cast<std::uint16_t>(
        0xffffULL * (operation.polls - operation.pollsLeft) / (operation.polls + 1));
    return Answer::check(sense);
}

} // namespace

Recorder::Recorder(const std::filesystem::path &folder) : folder_(folder) {}

Answer Recorder::execute(ByteView cdb, ByteView sent) {
    if (!folder_.isOpen()) {
        return {{}, {}, Transport::NoDevice};
    }
    const DriveFolder::Lock lock(folder_);
    refresh();
    if (faults_.vanished || faults_.noDevice) {
        folder_.memory().isLocked = false; // With its cable it lost its power.
        return {{}, {}, Transport::NoDevice};
    }
    const Command command{cdb, sent};
    if (faults_.silentMs) {
        Answer answer{{}, {}, Transport::TimedOut, *faults_.silentMs};
        log(command, answer);
        return answer;
    }
    Device device{profile_, faults_, folder_.memory(), store_, disc_};
    Answer answer = dispatch(device, command);
    finish(device);
    answer.delayMs += device.delayMs;
    if (command.opcode() != 0x03) {
        device.memory.lastSense = answer.sense.value_or(sense::kNone);
    }
    log(command, answer);
    return answer;
}

Faults Recorder::faults() {
    if (folder_.isOpen()) {
        const DriveFolder::Lock lock(folder_);
        refresh();
    }
    return faults_;
}

void Recorder::attach() {
    if (!folder_.isOpen()) {
        return;
    }
    const DriveFolder::Lock lock(folder_);
    refresh();
    Device device{profile_, faults_, folder_.memory(), store_, disc_};
    Recording &recording = device.memory.recording;
    if (recording.mode != WriteMode::None && !isAlive(recording.owner)) {
        breakOff(device);
        finish(device);
    }
}

Answer Recorder::dispatch(Device &device, const Command &command) {
    const CommandEntry *entry = findCommand(command.opcode());
    if (entry == nullptr) {
        return Answer::check(sense::kInvalidCommand);
    }
    DriveMemory &memory = device.memory;
    if (entry->isAlwaysAnswered) {
        return entry->handler(device, command);
    }
    if (memory.hasUnitAttention) {
        memory.hasUnitAttention = false;
        return Answer::check(sense::kMediumMayHaveChanged);
    }
    if (entry->needsMedium && !device.hasMedium()) {
        return Answer::check(memory.isTrayOpen ? sense::kNoMediumTrayOpen
                                               : sense::kNoMediumTrayClosed);
    }
    if (entry->needsMedium && (memory.notReadyPolls > 0 || memory.operation.pollsLeft > 0)) {
        return notReady(memory);
    }
    return entry->handler(device, command);
}

void Recorder::refresh() {
    readProfile();
    readControl();
    if (isFresh_ && folder_.memory().discPath[0] == '\0' && folder_.memory().discGeneration == 0 &&
        std::filesystem::exists(folder_ / "disc")) {
        placeDisc(folder_.memory(), (folder_ / "disc").string());
    }
    reloadDisc();
    obeyHand();
    isFresh_ = false;
}

void Recorder::readProfile() {
    const FileStamp stamp = stampOf(folder_ / "drive");
    if (!isFresh_ && stamp == profileStamp_) {
        return;
    }
    profileStamp_ = stamp;
    std::string error;
    const auto profile = parseDriveProfile(readWhole(folder_ / "drive").value_or(""), error);
    if (profile) {
        profile_ = *profile;
    } else {
        complaint_ = "drive: " + error;
    }
}

void Recorder::readControl() {
    const FileStamp stamp = stampOf(folder_ / "control");
    if (!isFresh_ && stamp == controlStamp_) {
        return;
    }
    controlStamp_ = stamp;
    std::string error;
    const auto faults = parseFaults(readWhole(folder_ / "control").value_or(""), error);
    if (faults) {
        faults_ = *faults;
    } else {
        complaint_ = "control: " + error;
    }
}

void Recorder::obeyHand() {
    DriveMemory &memory = folder_.memory();
    const bool isNewTray = isNewOrder(faults_.tray, memory.trayOrder);
    const bool isNewDisc = isNewOrder(faults_.disc, memory.discOrder);
    if (!isNewTray && !isNewDisc) {
        return;
    }
    const bool isToOpen = isNewTray && withoutNumber(*faults_.tray) == "open";
    if (isNewDisc || isToOpen) {
        Device device{profile_, faults_, memory, store_, disc_};
        breakOff(device);
        finish(device);
        openTray(memory);
    }
    if (isNewDisc) {
        const std::string order = withoutNumber(*faults_.disc);
        placeDisc(memory, order == "none" ? std::string() : (folder_.path() / order).string());
        reloadDisc();
    }
    if (!isToOpen) {
        closeTray(memory, faults_.becomingReady);
    }
}

void Recorder::reloadDisc() {
    const DriveMemory &memory = folder_.memory();
    if (!isFresh_ && generation_ == memory.discGeneration) {
        return;
    }
    generation_ = memory.discGeneration;
    store_ = DiscStore(memory.discPath.data());
    disc_.reset();
    if (memory.discPath[0] == '\0') {
        return;
    }
    std::string error;
    disc_ = store_.load(error);
    if (!error.empty()) {
        complaint_ = (store_.folder() / "state").string() + ": " + error;
    }
}

void Recorder::finish(Device &device) {
    store_.release();
    if (!device.isDiscChanged || !disc_) {
        return;
    }
    device.isDiscChanged = false;
    if (!store_.save(*disc_)) {
        complaint_ = (store_.folder() / "state").string() + ": cannot be written";
    }
    generation_ = ++device.memory.discGeneration;
}

void Recorder::log(const Command &command, const Answer &answer) const {
    const Descriptor file = openFile(folder_ / "log", O_WRONLY | O_APPEND);
    if (!file.isOpen()) {
        return;
    }
    std::string line = std::to_string(getpid());
    for (const Byte byte : command.cdb) {
        line += ' ';
        appendHexByte(line, byte);
    }
    line += " out " + std::to_string(command.sent.size());
    if (command.sent.size() <= kLoggedBytes && !command.sent.empty()) {
        line += ':';
        for (const Byte byte : command.sent) {
            line += ' ';
            appendHexByte(line, byte);
        }
    }
    line += " in " + std::to_string(answer.data.size());
    if (answer.transport != Transport::Delivered) {
        line += " not answered";
    } else if (answer.sense) {
        line += " sense";
        for (const Byte byte : {answer.sense->key, answer.sense->code, answer.sense->qualifier}) {
            line += ' ';
            appendHexByte(line, byte);
        }
    }
    line += '\n';
    // A log line that is lost on a full disk changes nothing for the host.
    [[maybe_unused]] const ssize_t count = write(file.get(), line.data(), line.size());
}

} // namespace recorder
