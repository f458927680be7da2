// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/drive/ImageDrive.h"
#include "tests/scorch/drive/FakeContent.h"
#include "tests/scorch/drive/RecordLog.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <csignal>
#include <filesystem>
#include <optional>
#include <sys/mount.h>
#include <sys/resource.h>
#include <unistd.h>

using namespace scorch;
using testing::HasSubstr;

namespace {

namespace fs = std::filesystem;

bool isEmptyFolder(const fs::path &folder) {
    return fs::directory_iterator(folder) == fs::directory_iterator();
}

/// A small file system in memory, mounted for the life of this; needs root.
class SmallFileSystem {
public:
    SmallFileSystem(fs::path path, const char *options) : path_(std::move(path)) {
        fs::create_directories(path_);
        mounted_ = mount("tmpfs", path_.c_str(), "tmpfs", 0, options) == 0;
    }
    ~SmallFileSystem() {
        if (mounted_) {
            umount2(path_.c_str(), MNT_DETACH);
        }
    }
    SmallFileSystem(const SmallFileSystem &) = delete;
    SmallFileSystem &operator=(const SmallFileSystem &) = delete;

    bool mounted() const { return mounted_; }
    const fs::path &path() const { return path_; }
    void makeReadOnly() const {
        mount("tmpfs", path_.c_str(), "tmpfs", MS_REMOUNT | MS_RDONLY, nullptr);
    }

private:
    fs::path path_;
    bool mounted_ = false;
};

/// The largest file that this process may write, for the life of this.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t bytes) {
        getrlimit(RLIMIT_FSIZE, &before_);
        rlimit limit = before_;
        limit.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limit);
        handler_ = std::signal(SIGXFSZ, SIG_IGN);
    }
    ~FileSizeLimit() {
        std::signal(SIGXFSZ, handler_);
        setrlimit(RLIMIT_FSIZE, &before_);
    }
    FileSizeLimit(const FileSizeLimit &) = delete;
    FileSizeLimit &operator=(const FileSizeLimit &) = delete;

private:
    rlimit before_{};
    void (*handler_)(int) = nullptr;
};

class ImageDriveFailure : public testing::Test {
protected:
    TemporaryFolder folder_;
    RecordLog log_;
    std::stop_source stop_;

    std::optional<ScorchError> burn(const fs::path &folder, FakeContent &content,
                                    bool create = false) {
        drive_ = ImageDrive::create({folder, 80, create}, "Drive");
        return burnAgain(content);
    }

    /// Nothing after a success; an error of its own after a cancel.
    std::optional<ScorchError> burnAgain(FakeContent &content) {
        auto recording = drive_->beginRecording(content, stop_.get_token());
        begun_ = recording.ok();
        auto outcome = begun_ ? (*recording)->record(content, log_, stop_.get_token())
                              : Outcome<>(recording.error());
        if (outcome) {
            auto committed = (*recording)->commit();
            return committed ? std::nullopt : std::optional(committed.error());
        }
        const auto *error = std::get_if<ScorchError>(&outcome.error());
        return error != nullptr ? *error : ScorchError(ScorchErrorCode::internal, "cancelled");
    }

    std::shared_ptr<ImageDrive> drive_;
    bool begun_ = false;
};

} // namespace

TEST_F(ImageDriveFailure, AMissingFolderIsNamedBeforeTheBurn) {
    FakeContent content(TrackKind::data, {300});
    const auto error = burn(folder_ / "missing", content);
    ASSERT_TRUE(error);
    EXPECT_FALSE(begun_);
    EXPECT_EQ(error->category(), ScorchErrorCode::targetMissing);
    EXPECT_THAT(error->localizedDescription(), HasSubstr((folder_ / "missing").string()));
    EXPECT_TRUE(drive_->state().disc.blank);
}

TEST_F(ImageDriveFailure, AFolderIsNotMadeWhereItsParentIsMissing) {
    FakeContent content(TrackKind::data, {300});
    const auto error = burn(folder_ / "no" / "such", content, true);
    ASSERT_TRUE(error);
    EXPECT_EQ(error->category(), ScorchErrorCode::targetMissing);
    EXPECT_FALSE(fs::exists(folder_ / "no"));
}

TEST_F(ImageDriveFailure, AFileInTheFoldersPlaceIsAnError) {
    folder_.write("file", "x");
    FakeContent content(TrackKind::data, {300});
    for (const bool create : {false, true}) {
        const auto error = burn(folder_ / "file", content, create);
        ASSERT_TRUE(error);
        EXPECT_FALSE(begun_);
        EXPECT_EQ(error->category(), ScorchErrorCode::targetMissing);
    }
    EXPECT_EQ(readFile(folder_ / "file"), "x");
}

TEST_F(ImageDriveFailure, AReadOnlyFolderIsAnErrorBeforeTheBurn) {
    FakeContent content(TrackKind::data, {300});
    if (geteuid() != 0) {
        fs::permissions(folder_.path(), fs::perms::owner_read | fs::perms::owner_exec);
        const auto error = burn(folder_.path(), content);
        ASSERT_TRUE(error);
        EXPECT_EQ(error->category(), ScorchErrorCode::targetNotWritable);
        return;
    }
    const SmallFileSystem small(folder_ / "small", "size=4m");
    if (!small.mounted()) {
        GTEST_SKIP() << "not allowed to mount";
    }
    small.makeReadOnly();
    const auto error = burn(small.path(), content);
    ASSERT_TRUE(error);
    EXPECT_FALSE(begun_);
    EXPECT_EQ(error->category(), ScorchErrorCode::targetNotWritable);
}

TEST_F(ImageDriveFailure, TooLittleSpaceIsNoticedBeforeTheBurn) {
    const SmallFileSystem small(folder_ / "small", "size=2m");
    if (!small.mounted()) {
        GTEST_SKIP() << "not allowed to mount";
    }
    FakeContent content(TrackKind::data, {2000});
    const auto error = burn(small.path(), content);
    ASSERT_TRUE(error);
    EXPECT_FALSE(begun_);
    EXPECT_EQ(error->category(), ScorchErrorCode::targetFull);
    EXPECT_THAT(error->localizedDescription(), HasSubstr("4.2 MB"));
    EXPECT_TRUE(isEmptyFolder(small.path()));
}

TEST_F(ImageDriveFailure, AFileSizeLimitIsAnErrorAndNotTheEndOfTheProcess) {
    const FileSizeLimit limit(400'000);
    FakeContent content(TrackKind::data, {300});
    const auto error = burn(folder_.path(), content);
    ASSERT_TRUE(error);
    EXPECT_EQ(error->category(), ScorchErrorCode::targetFull);
    EXPECT_TRUE(isEmptyFolder(folder_.path()));
    EXPECT_TRUE(drive_->state().disc.blank);
}

TEST_F(ImageDriveFailure, AFailingSourceLeavesNothingAndTheNextBurnWorks) {
    FakeContent content(TrackKind::audio, {300, 300});
    content.beforeRead = [](std::int64_t sector) -> Outcome<> {
        return sector < 300 ? Outcome<>()
                            : Interruption(ScorchError(ScorchErrorCode::sourceMissing, "gone"));
    };
    const auto error = burn(folder_.path(), content);
    ASSERT_TRUE(error);
    EXPECT_EQ(error->category(), ScorchErrorCode::sourceMissing);
    EXPECT_TRUE(isEmptyFolder(folder_.path()));
    EXPECT_TRUE(drive_->state().disc.blank);
    content.beforeRead = nullptr;
    EXPECT_FALSE(burnAgain(content));
}

TEST_F(ImageDriveFailure, ASourceOfAnotherLengthThanAnnouncedIsAnError) {
    for (const std::int64_t missing : {1, -1, -600}) {
        FakeContent content(TrackKind::audio, {300, 300});
        content.missingSectors = missing;
        const auto error = burn(folder_.path(), content);
        ASSERT_TRUE(error) << missing;
        EXPECT_THAT(error->localizedDescription(), HasSubstr("song 2")) << missing;
        EXPECT_TRUE(isEmptyFolder(folder_.path()));
    }
}

TEST_F(ImageDriveFailure, ADiscThatIsTooSmallIsRefused) {
    FakeContent content(TrackKind::audio, {359'850});
    const auto error = burn(folder_.path(), content);
    ASSERT_TRUE(error);
    EXPECT_EQ(error->category(), ScorchErrorCode::doesNotFit);
    EXPECT_TRUE(isEmptyFolder(folder_.path()));
}

TEST_F(ImageDriveFailure, AStopAtAnyStageLeavesNothing) {
    for (const char *stage : {"open 1/2", "write 1/2", "close 1/2", "open 2/2", "write 2/2",
                              "close 2/2", "session", "finishing"}) {
        stop_ = std::stop_source();
        log_.onWord = [this, stage](const std::string &word) {
            if (word == stage) {
                stop_.request_stop();
            }
        };
        FakeContent content(TrackKind::audio, {300, 300});
        const auto error = burn(folder_.path(), content);
        ASSERT_TRUE(error) << stage;
        EXPECT_EQ(error->localizedDescription(), "cancelled") << stage;
        EXPECT_TRUE(isEmptyFolder(folder_.path())) << stage;
        EXPECT_TRUE(drive_->state().disc.blank) << stage;
    }
}

TEST_F(ImageDriveFailure, AFolderThatVanishesDuringTheBurnIsAnError) {
    const fs::path target = folder_ / "target";
    fs::create_directory(target);
    log_.onWord = [&target](const std::string &word) {
        if (word == "session") {
            fs::remove_all(target);
        }
    };
    FakeContent content(TrackKind::audio, {300});
    const auto error = burn(target, content);
    ASSERT_TRUE(error);
    EXPECT_TRUE(begun_);
    EXPECT_EQ(error->category(), ScorchErrorCode::targetMissing);
    EXPECT_TRUE(drive_->state().disc.blank);
}

TEST_F(ImageDriveFailure, AFolderThatIsRenamedDuringTheBurnKeepsTheImage) {
    fs::create_directory(folder_ / "before");
    log_.onWord = [this](const std::string &word) {
        if (word == "session") {
            fs::rename(folder_ / "before", folder_ / "after");
        }
    };
    FakeContent content(TrackKind::data, {300});
    EXPECT_FALSE(burn(folder_ / "before", content));
    EXPECT_EQ(readFile(folder_ / "after" / "Disc.iso"), content.bytes());
}
