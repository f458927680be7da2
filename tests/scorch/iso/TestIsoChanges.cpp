// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/iso/ImageSource.h"
#include "scorch/iso/IsoDirectories.h"
#include "tests/scorch/iso/IsoTestSupport.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <sys/stat.h>
#include <unistd.h>

using namespace isotest;
using scorch::IsoImage;
using scorch::IsoRootEntry;
using std::filesystem::path;
using std::filesystem::resize_file;
using testing::HasSubstr;

namespace {

constexpr std::size_t mebibyte = std::size_t{1} << 20;

void append(const path &file, std::string_view text) {
    std::ofstream(file, std::ios::binary | std::ios::app) << text;
}

/// A list of three files, of which the middle one changes.
class IsoChanges : public testing::Test {
protected:
    ScorchError errorAtCreation() { return errorOf(IsoImage::create(entries_, "Test", {})); }

    /// Lays the image out, lets `change` happen, and reads it.
    template <class Change>
    ScorchError errorWhileReading(Change change) {
        const auto image = laidOut(entries_);
        change();
        return failureOf(streamed(*image->openSource()));
    }

    /// Lets `change` happen when a part of the middle file has been read.
    template <class Change>
    ScorchError errorAfterReadingAPart(Change change) {
        const scorch::IsoContents contents(entries_);
        const auto directories = scorch::isoDirectories(entries_, contents, {});
        scorch::ImageSource source(*directories, contents);
        std::vector<std::byte> part(mebibyte);
        EXPECT_TRUE(source.read(part, {}).ok());
        change();
        return failureOf(streamed(source));
    }

    static ScorchError failureOf(const Streamed &stream) {
        if (!stream.failure || scorch::isCancelled(*stream.failure)) {
            return {ScorchErrorCode::internal, "no error where one was expected"};
        }
        return std::get<ScorchError>(*stream.failure);
    }

    void expectNamed(const ScorchError &error, ScorchErrorCode code) const {
        EXPECT_EQ(error.category(), code) << error.localizedDescription();
        EXPECT_THAT(error.localizedDescription(), HasSubstr(file_.string()));
        EXPECT_FALSE(error.detail().empty());
    }

    TemporaryFolder folder_;
    path file_ = folder_.write("in/middle", std::string(3 * mebibyte, 'm'));
    std::vector<IsoRootEntry> entries_ =
        entriesOf({folder_.write("in/first", "1"), file_, folder_.write("in/last", "3")});
};

TEST_F(IsoChanges, AFileThatVanishedIsNamedBeforeAnythingIsWritten) {
    std::filesystem::remove(file_);
    expectNamed(errorAtCreation(), ScorchErrorCode::sourceMissing);
}

TEST_F(IsoChanges, AFileThatChangedItsSizeIsNamedBeforeAnythingIsWritten) {
    resize_file(file_, 5);
    expectNamed(errorAtCreation(), ScorchErrorCode::sourceChanged);
}

TEST_F(IsoChanges, AFileThatWasWrittenToIsNamedThoughItsSizeIsTheSame) {
    const timespec times[2] = {{1, 0}, {1, 0}};
    ASSERT_EQ(utimensat(AT_FDCWD, file_.c_str(), times, 0), 0);
    expectNamed(errorAtCreation(), ScorchErrorCode::sourceChanged);
}

TEST_F(IsoChanges, AFileSavedTwiceInOneSecondIsNoticed) {
    const auto node = entries_[1].node;
    const timespec time{node->mtime, node->mtimeNanoseconds == 7 ? 8 : 7};
    const timespec times[2] = {time, time};
    ASSERT_EQ(utimensat(AT_FDCWD, file_.c_str(), times, 0), 0);
    expectNamed(errorAtCreation(), ScorchErrorCode::sourceChanged);
}

TEST_F(IsoChanges, AFileThatWasReplacedIsNamed) {
    const path other = folder_.write("other", std::string(3 * mebibyte, 'o'));
    const timespec times[2] = {{entries_[1].node->mtime, entries_[1].node->mtimeNanoseconds},
                               {entries_[1].node->mtime, entries_[1].node->mtimeNanoseconds}};
    ASSERT_EQ(utimensat(AT_FDCWD, other.c_str(), times, 0), 0);
    std::filesystem::rename(other, file_);
    expectNamed(errorAtCreation(), ScorchErrorCode::sourceChanged);
}

TEST_F(IsoChanges, AnEmptyFileThatHasContentNowIsNamed) {
    file_ = folder_.write("empty", "");
    entries_ = entriesOf({file_});
    append(file_, "no longer");
    expectNamed(errorAtCreation(), ScorchErrorCode::sourceChanged);
}

TEST_F(IsoChanges, AFileThatMayNoLongerBeReadIsNamed) {
    std::filesystem::permissions(folder_.path(), std::filesystem::perms(0755));
    std::filesystem::permissions(file_, std::filesystem::perms::none);
    EXPECT_TRUE(asOrdinaryUser([&] {
        const ScorchError error = errorAtCreation();
        return error.category() == ScorchErrorCode::sourceUnreadable &&
               error.localizedDescription().find(file_.string()) != std::string::npos;
    }));
}

TEST_F(IsoChanges, AFileThatVanishesBeforeItIsReadIsNamed) {
    expectNamed(errorWhileReading([&] { std::filesystem::remove(file_); }),
                ScorchErrorCode::sourceMissing);
}

TEST_F(IsoChanges, AFileThatShrinksBeforeItIsReadIsNamed) {
    expectNamed(errorWhileReading([&] { resize_file(file_, 5); }), ScorchErrorCode::sourceChanged);
}

TEST_F(IsoChanges, AFileThatGrowsBeforeItIsReadIsNamed) {
    expectNamed(errorWhileReading([&] { append(file_, "more"); }), ScorchErrorCode::sourceChanged);
}

TEST_F(IsoChanges, AFileThatBecameAPipeIsNamedAndNotWaitedFor) {
    expectNamed(errorWhileReading([&] {
                    std::filesystem::remove(file_);
                    mkfifo(file_.c_str(), 0600);
                }),
                ScorchErrorCode::sourceChanged);
}

TEST_F(IsoChanges, AFileThatBecameAFolderIsNamed) {
    expectNamed(errorWhileReading([&] {
                    std::filesystem::remove(file_);
                    std::filesystem::create_directory(file_);
                }),
                ScorchErrorCode::sourceChanged);
}

TEST_F(IsoChanges, AFileThatShrinksWhileItIsReadIsNamed) {
    expectNamed(errorAfterReadingAPart([&] { resize_file(file_, 2 * mebibyte); }),
                ScorchErrorCode::sourceChanged);
}

TEST_F(IsoChanges, AFileThatGrowsWhileItIsReadIsNamed) {
    expectNamed(errorAfterReadingAPart([&] { append(file_, "more"); }),
                ScorchErrorCode::sourceChanged);
}

TEST_F(IsoChanges, AFileThatIsOverwrittenWhileItIsReadIsNamed) {
    expectNamed(errorAfterReadingAPart([&] {
                    std::fstream file(file_);
                    file.seekp(static_cast<std::streamoff>(2 * mebibyte));
                    file << "other";
                }),
                ScorchErrorCode::sourceChanged);
}

TEST_F(IsoChanges, AFileOnlyUnlinkedWhileItIsReadIsStillWhole) {
    const scorch::IsoContents contents(entries_);
    const auto directories = scorch::isoDirectories(entries_, contents, {});
    scorch::ImageSource source(*directories, contents);
    std::vector<std::byte> part(mebibyte);
    ASSERT_TRUE(source.read(part, {}).ok());
    std::filesystem::remove(file_);
    const Streamed rest = streamed(source);
    EXPECT_FALSE(rest.failure);
    EXPECT_EQ(part.size() + rest.bytes.size(), predictedSize(entries_));
}

TEST_F(IsoChanges, ANameThatIsNoTextIsShownReadably) {
    file_ = folder_.write("caf\xE9", "1");
    entries_ = entriesOf({file_});
    std::filesystem::remove(file_);
    EXPECT_THAT(errorAtCreation().localizedDescription(), HasSubstr("/caf\uFFFD"));
}

} // namespace
