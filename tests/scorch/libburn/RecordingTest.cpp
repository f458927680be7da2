// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/scorch/libburn/RecordingTest.h"

#include "engine/ScorchHooks.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

using namespace recorder;
using namespace scorch;

namespace {

/// A drive for each test, also where all run in one process.
std::string nextDrive() {
    static int number = 0;
    return "sr" + std::to_string(number++ % 32);
}

class Observer final : public RecordObserver {
public:
    explicit Observer(std::function<void(const std::string &)> tell) : tell_(std::move(tell)) {}

    void openingTrack(std::size_t track, std::size_t /*count*/) override { tell("open", track); }
    void writingTrack(std::size_t track, std::size_t /*count*/) override { tell("write", track); }
    void closedTrack(std::size_t track, std::size_t /*count*/) override { tell("close", track); }
    void closedSession() override { tell_("session"); }
    void finishing() override { tell_("finishing"); }
    void wroteSectors(std::int64_t /*sectors*/) override {}

private:
    void tell(const std::string &word, std::size_t track) const {
        tell_(word + ' ' + std::to_string(track));
    }

    const std::function<void(const std::string &)> tell_;
};

std::string userData(const Bytes &raw, std::size_t from, std::size_t size) {
    std::string text;
    for (std::size_t at = 0; at < raw.size(); at += audioSectorBytes) {
        const auto begin = raw.begin() + static_cast<std::ptrdiff_t>(at + from);
        text.append(begin, begin + static_cast<std::ptrdiff_t>(size));
    }
    return text;
}

} // namespace

RecordingTest::RecordingTest() : name_(nextDrive()), scene_(std::getenv("CD_RECORDER"), name_) {
    scene_.control("");
    scene_.startLog();
    insert(blankDisc(DiscKind::CdR));
    ScorchHooks::shared().log = [this](std::string_view line) {
        log_.emplace_back(line);
    };
}

RecordingTest::~RecordingTest() {
    recording_.reset();
    thread_.reset();
    ScorchHooks::shared().log = nullptr;
    scene_.control("");
    const int device = open(("/dev/" + name_).c_str(), O_RDWR | O_NONBLOCK | O_EXCL);
    EXPECT_GE(device, 0) << "still held: " << errno;
    close(device);
    const std::string log = scene_.log();
    const std::size_t lock = log.rfind(" 1e 00 00 00 01 00"); // PREVENT ALLOW MEDIUM REMOVAL
    const std::size_t unlock = log.rfind(" 1e 00 00 00 00 00");
    EXPECT_TRUE(lock == std::string::npos || (unlock != std::string::npos && unlock > lock))
        << "still locked";
}

Outcome<std::unique_ptr<DiscRecording>> RecordingTest::begin(DiscContent &content) {
    const RecordingTarget target{.driveName = "Drive", .node = "/dev/" + name_};
    return OpticalDiscRecording::create(thread_, target, content, stop_.get_token(), patience_);
}

Outcome<> RecordingTest::record(DiscContent &content) {
    recording_.reset();
    auto begun = begin(content);
    if (!begun) {
        return begun.error();
    }
    recording_ = std::move(*begun);
    Observer observer([this](const std::string &stage) {
        stages_.push_back(stage);
        if (atStage_) {
            atStage_(stage);
        }
    });
    return recording_->record(content, observer, stop_.get_token());
}

ScorchError RecordingTest::failureOf(DiscContent &content) {
    const auto recorded = record(content);
    if (recorded) {
        ADD_FAILURE() << "it was called a success";
        return {ScorchErrorCode::internal, "no error"};
    }
    return errorOf(recorded.error());
}

ScorchError RecordingTest::errorOf(const Interruption &interruption) {
    if (isCancelled(interruption)) {
        ADD_FAILURE() << "it was cancelled";
        return {ScorchErrorCode::internal, "cancelled"};
    }
    return std::get<ScorchError>(interruption);
}

std::vector<std::string> RecordingTest::log() const {
    const std::lock_guard lock(logMutex_);
    return log_;
}

std::string RecordingTest::soundOnDisc(std::int64_t sectors) const {
    return userData(scene_.sectors(0, static_cast<Lba>(sectors)), 0, audioSectorBytes);
}

std::string RecordingTest::dataOnDisc(std::int64_t sectors) const {
    // Behind twelve bytes of synchronisation and four of header.
    return userData(scene_.sectors(0, static_cast<Lba>(sectors)), 16, dataSectorBytes);
}
