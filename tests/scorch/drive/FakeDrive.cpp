// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/scorch/drive/FakeDrive.h"

#include <algorithm>
#include <span>
#include <utility>

using namespace scorch;

class FakeRecording final : public DiscRecording {
public:
    FakeRecording(FakeDrive &drive, const DiscContent &content)
        : drive_(drive), tracks_(content.trackCount()) {
        for (std::size_t index = 0; index < content.trackCount(); ++index) {
            bytesPerSector_.push_back(sectorBytes(content.track(index).kind));
        }
    }

    ~FakeRecording() override {
        const std::lock_guard lock(drive_.mutex_);
        drive_.recording_ = false;
    }

    Outcome<> record(DiscContent &content, RecordObserver &observer,
                     const std::stop_token &stop) override {
        std::int64_t sectors = 0;
        for (std::size_t index = 0; index < tracks_.size(); ++index) {
            if (auto done = recordTrack(content, index, sectors, observer, stop); !done) {
                return done;
            }
        }
        observer.closedSession();
        if (auto step = drive_.take("session", stop); !step) {
            return step;
        }
        observer.finishing();
        return drive_.take("finishing", stop);
    }

    Outcome<> readBack(std::size_t track, std::int64_t firstSector, std::span<std::byte> buffer,
                       const std::stop_token &stop) override {
        if (auto step = drive_.take("read back", stop); !step) {
            return step;
        }
        const std::size_t size = bytesPerSector_[track];
        const std::size_t from = static_cast<std::size_t>(firstSector) * size;
        std::copy_n(tracks_[track].begin() + static_cast<std::ptrdiff_t>(from), buffer.size(),
                    buffer.begin());
        const auto &spoilt = drive_.spoilt_;
        if (spoilt && spoilt->track == track && spoilt->sector >= firstSector) {
            const std::size_t at = static_cast<std::size_t>(spoilt->sector - firstSector) * size;
            if (at < buffer.size()) {
                buffer[at + 17] ^= std::byte{1};
            }
        }
        return {};
    }

    Outcome<SectorRange> readableSectors(std::size_t track, std::int64_t sectors,
                                         const std::stop_token & /*stop*/) override {
        return track == 0 ? drive_.readable_.value_or(SectorRange{0, sectors})
                          : SectorRange{0, sectors};
    }

    bool isComplete() const override { return drive_.isCompleteWhenRecorded_; }

    Result<void> commit() override {
        if (auto step = drive_.take("commit", {}); !step) {
            return std::get<ScorchError>(step.error());
        }
        drive_.setDisc({.present = true, .isCd = true, .blank = false, .freeSectors = 0});
        return {};
    }

private:
    Outcome<> recordTrack(DiscContent &content, std::size_t index, std::int64_t &sectors,
                          RecordObserver &observer, const std::stop_token &stop) {
        const std::string number = std::to_string(index + 1);
        observer.openingTrack(index + 1, tracks_.size());
        if (auto step = drive_.take("open " + number, stop); !step) {
            return step;
        }
        auto source = content.openTrack(index, stop);
        if (!source) {
            return source.error();
        }
        observer.writingTrack(index + 1, tracks_.size());
        if (auto step = drive_.take("write " + number, stop); !step) {
            return step;
        }
        std::vector<std::byte> buffer(64 * bytesPerSector_[index]);
        while (true) {
            auto count = (*source)->read(buffer, stop);
            if (!count) {
                return count.error();
            }
            if (*count == 0) {
                break;
            }
            tracks_[index].insert(tracks_[index].end(), buffer.begin(),
                                  buffer.begin() + static_cast<std::ptrdiff_t>(*count));
            drive_.bytesRecorded_ += *count;
            sectors += static_cast<std::int64_t>(*count / bytesPerSector_[index]);
            observer.wroteSectors(sectors);
        }
        observer.closedTrack(index + 1, tracks_.size());
        return drive_.take("close " + number, stop);
    }

    FakeDrive &drive_;
    std::vector<std::vector<std::byte>> tracks_;
    std::vector<std::size_t> bytesPerSector_;
};

FakeDrive::FakeDrive(std::string name) : name_(std::move(name)), state_(blankCd(359'849)) {}

DriveState FakeDrive::blankCd(std::int64_t sectors) {
    return {.canWriteCd = true,
            .checking = false,
            .disc = {.present = true, .isCd = true, .blank = true, .freeSectors = sectors}};
}

void FakeDrive::setStep(StepFunction step) {
    step_ = std::move(step);
}

void FakeDrive::setState(const DriveState &state) {
    std::function<void()> changed;
    {
        const std::lock_guard lock(mutex_);
        if (state_ == state) {
            return;
        }
        state_ = state;
        changed = changed_;
    }
    if (changed) {
        changed();
    }
}

void FakeDrive::setDisc(const DiscState &disc) {
    DriveState changed = state();
    changed.disc = disc;
    setState(changed);
}

bool FakeDrive::isRecording() const {
    const std::lock_guard lock(mutex_);
    return recording_;
}

DriveState FakeDrive::state() const {
    const std::lock_guard lock(mutex_);
    return state_;
}

void FakeDrive::setStateObserver(std::function<void()> changed) {
    const std::lock_guard lock(mutex_);
    changed_ = std::move(changed);
}

Outcome<> FakeDrive::take(const std::string &step, const std::stop_token &stop) {
    if (step_) {
        if (auto outcome = step_(step, stop); !outcome) {
            return outcome;
        }
    }
    if (stop.stop_requested()) {
        return Interruption(Cancelled{});
    }
    return {};
}

Outcome<std::unique_ptr<DiscRecording>> FakeDrive::beginRecording(const DiscContent &content,
                                                                  const std::stop_token &stop) {
    if (auto step = take("begin", stop); !step) {
        return step.error();
    }
    {
        const std::lock_guard lock(mutex_);
        recording_ = true;
    }
    volumeName_ = content.volumeName();
    return std::unique_ptr<DiscRecording>(std::make_unique<FakeRecording>(*this, content));
}
