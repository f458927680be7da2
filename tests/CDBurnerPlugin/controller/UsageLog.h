// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/VXUtilitiesToolContext.h"

#include <QStringList>

#include <string>
#include <vector>

/// Collects the usage events of one test. The tool keeps the first context of a process for good,
/// so there is one that outlives all tests and passes on to the log that exists.
class UsageLog final : public VXUserDataCollector {
public:
    UsageLog();
    ~UsageLog() override;

    /// The keys, oldest first.
    const std::vector<std::string> &keys() const { return keys_; }
    int count(const std::string &key) const;
    void clear() { keys_.clear(); }

    /// What a host gives to the tool.
    static VXUtilitiesToolContext *context();

    void collectDataWithTargetAndKey(const QString &target, const QString &key) override;

private:
    std::vector<std::string> keys_;
};
