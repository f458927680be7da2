// SPDX-License-Identifier: GPL-2.0-or-later
// The recorder is right if programs that were written for real drives say so.
#include "tests/recorder/tests/Host.h"
#include "tests/recorder/tests/Programs.h"

#include <gmock/gmock.h>

using namespace recorder;
using testing::HasSubstr;

namespace {

const std::string kDevice = "/dev/sr0";

Bytes joined(Bytes first, const Bytes &second) {
    appendTo(first, second);
    return first;
}

Bytes head(const Bytes &bytes, std::size_t count) {
    return {bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(count)};
}

} // namespace

TEST_F(Programs, CdrskinListsEveryDrive) {
    DriveScene(folder.path(), "sr1").describe("vendor OTHER\nproduct SECOND DRIVE\n");
    const std::string output = mustRun({"cdrskin", "--devices"});
    EXPECT_THAT(output, HasSubstr("'EXAMPLE '  'CD-RW RECORDER'"));
    EXPECT_THAT(output, HasSubstr("'OTHER   '  'SECOND DRIVE'"));
}

TEST_F(Programs, WodimListsTheDriveAndItsAbilities) {
    // Its exit code tells nothing here.
    EXPECT_THAT(run({"wodim", "--devices"}).output, HasSubstr("'EXAMPLE' 'CD-RW RECORDER'"));
    EXPECT_THAT(mustRun({"wodim", "dev=" + kDevice, "-prcap"}),
                HasSubstr("Maximum write speed:  9172 kB/s (CD  52x"));
    const std::string atip = mustRun({"wodim", "dev=" + kDevice, "-atip"});
    EXPECT_THAT(atip, HasSubstr("Supported modes: TAO SAO"));
    EXPECT_THAT(atip, HasSubstr("ATIP start of lead out: 359849 (79:59/74)"));
}

TEST_F(Programs, CdrdaoXorrisoAndIcedaxListTheDrive) {
    EXPECT_THAT(mustRun({"cdrdao", "scanbus"}), HasSubstr("/dev/sr0 : EXAMPLE"));
    EXPECT_THAT(mustRun({"xorriso", "-devices"}), HasSubstr("'EXAMPLE ' 'CD-RW RECORDER'"));
    EXPECT_THAT(mustRun({"icedax", "-scanbus"}), HasSubstr("'CD-RW RECORDER  '"));
    EXPECT_THAT(mustRun({"cd-drive"}), HasSubstr("CD-RW RECORDER"));
}

TEST_F(Programs, CdrdaoTellsTheStateOfTheDisc) {
    insertBlank(DiscKind::CdRw);
    const std::string output = mustRun({"cdrdao", "disk-info", "--device", kDevice});
    EXPECT_THAT(output, HasSubstr("CD-RW                : yes"));
    EXPECT_THAT(output, HasSubstr("359849 blocks"));
    EXPECT_THAT(output, HasSubstr("CD-R empty           : yes"));
}

TEST_F(Programs, CdparanoiaReadsTheSoundThatCdrskinBurned) {
    mustRun({"cdrskin", "dev=" + kDevice, "-sao", "-audio", wav("1.wav", 310, 1),
             wav("2.wav", 455, 2)});
    EXPECT_EQ(scene.disc().status(), DiscStatus::Complete);
    mustRun({"cdparanoia", "-q", "-r", "-d", kDevice, "1-", path("read.raw")});
    EXPECT_EQ(bytes("read.raw"), joined(sound(310, 1), sound(455, 2)));
    const std::string info = mustRun({"cd-info", "-C", kDevice, "--no-cddb", "--no-device-info"});
    EXPECT_THAT(info, HasSubstr("2: 00:06:10  000310 audio"));
    EXPECT_THAT(info, HasSubstr("170: 00:12:15  000765 leadout"));
}

TEST_F(Programs, IcedaxReadsTheTracksThatWodimBurned) {
    mustRun({"wodim", "dev=" + kDevice, "gracetime=0", "-tao", "-audio", "-pad",
             wav("1.wav", 310, 1), wav("2.wav", 455, 2)});
    mustRun({"icedax", "-q", "-D", kDevice, "-t", "2", "-O", "cdr", "-E", "little", path("read")});
    // The run-out of the track is sound too.
    EXPECT_EQ(head(bytes("read.cdr"), 455 * kRawSectorBytes), sound(455, 2));
}

TEST_F(Programs, WodimBurnsASessionAtOnceWithPregaps) {
    mustRun({"wodim", "dev=" + kDevice, "gracetime=0", "-sao", "-audio", wav("1.wav", 310, 1),
             wav("2.wav", 455, 2)});
    EXPECT_EQ(scene.disc().trackAt(2)->pregap, 150);
    mustRun({"cdparanoia", "-q", "-r", "-d", kDevice, "1-", path("read.raw")});
    EXPECT_EQ(bytes("read.raw"), joined(sound(310, 1), sound(455, 2)));
}

TEST_F(Programs, CdrdaoFindsAgainWhatItBurned) {
    const std::string sheet = "CD_DA\nCATALOG \"1234567890123\"\n"
                              "CD_TEXT { LANGUAGE_MAP { 0 : EN }\n"
                              "  LANGUAGE 0 { TITLE \"Road trip\" PERFORMER \"Various\" } }\n"
                              "TRACK AUDIO\nISRC \"DEABC0812345\"\n"
                              "CD_TEXT { LANGUAGE 0 { TITLE \"First\" PERFORMER \"One\" } }\n"
                              "FILE \"" +
                              wav("1.wav", 310, 1) +
                              "\" 0\n"
                              "TRACK AUDIO\nISRC \"DEABC0812346\"\n"
                              "CD_TEXT { LANGUAGE 0 { TITLE \"Second\" PERFORMER \"Two\" } }\n"
                              "PREGAP 00:02:10\nFILE \"" +
                              wav("2.wav", 455, 2) + "\" 0\nINDEX 00:02:00\n";
    folder.write("disc.toc", sheet);
    // 0x10: the drive takes CD-TEXT.
    const std::string driver = "generic-mmc:0x10";
    mustRun({"cdrdao", "write", "-n", "--device", kDevice, "--driver", driver, path("disc.toc")});
    mustRun({"cdrdao", "read-toc", "--device", kDevice, "--driver", driver, path("read.toc")});
    const std::string found = readFile(folder / "read.toc");
    for (const char *expected : {"CATALOG \"1234567890123\"", "ISRC \"DEABC0812345\"",
                                 "ISRC \"DEABC0812346\"", "START 00:02:10", "INDEX 00:02:00",
                                 "TITLE \"Road trip\"", "TITLE \"Second\"", "PERFORMER \"Two\""}) {
        EXPECT_THAT(found, HasSubstr(expected));
    }
    const std::string info = mustRun({"cd-info", "-C", kDevice, "--no-cddb", "--no-device-info"});
    EXPECT_THAT(info, HasSubstr("TRACK  2 ISRC: DEABC0812346"));
    EXPECT_THAT(info, HasSubstr("TITLE: Road trip"));
    EXPECT_EQ(scene.sectors(470, 455), sound(455, 2));
}

TEST_F(Programs, CdrskinWritesTextIntoTheLeadIn) {
    folder.write("text.v07t", "Input Sheet Version = 0.7T\nText Code = 8859\n"
                              "Language Code = English\nAlbum Title = Road trip\n"
                              "Artist Name = Various\nFirst Track Number = 1\n"
                              "Last Track Number = 1\nTrack 01 Title = First\n"
                              "Track 01 Artist = One\n");
    mustRun({"cdrskin", "dev=" + kDevice, "-sao", "input_sheet_v07t=" + path("text.v07t"), "-audio",
             wav("1.wav", 310, 1)});
    const std::string info = mustRun({"cd-info", "-C", kDevice, "--no-cddb", "--no-device-info"});
    EXPECT_THAT(info, HasSubstr("TITLE: Road trip"));
    EXPECT_THAT(info, HasSubstr("PERFORMER: One"));
}

TEST_F(Programs, XorrisoExtractsTheTreeThatItBurned) {
    isoImage();
    mustRun({"xorriso", "-outdev", kDevice, "-map", path("tree"), "/", "-close", "on",
             "-commit_eject", "none"});
    EXPECT_EQ(scene.disc().status(), DiscStatus::Complete);
    mustRun({"xorriso", "-osirrox", "on", "-indev", kDevice, "-extract", "/", path("out")});
    EXPECT_EQ(bytes("out/numbers.bin"), bytes("tree/numbers.bin"));
}

TEST_F(Programs, XorrisoAppendsASession) {
    folder.write("one/first", "1");
    folder.write("two/second", "2");
    for (const char *name : {"one", "two"}) {
        mustRun({"xorriso", "-dev", kDevice, "-map", path(name), "/", "-close", "off",
                 "-commit_eject", "none"});
    }
    EXPECT_EQ(scene.disc().sessions.size(), 2U);
    EXPECT_EQ(scene.disc().status(), DiscStatus::Appendable);
    const std::string output = mustRun({"xorriso", "-indev", kDevice, "-find", "/", "-type", "f"});
    EXPECT_THAT(output, HasSubstr("'/first'"));
    EXPECT_THAT(output, HasSubstr("'/second'"));
}

TEST_F(Programs, DeviceIsReadAsAFile) {
    const std::string image = isoImage();
    mustRun({"wodim", "dev=" + kDevice, "gracetime=0", "-sao", "-data", image});
    mustRun({"dd", "if=" + kDevice, "of=" + path("read.iso"), "bs=64k"});
    EXPECT_EQ(bytes("read.iso"), bytes("image.iso"));
    EXPECT_THAT(mustRun({"isoinfo", "-i", kDevice, "-R", "-f"}), HasSubstr("/numbers.bin"));
}

TEST_F(Programs, RunOutOfATrackAtOnceCannotBeRead) {
    mustRun({"wodim", "dev=" + kDevice, "gracetime=0", "-tao", "-data", isoImage()});
    const CommandResult result = run({"dd", "if=" + kDevice, "of=" + path("read.iso"), "bs=64k"});
    EXPECT_NE(result.exitCode, 0);
    EXPECT_THAT(result.output, HasSubstr("Input/output error"));
    EXPECT_EQ(bytes("read.iso"), bytes("image.iso"));
}

TEST_F(Programs, WodimBlanksAndBurnsAgain) {
    insertBlank(DiscKind::CdRw);
    const std::string image = isoImage();
    mustRun({"wodim", "dev=" + kDevice, "gracetime=0", "-sao", "-data", image});
    EXPECT_NE(run({"wodim", "dev=" + kDevice, "gracetime=0", "-sao", "-data", image}).exitCode, 0);
    mustRun({"wodim", "dev=" + kDevice, "gracetime=0", "blank=fast"});
    EXPECT_EQ(scene.disc(), blankDisc(DiscKind::CdRw));
    mustRun({"wodim", "dev=" + kDevice, "gracetime=0", "-sao", "-data", image});
}

TEST_F(Programs, CdrskinAndCdrdaoBlank) {
    insertBlank(DiscKind::CdRw);
    const std::string song = wav("1.wav", 310, 1);
    folder.write("disc.toc", "CD_DA\nTRACK AUDIO\nFILE \"" + song + "\" 0\n");
    mustRun({"cdrdao", "write", "-n", "--device", kDevice, path("disc.toc")});
    mustRun({"cdrskin", "dev=" + kDevice, "blank=all"});
    EXPECT_EQ(scene.disc().status(), DiscStatus::Blank);
    EXPECT_EQ(scene.sectors(0, 1), Bytes(kRawSectorBytes, 0));
    mustRun({"cdrdao", "write", "-n", "--device", kDevice, path("disc.toc")});
    mustRun({"cdrdao", "blank", "--device", kDevice});
    EXPECT_EQ(scene.disc().status(), DiscStatus::Blank);
}

TEST_F(Programs, SimulatedBurnLeavesTheDiscBlank) {
    mustRun({"wodim", "-dummy", "dev=" + kDevice, "gracetime=0", "-sao", "-audio",
             wav("1.wav", 310, 1)});
    EXPECT_EQ(scene.disc(), blankDisc(DiscKind::CdR));
}

TEST_F(Programs, StrangersAreShownForWhatTheyAre) {
    makeDataDisc(scene.folder() / "disc", DiscKind::CdRom, pattern(kUserDataBytes, 400));
    EXPECT_THAT(mustRun({"cdrskin", "dev=" + kDevice, "-minfo"}), HasSubstr("CD-ROM"));
    makeDataDisc(scene.folder() / "disc", DiscKind::DvdRom, pattern(kUserDataBytes, 400));
    EXPECT_THAT(run({"cdrskin", "dev=" + kDevice, "-minfo"}).output, HasSubstr("DVD-ROM"));
}
