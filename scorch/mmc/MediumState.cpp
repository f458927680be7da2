// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/mmc/MediumState.h"

#include "scorch/mmc/MmcCommands.h"

#include <algorithm>
#include <array>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <utility>

namespace scorch {
namespace {

using Kind = MediumState::Kind;
using Contents = MediumState::Contents;

constexpr std::uint8_t notReady = 2;
constexpr std::uint8_t unitAttention = 6;
constexpr std::uint8_t becomingReady = 0x04;
constexpr std::uint8_t mediumNotPresent = 0x3A;
constexpr std::uint8_t trayIsOpen = 0x02;
constexpr std::chrono::milliseconds readinessPoll{200};

constexpr unsigned profileCdRom = 0x08;
constexpr unsigned profileCdR = 0x09;
constexpr unsigned profileCdRw = 0x0A;

bool isNotReady(const MmcError &error, std::uint8_t code) {
    return error.kind == MmcError::Kind::sense && error.sense.key == notReady &&
           error.sense.asc == code;
}

bool isSense(const MmcError &error) {
    return error.kind == MmcError::Kind::sense;
}

MmcError interrupted() {
    return {.kind = MmcError::Kind::interrupted,
            .sense = {},
            .systemError = 0,
            .command = "examination"};
}

/// False after a stop request.
bool sleepFor(std::chrono::milliseconds time, const std::stop_token &stop) {
    std::mutex mutex;
    std::condition_variable_any never;
    std::unique_lock lock(mutex);
    never.wait_for(lock, stop, time, [] { return false; });
    return !stop.stop_requested();
}

/// Whether the motor has yet to be started (2/04/02): the next command that needs it does that.
bool isMerelyStopped(const MmcError &error) {
    return isNotReady(error, becomingReady) && error.sense.ascq == 0x02;
}

/// Waits until the drive is ready with a disc in it, or can say for sure that it will not be.
Result<void, MmcError> awaitReady(MmcDevice &device, std::chrono::milliseconds patience,
                                  const std::stop_token &stop) {
    const auto end = std::chrono::steady_clock::now() + patience;
    while (true) {
        if (stop.stop_requested()) {
            return interrupted();
        }
        const Result<void, MmcError> ready = testUnitReady(device);
        if (ready || isMerelyStopped(ready.error())) {
            return {};
        }
        const MmcError &error = ready.error();
        const bool isAttention = isSense(error) && error.sense.key == unitAttention;
        const bool isComing = isNotReady(error, becomingReady);
        if ((!isAttention && !isComing) || std::chrono::steady_clock::now() >= end) {
            return error;
        }
        if (isComing && !sleepFor(readinessPoll, stop)) {
            return interrupted();
        }
    }
}

/// A medium that the drive cannot make out (dirty, upside down, of a kind that it does not know).
bool isUnreadable(const MmcError &error) {
    constexpr std::uint8_t mediumError = 3;
    constexpr std::uint8_t illegalRequest = 5;
    constexpr std::uint8_t incompatible = 0x30;
    return isSense(error) &&
           (error.sense.key == mediumError || isNotReady(error, incompatible) ||
            (error.sense.key == illegalRequest && error.sense.asc == incompatible));
}

Kind kindOfProfile(unsigned profile) {
    switch (profile) {
    case profileCdRom:
        return Kind::cdRom;
    case profileCdR:
        return Kind::cdR;
    case profileCdRw:
        return Kind::cdRw;
    default:
        return Kind::other;
    }
}

bool tellsNothing(unsigned profile) {
    constexpr unsigned outsideTheStandard = 0xFFFF;
    return profile == 0 || profile == outsideTheStandard;
}

/// Asks one question after the other. A question that the drive refuses leaves its answer unknown;
/// a drive that is not there any more ends the examination.
class Examination {
public:
    Examination(MmcDevice &device, const std::stop_token &stop) : device_(device), stop_(stop) {}

    Result<MediumState, MmcError> run() {
        findKind();
        const std::optional<DiscInformation> disc = take(readDiscInformation);
        if (disc) {
            state_.contents = disc->contents;
        }
        guessKind(disc);
        if (state_.kind == Kind::cdRom) {
            state_.contents = Contents::complete; // Pressed, whatever the drive makes of it.
        }
        if (state_.isCd() && state_.contents != Contents::blank) {
            readTracks();
        }
        if (state_.kind == Kind::cdR || state_.kind == Kind::cdRw) {
            state_.writeSpeeds = take(readWriteSpeeds).value_or(std::vector<int>());
            if (state_.contents == Contents::blank) {
                state_.freeSectors = freeSectors(disc);
            }
        }
        if (failed_) {
            return failure_;
        }
        return std::move(state_);
    }

private:
    template <class Answer>
    std::optional<Answer> take(Result<Answer, MmcError> (*question)(MmcDevice &)) {
        if (!failed_ && stop_.stop_requested()) {
            fail(interrupted());
        }
        if (failed_) {
            return std::nullopt;
        }
        Result<Answer, MmcError> answer = question(device_);
        if (answer) {
            return std::move(*answer);
        }
        const MmcError &error = answer.error();
        const bool isGone = isNotReady(error, mediumNotPresent) || !isSense(error);
        if (isGone) { // The tray was opened meanwhile, or worse: what is known holds no more.
            fail(error);
        }
        return std::nullopt;
    }

    void fail(const MmcError &error) {
        failed_ = true;
        failure_ = error;
    }

    void findKind() {
        if (const std::optional<unsigned> profile = take(readCurrentProfile)) {
            state_.profile = *profile;
        }
        state_.kind = tellsNothing(state_.profile) ? Kind::none : kindOfProfile(state_.profile);
    }

    /// Of drives that know no profiles, which are those that know nothing but CDs.
    void guessKind(const std::optional<DiscInformation> &disc) {
        if (state_.kind != Kind::none) {
            return;
        }
        const bool hasAtip = take(readAtipLeadOut).has_value();
        if (disc && disc->erasable) {
            state_.kind = Kind::cdRw;
        } else if (disc && (hasAtip || disc->contents == Contents::blank)) {
            state_.kind = Kind::cdR;
        } else {
            state_.kind = take(readTableOfContents) ? Kind::cdRom : Kind::other;
        }
    }

    void readTracks() {
        if (std::optional<TableOfContents> toc = take(readTableOfContents)) {
            state_.tracks = std::move(toc->tracks);
            state_.leadOut = toc->leadOut;
        }
    }

    /// A lead-out that may begin at block n leaves the n blocks from 0 on. READ TRACK INFORMATION
    /// comes last: its free blocks begin at the next writable address, which is -150 for some
    /// drives, and the pregap is no place for anybody's data.
    std::int64_t freeSectors(const std::optional<DiscInformation> &disc) {
        if (disc && disc->lastLeadOutStart) {
            return *disc->lastLeadOutStart;
        }
        if (const auto groove = take(readAtipLeadOut); groove && *groove) {
            return **groove;
        }
        const std::optional<NextTrackInformation> next = take(readNextTrackInformation);
        return next ? std::max<std::int64_t>(next->freeBlocks + next->nextWritable, 0) : 0;
    }

    MmcDevice &device_;
    const std::stop_token &stop_;
    MediumState state_;
    bool failed_ = false;
    MmcError failure_;
};

MediumState noMedium(const MmcError &error) {
    MediumState state;
    state.trayOpen = error.sense.ascq == trayIsOpen;
    return state;
}

struct ProfileName {
    unsigned profile;
    const char *name;
};

constexpr std::array profileNames = {
    ProfileName{0x10, "DVD-ROM"},    ProfileName{0x11, "DVD-R"},    ProfileName{0x12, "DVD-RAM"},
    ProfileName{0x13, "DVD-RW"},     ProfileName{0x14, "DVD-RW"},   ProfileName{0x15, "DVD-R DL"},
    ProfileName{0x16, "DVD-R DL"},   ProfileName{0x1A, "DVD+RW"},   ProfileName{0x1B, "DVD+R"},
    ProfileName{0x2A, "DVD+RW DL"},  ProfileName{0x2B, "DVD+R DL"}, ProfileName{0x40, "BD-ROM"},
    ProfileName{0x41, "BD-R"},       ProfileName{0x42, "BD-R"},     ProfileName{0x43, "BD-RE"},
    ProfileName{0x50, "HD DVD-ROM"}, ProfileName{0x51, "HD DVD-R"}, ProfileName{0x52, "HD DVD-RAM"},
};

} // namespace

Result<MediumState, MmcError> examineMedium(MmcDevice &device, std::chrono::milliseconds patience,
                                            const std::stop_token &stop) {
    const Result<void, MmcError> ready = awaitReady(device, patience, stop);
    if (ready) {
        Result<MediumState, MmcError> examined = Examination(device, stop).run();
        if (examined || !isNotReady(examined.error(), mediumNotPresent)) {
            return examined;
        }
        return noMedium(examined.error());
    }
    const MmcError &error = ready.error();
    if (isNotReady(error, mediumNotPresent)) {
        return noMedium(error);
    }
    if (isUnreadable(error)) {
        MediumState state;
        state.kind = Kind::other;
        return state;
    }
    return error;
}

std::string mediumName(const MediumState &medium) {
    switch (medium.kind) {
    case Kind::none:
        return {};
    case Kind::cdRom:
        return "CD-ROM";
    case Kind::cdR:
        return "CD-R";
    case Kind::cdRw:
        return "CD-RW";
    case Kind::other:
        break;
    }
    const auto *const found =
        std::find_if(profileNames.begin(), profileNames.end(), [&medium](const ProfileName &entry) {
            return entry.profile == medium.profile;
        });
    return found != profileNames.end() ? found->name : "unknown disc";
}

} // namespace scorch
