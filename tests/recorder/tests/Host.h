// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/recorder/Recorder.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

/// A program's side of the wire: says in words what a test sends to a recorder.
class Host {
public:
    explicit Host(recorder::Recorder &recorder) : recorder_(recorder) {}

    recorder::Answer send(std::initializer_list<int> cdb, recorder::ByteView data = {});

    recorder::Answer testUnitReady() { return send({0, 0, 0, 0, 0, 0}); }
    recorder::Answer readToc(int format, int from = 0, bool asMsf = false);
    recorder::Answer discInformation() { return send({0x51, 0, 0, 0, 0, 0, 0, 0, 34, 0}); }
    recorder::Answer trackInformation(int number);
    /// Mode page 05. `control` 4 and type 8 are data in mode 1, 0 and 0 sound.
    recorder::Answer setWriteMode(recorder::WriteMode mode, int control, int blockType,
                                  bool isTest = false, bool isMulti = false);
    recorder::Answer sendCueSheet(const recorder::Bytes &sheet);
    recorder::Answer write(recorder::Lba lba, int count, recorder::ByteView data);
    recorder::Answer synchronizeCache() { return send({0x35, 0, 0, 0, 0, 0, 0, 0, 0, 0}); }
    recorder::Answer closeSession() { return send({0x5b, 0, 2, 0, 0, 0, 0, 0, 0, 0}); }
    recorder::Answer read(recorder::Lba lba, int count);
    /// READ CD with everything of the main channel, or of sound.
    recorder::Answer readCd(recorder::Lba lba, int count, int flags = 0xf8, int subChannel = 0);
    recorder::Answer eject() { return send({0x1b, 0, 0, 0, 2, 0}); }
    recorder::Answer load() { return send({0x1b, 0, 0, 0, 3, 0}); }

private:
    recorder::Recorder &recorder_;
};

/// The eight bytes of one entry of a cue sheet.
recorder::Bytes cueEntry(int controlAdr, int track, int index, int form, recorder::Lba lba);

/// The sheet of a session of sound from block 0 on with tracks of these lengths, no pregaps but
/// the first. `leadInForm` 41h asks for CD-TEXT.
recorder::Bytes audioSheet(const std::vector<int> &lengths, int leadInForm = 0x01);

/// Sectors of a pattern in which no two are alike.
recorder::Bytes pattern(std::size_t sectorBytes, int count, int seed = 1);

void appendTo(recorder::Bytes &bytes, const recorder::Bytes &more);

/// "good", or the sense as "5/26/00".
std::string outcome(const recorder::Answer &answer);

#define EXPECT_GOOD(answer) EXPECT_EQ(outcome(answer), "good")
