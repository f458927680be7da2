// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/mmc/DriveExamination.h"

#include "tests/scorch/mmc/ScriptedTransport.h"

#include <gtest/gtest.h>

using namespace scorch;
using Bytes = ScriptedTransport::Bytes;

namespace {

ExaminedDrive driveWith(const ScriptedTransport::Script &script) {
    return {.name = "ACME",
            .node = "/dev/sr0",
            .open = [script](const auto &) { return ScriptedTransport::device(script); },
            .patience = std::chrono::milliseconds(0)};
}

/// A drive that knows no event notification and answers TEST UNIT READY so.
ScriptedTransport::Script readiness(const ScriptedTransport::Answer &answer) {
    return {{0x00, [answer](auto) {
                 return answer;
             }}};
}

} // namespace

TEST(DriveExamination, ADriveThatTellsNoEventsIsComparedByItsReadiness) {
    const MediaEvent full{.changed = false, .trayOpen = false, .mediumPresent = true};
    const ExaminedDrive empty = driveWith(readiness(ScriptedTransport::sense(2, 0x3A, 2)));
    const auto first = glanceAtDrive(empty, std::nullopt);
    EXPECT_FALSE(first->changed);
    EXPECT_TRUE(first->trayOpen);
    EXPECT_FALSE(first->mediumPresent);
    EXPECT_TRUE(glanceAtDrive(empty, full)->changed);
    EXPECT_FALSE(glanceAtDrive(driveWith(readiness(Bytes())), full)->changed);
}

TEST(DriveExamination, AUnitAttentionIsAChange) {
    int asked = 0;
    const auto event =
        glanceAtDrive(driveWith({{0x00,
                                  [&asked](auto) -> ScriptedTransport::Answer {
                                      if (asked++ == 0) {
                                          return ScriptedTransport::sense(6, 0x28, 0);
                                      }
                                      return Bytes();
                                  }}}),
                      std::nullopt);
    EXPECT_TRUE(event->changed);
    EXPECT_TRUE(event->mediumPresent);
}

TEST(DriveExamination, ADiscThatCannotBeReadIsADisc) {
    const auto event =
        glanceAtDrive(driveWith(readiness(ScriptedTransport::sense(3, 0x02, 0))), std::nullopt);
    EXPECT_TRUE(event->mediumPresent);
    EXPECT_FALSE(event->changed) << "or it would be examined again and again";
    const DriveFindings findings =
        examineDrive(driveWith(readiness(ScriptedTransport::sense(3, 0x02, 0))), {});
    EXPECT_FALSE(findings.failure);
    EXPECT_EQ(findings.medium.kind, MediumState::Kind::other);
}

TEST(DriveExamination, AFailureIsToldInWordsAndLeavesNoMedium) {
    const DriveFindings findings =
        examineDrive(driveWith(readiness(ScriptedTransport::sense(4, 0x44, 0))), {});
    ASSERT_TRUE(findings.obstacle);
    EXPECT_EQ(findings.obstacle->category(), ScorchErrorCode::driveFailed);
    EXPECT_EQ(findings.medium, MediumState());
    EXPECT_FALSE(findings.canWriteCd) << "it was not able to say";
}

TEST(DriveExamination, ABlankMediumCountsOnlyIfItIsARecordableCd) {
    MediumState medium;
    medium.contents = MediumState::Contents::blank;
    medium.freeSectors = 1'000;
    for (const auto kind : {MediumState::Kind::cdR, MediumState::Kind::cdRw}) {
        medium.kind = kind;
        EXPECT_EQ(discState(medium),
                  (DiscState{.present = true, .isCd = true, .blank = true, .freeSectors = 1'000}));
    }
    medium.kind = MediumState::Kind::other;
    EXPECT_EQ(discState(medium),
              (DiscState{.present = true, .isCd = false, .blank = false, .freeSectors = 0}));
    EXPECT_EQ(discState(MediumState()), DiscState());
}
