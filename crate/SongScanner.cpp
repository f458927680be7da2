// SPDX-License-Identifier: GPL-2.0-or-later
#include "crate/SongScanner.h"

#include "crate/SongScan.h"

#include <QMetaObject>

#include <chrono>
#include <functional>
#include <sys/resource.h>
#include <utility>

namespace crate {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds portionTime{150};
/// What the main thread takes in within a frame of the screen, in a list of 20 000.
constexpr std::size_t portionSongs = 200;

/// How much nicer to the rest of the machine: a burn that runs meanwhile comes first.
constexpr int niceness = 10;

/// Gathers songs and hands them on when enough are there or enough time has passed.
class Portions {
public:
    using Sink = std::function<void(std::vector<SongRow>)>;

    explicit Portions(Sink sink) : sink_(std::move(sink)) {}

    void add(LibrarySong song) {
        rows_.push_back(maker_.make(std::move(song)));
        if (rows_.size() >= portionSongs || Clock::now() - last_ >= portionTime) {
            flush();
        }
    }

    void flush() {
        last_ = Clock::now();
        if (!rows_.empty()) {
            sink_(std::exchange(rows_, {}));
        }
    }

private:
    Sink sink_;
    SongRowMaker maker_;
    std::vector<SongRow> rows_;
    Clock::time_point last_ = Clock::now();
};

} // namespace

SongScanner::SongScanner(QObject *parent) : QObject(parent) {}

SongScanner::~SongScanner() {
    stop();
}

void SongScanner::start(const std::filesystem::path &folder) {
    stop();
    const Scan scan = ++current_;
    isRunning_ = true;
    thread_ = std::jthread([this, scan, folder](const std::stop_token &stop) {
        // On Linux this is the priority of the calling thread alone.
        setpriority(PRIO_PROCESS, 0, niceness);
        Portions portions([this, scan](std::vector<SongRow> rows) {
            QMetaObject::invokeMethod(
                this, [this, scan, rows = std::move(rows)] { deliver(scan, rows); },
                Qt::QueuedConnection);
        });
        const std::error_code error =
            scanSongs(folder, stop, [&](LibrarySong song) { portions.add(std::move(song)); });
        portions.flush();
        const QString text = error ? QString::fromLocal8Bit(error.message().c_str()) : QString();
        QMetaObject::invokeMethod(
            this, [this, scan, text] { finish(scan, text); }, Qt::QueuedConnection);
    });
}

void SongScanner::stop() {
    ++current_;
    isRunning_ = false;
    if (thread_.joinable()) {
        thread_.request_stop();
        thread_.join();
    }
}

void SongScanner::deliver(Scan scan, const std::vector<SongRow> &songs) {
    if (scan == current_) {
        emit songsFound(songs);
    }
}

void SongScanner::finish(Scan scan, const QString &error) {
    if (scan == current_) {
        isRunning_ = false;
        emit finished(error);
    }
}

} // namespace crate
