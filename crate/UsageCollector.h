// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/VXUtilitiesToolContext.h"

#include <filesystem>
#include <string>

namespace crate {

/// Writes what tools report about their use to the log category "crate.usage" and, once a file is
/// opened, to that too. Nothing leaves the machine. Main thread.
class UsageCollector : public VXUserDataCollector {
public:
    UsageCollector() = default;
    ~UsageCollector() override;
    UsageCollector(const UsageCollector &) = delete;
    UsageCollector &operator=(const UsageCollector &) = delete;

    /// Events from now on are appended to `path`, a line each: the time (ISO 8601, UTC, with
    /// milliseconds), the target and the key, with a space between and each in the file before the
    /// call that reported it returns. Returns what went wrong, for a person; empty when nothing.
    [[nodiscard]] std::string openLog(const std::filesystem::path &path);

    void collectDataWithTargetAndKey(const QString &target, const QString &key) override;

private:
    void appendLine(const QByteArray &line);

    int log_ = -1;
    bool hasFailed_ = false;
};

} // namespace crate
