// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/libburn/LibburnSession.h"

#include "scorch/libburn/CdTextPacks.h"

#include <array>
#include <cstdlib>
#include <libburn/libburn.h>
#include <span>
#include <utility>

namespace scorch {
namespace {

/// Frees a thing of libburn's when it is not needed any more.
template <auto release>
struct Releases {
    template <class T>
    void operator()(T *thing) const {
        release(thing);
    }
};

using DiscHandle = std::unique_ptr<burn::burn_disc, Releases<burn::burn_disc_free>>;
using SessionHandle = std::unique_ptr<burn::burn_session, Releases<burn::burn_session_free>>;
using TrackHandle = std::unique_ptr<burn::burn_track, Releases<burn::burn_track_free>>;
using OptionsHandle = std::unique_ptr<burn::burn_write_opts, Releases<burn::burn_write_opts_free>>;
using SourceHandle = std::unique_ptr<burn::burn_source, Releases<burn::burn_source_free>>;

/// The packs are ours: where the disc has no performer and its tracks have some, libburn's own
/// would not say that the characters are of two bytes.
bool attachText(burn::burn_write_opts *options, const CdText &text) {
    std::vector<CdTextPack> packs = cdTextPacks(text);
    return packs.size() <= mostPacks &&
           burn::burn_write_opts_set_leadin_text(options, packs.front().data(),
                                                 static_cast<int>(packs.size()), 0) > 0;
}

/// One track's part of what comes out of the ring. libburn reads it on the thread that writes.
struct TrackSource {
    std::shared_ptr<SectorRing> ring;
    std::uint64_t left;
    off_t size;
};

TrackSource &trackSource(burn::burn_source *source) {
    return *static_cast<TrackSource *>(source->data);
}

int readSource(burn::burn_source *source, unsigned char *buffer, int size) {
    TrackSource &track = trackSource(source);
    const std::size_t wanted =
        std::min<std::uint64_t>(static_cast<std::uint64_t>(size), track.left);
    const std::size_t count = track.ring->take(std::as_writable_bytes(std::span(buffer, wanted)));
    track.left -= count;
    return static_cast<int>(count);
}

off_t sourceSize(burn::burn_source *source) {
    return trackSource(source).size;
}

int setSourceSize(burn::burn_source * /*source*/, off_t /*size*/) {
    return 1; // It is fixed.
}

void freeSource(burn::burn_source *source) {
    delete &trackSource(source); // NOLINT(*-owning-memory): libburn owns it by this pointer.
}

int cancelSource(burn::burn_source * /*source*/) {
    return 1;
}

/// libburn frees a source with free(), after free_data.
SourceHandle makeSource(std::shared_ptr<SectorRing> ring, std::uint64_t bytes) {
    SourceHandle source(
        static_cast<burn::burn_source *>(std::calloc(1, sizeof(burn::burn_source)))); // NOLINT
    if (source == nullptr) {
        return source;
    }
    source->refcount = 1;
    source->version = 1;
    source->read_xt = readSource;
    source->get_size = sourceSize;
    source->set_size = setSourceSize;
    source->free_data = freeSource;
    source->cancel = cancelSource;
    source->data = new TrackSource{std::move(ring), bytes, static_cast<off_t>(bytes)}; // NOLINT
    return source;
}

} // namespace

struct LibburnSession::Handles {
    /// Freed in the opposite order: libburn counts its references, each of these holds one.
    struct DiscLayout {
        DiscHandle disc;
        SessionHandle session;
        std::vector<TrackHandle> tracks;
    };

    burn::burn_drive_info *drives = nullptr; ///< An array of one, given free with the drive.
    DiscLayout disc;
    std::vector<DiscLayout> retired;

    burn::burn_drive *drive() const { return drives->drive; }

    bool addTrack(const SessionPlan &plan, std::int64_t sectors,
                  const std::shared_ptr<SectorRing> &ring);
};

LibburnSession::LibburnSession(std::unique_ptr<Handles> handles) : handles_(std::move(handles)) {}

std::unique_ptr<LibburnSession> LibburnSession::grab(const std::filesystem::path &node) {
    auto handles = std::make_unique<Handles>();
    std::string address = node.native();
    if (burn::burn_drive_scan_and_grab(&handles->drives, address.data(), 0) <= 0) {
        if (handles->drives != nullptr) { // Found, and could not be taken.
            burn::burn_drive_info_free(handles->drives);
        }
        return nullptr;
    }
    return std::unique_ptr<LibburnSession>(new LibburnSession(std::move(handles)));
}

LibburnSession::~LibburnSession() {
    if (isAbandoned_) {
        static_cast<void>(handles_.release()); // libburn's thread goes on using all of it.
        return;
    }
    burn::burn_drive_release(handles_->drive(), 0);
    burn::burn_drive_info_free(handles_->drives);
}

bool LibburnSession::Handles::addTrack(const SessionPlan &plan, std::int64_t sectors,
                                       const std::shared_ptr<SectorRing> &ring) {
    TrackHandle track(burn::burn_track_create());
    const int mode = plan.kind == TrackKind::audio ? BURN_AUDIO : BURN_MODE1;
    // Padded, although it never needs to be: at the end of a source that was broken off, libburn
    // would go on with the next track's, by the operation that sources had in its first version.
    constexpr int padded = 1;
    burn::burn_track_define_data(track.get(), 0, 0, padded, mode);
    const SourceHandle source =
        makeSource(ring, static_cast<std::uint64_t>(sectors) * plan.bytesPerSector());
    if (source == nullptr ||
        burn::burn_track_set_source(track.get(), source.get()) != burn::BURN_SOURCE_OK ||
        burn::burn_session_add_track(disc.session.get(), track.get(), BURN_POS_END) == 0) {
        return false;
    }
    disc.tracks.push_back(std::move(track));
    return true;
}

bool LibburnSession::layOut(const SessionPlan &plan, const std::shared_ptr<SectorRing> &ring) {
    // libburn's worker may still look at what it wrote before, although the drive is idle.
    handles_->retired.push_back(std::move(handles_->disc));
    handles_->disc.tracks.clear();
    handles_->disc.disc.reset(burn::burn_disc_create());
    handles_->disc.session.reset(burn::burn_session_create());
    burn::burn_disc_add_session(handles_->disc.disc.get(), handles_->disc.session.get(),
                                BURN_POS_END);
    for (const std::int64_t sectors : plan.sectors) {
        if (!handles_->addTrack(plan, sectors, ring)) {
            return false;
        }
    }
    return true;
}

LibburnSession::Start LibburnSession::write(const SessionPlan &plan,
                                            const std::optional<CdText> &text, int speed,
                                            const std::shared_ptr<SectorRing> &ring) {
    if (!isIdle()) {
        return Start::busy;
    }
    if (!layOut(plan, ring)) {
        return Start::impossible;
    }
    const OptionsHandle options(burn::burn_write_opts_new(handles_->drive()));
    burn::burn_write_opts_set_multi(options.get(), 0); // The disc is closed with the session.
    burn::burn_write_opts_set_underrun_proof(options.get(), 1); // 0 where the drive has none.
    std::array<char, BURN_REASONS_LEN> reasons{};
    if ((text && !attachText(options.get(), *text)) ||
        burn::burn_write_opts_set_write_type(options.get(), burn::BURN_WRITE_SAO,
                                             burn::BURN_BLOCK_SAO) == 0 ||
        burn::burn_precheck_write(options.get(), handles_->disc.disc.get(), reasons.data(), 0) <=
            0) {
        return Start::impossible;
    }
    burn::burn_drive_set_speed(handles_->drive(), 0, speed);
    burn::burn_disc_write(options.get(), handles_->disc.disc.get());
    return Start::asked;
}

bool LibburnSession::isIdle() const {
    return burn::burn_drive_get_status(handles_->drive(), nullptr) == burn::BURN_DRIVE_IDLE;
}

void LibburnSession::cancel() {
    burn::burn_drive_cancel(handles_->drive());
}

bool LibburnSession::wroteWell() const {
    return burn::burn_drive_wrote_well(handles_->drive()) != 0;
}

std::vector<TrackCounters> LibburnSession::counters() const {
    std::vector<TrackCounters> counters;
    for (const TrackHandle &track : handles_->disc.tracks) {
        off_t read = 0;
        off_t written = 0;
        burn::burn_track_get_counters(track.get(), &read, &written);
        counters.push_back({static_cast<std::uint64_t>(read), static_cast<std::uint64_t>(written)});
    }
    return counters;
}

} // namespace scorch
