// SPDX-License-Identifier: GPL-2.0-or-later
#include "crate/SongScanner.h"

#include "tests/crate/support/EventLoop.h"
#include "tests/support/TemporaryFolder.h"

#include <QThread>

#include <gmock/gmock.h>

#include <iterator>

namespace {

using crate::SongRow;
using crate::SongScanner;
using testing::ElementsAre;

class SongScannerTest : public testing::Test {
protected:
    SongScannerTest() {
        QObject::connect(&scanner_, &SongScanner::songsFound,
                         [this](const std::vector<SongRow> &songs) {
                             EXPECT_EQ(QThread::currentThread(), scanner_.thread());
                             for (const SongRow &row : songs) {
                                 names_.push_back(row.song.displayTitle().toStdString());
                             }
                         });
        QObject::connect(&scanner_, &SongScanner::finished,
                         [this](const QString &error) { ends_.push_back(error.toStdString()); });
    }

    TemporaryFolder folder_;
    std::vector<std::string> names_;
    std::vector<std::string> ends_;
    SongScanner scanner_;
};

TEST_F(SongScannerTest, SongsArriveBeforeTheEnd) {
    folder_.write("a.flac", "");
    folder_.write("b/c.flac", "");
    scanner_.start(folder_.path());
    EXPECT_TRUE(scanner_.isRunning());
    ASSERT_TRUE(eventually([this] { return !ends_.empty(); }));
    EXPECT_THAT(names_, ElementsAre("a", "c"));
    EXPECT_THAT(ends_, ElementsAre(""));
    EXPECT_FALSE(scanner_.isRunning());
}

TEST_F(SongScannerTest, FolderThatIsNotThereIsSaidInWords) {
    scanner_.start(folder_ / "none");
    ASSERT_TRUE(eventually([this] { return !ends_.empty(); }));
    EXPECT_THAT(ends_, ElementsAre("No such file or directory"));
}

TEST_F(SongScannerTest, NothingOfAStoppedScanArrives) {
    for (int count = 0; count < 50; ++count) {
        folder_.write(std::to_string(count) + ".flac", "");
    }
    TemporaryFolder other;
    other.write("last.flac", "");
    scanner_.start(folder_.path());
    scanner_.stop();
    EXPECT_FALSE(scanner_.isRunning());
    scanner_.start(folder_.path());
    scanner_.start(other.path());
    ASSERT_TRUE(eventually([this] { return !ends_.empty(); }));
    QCoreApplication::processEvents();
    EXPECT_THAT(names_, ElementsAre("last"));
    EXPECT_EQ(ends_.size(), 1U);
}

TEST(SongScannerEnd, WaitsForItsThread) {
    const TemporaryFolder folder;
    for (int count = 0; count < 50; ++count) {
        folder.write(std::to_string(count) + ".flac", "");
    }
    const auto threads = [] {
        const std::filesystem::directory_iterator tasks("/proc/self/task");
        return std::distance(begin(tasks), end(tasks));
    };
    const auto before = threads();
    {
        SongScanner scanner;
        scanner.start(folder.path());
    }
    EXPECT_EQ(threads(), before);
    QCoreApplication::processEvents(); // Late answers would reach what is gone.
}

} // namespace
