// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/libburn/LibburnMessage.h"
#include "scorch/libburn/MessageInbox.h"

#include <gmock/gmock.h>

using namespace scorch;

namespace {

LibburnMessage error(int code, std::string text) {
    return {.isError = true, .code = code, .systemError = 0, .text = std::move(text)};
}

const LibburnMessage writeError =
    error(0x2011D, "SCSI error on write(1191,13): [3 0C 00] Medium error. Write error.");
const LibburnMessage refusedSheet =
    error(0x2010F, "SCSI error condition on command 5Dh SEND CUE SHEET: [5 26 00] Illegal "
                   "request. Invalid field in parameter list.");
const LibburnMessage refusedSpeed =
    error(0x2010F, "SCSI error condition on command BBh SET CD SPEED: [5 24 00] Illegal request.");
const LibburnMessage silence = error(0x201A7, "SCSI command 2Ah yielded host problem: 0x3 "
                                              "SG_ERR_DID_TIME_OUT (Timed out)");

} // namespace

TEST(LibburnMessages, SenseIsFoundInTheText) {
    EXPECT_EQ(senseIn(writeError), (Sense{3, 0x0C, 0}));
    EXPECT_EQ(senseIn(error(0, "[B 4E 1A]")), (Sense{0xB, 0x4E, 0x1A}));
    EXPECT_EQ(senseIn(error(0, "[x] [2 3A 02] Tray open.")), (Sense{2, 0x3A, 2}));
}

TEST(LibburnMessages, NoSenseIsFoundWhereThereIsNone) {
    EXPECT_EQ(senseIn(error(0, "Burn run failed")), std::nullopt);
    EXPECT_EQ(senseIn(error(0, "[0 00 00] (No error reported)")), std::nullopt);
    EXPECT_EQ(senseIn(error(0, "[3 0C")), std::nullopt);
    EXPECT_EQ(senseIn(error(0, "[3 0G 00]")), std::nullopt);
}

TEST(LibburnMessages, SectorIsFoundAlsoBeforeTheFirst) {
    EXPECT_EQ(sectorIn(writeError), 1191);
    EXPECT_EQ(sectorIn(error(0, "SCSI error on write(-150,13): [3 73 03]")), -150);
    EXPECT_EQ(sectorIn(refusedSheet), std::nullopt);
}

TEST(LibburnMessages, CommandsThatWriteFailTheRecording) {
    EXPECT_TRUE(isWriteFailure(writeError));
    EXPECT_TRUE(isWriteFailure(refusedSheet));
    EXPECT_TRUE(isWriteFailure(silence));
    EXPECT_TRUE(isWriteFailure(error(0x2010B, "Burn run failed")));
}

TEST(LibburnMessages, CommandsThatOnlyAskOrSetASpeedDoNot) {
    EXPECT_FALSE(isWriteFailure(refusedSpeed));
    EXPECT_FALSE(isWriteFailure(error(0x20105, "Drive is already released")));
    LibburnMessage note = writeError;
    note.isError = false;
    EXPECT_FALSE(isWriteFailure(note));
}

TEST(LibburnMessages, KindsAreToldApart) {
    EXPECT_TRUE(isCueSheetRefusal(refusedSheet));
    EXPECT_FALSE(isCueSheetRefusal(refusedSpeed));
    EXPECT_TRUE(isBusyRefusal(error(0x20102, "A drive operation is still going on")));
    EXPECT_TRUE(isLostConnection(error(0x201A6, "Lost connection to drive")));
    EXPECT_TRUE(isTimeOut(silence));
    EXPECT_FALSE(isTimeOut(writeError));
}

TEST(MessageInbox, KeepsErrorsAndKnowsFailures) {
    MessageInbox inbox;
    inbox.add(refusedSpeed, false);
    EXPECT_FALSE(inbox.hasFailure());
    inbox.add(writeError, false);
    EXPECT_TRUE(inbox.hasFailure());
    EXPECT_EQ(inbox.errors().size(), 2U);
    inbox.clear();
    EXPECT_FALSE(inbox.hasFailure());
    EXPECT_TRUE(inbox.errors().empty());
}

TEST(MessageInbox, FailureBehindManyHarmlessErrorsIsNoticed) {
    MessageInbox inbox;
    for (int count = 0; count < 1000; ++count) {
        inbox.add(refusedSpeed, false);
    }
    EXPECT_FALSE(inbox.hasFailure());
    EXPECT_LT(inbox.errors().size(), 100U);
    inbox.add(writeError, false);
    EXPECT_TRUE(inbox.hasFailure());
}

TEST(MessageInbox, KnowsThatTheWorkerHasGone) {
    MessageInbox inbox;
    inbox.add(writeError, false);
    EXPECT_FALSE(inbox.hasWorkerEnded());
    LibburnMessage note = error(0x20178, "Write thread on drive 0 ended");
    note.isError = false;
    inbox.add(note, false);
    EXPECT_TRUE(inbox.hasWorkerEnded());
    inbox.clear();
    EXPECT_FALSE(inbox.hasWorkerEnded());
}

TEST(MessageInbox, FailureThatMayBeOfAnotherDriveIsKeptButFailsNobody) {
    MessageInbox inbox;
    inbox.add(writeError, true);
    EXPECT_FALSE(inbox.hasFailure());
    EXPECT_EQ(inbox.errors().size(), 1U);
}
