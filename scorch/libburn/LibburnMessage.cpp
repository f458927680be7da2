// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/libburn/LibburnMessage.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>

namespace scorch {
namespace {

// From libburn's list of message codes, which is part of its interface, but in none of its headers.
constexpr int busyCode = 0x20102;
constexpr int commandConditionCode = 0x2010F;
constexpr int transferFailedCode = 0x2010C;
constexpr int lostConnectionCode = 0x201A6;
constexpr int workerEndCode = 0x20178;
constexpr int hostProblemCode = 0x201A7;
constexpr int alreadyReleasedCode = 0x20105;

std::optional<std::uint8_t> hexByte(std::string_view text) {
    std::uint8_t value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value, 16);
    if (result.ec != std::errc() || result.ptr != text.data() + text.size()) {
        return std::nullopt;
    }
    return value;
}

bool contains(const LibburnMessage &message, std::string_view text) {
    return message.text.find(text) != std::string::npos;
}

/// The operation code in "SCSI error condition on command 5Dh SEND CUE SHEET: …".
std::optional<std::uint8_t> commandIn(const LibburnMessage &message) {
    static constexpr std::string_view before = "on command ";
    const std::size_t at = message.text.find(before);
    if (at == std::string::npos || at + before.size() + 2 > message.text.size()) {
        return std::nullopt;
    }
    return hexByte(std::string_view(message.text).substr(at + before.size(), 2));
}

/// MODE SELECT (write parameters), WRITE, SYNCHRONIZE CACHE, CLOSE, SEND CUE SHEET, BLANK.
constexpr std::array<std::uint8_t, 7> writingCommands = {0x15, 0x55, 0x2A, 0x35, 0x5B, 0x5D, 0xA1};

} // namespace

std::optional<Sense> senseIn(const LibburnMessage &message) {
    const std::string_view text = message.text;
    for (std::size_t at = text.find('['); at != std::string_view::npos;
         at = text.find('[', at + 1)) {
        const std::string_view triple = text.substr(at, 9); // "[3 0C 00]"
        if (triple.size() < 9 || triple[2] != ' ' || triple[5] != ' ' || triple[8] != ']') {
            continue;
        }
        const auto key = hexByte(triple.substr(1, 1));
        const auto asc = hexByte(triple.substr(3, 2));
        const auto ascq = hexByte(triple.substr(6, 2));
        if (key && asc && ascq && *key != 0) {
            return Sense{*key, *asc, *ascq};
        }
    }
    return std::nullopt;
}

std::optional<std::int64_t> sectorIn(const LibburnMessage &message) {
    static constexpr std::string_view before = "error on write(";
    const std::size_t at = message.text.find(before);
    if (at == std::string::npos) {
        return std::nullopt;
    }
    std::int64_t sector = 0;
    const char *const begin = message.text.data() + at + before.size();
    const auto result = std::from_chars(begin, message.text.data() + message.text.size(), sector);
    return result.ec == std::errc() ? std::optional(sector) : std::nullopt;
}

bool isWriteFailure(const LibburnMessage &message) {
    if (!message.isError || message.code == alreadyReleasedCode) {
        return false;
    }
    if (message.code == commandConditionCode) {
        const auto command = commandIn(message);
        return command && std::find(writingCommands.begin(), writingCommands.end(), *command) !=
                              writingCommands.end();
    }
    return true;
}

bool isBusyRefusal(const LibburnMessage &message) {
    return message.isError && message.code == busyCode;
}

bool isCueSheetRefusal(const LibburnMessage &message) {
    return message.isError && message.code == commandConditionCode &&
           commandIn(message) == std::uint8_t{0x5D};
}

bool isWorkerEnd(const LibburnMessage &message) {
    return message.code == workerEndCode;
}

bool isLostConnection(const LibburnMessage &message) {
    return message.isError &&
           (message.code == lostConnectionCode || message.code == transferFailedCode);
}

bool isTimeOut(const LibburnMessage &message) {
    return message.isError && message.code == hostProblemCode && contains(message, "TIME_OUT");
}

} // namespace scorch
