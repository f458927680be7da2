// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/burner/BurnJob.h"

#include "scorch/burner/BurnErrors.h"
#include "scorch/burner/ChecksumContent.h"
#include "scorch/burner/ProgressMeter.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <optional>
#include <span>
#include <utility>
#include <vector>

namespace scorch {
namespace {

/// Sectors that are read back at once: about a megabyte.
constexpr std::int64_t verifySectors = 512;

std::int64_t sectorsOf(const DiscContent &content) {
    std::int64_t sectors = 0;
    for (std::size_t index = 0; index < content.trackCount(); ++index) {
        sectors += content.track(index).sectors;
    }
    return sectors;
}

TrackKind kindOf(const DiscContent &content) {
    return content.trackCount() > 0 ? content.track(0).kind : TrackKind::data;
}

/// Passes stages on and turns sectors into progress.
class Reporter final : public RecordObserver {
public:
    Reporter(BurnObserver &observer, Clock clock, std::int64_t sectors, bool verify)
        : observer_(observer), clock_(std::move(clock)), meter_(sectors, verify) {}

    void openingTrack(std::size_t track, std::size_t count) override {
        stage({BurnStageKind::openingTrack, track, count});
    }
    void writingTrack(std::size_t track, std::size_t count) override {
        stage({BurnStageKind::writingTrack, track, count});
    }
    void closedTrack(std::size_t track, std::size_t count) override {
        stage({BurnStageKind::closedTrack, track, count});
    }
    void closedSession() override { stage({BurnStageKind::closedSession}); }
    void finishing() override { stage({BurnStageKind::finishing}); }
    void wroteSectors(std::int64_t sectors) override { report(meter_.wrote(sectors, clock_())); }
    void verifying() { stage({BurnStageKind::verifying}); }
    void verifiedSectors(std::int64_t sectors) { report(meter_.verified(sectors, clock_())); }

private:
    void stage(const BurnStage &stage) {
        meter_.stageBegan(clock_());
        observer_.stageBegan(stage);
    }
    void report(const std::optional<BurnProgress> &progress) {
        if (progress) {
            observer_.progressed(*progress);
        }
    }

    BurnObserver &observer_;
    const Clock clock_;
    ProgressMeter meter_;
};

Outcome<> verifyTrack(DiscRecording &recording, const ChecksumContent &content, std::size_t index,
                      std::int64_t sectorsBefore, Reporter &reporter, const std::stop_token &stop) {
    const TrackLayout &layout = content.track(index);
    const std::size_t bytesPerSector = sectorBytes(layout.kind);
    std::vector<std::byte> buffer(static_cast<std::size_t>(verifySectors) * bytesPerSector);
    const auto readable = recording.readableSectors(index, layout.sectors, stop);
    if (!readable) {
        return readable.error();
    }
    for (std::int64_t first = readable->first; first < readable->end; first += verifySectors) {
        if (stop.stop_requested()) {
            return Interruption(Cancelled{});
        }
        const std::int64_t count = std::min(verifySectors, readable->end - first);
        const std::span<std::byte> chunk =
            std::span(buffer).first(static_cast<std::size_t>(count) * bytesPerSector);
        if (auto read = recording.readBack(index, first, chunk, stop); !read) {
            return read;
        }
        if (const auto sector = content.firstDifference(index, first, chunk)) {
            return Interruption(
                differenceError(layout.kind, index, *sector, content.nameAt(index, *sector)));
        }
        reporter.verifiedSectors(sectorsBefore + first + count);
    }
    return {};
}

Outcome<> verify(DiscRecording &recording, const ChecksumContent &content, Reporter &reporter,
                 const std::stop_token &stop) {
    reporter.verifying();
    std::int64_t sectorsBefore = 0;
    for (std::size_t index = 0; index < content.trackCount(); ++index) {
        if (auto verified = verifyTrack(recording, content, index, sectorsBefore, reporter, stop);
            !verified) {
            return verified;
        }
        sectorsBefore += content.track(index).sectors;
    }
    return {};
}

/// Writes and compares, with `content` between the list and the drive. The recording is over, and
/// undone if it was not committed, when this returns.
Outcome<> recordContent(const BurnRequest &request, DiscContent &content, Reporter &reporter,
                        const std::stop_token &stop) {
    auto begun = request.drive->beginRecording(content, stop);
    if (!begun) {
        return begun.error();
    }
    const std::unique_ptr<DiscRecording> recording = std::move(*begun);
    ChecksumContent checked(content);
    DiscContent &sent = request.verify ? static_cast<DiscContent &>(checked) : content;
    if (auto recorded = recording->record(sent, reporter, stop); !recorded) {
        return recorded;
    }
    if (request.verify) {
        auto verified = verify(*recording, checked, reporter, stop);
        const bool isStopped = !verified && isCancelled(verified.error());
        if (!verified && !(isStopped && recording->isComplete())) {
            return verified;
        }
    }
    if (stop.stop_requested() && !recording->isComplete()) {
        return Interruption(Cancelled{});
    }
    if (auto committed = recording->commit(); !committed) {
        return Interruption(committed.error());
    }
    return {};
}

Outcome<> burn(const BurnRequest &request, BurnObserver &observer, const std::stop_token &stop) {
    observer.stageBegan({BurnStageKind::preparing});
    if (const auto error = request.drive->obstacle()) {
        return Interruption(*error);
    }
    // A drive that is finding out what it holds looks again when the recording begins, and says
    // then what is in the way: what is known until then would be about no disc.
    const DriveState before = request.drive->state();
    if (const auto error = discError(request.drive->name(), before); error && !before.checking) {
        return Interruption(*error);
    }
    auto made = request.makeContent(stop);
    if (!made) {
        return made.error();
    }
    DiscContent &content = **made;
    const std::int64_t sectors = sectorsOf(content);
    const DiscState disc = request.drive->state().disc;
    if (disc.blank && sectors > disc.freeSectors) {
        return Interruption(doesNotFitError(kindOf(content), sectors, disc.freeSectors));
    }
    Reporter reporter(observer, request.clock, sectors, request.verify);
    return recordContent(request, content, reporter, stop);
}

} // namespace

BurnEnd runBurn(const BurnRequest &request, BurnObserver &observer, const std::stop_token &stop) {
    try {
        const Outcome<> outcome = burn(request, observer, stop);
        if (outcome) {
            return BurnDone{};
        }
        if (isCancelled(outcome.error())) {
            return Cancelled{};
        }
        return std::get<ScorchError>(outcome.error());
    } catch (const std::exception &failure) {
        return internalError(failure.what());
    }
}

} // namespace scorch
