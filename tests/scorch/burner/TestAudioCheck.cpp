// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/burner/AudioCheck.h"
#include "tests/scorch/burner/BurnerHarness.h"

#include <gmock/gmock.h>

#include <stdexcept>

using namespace scorch;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Sink final : public CheckSink {
public:
    std::vector<std::shared_ptr<AudioItem>> items;
    std::vector<CheckProgress> progress;
    std::function<void()> onAccepted;
    void accepted(std::shared_ptr<Item> item) override {
        items.push_back(std::static_pointer_cast<AudioItem>(item));
        if (onAccepted) {
            onAccepted();
        }
    }
    void progressed(CheckProgress report) override { progress.push_back(std::move(report)); }
};

class AudioCheckTest : public testing::Test {
protected:
    AudioCheckTest() {
        services_.expand = [](const std::vector<BurnFile> &files, const std::stop_token &) {
            return AudioFileList{files, {}};
        };
        services_.probe = [](const std::filesystem::path &path, const std::stop_token &) {
            return AudioProbe(AudioInfo{235'200, "", path.filename().string(), ""});
        };
        services_.threads = 2;
        services_.clock = [this] {
            return Moment(std::chrono::milliseconds(milliseconds_));
        };
    }
    CheckRefusals run(const std::vector<std::string> &names) {
        std::vector<BurnFile> files;
        files.reserve(names.size());
        for (const std::string &name : names) {
            files.push_back({name, {}, {}});
        }
        queue_.join(files);
        return checkSongs(services_, queue_, sink_, stop_.get_token());
    }
    std::vector<std::string> accepted() const {
        std::vector<std::string> names;
        for (const auto &item : sink_.items) {
            names.push_back(item->displayName);
        }
        return names;
    }

    AudioCheckServices services_;
    CheckQueue queue_;
    Sink sink_;
    std::stop_source stop_;
    std::atomic<std::int64_t> milliseconds_{0};
};

AudioInfo tags(std::string artist, std::string title) {
    return {588, std::move(artist), std::move(title), {}};
}

} // namespace

TEST(SongDisplayName, IsArtistAndTitleOrWhatIsKnown) {
    EXPECT_EQ(songDisplayName({"/m/a.mp3", {}, {}}, tags("Art", "Tit")), "Art - Tit");
    EXPECT_EQ(songDisplayName({"/m/a.mp3", {}, {}}, tags("", "Tit")), "Tit");
    EXPECT_EQ(songDisplayName({"/m/a.b.mp3", {}, {}}, tags("Art", "")), "a.b");
    EXPECT_EQ(songDisplayName({"/m/a", {}, {}}, tags("", "")), "a");
}

TEST(SongDisplayName, TheHostsWordsGoBeforeTheTags) {
    EXPECT_EQ(songDisplayName({"/m/a.mp3", "Host", "Song"}, tags("Art", "Tit")), "Host - Song");
    EXPECT_EQ(songDisplayName({"/m/a.mp3", "", "Song"}, tags("Art", "Tit")), "Art - Song");
}

TEST(SongDisplayName, BytesThatAreNoTextAreShownAllTheSame) {
    EXPECT_EQ(songDisplayName({"/m/caf\xE9.mp3", {}, {}}, tags("", "")), "caf\uFFFD");
}

TEST_F(AudioCheckTest, ResultsComeInTheOrderOfTheListWhateverTheSpeed) {
    Gate gate;
    services_.probe = [&gate](const std::filesystem::path &path, const std::stop_token &) {
        if (path == "slow") {
            gate.pass();
        } else if (path == "last") {
            gate.open(); // Only the last of the others lets the slow one go on.
        }
        return AudioProbe(AudioInfo{588, "", path.string(), ""});
    };
    run({"slow", "b", "c", "last"});
    EXPECT_THAT(accepted(), ElementsAre("slow", "b", "c", "last"));
}

TEST_F(AudioCheckTest, RefusalsAreSortedByTheirReason) {
    services_.probe = [](const std::filesystem::path &path, const std::stop_token &) -> AudioProbe {
        if (path == "locked") {
            return AudioRefusal{RefusalKind::protectedFile, "copy protection"};
        }
        return AudioRefusal{RefusalKind::incompatibleFile, "no sound"};
    };
    services_.expand = [](const std::vector<BurnFile> &files, const std::stop_token &) {
        return AudioFileList{files, {{"missing", "not there"}}};
    };
    const CheckRefusals refusals = run({"locked", "text"});
    ASSERT_EQ(refusals.protectedFiles.size(), 1U);
    EXPECT_EQ(refusals.protectedFiles[0].path, "locked");
    EXPECT_EQ(refusals.protectedFiles[0].reason, "copy protection");
    ASSERT_EQ(refusals.incompatibleFiles.size(), 2U);
    EXPECT_EQ(refusals.incompatibleFiles[0].path, "missing");
    EXPECT_EQ(refusals.incompatibleFiles[1].path, "text");
    EXPECT_THAT(sink_.items, IsEmpty());
}

TEST_F(AudioCheckTest, AnItemHasItsSectorsAndKnowsItsWords) {
    services_.probe = [](const std::filesystem::path &, const std::stop_token &) {
        return AudioProbe(AudioInfo{235'201, "Tag artist", "Tag title", ""});
    };
    std::vector<BurnFile> files = {{"a.mp3", "Artist", ""}};
    queue_.join(files);
    checkSongs(services_, queue_, sink_, {});
    ASSERT_EQ(sink_.items.size(), 1U);
    EXPECT_EQ(sink_.items[0]->sectors, 401);
    EXPECT_EQ(sink_.items[0]->samples, 235'201U);
    EXPECT_EQ(sink_.items[0]->artist, "Artist");
    EXPECT_EQ(sink_.items[0]->title, "Tag title");
}

TEST_F(AudioCheckTest, AShortSongTakesTheShortestTrack) {
    services_.probe = [](const std::filesystem::path &, const std::stop_token &) {
        return AudioProbe(AudioInfo{10, "", "t", ""});
    };
    run({"a"});
    EXPECT_EQ(std::get<std::int64_t>(sink_.items[0]->properties().at(kScorchItemDurationKey)), 300);
}

TEST_F(AudioCheckTest, TheCountIsKnownBeforeTheFirstReport) {
    run({"a", "b", "c"});
    ASSERT_EQ(sink_.progress.size(), 1U); // The clock stands still.
    EXPECT_EQ(sink_.progress[0].name, "a");
    EXPECT_EQ(sink_.progress[0].index, 1);
    EXPECT_EQ(sink_.progress[0].count, 3);
}

TEST_F(AudioCheckTest, ReportsComeAtMostFourTimesASecond) {
    sink_.onAccepted = [this] {
        milliseconds_ += 100;
    };
    run(std::vector<std::string>(20, "song"));
    // At 0 and then with every third song: 300, 600 … 1800 ms.
    ASSERT_EQ(sink_.progress.size(), 7U);
    EXPECT_EQ(sink_.progress[1].index, 4);
    EXPECT_EQ(sink_.progress.back().index, 19);
}

TEST_F(AudioCheckTest, FilesThatJoinRaiseTheCount) {
    bool joined = false;
    sink_.onAccepted = [this, &joined] {
        milliseconds_ += 300;
        if (!std::exchange(joined, true)) {
            std::vector<BurnFile> more = {{"c", {}, {}}, {"d", {}, {}}};
            EXPECT_TRUE(queue_.join(more));
        }
    };
    run({"a", "b"});
    EXPECT_THAT(accepted(), ElementsAre("a", "b", "c", "d"));
    EXPECT_EQ(sink_.progress.front().count, 2);
    EXPECT_EQ(sink_.progress.back().count, 4);
    EXPECT_EQ(sink_.progress.back().index, 4);
    std::vector<BurnFile> late = {{"late", {}, {}}};
    EXPECT_FALSE(queue_.join(late));
    EXPECT_EQ(late.size(), 1U);
}

TEST_F(AudioCheckTest, AStopEndsTheCheckWithWhatWasAccepted) {
    services_.probe = [this](const std::filesystem::path &path, const std::stop_token &stop) {
        if (path == "b") {
            Gate never;
            stop_.request_stop();
            never.pass(stop);
            return AudioProbe(Cancelled{});
        }
        return AudioProbe(AudioInfo{588, "", path.string(), ""});
    };
    services_.threads = 1;
    run({"a", "b", "c"});
    EXPECT_LE(sink_.items.size(), 1U);
}

TEST_F(AudioCheckTest, AProbeThatThrowsRefusesItsFile) {
    services_.probe = [](const std::filesystem::path &, const std::stop_token &) -> AudioProbe {
        throw std::runtime_error("boom");
    };
    const CheckRefusals refusals = run({"a"});
    ASSERT_EQ(refusals.incompatibleFiles.size(), 1U);
    EXPECT_THAT(refusals.incompatibleFiles[0].reason, testing::HasSubstr("boom"));
}

TEST_F(AudioCheckTest, NothingToLookAtIsNothingToReport) {
    services_.expand = [](const std::vector<BurnFile> &, const std::stop_token &) {
        return AudioFileList{{}, {{"empty folder", "no songs"}}};
    };
    EXPECT_EQ(run({"empty folder"}).incompatibleFiles.size(), 1U);
    EXPECT_THAT(sink_.progress, IsEmpty());
}
