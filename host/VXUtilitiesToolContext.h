// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

/// Takes usage events from the host's tools. Owned by the host. Main thread.
class VXUserDataCollector {
public:
    virtual ~VXUserDataCollector() = default;

    /// Fire and forget: `target` names the tool, `key` what happened.
    virtual void collectDataWithTargetAndKey(const QString &target, const QString &key) = 0;
};

/// What a host offers to its tools. Owned by the host, which keeps it alive as long as any tool
/// exists. Main thread.
class VXUtilitiesToolContext {
public:
    virtual ~VXUtilitiesToolContext() = default;

    /// Owned by the host. May be null: events are then lost.
    virtual VXUserDataCollector *userDataCollector() = 0;
};
