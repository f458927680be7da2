// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/burner/DataCheck.h"

#include <gmock/gmock.h>

#include <memory>

using namespace scorch;

namespace {

class Sink final : public CheckSink {
public:
    std::vector<std::shared_ptr<DataItem>> items;
    std::vector<CheckProgress> progress;
    void accepted(std::shared_ptr<Item> item) override {
        items.push_back(std::static_pointer_cast<DataItem>(item));
    }
    void progressed(CheckProgress report) override { progress.push_back(std::move(report)); }
};

std::shared_ptr<IsoNode> node(std::string name, std::uint64_t size) {
    auto result = std::make_shared<IsoNode>();
    result->name = std::move(name);
    result->size = size;
    return result;
}

class DataCheckTest : public testing::Test {
protected:
    DataCheckTest() {
        services_.count = [](const std::filesystem::path &path, const std::stop_token &) {
            return std::uint64_t{path == "folder" ? 3U : 1U};
        };
        services_.scan = [this](const std::filesystem::path &path, const ScanProgress &progress,
                                const std::stop_token &) {
            return scan(path, progress);
        };
        services_.clock = [this] {
            milliseconds_ += 100;
            return Moment(std::chrono::milliseconds(milliseconds_));
        };
    }
    Outcome<IsoScan> scan(const std::filesystem::path &path, const ScanProgress &progress) {
        IsoScan scan;
        if (path == "folder") {
            auto folder = node("folder", 0);
            folder->isFolder = true;
            for (const char *name : {"1", "2", "3"}) {
                progress(path / name);
                folder->children.push_back(node(name, 1000));
            }
            scan.node = folder;
            scan.refused = {{path / "pipe", "not a file"}};
        } else if (path == "pipe") {
            progress(path);
            scan.refused = {{path, "not a file"}};
        } else {
            progress(path);
            scan.node = node(path.string(), 10);
        }
        scan.upperBoundBytes = 5000;
        return scan;
    }
    CheckRefusals run(const std::vector<std::string> &names) {
        std::vector<BurnFile> files;
        files.reserve(names.size());
        for (const std::string &name : names) {
            files.push_back({name, {}, {}});
        }
        queue_.join(files);
        return checkFiles(services_, queue_, sink_, stop_.get_token());
    }

    DataCheckServices services_;
    CheckQueue queue_;
    Sink sink_;
    std::stop_source stop_;
    std::int64_t milliseconds_ = 0;
};

} // namespace

TEST_F(DataCheckTest, EachDroppedFileOrFolderIsOneItem) {
    run({"a", "folder", "b"});
    ASSERT_EQ(sink_.items.size(), 3U);
    EXPECT_EQ(sink_.items[1]->displayName, "folder");
    EXPECT_EQ(sink_.items[1]->fileBytes, 3000U);
    EXPECT_EQ(sink_.items[1]->upperBoundBytes, 5000U);
    EXPECT_EQ(std::get<std::int64_t>(sink_.items[2]->properties().at(kScorchItemFileSizeKey)), 10);
}

TEST_F(DataCheckTest, FilesInsideFoldersAreCountedAndReported) {
    run({"a", "folder", "b"});
    ASSERT_FALSE(sink_.progress.empty());
    EXPECT_EQ(sink_.progress.front().index, 1);
    EXPECT_EQ(sink_.progress.front().count, 5);
    EXPECT_EQ(queue_.looked, 5);
}

TEST_F(DataCheckTest, ReportsComeAtMostFourTimesASecond) {
    run(std::vector<std::string>(30, "a"));
    // A tenth of a second a file: every third is reported.
    ASSERT_EQ(sink_.progress.size(), 10U);
    EXPECT_EQ(sink_.progress[1].index, 4);
}

TEST_F(DataCheckTest, AFolderIsTakenWithoutWhatIsRefusedInIt) {
    const CheckRefusals refusals = run({"folder", "pipe"});
    EXPECT_EQ(sink_.items.size(), 1U);
    ASSERT_EQ(refusals.incompatibleFiles.size(), 2U);
    EXPECT_EQ(refusals.incompatibleFiles[0].path, "folder/pipe");
    EXPECT_EQ(refusals.incompatibleFiles[1].path, "pipe");
}

TEST_F(DataCheckTest, AFolderThatGrowsRaisesTheCount) {
    services_.count = [](const std::filesystem::path &, const std::stop_token &) {
        return std::uint64_t{0};
    };
    run({"folder"});
    for (const CheckProgress &report : sink_.progress) {
        EXPECT_GE(report.count, report.index);
    }
}

TEST_F(DataCheckTest, AStopKeepsWhatWasAccepted) {
    services_.scan = [this](const std::filesystem::path &path, const ScanProgress &progress,
                            const std::stop_token &stop) -> Outcome<IsoScan> {
        if (path == "b") {
            stop_.request_stop();
        }
        return stop.stop_requested() ? Outcome<IsoScan>(Interruption(Cancelled{}))
                                     : scan(path, progress);
    };
    const CheckRefusals refusals = run({"a", "b", "c"});
    EXPECT_EQ(sink_.items.size(), 1U);
    EXPECT_TRUE(refusals.incompatibleFiles.empty());
}

TEST_F(DataCheckTest, NamesOfItemsAreBytesAndShownAsText) {
    run({"caf\xE9"});
    EXPECT_EQ(sink_.items[0]->imageName, "caf\xE9");
    EXPECT_EQ(sink_.items[0]->displayName, "caf\uFFFD");
}
