// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/recorder/WritePage.h"

#include <algorithm>

namespace recorder {

namespace {

constexpr Byte kPageCode = 0x05;
constexpr std::size_t kShortestPage = 0x32 + 2;

std::optional<WriteParameters> parse(ByteView page) {
    WriteParameters parameters;
    const unsigned type = get8(page, 2) & 15U;
    if (type != 1 && type != 2) {
        return {};
    }
    parameters.mode = static_cast<WriteMode>(type);
    parameters.isUnderrunFree = (get8(page, 2) & 0x40U) != 0;
    parameters.isTest = (get8(page, 2) & 0x10U) != 0;
    parameters.allowsNextSession = get8(page, 3) >> 6U == 3;
    parameters.control = low8(get8(page, 3) & 15U);
    if (parameters.mode == WriteMode::SessionAtOnce) {
        return parameters; // The cue sheet says what the blocks are.
    }
    switch (get8(page, 4) & 15U) {
    case 0: // 2352 bytes, of sound.
        parameters.form = SectorForm::Audio;
        parameters.blockBytes = kRawSectorBytes;
        return parameters;
    case 8: // Mode 1, 2048 bytes.
        return parameters;
    case 9: // Mode 2, 2336 bytes.
        parameters.form = SectorForm::Mode2;
        parameters.blockBytes = 2336;
        return parameters;
    case 10: // Mode 2 Form 1, 2048 bytes.
        parameters.form = SectorForm::Mode2Form1;
        return parameters;
    default:
        return {};
    }
}

} // namespace

Bytes defaultWritePage() {
    Bytes page(kWritePageBytes, 0);
    page[0] = kPageCode;
    page[1] = low8(static_cast<std::int64_t>(page.size()) - 2);
    page[2] = 1; // Track at once.
    page[3] = kControlData;
    page[4] = 8;
    put16(page, 14, kPregapBlocks); // Audio pause.
    return page;
}

Bytes changeableWritePage() {
    Bytes page(kWritePageBytes, 0xff);
    page[0] = kPageCode;
    page[1] = low8(static_cast<std::int64_t>(page.size()) - 2);
    return page;
}

WriteParameters writeParameters(const DriveMemory &memory) {
    return parse(memory.writePage).value_or(WriteParameters{});
}

bool acceptWritePage(DriveMemory &memory, ByteView page) {
    if (page.size() < kShortestPage || !parse(page)) {
        return false;
    }
    memory.writePage.fill(0);
    std::copy_n(page.begin(), std::min(page.size(), memory.writePage.size()),
                memory.writePage.begin());
    memory.writePage[0] = kPageCode;
    memory.writePage[1] = low8(static_cast<std::int64_t>(memory.writePage.size()) - 2);
    return true;
}

} // namespace recorder
