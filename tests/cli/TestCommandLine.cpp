// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/CommandLine.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace cli;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

using Words = std::vector<std::string>;

BurnRequest burnOf(const Words &arguments) {
    CommandLine line = parseCommandLine(arguments);
    const auto *error = std::get_if<UsageError>(&line);
    EXPECT_EQ(error, nullptr) << (error != nullptr ? error->text : "");
    const auto *burn = std::get_if<BurnRequest>(&line);
    return burn != nullptr ? *burn : BurnRequest();
}

std::string errorOf(const Words &arguments) {
    CommandLine line = parseCommandLine(arguments);
    const auto *error = std::get_if<UsageError>(&line);
    EXPECT_NE(error, nullptr);
    return error != nullptr ? error->text : std::string();
}

ImageDriveOption imageDriveOf(const std::string &value) {
    return burnOf({"burn", "--data", "--image-drive", value, "a"})
        .imageDrive.value_or(ImageDriveOption());
}

} // namespace

TEST(CommandLine, BurnHasSensibleDefaults) {
    const BurnRequest burn = burnOf({"burn", "--audio", "a.flac", "b c.mp3"});
    EXPECT_EQ(burn.kind, DiscKind::audio);
    EXPECT_EQ(burn.name, "Untitled");
    EXPECT_EQ(burn.drive, "");
    EXPECT_FALSE(burn.imageDrive);
    EXPECT_TRUE(burn.verify);
    EXPECT_FALSE(burn.json);
    EXPECT_THAT(burn.files, ElementsAre("a.flac", "b c.mp3"));
}

TEST(CommandLine, OptionsStandAnywhere) {
    const BurnRequest burn = burnOf({"--json", "burn", "a", "--data", "--name", "Photos",
                                     "--no-verify", "b", "--drive=Plextor"});
    EXPECT_EQ(burn.kind, DiscKind::data);
    EXPECT_EQ(burn.name, "Photos");
    EXPECT_EQ(burn.drive, "Plextor");
    EXPECT_FALSE(burn.verify);
    EXPECT_TRUE(burn.json);
    EXPECT_THAT(burn.files, ElementsAre("a", "b"));
}

TEST(CommandLine, WhatFollowsTwoDashesIsAFile) {
    EXPECT_THAT(burnOf({"burn", "--audio", "--", "--json", "--", "-h"}).files,
                ElementsAre("--json", "--", "-h"));
    EXPECT_THAT(burnOf({"burn", "--audio", "-"}).files, ElementsAre("-"));
}

TEST(CommandLine, FileNamesAreBytes) {
    EXPECT_THAT(burnOf({"burn", "--data", "\xFF\n"}).files, ElementsAre("\xFF\n"));
}

TEST(CommandLine, ValueMayBeginWithADashOrBeEmpty) {
    EXPECT_EQ(burnOf({"burn", "--audio", "--name", "--json", "a"}).name, "--json");
    EXPECT_EQ(burnOf({"burn", "--audio", "--name=", "a"}).name, "");
    EXPECT_EQ(burnOf({"burn", "--audio", "--name=a=b", "a"}).name, "a=b");
}

TEST(CommandLine, WrongArgumentsAreNamed) {
    EXPECT_THAT(errorOf({}), HasSubstr("burn or drives"));
    EXPECT_THAT(errorOf({"eject"}), HasSubstr("'eject'"));
    EXPECT_THAT(errorOf({"burn", "a"}), HasSubstr("--audio or --data"));
    EXPECT_THAT(errorOf({"burn", "--audio", "--data", "a"}), HasSubstr("exclude"));
    EXPECT_THAT(errorOf({"burn", "--audio"}), HasSubstr("which files"));
    EXPECT_THAT(errorOf({"burn", "--audio", ""}), HasSubstr("empty"));
    EXPECT_THAT(errorOf({"burn", "--audio", "-x", "a"}), HasSubstr("-x"));
    EXPECT_THAT(errorOf({"burn", "--audio", "--fast=1", "a"}), HasSubstr("--fast"));
    EXPECT_THAT(errorOf({"burn", "--audio", "--json=1", "a"}), HasSubstr("no value"));
    EXPECT_THAT(errorOf({"burn", "--audio", "a", "--name"}), HasSubstr("needs a value"));
    EXPECT_THAT(errorOf({"burn", "--audio", "--drive", "", "a"}), HasSubstr("needs a name"));
    EXPECT_THAT(errorOf({"burn", "--audio", "--name", "\xE9", "a"}), HasSubstr("UTF-8"));
    EXPECT_THAT(errorOf({"burn", "--audio", "--drive=x", "--image-drive=y", "a"}),
                HasSubstr("exclude"));
}

TEST(CommandLine, DrivesTakesNoFilesAndNoBurnOptions) {
    EXPECT_TRUE(std::holds_alternative<DrivesRequest>(parseCommandLine({"drives"})));
    const CommandLine line = parseCommandLine({"drives", "--json", "--image-drive", "x"});
    ASSERT_TRUE(std::holds_alternative<DrivesRequest>(line));
    EXPECT_TRUE(std::get<DrivesRequest>(line).json);
    EXPECT_EQ(std::get<DrivesRequest>(line).imageDrive->folder, "x");
    EXPECT_THAT(errorOf({"drives", "x"}), HasSubstr("'x'"));
    EXPECT_THAT(errorOf({"drives", "--audio"}), HasSubstr("--audio"));
}

TEST(CommandLine, HelpAndVersionWinOverWhatIsMissing) {
    EXPECT_TRUE(std::holds_alternative<HelpRequest>(parseCommandLine({"--help"})));
    EXPECT_TRUE(std::holds_alternative<HelpRequest>(parseCommandLine({"burn", "-h"})));
    EXPECT_TRUE(std::holds_alternative<VersionRequest>(parseCommandLine({"--version"})));
}

TEST(CommandLine, ImageDriveOptionsStandBehindThePath) {
    EXPECT_EQ(imageDriveOf("/images").folder, "/images");
    EXPECT_FALSE(imageDriveOf("/images").create);
    EXPECT_FALSE(imageDriveOf("/images").minutes);
    const ImageDriveOption both = imageDriveOf("/images,create,minutes=74");
    EXPECT_EQ(both.folder, "/images");
    EXPECT_TRUE(both.create);
    EXPECT_EQ(both.minutes, 74);
    EXPECT_EQ(imageDriveOf("/images,minutes=1,create").minutes, 1);
}

TEST(CommandLine, OtherCommasBelongToThePath) {
    EXPECT_EQ(imageDriveOf("/Bach, J. S.,create").folder, "/Bach, J. S.");
    EXPECT_EQ(imageDriveOf("/x,created").folder, "/x,created");
}

TEST(CommandLine, MinutesOfADiscAreBounded) {
    for (const char *minutes : {"0", "100", "-1", "", "8x", "99999999999999999999", "1.5"}) {
        EXPECT_THAT(errorOf({"burn", "--audio", "a",
                             "--image-drive=/images,minutes=" + std::string(minutes)}),
                    HasSubstr("1 to 99"))
            << minutes;
    }
    EXPECT_THAT(errorOf({"burn", "--audio", "a", "--image-drive=,create"}), HasSubstr("folder"));
    EXPECT_THAT(errorOf({"burn", "--audio", "a", "--image-drive="}), HasSubstr("folder"));
}

TEST(CommandLine, SettingEscapesWhatTheEngineWouldTakeApart) {
    EXPECT_EQ(imageDriveSetting({"/a:b,c\\d", std::nullopt, false}), "/a\\:b\\,c\\\\d");
    EXPECT_EQ(imageDriveSetting({"/a", 74, true}), "/a,minutes=74,create");
}

TEST(CommandLine, HelpNamesEveryOptionAndExitStatus) {
    const std::string help = helpText();
    for (const char *word :
         {"--audio", "--data", "--name", "--drive", "--image-drive", "--no-verify", "--json",
          "--help", "--version", "minutes=N", "create", "  0  ", "  1  ", "  2  ", "  3  ", "  4  ",
          "130  ", "SCORCH_IMAGE_DRIVE", "SCORCH_VERIFY"}) {
        EXPECT_THAT(help, HasSubstr(word));
    }
}

TEST(CommandLine, HelpFitsATerminalOf80Columns) {
    std::string line;
    for (const char c : helpText()) {
        line = c == '\n' ? std::string() : line + c;
        EXPECT_LE(line.size(), 80U) << line;
    }
}
