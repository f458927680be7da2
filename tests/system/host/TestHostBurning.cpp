// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/CommandResult.h"
#include "tests/system/host/AlertAnswer.h"
#include "tests/system/host/HostTest.h"

#include <QApplication>

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class HostBurning : public HostTest {};

TEST_F(HostBurning, SongsOfTheCommandLineBecomeAnAudioDisc) {
    start({medium("song-44k24.flac"), medium("song-vbr.mp3")});
    waitUntil("songs listed", [this] { return rows() == 2 && sheet() == nullptr; });
    burn(QStringLiteral("Road trip"));
    EXPECT_THAT(images(), ElementsAre("Road trip.bin", "Road trip.cue"));
    const CommandResult info =
        runCommand({"cd-info", "--no-device-info", "--no-disc-mode", "--cue-file",
                    (imageFolder_ / "Road trip.cue").string()});
    EXPECT_EQ(info.exitCode, 0) << info.output;
    EXPECT_THAT(info.output, HasSubstr("1: 00:02:00  000000 audio"));
    EXPECT_THAT(info.output, HasSubstr("Track List (1 - 2)"));
    EXPECT_THAT(info.output, HasSubstr("TITLE: Road trip"));
    EXPECT_EQ(std::filesystem::file_size(imageFolder_ / "Road trip.bin") % 2352, 0U);
    EXPECT_EQ(rows(), 0);
}

TEST_F(HostBurning, FolderBecomesADataDiscWithTheSameFiles) {
    const std::string content(100'000, 'x');
    folder_.write("Photos/one.txt", content);
    folder_.write("Photos/deep/caf\xe9.txt", "bytes");
    start();
    chooseDataDisc();
    add({folder_ / "Photos"}, 1);
    burn(QStringLiteral("Photos"));
    ASSERT_THAT(images(), ElementsAre("Photos.iso"));
    const std::filesystem::path copy = folder_ / "copy";
    const CommandResult read =
        runCommand({"xorriso", "-osirrox", "on", "-indev", (imageFolder_ / "Photos.iso").string(),
                    "-extract", "/", copy.string()});
    ASSERT_EQ(read.exitCode, 0) << read.output;
    EXPECT_EQ(readFile(copy / "Photos/one.txt"), content);
    EXPECT_EQ(readFile(copy / "Photos/deep/caf\xe9.txt"), "bytes");
}

TEST_F(HostBurning, UsageEventsComeInTheirOrder) {
    start({medium("short.wav")});
    waitUntil("song listed", [this] { return rows() == 1 && sheet() == nullptr; });
    burn(QStringLiteral("Short"));
    EXPECT_THAT(usageEvents(), ElementsAre("CDBurn_Open", "CDBurn_Blankdisk", "CDBurn_BurnStart",
                                           "CDBurn_BurnStart_Audio", "CDBurn_BurnOK"));
}

TEST_F(HostBurning, FolderThatIsMissingIsAnErrorThatKeepsTheList) {
    start({medium("short.wav")});
    waitUntil("song listed", [this] { return rows() == 1 && sheet() == nullptr; });
    std::filesystem::remove(imageFolder_);
    AlertAnswer answer(QStringLiteral("OK"));
    part<QPushButton>("_btnBurn")->click();
    waitUntil("alert", [&answer] { return answer.count() == 1; });
    EXPECT_EQ(answer.message(), QStringLiteral("Error"));
    EXPECT_FALSE(answer.informative().isEmpty());
    EXPECT_EQ(sheet(), nullptr);
    EXPECT_EQ(rows(), 1);
    EXPECT_THAT(usageEvents(), testing::Contains("CDBurn_BurnFail"));
}

TEST_F(HostBurning, RefusedFilesAreLeftOutSilently) {
    folder_.write("notes.txt", "not a song");
    start({folder_ / "notes.txt", medium("short.wav")});
    waitUntil("song listed", [this] { return rows() == 1 && sheet() == nullptr; });
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

} // namespace
