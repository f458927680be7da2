// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/audio/ReadAheadFeeder.h"

#include "scorch/audio/SongErrors.h"
#include "scorch/support/DiscContent.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <exception>
#include <utility>

namespace scorch {
namespace {

constexpr std::size_t blockSectors = 128;
constexpr std::size_t blockBytes = blockSectors * audioSectorBytes;
constexpr std::size_t valuesPerSample = 2;
/// What the song that is being read may hold when all memory is used: one block for the reader to
/// work on while the next is filled.
constexpr std::size_t reservedBlocks = 2;

static_assert(std::endian::native == std::endian::little,
              "discs are little-endian; swap the values of a block here on other machines");

/// Reads from `song` until `block` is full or the song ends; the count of bytes is even.
Outcome<std::size_t> fill(SongStream &song, std::span<std::byte> block,
                          const std::stop_token &stop) {
    std::span<std::int16_t> values(reinterpret_cast<std::int16_t *>(block.data()),
                                   block.size() / sizeof(std::int16_t));
    std::size_t filled = 0;
    while (filled < values.size()) {
        if (stop.stop_requested()) {
            return Interruption(Cancelled{});
        }
        const Outcome<std::size_t> got = song.read(values.subspan(filled), stop);
        if (!got) {
            return got.error();
        }
        if (*got == 0) {
            break;
        }
        filled += *got;
    }
    return filled * sizeof(std::int16_t);
}

} // namespace

/// Reads the blocks of one track; lives on the reader's thread.
class ReadAheadFeeder::Source final : public SectorSource {
public:
    Source(ReadAheadFeeder &feeder, std::size_t index) : feeder_(feeder), index_(index) {}
    ~Source() override { feeder_.moveOn(index_ + 1); }

    Outcome<std::size_t> read(std::span<std::byte> buffer, const std::stop_token &stop) override {
        std::size_t filled = 0;
        while (filled < buffer.size()) {
            if (used_ == block_.size()) {
                feeder_.giveBack(std::exchange(block_, {}));
                used_ = 0;
                Outcome<std::optional<Block>> next = feeder_.nextBlock(index_, stop);
                if (!next) {
                    return next.error();
                }
                if (!next->has_value()) {
                    break;
                }
                block_ = std::move(**next);
            }
            const std::size_t count = std::min(buffer.size() - filled, block_.size() - used_);
            std::memcpy(buffer.data() + filled, block_.data() + used_, count);
            filled += count;
            used_ += count;
        }
        return filled;
    }

private:
    ReadAheadFeeder &feeder_;
    const std::size_t index_;
    Block block_;
    std::size_t used_ = 0; ///< Bytes of block_ that were read.
};

ReadAheadFeeder::ReadAheadFeeder(std::vector<AudioTrackRequest> tracks, unsigned workers,
                                 OpenSong openSong, std::size_t memoryBytes)
    : openSong_(std::move(openSong)),
      maximumBlocks_(std::max<std::size_t>(memoryBytes / blockBytes, reservedBlocks)) {
    tracks_.reserve(tracks.size());
    for (AudioTrackRequest &request : tracks) {
        tracks_.push_back({.request = std::move(request), .blocks = {}, .failure = {}});
    }
    const std::size_t threads =
        std::clamp<std::size_t>(workers, 1, std::max<std::size_t>(tracks_.size(), 1));
    workers_.reserve(threads);
    for (std::size_t i = 0; i < threads; ++i) {
        workers_.emplace_back([this](const std::stop_token &stop) { work(stop); });
    }
}

ReadAheadFeeder::~ReadAheadFeeder() {
    for (std::jthread &worker : workers_) {
        worker.request_stop();
    }
    workers_.clear();
}

std::unique_ptr<SectorSource> ReadAheadFeeder::openTrack(std::size_t index) {
    moveOn(index);
    return std::make_unique<Source>(*this, index);
}

void ReadAheadFeeder::work(const std::stop_token &stop) {
    while (!stop.stop_requested()) {
        std::size_t index = 0;
        {
            const std::lock_guard lock(mutex_);
            if (nextTrack_ == tracks_.size()) {
                return;
            }
            index = nextTrack_++;
        }
        std::optional<Interruption> failure;
        try {
            failure = decode(index, stop);
        } catch (const std::exception &exception) {
            failure =
                ScorchError(ScorchErrorCode::internal,
                            songUnreadableText(tracks_[index].request.path), exception.what());
        }
        {
            const std::lock_guard lock(mutex_);
            tracks_[index].ended = true;
            tracks_[index].failure = std::move(failure);
        }
        changed_.notify_all();
    }
}

std::optional<Interruption> ReadAheadFeeder::decode(std::size_t index,
                                                    const std::stop_token &stop) {
    const AudioTrackRequest &request = tracks_[index].request;
    Outcome<std::unique_ptr<SongStream>> song = openSong_(request.path, stop);
    if (!song) {
        return song.error();
    }
    const std::uint64_t expected = request.samples * valuesPerSample * sizeof(std::int16_t);
    const auto trackBytes =
        static_cast<std::uint64_t>(sectorsForSamples(request.samples)) * audioSectorBytes;
    std::uint64_t decoded = 0;
    std::uint64_t padded = 0; // What stands in blocks: the decoded bytes and the zeros behind them.
    while (padded < trackBytes) {
        if (!waitForRoom(index, stop)) {
            return Cancelled{};
        }
        Block block = takeSpareBlock();
        block.resize(std::min<std::uint64_t>(blockBytes, trackBytes - padded));
        const auto wanted = std::min<std::uint64_t>(block.size(), expected - decoded);
        const Outcome<std::size_t> got = fill(**song, std::span(block).first(wanted), stop);
        if (!got) {
            return got.error();
        }
        decoded += *got;
        if (*got < wanted) {
            return songTooShort(request.path, decoded / (valuesPerSample * sizeof(std::int16_t)),
                                request.samples);
        }
        std::fill(block.begin() + static_cast<std::ptrdiff_t>(wanted), block.end(), std::byte{0});
        padded += block.size();
        if (!append(index, std::move(block))) {
            return Cancelled{};
        }
    }
    std::array<std::int16_t, valuesPerSample> more{};
    const Outcome<std::size_t> behind = (*song)->read(more, stop);
    if (!behind) {
        return behind.error();
    }
    if (*behind > 0) {
        return songChanged(request.path, "longer than counted");
    }
    return std::nullopt;
}

bool ReadAheadFeeder::mayAddBlock(std::size_t index) const {
    if (index < current_) {
        return true; // Given up by the reader: append() throws its blocks away.
    }
    if (index == current_) {
        return tracks_[index].blocks.size() < reservedBlocks || heldBlocks_ < maximumBlocks_;
    }
    return heldBlocks_ + reservedBlocks < maximumBlocks_;
}

bool ReadAheadFeeder::waitForRoom(std::size_t index, const std::stop_token &stop) {
    std::unique_lock lock(mutex_);
    return changed_.wait(lock, stop, [this, index] { return mayAddBlock(index); });
}

/// False if nobody will read the song any more.
bool ReadAheadFeeder::append(std::size_t index, Block block) {
    {
        const std::lock_guard lock(mutex_);
        if (index < current_) {
            return false;
        }
        tracks_[index].blocks.push_back(std::move(block));
        ++heldBlocks_;
        if (index != current_) {
            return true; // Nobody waits for it yet.
        }
    }
    changed_.notify_all();
    return true;
}

/// A block that was used before, if there is one: fresh memory costs a page fault every 4 KiB.
ReadAheadFeeder::Block ReadAheadFeeder::takeSpareBlock() {
    const std::lock_guard lock(mutex_);
    if (spareBlocks_.empty()) {
        return {};
    }
    Block block = std::move(spareBlocks_.back());
    spareBlocks_.pop_back();
    return block;
}

/// The next piece of a song, nothing at its end.
Outcome<std::optional<ReadAheadFeeder::Block>>
ReadAheadFeeder::nextBlock(std::size_t index, const std::stop_token &stop) {
    std::optional<Block> block;
    {
        std::unique_lock lock(mutex_);
        if (index != current_ || index >= tracks_.size()) {
            return block; // A later song was opened: this one is over.
        }
        Track &track = tracks_[index];
        const auto ready = [&track] {
            return track.ended || !track.blocks.empty();
        };
        if (!changed_.wait(lock, stop, ready) || stop.stop_requested()) {
            return Interruption(Cancelled{});
        }
        // The failure counts at once: what was decoded before it is of no use without the rest.
        if (track.failure.has_value()) {
            return *track.failure;
        }
        if (track.blocks.empty()) {
            return block;
        }
        block = std::move(track.blocks.front());
        track.blocks.pop_front();
        --heldBlocks_;
    }
    changed_.notify_all();
    return block;
}

void ReadAheadFeeder::giveBack(Block block) {
    if (block.empty()) {
        return;
    }
    const std::lock_guard lock(mutex_);
    if (heldBlocks_ + spareBlocks_.size() < maximumBlocks_) {
        spareBlocks_.push_back(std::move(block));
    }
}

/// The reader is through with all songs before `index`, whether or not it read all of them.
void ReadAheadFeeder::moveOn(std::size_t index) {
    {
        const std::lock_guard lock(mutex_);
        for (; current_ < std::min(index, tracks_.size()); ++current_) {
            heldBlocks_ -= tracks_[current_].blocks.size();
            tracks_[current_].blocks.clear();
        }
    }
    changed_.notify_all();
}

} // namespace scorch
