// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/audio/AudioBackend.h"
#include "scorch/audio/SongStream.h"

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

namespace scorch {

/// Decodes the songs of a disc ahead of their reader. Each worker takes the next song that nobody
/// has taken and fills blocks of whole sectors until the song ends or the memory that all songs
/// share is used up. The song that is being read may always have a few blocks more, so that a long
/// one moves on, however much the later songs hold.
///
/// Checks what the decoder delivers against what was counted: fewer samples or more are errors, and
/// no silence stands in for what is missing. Pads the last sector, and songs shorter than a track
/// may be, with zeros.
class ReadAheadFeeder final : public AudioFeeder {
public:
    /// How much is decoded ahead at most, over all songs.
    static constexpr std::size_t defaultMemoryBytes = std::size_t{96} << 20;

    /// Starts up to `workers` threads (at least one). `openSong` is called on them.
    ReadAheadFeeder(std::vector<AudioTrackRequest> tracks, unsigned workers, OpenSong openSong,
                    std::size_t memoryBytes = defaultMemoryBytes);
    ~ReadAheadFeeder() override;

    std::unique_ptr<SectorSource> openTrack(std::size_t index) override;

private:
    class Source;

    /// A piece of a song: whole sectors, ready to be written.
    using Block = std::vector<std::byte>;

    /// Where a song stands. Guarded by mutex_.
    struct Track {
        AudioTrackRequest request;
        std::deque<Block> blocks;
        bool ended = false; ///< Nothing follows the blocks but `failure`, if there is one.
        std::optional<Interruption> failure;
    };

    void work(const std::stop_token &stop);
    std::optional<Interruption> decode(std::size_t index, const std::stop_token &stop);
    bool waitForRoom(std::size_t index, const std::stop_token &stop);
    bool mayAddBlock(std::size_t index) const;
    bool append(std::size_t index, Block block);
    Block takeSpareBlock();
    Outcome<std::optional<Block>> nextBlock(std::size_t index, const std::stop_token &stop);
    void giveBack(Block block);
    void moveOn(std::size_t index);

    const OpenSong openSong_;
    const std::size_t maximumBlocks_;

    std::mutex mutex_;
    std::condition_variable_any changed_; ///< Room came up, a block arrived, a song ended.
    std::vector<Track> tracks_;
    std::vector<Block> spareBlocks_;
    std::size_t heldBlocks_ = 0; ///< Blocks that wait in any track.
    std::size_t nextTrack_ = 0;  ///< The first that no worker has taken.
    std::size_t current_ = 0;    ///< The song that is being read, or will be next.

    std::vector<std::jthread> workers_; ///< Last: they use all of the above.
};

} // namespace scorch
