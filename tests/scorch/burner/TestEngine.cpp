// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/Scorcher.h"
#include "engine/ScorcherDevice.h"
#include "engine/ScorcherDeviceDelegate.h"
#include "tests/scorch/burner/ScorchLog.h"
#include "tests/support/CommandResult.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/TestMainQueue.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cstdlib>
#include <string>

using testing::ElementsAre;
using testing::HasSubstr;

namespace {

/// The engine of the process, on an image drive in a folder. Each test has a process of its own.
class EngineTest : public testing::Test {
protected:
    EngineTest() {
        std::filesystem::create_directory(discs_);
        setenv("SCORCH_IMAGE_DRIVE", discs_.c_str(), 1);
        queue_.install();
    }
    ~EngineTest() override { Scorcher::shutDownAll(); }

    void add(Scorcher &burner, ScorchLog &log, const std::vector<std::filesystem::path> &paths) {
        std::vector<BurnFile> files;
        for (const auto &path : paths) {
            files.push_back({path, {}, {}});
        }
        burner.setDelegate(&log);
        ASSERT_TRUE(burner.addFiles(files));
        ASSERT_TRUE(queue_.runUntil([&log] { return log.checkOver(); }));
    }
    /// A WAV file of that many samples, 44.1 kHz, 16 bit, stereo.
    std::filesystem::path writeWav(const std::string &name, std::uint32_t samples) const {
        const auto number = [](std::uint32_t value, int bytes) {
            std::string text;
            for (int at = 0; at < bytes; ++at) {
                text += static_cast<char>(value >> (8 * at) & 0xFF);
            }
            return text;
        };
        std::string sound;
        for (std::uint32_t at = 0; at < samples; ++at) {
            sound += number(at * 37 % 65536, 2) + number(at * 91 % 65536, 2);
        }
        const auto size = static_cast<std::uint32_t>(sound.size());
        return folder_.write(name, "RIFF" + number(36 + size, 4) + "WAVEfmt " + number(16, 4) +
                                       number(1, 2) + number(2, 2) + number(44100, 4) +
                                       number(176400, 4) + number(4, 2) + number(16, 2) + "data" +
                                       number(size, 4) + sound);
    }

    TemporaryFolder folder_;
    std::filesystem::path discs_ = folder_ / "discs";
    TestMainQueue queue_;
};

} // namespace

TEST_F(EngineTest, HasOneBurnerOfEachKind) {
    EXPECT_EQ(Scorcher::audioCDBurner(), Scorcher::audioCDBurner());
    EXPECT_EQ(Scorcher::dataCDBurner(), Scorcher::dataCDBurner());
    EXPECT_NE(Scorcher::audioCDBurner(), Scorcher::dataCDBurner());
}

TEST_F(EngineTest, FindsTheImageDrive) {
    EXPECT_THAT(ScorcherDevice::devices(), ElementsAre("Disc image (discs)"));
    const auto device = ScorcherDevice::initWithDeviceName("Disc image (discs)");
    EXPECT_EQ(device->freeTimeOfDisc(), 359'849);
    EXPECT_FALSE(ScorcherDevice::initWithDeviceName("")->isDiscInDevice());
}

TEST_F(EngineTest, BurnsADataDiscOfThePredictedSizeThatOthersRead) {
    const auto burner = Scorcher::dataCDBurner();
    ScorchLog log(burner.get());
    folder_.write("tree/sub/deep.txt", "deep");
    folder_.write("tree/.hidden", "hidden");
    std::uint64_t bound = 0;
    log.onWord = [&](const std::string &) {
        bound = std::max(bound, burner->usedCapacity());
    };
    add(*burner, log, {folder_.write("plain.txt", "plain"), folder_ / "tree"});
    EXPECT_GE(bound, burner->usedCapacity()); // Never too small while the check ran.
    const std::uint64_t predicted = burner->usedCapacity();
    const auto device = ScorcherDevice::initWithDeviceName("Disc image (discs)");
    burner->burnWithDeviceDiscNamed(device.get(), "Holidays");
    ASSERT_TRUE(queue_.runUntil([&log] { return log.burnOver(); }));
    ASSERT_EQ(log.words.back(), "done") << log.error->localizedDescription();
    EXPECT_EQ(std::filesystem::file_size(discs_ / "Holidays.iso"), predicted);
    const CommandResult listing = runCommand(
        {"xorriso", "-indev", discs_ / "Holidays.iso", "-find", "/", "-exec", "lsdl", "--"});
    EXPECT_THAT(listing.output, HasSubstr("'/tree/sub/deep.txt'"));
    EXPECT_THAT(listing.output, HasSubstr("'/tree/.hidden'"));
}

TEST_F(EngineTest, BurnsSongsToTheByte) {
    const auto burner = Scorcher::audioCDBurner();
    ScorchLog log(burner.get());
    const auto one = writeWav("one.wav", 588 * 310 + 5);
    const auto two = writeWav("two.wav", 100);
    add(*burner, log, {one, two});
    EXPECT_EQ(burner->usedCapacity(), 611U);
    const auto device = ScorcherDevice::initWithDeviceName("Disc image (discs)");
    burner->burnWithDeviceDiscNamed(device.get(), "Songs");
    ASSERT_TRUE(queue_.runUntil([&log] { return log.burnOver(); }));
    ASSERT_EQ(log.words.back(), "done") << log.error->localizedDescription();
    const std::string sound = readFile(discs_ / "Songs.bin");
    ASSERT_EQ(sound.size(), 611U * 2352);
    EXPECT_EQ(sound.substr(0, (588 * 310 + 5) * 4), readFile(one).substr(44));
    EXPECT_EQ(sound.substr(311 * 2352, 400), readFile(two).substr(44));
    EXPECT_EQ(sound.find_first_not_of('\0', 311 * 2352 + 400), std::string::npos);
}

TEST_F(EngineTest, VerificationCanBeSwitchedOffByTheEnvironment) {
    setenv("SCORCH_VERIFY", "0", 1);
    const auto burner = Scorcher::dataCDBurner();
    ScorchLog log(burner.get());
    add(*burner, log, {folder_.write("plain.txt", "plain")});
    const auto device = ScorcherDevice::initWithDeviceName("Disc image (discs)");
    burner->burnWithDeviceDiscNamed(device.get(), "Disc");
    ASSERT_TRUE(queue_.runUntil([&log] { return log.burnOver(); }));
    EXPECT_TRUE(log.has("done"));
    EXPECT_FALSE(log.has("verifying"));
}

TEST_F(EngineTest, AFileThatShrankSinceItWasAddedFailsTheBurnAndIsNamed) {
    const auto burner = Scorcher::dataCDBurner();
    ScorchLog log(burner.get());
    const auto path = folder_.write("shrinks.txt", std::string(5000, 'x'));
    add(*burner, log, {path});
    folder_.write("shrinks.txt", "short");
    const auto device = ScorcherDevice::initWithDeviceName("Disc image (discs)");
    burner->burnWithDeviceDiscNamed(device.get(), "Disc");
    ASSERT_TRUE(queue_.runUntil([&log] { return log.burnOver(); }));
    ASSERT_TRUE(log.error);
    EXPECT_EQ(log.error->category(), ScorchErrorCode::sourceChanged);
    EXPECT_THAT(log.error->localizedDescription(), HasSubstr("shrinks.txt"));
    EXPECT_TRUE(std::filesystem::is_empty(discs_));
    EXPECT_EQ(burner->numberOfChildrenOfBurnItem(nullptr), 1);
}

TEST_F(EngineTest, ShuttingDownDuringABurnLeavesNothing) {
    const auto burner = Scorcher::dataCDBurner();
    ScorchLog log(burner.get());
    // Large enough to be still written when the stage has been told; takes no room itself.
    const auto large = folder_.write("large.bin", "x");
    std::filesystem::resize_file(large, 700'000'000);
    add(*burner, log, {large});
    const auto device = ScorcherDevice::initWithDeviceName("Disc image (discs)");
    burner->burnWithDeviceDiscNamed(device.get(), "Disc");
    ASSERT_TRUE(queue_.runUntil([&log] { return log.has("write 1/1"); }));
    Scorcher::shutDownAll();
    Scorcher::shutDownAll();
    EXPECT_TRUE(std::filesystem::is_empty(discs_));
    queue_.runPending();
    EXPECT_FALSE(log.burnOver());
}

TEST_F(EngineTest, NothingIsAcceptedAfterTheEnd) {
    const auto burner = Scorcher::dataCDBurner();
    Scorcher::shutDownAll();
    EXPECT_FALSE(burner->addFiles({{folder_.write("a", "a"), {}, {}}}));
    EXPECT_THAT(ScorcherDevice::devices(), testing::IsEmpty());
    EXPECT_NE(Scorcher::audioCDBurner(), nullptr);
}
