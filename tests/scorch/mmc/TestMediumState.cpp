// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/mmc/MediumState.h"

#include "tests/scorch/mmc/RecorderTransport.h"
#include "tests/scorch/mmc/ScriptedTransport.h"

#include <gmock/gmock.h>

#include <set>

using namespace scorch;
using namespace std::chrono_literals;
using recorder::DiscKind;
using testing::ElementsAre;
using testing::IsEmpty;
using Contents = MediumState::Contents;
using Kind = MediumState::Kind;
using Bytes = ScriptedTransport::Bytes;

namespace {

class Medium : public testing::Test {
protected:
    MediumState examine(const recorder::Disc &disc) {
        drive.scene.makeDisc(disc);
        return examine();
    }
    MediumState examine() {
        MmcDevice device = drive.device();
        const auto state = examineMedium(device, 10s);
        EXPECT_TRUE(state.ok());
        return state ? *state : MediumState();
    }

    RecorderDrive drive;
};

/// A drive with a blank disc of that profile, as far as these tests need one.
ScriptedTransport::Script blankDisc(std::uint8_t profile) {
    return {{0x00,
             [](auto) {
                 return Bytes();
             }},
            {0x46,
             [profile](auto) {
                 return Bytes{0, 0, 0, 4, 0, 0, 0, profile};
             }},
            {0x51, [](auto) {
                 return Bytes(34);
             }}};
}

std::uint8_t byteOf(std::int64_t value, unsigned shift) {
    return static_cast<std::uint8_t>(value >> shift);
}

} // namespace

TEST_F(Medium, BlankCdRHasAsManyFreeSectorsAsFitInFrontOfTheLastLeadOut) {
    const MediumState state = examine(blankCd());
    EXPECT_EQ(state.kind, Kind::cdR);
    EXPECT_EQ(state.contents, Contents::blank);
    EXPECT_EQ(state.freeSectors, 359'849); // Lead-out at 79:59:74.
    EXPECT_THAT(state.tracks, IsEmpty());
    EXPECT_EQ(state.leadOut, 0);
    EXPECT_THAT(state.writeSpeeds, ElementsAre(9172, 5644, 2822, 1411, 705));
    EXPECT_EQ(mediumName(state), "CD-R");
}

TEST_F(Medium, CdRwIsBlankOrUsed) {
    const MediumState blank = examine(blankCd(DiscKind::CdRw));
    EXPECT_EQ(blank.kind, Kind::cdRw);
    EXPECT_EQ(blank.contents, Contents::blank);
    RecorderDrive other;
    other.scene.makeDisc(usedCd(DiscKind::CdRw, true));
    MmcDevice device = other.device();
    const auto used = examineMedium(device, 10s);
    EXPECT_EQ(used->contents, Contents::complete);
    EXPECT_EQ(used->freeSectors, 0);
    EXPECT_EQ(mediumName(*used), "CD-RW");
}

TEST_F(Medium, UsedCdRHasItsTracksAndNoFreeSectors) {
    const MediumState state = examine(usedCd(DiscKind::CdR, true));
    EXPECT_EQ(state.contents, Contents::complete);
    EXPECT_THAT(state.tracks, ElementsAre(TocTrack{.number = 1, .isData = false, .start = 0}));
    EXPECT_EQ(state.leadOut, 750);
    EXPECT_EQ(state.freeSectors, 0);
}

TEST_F(Medium, AppendableDiscIsNotBlank) {
    const MediumState state = examine(usedCd(DiscKind::CdR, false));
    EXPECT_EQ(state.contents, Contents::appendable);
    EXPECT_EQ(state.freeSectors, 0);
}

TEST_F(Medium, PressedCdIsComplete) {
    const MediumState state = examine(usedCd(DiscKind::CdRom, true));
    EXPECT_EQ(state.kind, Kind::cdRom);
    EXPECT_EQ(state.contents, Contents::complete);
    EXPECT_TRUE(state.isCd());
    EXPECT_THAT(state.writeSpeeds, IsEmpty());
}

TEST_F(Medium, BlankDvdIsNoCdAndHasNoFreeSectors) {
    const MediumState state = examine(dvd(DiscKind::DvdR));
    EXPECT_EQ(state.kind, Kind::other);
    EXPECT_FALSE(state.isCd());
    EXPECT_EQ(state.contents, Contents::blank);
    EXPECT_EQ(state.freeSectors, 0);
    EXPECT_EQ(mediumName(state), "DVD-R");
}

TEST_F(Medium, NoDiscIsNoErrorAndTheTrayIsKnown) {
    EXPECT_EQ(examine().kind, Kind::none);
    EXPECT_FALSE(examine().trayOpen);
    drive.scene.control("tray open\n");
    EXPECT_TRUE(examine().trayOpen);
    EXPECT_EQ(mediumName(examine()), "");
}

TEST_F(Medium, ADriveThatBecomesReadyIsWaitedForAndUnitAttentionsAreAskedAgain) {
    drive.scene.makeDisc(blankCd());
    drive.scene.control("becoming-ready 2\ntray open #1\n");
    EXPECT_EQ(examine().kind, Kind::none);
    drive.scene.control("becoming-ready 2\ntray closed #2\n");
    EXPECT_EQ(examine().contents, Contents::blank);
}

TEST_F(Medium, PatienceComesToAnEnd) {
    ScriptedTransport::Script script = blankDisc(9);
    script[0x00] = [](auto) {
        return ScriptedTransport::sense(2, 4, 1);
    };
    MmcDevice device = ScriptedTransport::device(script);
    const auto state = examineMedium(device, 0ms);
    ASSERT_FALSE(state.ok());
    EXPECT_EQ(senseText(state.error().sense), "2/04/01");
}

TEST_F(Medium, AStopRequestEndsTheWaitingAtOnce) {
    std::stop_source stop;
    ScriptedTransport::Script script = blankDisc(9);
    script[0x00] = [&stop](auto) {
        stop.request_stop();
        return ScriptedTransport::sense(2, 4, 1);
    };
    MmcDevice device = ScriptedTransport::device(script);
    const auto state = examineMedium(device, 24h, stop.get_token());
    ASSERT_FALSE(state.ok());
    EXPECT_EQ(state.error().kind, MmcError::Kind::interrupted);
}

TEST_F(Medium, AStoppedMotorIsNoReasonToWait) {
    ScriptedTransport::Script script = blankDisc(9);
    script[0x00] = [](auto) {
        return ScriptedTransport::sense(2, 4, 2);
    };
    MmcDevice device = ScriptedTransport::device(script);
    EXPECT_EQ(examineMedium(device, 24h)->kind, Kind::cdR);
}

TEST_F(Medium, OnlyCommandsOfAReadOnlyDescriptorAreSent) {
    for (const recorder::Disc &disc :
         {blankCd(), usedCd(DiscKind::CdRw, false), dvd(DiscKind::DvdRom)}) {
        RecorderDrive each;
        each.scene.makeDisc(disc);
        MmcDevice device = each.device();
        ASSERT_TRUE(examineMedium(device, 10s).ok());
        const std::set<int> harmless = {0x00, 0x43, 0x46, 0x51, 0x52, 0x5A, 0xAC};
        for (const int command : each.commands()) {
            EXPECT_TRUE(harmless.contains(command)) << std::hex << command;
        }
    }
}

TEST_F(Medium, FreeSectorsComeFromTheGrooveWhereTheDriveDoesNotTell) {
    ScriptedTransport::Script script = blankDisc(9);
    script[0x51] = [](auto) {
        Bytes information(34);
        std::fill(information.begin() + 16, information.begin() + 24, std::uint8_t{0xFF});
        return information;
    };
    script[0x43] = [](auto command) -> ScriptedTransport::Answer {
        if (command[2] != 4) {
            return ScriptedTransport::sense(5, 0x24, 0);
        }
        Bytes atip(28);
        atip[12] = 74;
        return atip;
    };
    MmcDevice device = ScriptedTransport::device(script);
    EXPECT_EQ(examineMedium(device, 0ms)->freeSectors, 74 * 60 * 75 - 150);
}

TEST_F(Medium, FreeBlocksThatBeginInThePregapAreCutByIt) {
    ScriptedTransport::Script script = blankDisc(9);
    script[0x52] = [](auto) {
        Bytes track(36);
        track[7] = 1;
        for (unsigned index = 0; index < 4; ++index) {
            track[12 + index] = byteOf(-150, 24 - 8 * index);
            track[16 + index] = byteOf(360'000, 24 - 8 * index);
        }
        return track;
    };
    MmcDevice device = ScriptedTransport::device(script);
    EXPECT_EQ(examineMedium(device, 0ms)->freeSectors, 359'850);
}

TEST_F(Medium, ADriveWithoutProfilesIsJudgedByWhatItSaysOfTheDisc) {
    ScriptedTransport::Script script = blankDisc(0);
    script.erase(0x46);
    MmcDevice recordable = ScriptedTransport::device(script);
    EXPECT_EQ(examineMedium(recordable, 0ms)->kind, Kind::cdR);
    script[0x51] = [](auto) {
        return Bytes{0, 32, 0x10};
    };
    MmcDevice rewritable = ScriptedTransport::device(script);
    EXPECT_EQ(examineMedium(rewritable, 0ms)->kind, Kind::cdRw);
    script.erase(0x51);
    script[0x43] = [](auto command) -> ScriptedTransport::Answer {
        return command[2] == 0 ? ScriptedTransport::Answer(Bytes{0, 2, 1, 1})
                               : ScriptedTransport::sense(5, 0x24, 0);
    };
    MmcDevice pressed = ScriptedTransport::device(script);
    EXPECT_EQ(examineMedium(pressed, 0ms)->kind, Kind::cdRom);
}

TEST_F(Medium, ADiscThatGoesWhileItIsExaminedIsNoDisc) {
    ScriptedTransport::Script script = blankDisc(9);
    script[0x51] = [](auto) {
        return ScriptedTransport::sense(2, 0x3A, 2);
    };
    MmcDevice device = ScriptedTransport::device(script);
    const auto state = examineMedium(device, 0ms);
    EXPECT_EQ(state->kind, Kind::none);
    EXPECT_TRUE(state->trayOpen);
}

TEST_F(Medium, ADriveThatGoesWhileItIsAskedIsAnError) {
    ScriptedTransport::Script script = blankDisc(9);
    script[0x51] = [](auto) {
        return MmcError{
            .kind = MmcError::Kind::gone, .sense = {}, .systemError = 19, .command = {}};
    };
    MmcDevice device = ScriptedTransport::device(script);
    EXPECT_EQ(examineMedium(device, 0ms).error().kind, MmcError::Kind::gone);
}

TEST_F(Medium, ADiscThatCannotBeMadeOutIsADiscThatIsNoCd) {
    for (const MmcError &error :
         {ScriptedTransport::sense(2, 0x30, 0), ScriptedTransport::sense(5, 0x30, 2),
          ScriptedTransport::sense(3, 0x02, 0)}) {
        MmcDevice device = ScriptedTransport::device({{0x00, [error](auto) {
                                                           return error;
                                                       }}});
        const auto state = examineMedium(device, 0ms);
        EXPECT_EQ(state->kind, Kind::other);
        EXPECT_EQ(mediumName(*state), "unknown disc");
    }
}

TEST_F(Medium, KindsOfDiscsHaveTheNamesThatStandOnThem) {
    MediumState state;
    state.kind = Kind::other;
    for (const auto &[profile, name] : std::vector<std::pair<unsigned, std::string>>{
             {0x1B, "DVD+R"}, {0x2B, "DVD+R DL"}, {0x12, "DVD-RAM"}, {0x43, "BD-RE"}}) {
        state.profile = profile;
        EXPECT_EQ(mediumName(state), name);
    }
}
