// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/recorder/tests/Host.h"

#include <array>
#include <cstdio>

using namespace recorder;

Answer Host::send(std::initializer_list<int> cdb, ByteView data) {
    Bytes bytes;
    for (const int byte : cdb) {
        bytes.push_back(low8(byte));
    }
    return recorder_.execute(bytes, data);
}

Answer Host::readToc(int format, int from, bool asMsf) {
    return send({0x43, asMsf ? 2 : 0, format, 0, 0, 0, from, 0xff, 0xff, 0});
}

Answer Host::trackInformation(int number) {
    return send({0x52, 1, 0, 0, 0, number, 0, 0, 36, 0});
}

Answer Host::setWriteMode(WriteMode mode, int control, int blockType, bool isTest, bool isMulti) {
    Bytes data(8 + 0x34, 0);
    data[8] = 0x05;
    data[9] = 0x32;
    data[10] = low8((isTest ? 0x10 : 0) | 0x40 | static_cast<int>(mode));
    data[11] = low8((isMulti ? 0xc0 : 0) | control);
    data[12] = low8(blockType);
    return send({0x55, 0x10, 0, 0, 0, 0, 0, 0, low8(static_cast<std::int64_t>(data.size())), 0},
                data);
}

Answer Host::sendCueSheet(const Bytes &sheet) {
    const auto size = static_cast<int>(sheet.size());
    return send({0x5d, 0, 0, 0, 0, 0, 0, size >> 8, size & 255, 0}, sheet);
}

Answer Host::write(Lba lba, int count, ByteView data) {
    return send({0x2a, 0, lba >> 24, lba >> 16, lba >> 8, lba, 0, count >> 8, count, 0}, data);
}

Answer Host::read(Lba lba, int count) {
    return send({0x28, 0, lba >> 24, lba >> 16, lba >> 8, lba, 0, count >> 8, count, 0});
}

Answer Host::readCd(Lba lba, int count, int flags, int subChannel) {
    return send(
        {0xbe, 0, lba >> 24, lba >> 16, lba >> 8, lba, 0, count >> 8, count, flags, subChannel, 0});
}

Bytes cueEntry(int controlAdr, int track, int index, int form, Lba lba) {
    Bytes entry = {low8(controlAdr), low8(track), low8(index), low8(form), 0, 0, 0, 0};
    putMsf(entry, 5, toMsf(lba));
    return entry;
}

Bytes audioSheet(const std::vector<int> &lengths, int leadInForm) {
    Bytes sheet = cueEntry(0x01, 0, 0, leadInForm, kProgramStart);
    appendTo(sheet, cueEntry(0x01, 1, 0, 0x00, kProgramStart));
    Lba lba = 0;
    int number = 0;
    for (const int length : lengths) {
        appendTo(sheet, cueEntry(0x01, ++number, 1, 0x00, lba));
        lba += length;
    }
    appendTo(sheet, cueEntry(0x01, 0xaa, 1, 0x01, lba));
    return sheet;
}

Bytes pattern(std::size_t sectorBytes, int count, int seed) {
    Bytes bytes(sectorBytes * static_cast<std::size_t>(count));
    std::uint32_t state = static_cast<std::uint32_t>(seed) * 2654435761U + 1U;
    for (Byte &byte : bytes) {
        state = state * 1664525U + 1013904223U;
        byte = static_cast<Byte>(state >> 24U);
    }
    return bytes;
}

void appendTo(Bytes &bytes, const Bytes &more) {
    bytes.insert(bytes.end(), more.begin(), more.end());
}

std::string outcome(const Answer &answer) {
    if (answer.transport != Transport::Delivered) {
        return answer.transport == Transport::TimedOut ? "timed out" : "no device";
    }
    if (!answer.sense) {
        return "good";
    }
    std::array<char, 16> text{};
    std::snprintf(text.data(), text.size(), "%x/%02x/%02x", answer.sense->key, answer.sense->code,
                  answer.sense->qualifier);
    return text.data();
}
