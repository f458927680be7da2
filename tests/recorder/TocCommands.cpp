// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/recorder/Commands.h"

namespace recorder {

namespace {

constexpr Byte kLeadOutNumber = 0xaa;

Byte adrControl(const Track &track) {
    return static_cast<Byte>(0x10U | track.control);
}

void putLength(Bytes &data) {
    put16(data, 0, static_cast<std::int64_t>(data.size()) - 2);
}

void appendTocEntry(Bytes &data, Byte control, int number, Lba lba, bool asMsf) {
    Bytes entry = {0, control, low8(number), 0, 0, 0, 0, 0};
    putAddress(entry, 4, lba, asMsf);
    data.insert(data.end(), entry.begin(), entry.end());
}

/// Format 0: tracks from one number on, and the lead-out. Tracks of a session that is still open
/// are known from the program memory area.
Answer formattedToc(const Disc &disc, unsigned from, bool asMsf) {
    const std::vector<const Track *> all = disc.tracks();
    if (all.empty() || (from > unsigned(disc.lastTrackNumber()) && from != kLeadOutNumber)) {
        return Answer::check(sense::kInvalidFieldInCommand);
    }
    Bytes data = {0, 0, low8(all.front()->number), low8(all.back()->number)};
    for (const Track *track : all) {
        if (static_cast<unsigned>(track->number) >= from) {
            appendTocEntry(data, adrControl(*track), track->number, track->start, asMsf);
        }
    }
    const Session &last = disc.sessions.back();
    appendTocEntry(data, adrControl(*all.back()), kLeadOutNumber,
                   last.isClosed ? last.leadOut : disc.contentsEnd(), asMsf);
    putLength(data);
    return Answer::good(std::move(data));
}

/// Format 1: where the last closed session begins.
Answer sessionInformation(const Disc &disc, bool asMsf) {
    int number = 0;
    for (const Session &session : disc.sessions) {
        number += session.isClosed ? 1 : 0;
    }
    if (number == 0) {
        return Answer::check(sense::kInvalidFieldInCommand);
    }
    const Track &first = disc.sessions[static_cast<std::size_t>(number) - 1].tracks.front();
    Bytes data = {0, 0, 1, low8(number)};
    appendTocEntry(data, adrControl(first), first.number, first.start, asMsf);
    putLength(data);
    return Answer::good(std::move(data));
}

/// An entry as it stands in sub-channel Q of a lead-in: session, ADR and control, point, and two
/// addresses, the second at PMIN.
struct RawEntry {
    int session;
    Byte control;
    Byte point;
    Msf first;
    Byte zero;
    Msf second;
};

void appendRaw(Bytes &data, const RawEntry &entry) {
    Bytes bytes = {
        low8(entry.session), entry.control, 0, entry.point, 0, 0, 0, entry.zero, 0, 0, 0};
    putMsf(bytes, 4, entry.first);
    putMsf(bytes, 8, entry.second);
    data.insert(data.end(), bytes.begin(), bytes.end());
}

void appendSession(Bytes &data, const Disc &disc, const Session &session, int number) {
    const Track &first = session.tracks.front();
    const Track &last = session.tracks.back();
    const int type = first.form == SectorForm::Mode2Form1 ? 0x20 : 0;
    appendRaw(data, {number, adrControl(first), 0xa0, {}, 0, {first.number, type, 0}});
    appendRaw(data, {number, adrControl(last), 0xa1, {}, 0, {last.number, 0, 0}});
    const Lba leadOut = session.isClosed ? session.leadOut : last.end;
    appendRaw(data, {number, adrControl(last), 0xa2, {}, 0, toMsf(leadOut)});
    for (const Track &track : session.tracks) {
        appendRaw(data, {number, adrControl(track), low8(track.number), {}, 0, toMsf(track.start)});
    }
    // Pointers to the next session: of all sessions but the last of a disc that is final.
    const bool isLast = static_cast<std::size_t>(number) == disc.sessions.size();
    if (!session.isClosed || (isLast && disc.isFinal)) {
        return;
    }
    const Lba next = isLast ? disc.nextTrackStart()
                            : disc.sessions[static_cast<std::size_t>(number)].tracks.front().start;
    const auto hooked = static_cast<Byte>(0x50U | first.control);
    appendRaw(data, {number, hooked, 0xb0, toMsf(next - kPregapBlocks), 2, toMsf(disc.capacity)});
    if (number == 1) {
        appendRaw(data, {number, hooked, 0xc0, {}, 0, toMsf(disc.leadInStart)});
    }
}

/// Format 2: all that the lead-ins say, from one session on.
Answer fullToc(const Disc &disc, unsigned from) {
    if (disc.sessions.empty() || from > disc.sessions.size()) {
        return Answer::check(sense::kInvalidFieldInCommand);
    }
    Bytes data = {0, 0, 1, low8(static_cast<std::int64_t>(disc.sessions.size()))};
    for (std::size_t index = 0; index < disc.sessions.size(); ++index) {
        if (index + 1 >= from) {
            appendSession(data, disc, disc.sessions[index], static_cast<int>(index) + 1);
        }
    }
    putLength(data);
    return Answer::good(std::move(data));
}

/// Format 3: the program memory area, of discs that are recorded here.
Answer programMemoryArea(const Disc &disc) {
    if (!disc.isRecordableCd()) {
        return Answer::check(sense::kInvalidFieldInCommand);
    }
    Bytes data = {0, 0, 0, 0};
    for (const Track *track : disc.tracks()) {
        appendRaw(data, {0, adrControl(*track), low8(track->number), toMsf(track->end), 0,
                         toMsf(track->start)});
    }
    putLength(data);
    return Answer::good(std::move(data));
}

/// Format 4: what is pressed into the groove of a recordable disc.
Answer atip(const Disc &disc) {
    if (!disc.isRecordableCd()) {
        return Answer::check(sense::kInvalidFieldInCommand);
    }
    Bytes data(28, 0);
    data[4] = 0xc0;                              // Indicative target writing power 4.
    data[6] = disc.isRewritable() ? 0xc4 : 0x88; // Rewritable, A1 valid; or write-once, sub-type 1.
    putMsf(data, 8, toMsf(disc.leadInStart));
    putMsf(data, 12, toMsf(disc.capacity));
    if (disc.isRewritable()) {
        data[4] |= 1;                         // Reference speed 2x.
        putMsf(data, 16, {0x14, 0x0a, 0x00}); // Lowest and highest test speed.
    }
    putLength(data);
    return Answer::good(std::move(data));
}

/// Format 5: CD-TEXT.
Answer leadInText(const Disc &disc) {
    Bytes data(4, 0);
    for (const TextPack &pack : disc.textPacks) {
        data.insert(data.end(), pack.begin(), pack.end());
    }
    putLength(data);
    return Answer::good(std::move(data));
}

} // namespace

Answer readTocPmaAtip(Device &device, const Command &command) {
    const Disc &disc = *device.disc;
    const bool asMsf = command.bit(1, 1);
    const unsigned from = get8(command.cdb, 6);
    unsigned format = get8(command.cdb, 2) & 15U;
    if (format == 0) {
        format = get8(command.cdb, 9) >> 6U; // Where the format stood before MMC.
    }
    Answer answer = Answer::check(sense::kInvalidFieldInCommand);
    if (format == 0) {
        answer = formattedToc(disc, from, asMsf);
    } else if (format == 1) {
        answer = sessionInformation(disc, asMsf);
    } else if (disc.isCd() && format == 2) {
        answer = fullToc(disc, from);
    } else if (format == 3) {
        answer = programMemoryArea(disc);
    } else if (format == 4) {
        answer = atip(disc);
    } else if (disc.isCd() && format == 5) {
        answer = leadInText(disc);
    }
    const std::size_t length = get16(command.cdb, 7);
    answer.data.resize(std::min(answer.data.size(), length));
    return answer;
}

} // namespace recorder
