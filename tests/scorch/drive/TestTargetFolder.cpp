// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/drive/ImageCommit.h"
#include "scorch/drive/TargetFolder.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

using namespace scorch;

namespace {

class TargetFolderTest : public testing::Test {
protected:
    TemporaryFolder folder_;
    Result<TargetFolder> opened_ = TargetFolder::open(folder_.path(), false);
    TargetFolder &target_ = opened_.value();

    std::unique_ptr<TemporaryImageFile> fileWith(std::string_view text) {
        auto file = TemporaryImageFile::create(target_);
        EXPECT_TRUE((*file)->append(std::as_bytes(std::span(text)), {}).ok());
        return std::move(*file);
    }
};

} // namespace

TEST_F(TargetFolderTest, RenamingNeverReplacesAFile) {
    folder_.write("taken", "mine");
    folder_.write("new", "other");
    EXPECT_EQ(target_.renameWithoutReplacing("new", "taken"), EEXIST);
    EXPECT_EQ(readFile(folder_ / "taken"), "mine");
    EXPECT_EQ(target_.renameWithoutReplacing("new", "free"), 0);
    EXPECT_EQ(readFile(folder_ / "free"), "other");
}

TEST_F(TargetFolderTest, ATemporaryFileGoesWithItsOwnerUnlessItIsKept) {
    fileWith("a").reset();
    EXPECT_TRUE(std::filesystem::is_empty(folder_.path()));
    auto renamed = fileWith("b");
    EXPECT_EQ(renamed->renameTo("final"), 0);
    renamed.reset();
    EXPECT_TRUE(std::filesystem::is_empty(folder_.path()));
    auto kept = fileWith("c");
    EXPECT_EQ(kept->renameTo("final"), 0);
    kept->keep();
    kept.reset();
    EXPECT_EQ(readFile(folder_ / "final"), "c");
}

TEST_F(TargetFolderTest, ANameThatIsTakenBackIsFreeAgain) {
    auto file = fileWith("a");
    EXPECT_EQ(file->renameTo("final"), 0);
    file->takeBack();
    EXPECT_FALSE(target_.contains("final"));
    EXPECT_TRUE(TemporaryImageFile::isName(file->name()));
}

TEST_F(TargetFolderTest, APairWhoseSheetCannotBeNamedLosesItsSoundToo) {
    auto sound = fileWith("sound");
    auto sheet = fileWith("");
    unlink((folder_ / sheet->name()).c_str()); // So that its renaming fails.
    const auto committed = commitAudioImage(target_, *sound, *sheet, "Disc", "Disc",
                                            {{TrackKind::audio, 300, {}, {}}});
    EXPECT_FALSE(committed.ok());
    sound.reset();
    sheet.reset();
    EXPECT_TRUE(std::filesystem::is_empty(folder_.path()));
}

TEST_F(TargetFolderTest, LeftoversThatAreNoFilesHinderNobody) {
    std::filesystem::create_directory(folder_ / ".scorch-1-1.part");
    ASSERT_EQ(mkfifo((folder_ / ".scorch-1-2.part").c_str(), 0600), 0);
    std::filesystem::create_symlink("/etc/passwd", folder_ / ".scorch-1-3.part");
    target_.removeStaleFiles();
    EXPECT_TRUE(std::filesystem::exists("/etc/passwd"));
    EXPECT_TRUE(std::filesystem::exists(folder_ / ".scorch-1-1.part"));
}

TEST_F(TargetFolderTest, WhatIsLongerThanTheWindowIsWrittenWhole) {
    const std::string mebibyte(1 << 20, 'x');
    auto file = TemporaryImageFile::create(target_);
    for (int count = 0; count < 80; ++count) {
        ASSERT_TRUE((*file)->append(std::as_bytes(std::span(mebibyte)), {}).ok());
    }
    ASSERT_TRUE((*file)->flush({}).ok());
    (*file)->dropCache();
    std::string last(1 << 20, '\0');
    ASSERT_TRUE((*file)->read(79ULL << 20U, std::as_writable_bytes(std::span(last))).ok());
    EXPECT_EQ(last, mebibyte);
    EXPECT_FALSE((*file)->read(80ULL << 20U, std::as_writable_bytes(std::span(last))).ok());
}
