// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/mmc/MmcCommands.h"

#include "scorch/mmc/BigEndian.h"

#include <algorithm>
#include <array>
#include <functional>
#include <initializer_list>
#include <span>

namespace scorch {
namespace {

using Bytes = std::vector<std::uint8_t>;
using Contents = MediumState::Contents;

constexpr std::uint8_t unitAttention = 6;
/// A drive has a few of them in store at most: reset, disc changed, operating conditions.
constexpr int unitAttentions = 5;
constexpr std::int64_t longestCd = std::int64_t{99} * 60 * 75;

/// Sends a command and asks again after unit attentions. The answer has the bytes that came.
Result<Bytes, MmcError> ask(MmcDevice &device, const char *name,
                            std::initializer_list<std::uint8_t> command, std::size_t length) {
    Bytes answer(length);
    for (int attempt = 0;; ++attempt) {
        const Result<std::size_t, MmcError> count =
            device.read(name, std::span(command.begin(), command.size()), answer);
        if (count) {
            answer.resize(std::min(*count, length));
            return answer;
        }
        const MmcError &error = count.error();
        const bool isAgain = error.kind == MmcError::Kind::sense &&
                             error.sense.key == unitAttention && attempt < unitAttentions;
        if (!isAgain) {
            return error;
        }
    }
}

std::uint8_t low(std::size_t value) {
    return static_cast<std::uint8_t>(value & 0xFFU);
}

std::uint8_t high(std::size_t value) {
    return static_cast<std::uint8_t>(value >> 8U & 0xFFU);
}

std::string textAt(const Bytes &answer, std::size_t at, std::size_t length) {
    std::string text;
    for (std::size_t index = at; index < at + length; ++index) {
        text.push_back(static_cast<char>(byteAt(answer, index)));
    }
    return driveText(text);
}

/// An address in minutes, seconds and frames as LBA; nothing if it is none (FFh stands for that).
std::optional<std::int64_t> lbaOf(std::span<const std::uint8_t> bytes, std::size_t at) {
    const std::int64_t minute = byteAt(bytes, at);
    const std::int64_t second = byteAt(bytes, at + 1);
    const std::int64_t frame = byteAt(bytes, at + 2);
    const std::int64_t lba = (minute * 60 + second) * 75 + frame - 150;
    if (second >= 60 || frame >= 75 || lba <= 0 || lba > longestCd) {
        return std::nullopt;
    }
    return lba;
}

/// The features of a drive that stand behind the header of GET CONFIGURATION.
template <class Visit>
void forEachFeature(const Bytes &answer, Visit visit) {
    for (std::size_t at = 8; at + 4 <= answer.size(); at += 4U + answer[at + 3]) {
        visit(wordAt(answer, at), std::span(answer).subspan(at));
    }
}

/// Mode page 2Ah, CD capabilities, without the header in front of it.
Result<Bytes, MmcError> readCapabilities(MmcDevice &device) {
    constexpr std::size_t length = 256;
    Result<Bytes, MmcError> answer = ask(
        device, "MODE SENSE", {0x5A, 0x08, 0x2A, 0, 0, 0, 0, high(length), low(length), 0}, length);
    if (!answer) {
        return answer;
    }
    constexpr std::size_t header = 8;
    const std::size_t skipped = header + wordAt(*answer, 6);
    if (byteAt(*answer, skipped) % 0x40U != 0x2A) {
        return MmcError{.kind = MmcError::Kind::sense,
                        .sense = {.key = 5, .asc = 0x24, .ascq = 0},
                        .systemError = 0,
                        .command = "MODE SENSE"};
    }
    answer->erase(answer->begin(), answer->begin() + static_cast<std::ptrdiff_t>(skipped));
    return answer;
}

std::vector<int> inOrder(std::vector<int> speeds) {
    std::sort(speeds.begin(), speeds.end(), std::greater<>());
    speeds.erase(std::unique(speeds.begin(), speeds.end()), speeds.end());
    while (!speeds.empty() && speeds.back() <= 0) {
        speeds.pop_back();
    }
    return speeds;
}

Result<std::vector<int>, MmcError> speedsFromCapabilities(MmcDevice &device) {
    const Result<Bytes, MmcError> page = readCapabilities(device);
    if (!page) {
        return page.error();
    }
    std::vector<int> speeds = {static_cast<int>(wordAt(*page, 18))};
    const std::size_t count = wordAt(*page, 30);
    for (std::size_t index = 0; index < count && 36 + 4 * index <= page->size(); ++index) {
        speeds.push_back(static_cast<int>(wordAt(*page, 34 + 4 * index)));
    }
    return inOrder(std::move(speeds));
}

Contents contentsOf(unsigned status) {
    switch (status & 3U) {
    case 0:
        return Contents::blank;
    case 1:
        return Contents::appendable;
    case 2:
        return Contents::complete;
    default:
        return Contents::unknown;
    }
}

} // namespace

std::string driveText(std::string_view text) {
    std::string result;
    for (const char character : text) {
        if (character > ' ' && character <= '~') {
            result.push_back(character);
        } else if (!result.empty() && result.back() != ' ') {
            result.push_back(' ');
        }
    }
    if (!result.empty() && result.back() == ' ') {
        result.pop_back();
    }
    return result;
}

Result<DriveIdentity, MmcError> inquire(MmcDevice &device) {
    constexpr std::uint8_t length = 36;
    const Result<Bytes, MmcError> answer =
        ask(device, "INQUIRY", {0x12, 0, 0, 0, length, 0}, length);
    if (!answer) {
        return answer.error();
    }
    return DriveIdentity{.vendor = textAt(*answer, 8, 8),
                         .model = textAt(*answer, 16, 16),
                         .revision = textAt(*answer, 32, 4)};
}

Result<void, MmcError> testUnitReady(MmcDevice &device) {
    constexpr std::array<std::uint8_t, 6> command{};
    const auto done = device.read("TEST UNIT READY", command, {});
    if (!done) {
        return done.error();
    }
    return {};
}

Result<MediaEvent, MmcError> readMediaEvent(MmcDevice &device) {
    constexpr std::array<std::uint8_t, 10> command = {0x4A, 0x01, 0, 0, 0x10, 0, 0, 0, 8, 0};
    std::array<std::uint8_t, 8> answer{};
    const auto count = device.read("GET EVENT STATUS NOTIFICATION", command, answer);
    if (!count) {
        return count.error();
    }
    const bool isMediaClass = *count >= 6 && (answer[2] & 0x87U) == 0x04;
    if (!isMediaClass) {
        return MmcError{.kind = MmcError::Kind::sense,
                        .sense = {.key = 5, .asc = 0x24, .ascq = 0},
                        .systemError = 0,
                        .command = "GET EVENT STATUS NOTIFICATION"};
    }
    const unsigned event = answer[4] & 0x0FU; // 2: new medium, 3: removal, 4: medium changed.
    return MediaEvent{.changed = event >= 2 && event <= 4,
                      .trayOpen = (answer[5] & 1U) != 0,
                      .mediumPresent = (answer[5] & 2U) != 0};
}

Result<bool, MmcError> readCanWriteCd(MmcDevice &device) {
    constexpr std::size_t length = 1024;
    const Result<Bytes, MmcError> answer =
        ask(device, "GET CONFIGURATION", {0x46, 0, 0, 0, 0, 0, 0, high(length), low(length), 0},
            length);
    if (answer && answer->size() > 8) {
        bool canWrite = false;
        forEachFeature(*answer, [&canWrite](unsigned code, std::span<const std::uint8_t>) {
            canWrite |= code == 0x2D || code == 0x2E; // CD track at once, CD mastering.
        });
        return canWrite;
    }
    const Result<Bytes, MmcError> page = readCapabilities(device);
    if (!page) {
        return page.error();
    }
    return (byteAt(*page, 3) & 3U) != 0;
}

Result<unsigned, MmcError> readCurrentProfile(MmcDevice &device) {
    const Result<Bytes, MmcError> answer =
        ask(device, "GET CONFIGURATION", {0x46, 2, 0, 0, 0, 0, 0, 0, 8, 0}, 8);
    if (!answer) {
        return answer.error();
    }
    return wordAt(*answer, 6);
}

Result<DiscInformation, MmcError> readDiscInformation(MmcDevice &device) {
    constexpr std::uint8_t length = 34;
    const Result<Bytes, MmcError> answer =
        ask(device, "READ DISC INFORMATION", {0x51, 0, 0, 0, 0, 0, 0, 0, length, 0}, length);
    if (!answer) {
        return answer.error();
    }
    const unsigned status = byteAt(*answer, 2);
    return DiscInformation{.contents = contentsOf(status),
                           .erasable = (status & 0x10U) != 0,
                           .lastLeadOutStart = lbaOf(*answer, 21)};
}

Result<NextTrackInformation, MmcError> readNextTrackInformation(MmcDevice &device) {
    constexpr std::uint8_t length = 36;
    const Result<Bytes, MmcError> answer =
        ask(device, "READ TRACK INFORMATION", {0x52, 1, 0, 0, 0, 0xFF, 0, 0, length, 0}, length);
    if (!answer) {
        return answer.error();
    }
    const bool isNextValid = (byteAt(*answer, 7) & 1U) != 0;
    return NextTrackInformation{.nextWritable = isNextValid ? addressAt(*answer, 12) : 0,
                                .freeBlocks = addressAt(*answer, 16)};
}

Result<std::optional<std::int64_t>, MmcError> readAtipLeadOut(MmcDevice &device) {
    constexpr std::uint8_t length = 28;
    const Result<Bytes, MmcError> answer =
        ask(device, "READ ATIP", {0x43, 2, 4, 0, 0, 0, 0, 0, length, 0}, length);
    if (!answer) {
        return answer.error();
    }
    return lbaOf(*answer, 12);
}

Result<TableOfContents, MmcError> readTableOfContents(MmcDevice &device) {
    constexpr std::size_t length = 4 + 8 * 100; // 99 tracks and the lead-out.
    const Result<Bytes, MmcError> answer =
        ask(device, "READ TOC", {0x43, 0, 0, 0, 0, 0, 0, high(length), low(length), 0}, length);
    if (!answer) {
        return answer.error();
    }
    constexpr unsigned leadOut = 0xAA;
    const std::size_t end = std::min<std::size_t>(answer->size(), wordAt(*answer, 0) + 2U);
    TableOfContents toc;
    for (std::size_t at = 4; at + 8 <= end; at += 8) {
        const unsigned number = byteAt(*answer, at + 2);
        const std::int64_t start = addressAt(*answer, at + 4);
        if (number == leadOut) {
            toc.leadOut = start;
        } else {
            toc.tracks.push_back({.number = static_cast<int>(number),
                                  .isData = (byteAt(*answer, at + 1) & 4U) != 0,
                                  .start = start});
        }
    }
    return toc;
}

Result<std::vector<int>, MmcError> readWriteSpeeds(MmcDevice &device) {
    constexpr std::uint8_t count = 64;
    constexpr std::size_t length = 8 + 16 * std::size_t{count};
    const Result<Bytes, MmcError> answer =
        ask(device, "GET PERFORMANCE", {0xAC, 0, 0, 0, 0, 0, 0, 0, 0, count, 3, 0}, length);
    if (!answer || answer->size() < 8 + 16) {
        return speedsFromCapabilities(device);
    }
    std::vector<int> speeds;
    const std::size_t end = std::min<std::size_t>(answer->size(), longAt(*answer, 0) + 4U);
    for (std::size_t at = 8; at + 16 <= end; at += 16) {
        speeds.push_back(static_cast<int>(longAt(*answer, at + 12)));
    }
    return inOrder(std::move(speeds));
}

} // namespace scorch
