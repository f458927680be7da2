// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/recorder/Sense.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace recorder {

/// A command descriptor block and the data that the host sends with it.
struct Command {
    ByteView cdb;
    ByteView sent;

    unsigned opcode() const { return get8(cdb, 0); }
    bool bit(std::size_t byte, unsigned number) const {
        return (get8(cdb, byte) >> number & 1U) != 0;
    }
};

/// Whether the command reached the drive at all.
enum class Transport { Delivered, TimedOut, NoDevice };

/// How a command ended: the data for the host, or why it failed.
struct Answer {
    Bytes data;
    std::optional<Sense> sense; ///< CHECK CONDITION.
    Transport transport = Transport::Delivered;
    int delayMs = 0; ///< How long the host has to wait for it.

    static Answer good(Bytes data = {}) { return {std::move(data), {}}; }
    static Answer check(Sense sense) { return {{}, sense}; }

    /// Good, cut to the allocation length of the command.
    static Answer cut(Bytes data, std::size_t length) {
        data.resize(std::min(data.size(), length));
        return good(std::move(data));
    }
};

} // namespace recorder
