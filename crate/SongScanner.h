// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "crate/SongRow.h"

#include <QObject>

#include <filesystem>
#include <thread>
#include <vector>

namespace crate {

/// Runs scanSongs on a thread of low priority and brings what it finds to the main thread in
/// portions, a few a second, so that a window can show the songs as they are found. Main thread.
class SongScanner : public QObject {
    Q_OBJECT

public:
    explicit SongScanner(QObject *parent = nullptr);
    /// Stops the scan and waits for its thread, which is as long as one file takes.
    ~SongScanner() override;

    /// Scans `folder`; one that still runs is stopped, and nothing of it arrives any more.
    void start(const std::filesystem::path &folder);
    void stop();
    bool isRunning() const { return isRunning_; }

signals:
    void songsFound(const std::vector<crate::SongRow> &songs);
    /// Once for each scan that was not stopped. `error` says, for a person, why the folder cannot
    /// be read; empty when it could.
    void finished(const QString &error);

private:
    using Scan = quint64;

    void deliver(Scan scan, const std::vector<SongRow> &songs);
    void finish(Scan scan, const QString &error);

    /// What arrives with another number belongs to a scan that was stopped.
    Scan current_ = 0;
    bool isRunning_ = false;
    std::jthread thread_;
};

} // namespace crate
