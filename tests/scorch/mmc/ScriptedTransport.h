// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/mmc/MmcDevice.h"
#include "scorch/mmc/MmcTransport.h"

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <utility>
#include <vector>

/// A drive whose answers stand in a table: for what no drive that keeps to the standard says. A
/// command that is not in it is invalid (5/20/00).
class ScriptedTransport final : public scorch::MmcTransport {
public:
    using Bytes = std::vector<std::uint8_t>;
    using Answer = scorch::Result<Bytes, scorch::MmcError>;
    using Script = std::map<int, std::function<Answer(std::span<const std::uint8_t> command)>>;

    explicit ScriptedTransport(Script script) : script_(std::move(script)) {}

    static scorch::MmcDevice device(Script script) {
        return scorch::MmcDevice(std::make_unique<ScriptedTransport>(std::move(script)));
    }
    static scorch::MmcError sense(std::uint8_t key, std::uint8_t asc, std::uint8_t ascq) {
        return {.kind = scorch::MmcError::Kind::sense,
                .sense = {.key = key, .asc = asc, .ascq = ascq},
                .systemError = 0,
                .command = "scripted"};
    }

    scorch::Result<std::size_t, scorch::MmcError> read(const char * /*name*/,
                                                       std::span<const std::uint8_t> command,
                                                       std::span<std::uint8_t> answer,
                                                       std::chrono::milliseconds) override {
        const auto entry = script_.find(command[0]);
        const Answer got = entry != script_.end() ? entry->second(command) : sense(5, 0x20, 0);
        if (!got) {
            return got.error();
        }
        const std::size_t count = std::min(got->size(), answer.size());
        std::copy_n(got->begin(), count, answer.begin());
        return count;
    }
    scorch::Result<void, scorch::MmcError> eject() override { return {}; }
    scorch::Result<void, scorch::MmcError> unlock() override { return {}; }

private:
    Script script_;
};
