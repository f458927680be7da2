// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/system/host/HostTest.h"

#include <algorithm>
#include <fstream>
#include <sstream>

namespace {

constexpr std::uintmax_t longFileBytes = 500U << 20U;

std::string littleEndian(std::uint32_t value) {
    std::string bytes;
    for (int shift = 0; shift < 32; shift += 8) {
        bytes += static_cast<char>(value >> shift & 0xff);
    }
    return bytes;
}

/// Seventy minutes of silence as a WAV file that takes no space.
std::filesystem::path longSong(const TemporaryFolder &folder) {
    constexpr std::uint32_t bytesPerSecond = 44'100 * 4;
    constexpr std::uint32_t dataBytes = 70 * 60 * bytesPerSecond;
    constexpr std::uint32_t headerBytes = 44;
    // Format: PCM, two channels, four bytes a frame of 16 bits.
    const std::string format = std::string("\1\0\2\0", 4) + littleEndian(44'100) +
                               littleEndian(bytesPerSecond) + std::string("\4\0\x10\0", 4);
    std::filesystem::path file =
        folder.write("long.wav", "RIFF" + littleEndian(dataBytes + headerBytes - 8) + "WAVEfmt " +
                                     littleEndian(16) + format + "data" + littleEndian(dataBytes));
    std::filesystem::resize_file(file, dataBytes + headerBytes);
    return file;
}

} // namespace

std::filesystem::path medium(const char *name) {
    return std::filesystem::path(TEST_MEDIA_DIR) / name;
}

HostTest::HostTest() : imageFolder_(folder_ / "images"), musicFolder_(folder_ / "music") {
    std::filesystem::create_directory(imageFolder_);
    std::filesystem::create_directory(musicFolder_);
    commandLine_.toolName = QStringLiteral("CD Burner");
    commandLine_.imageDrive = QByteArray::fromStdString(imageFolder_.string());
    commandLine_.musicFolder = musicFolder_;
    commandLine_.usageLog = folder_ / "usage";
}

void HostTest::start(const std::vector<std::filesystem::path> &files) {
    commandLine_.files = files;
    std::string error;
    ASSERT_TRUE(host_.start(commandLine_, error)) << error;
    EXPECT_TRUE(toolWindow()->isVisible());
}

void HostTest::waitUntil(const char *what, const std::function<bool()> &isSo) const {
    ASSERT_TRUE(RunningHost::waitUntil(isSo)) << what;
}

void HostTest::add(const std::vector<std::filesystem::path> &files, int expectedRows) {
    EXPECT_TRUE(host_.addFiles(files));
    waitUntil("files added", [&] { return rows() == expectedRows && sheet() == nullptr; });
}

void HostTest::clickBurn() {
    auto *button = part<QPushButton>("_btnBurn");
    waitUntil("Burn enabled", [button] { return button->isEnabled(); });
    button->click();
    waitUntil("burn started", [this] { return sheet() != nullptr; });
}

void HostTest::burn(const QString &name) {
    part<QLineEdit>("_volumeName")->setText(name);
    clickBurn();
    waitUntil("burn done", [this] { return sheetButton()->text() == QStringLiteral("OK"); });
    sheetButton()->click();
    EXPECT_EQ(sheet(), nullptr);
}

void HostTest::startLongBurn() {
    const std::filesystem::path file = folder_.write("large", "");
    std::filesystem::resize_file(file, longFileBytes); // Takes no space, but time to write.
    start();
    chooseDataDisc();
    add({file}, 1);
    clickBurn();
}

void HostTest::startLongAudioBurn() {
    start();
    add({longSong(folder_)}, 1);
    clickBurn();
}

std::vector<std::string> HostTest::images() const {
    std::vector<std::string> names;
    for (const auto &entry : std::filesystem::directory_iterator(imageFolder_)) {
        names.push_back(entry.path().filename());
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::vector<std::string> HostTest::usageEvents() const {
    std::vector<std::string> keys;
    std::istringstream lines(readFile(folder_ / "usage"));
    for (std::string time, target, key; lines >> time >> target >> key;) {
        EXPECT_EQ(target, "CDBurn");
        keys.push_back(key);
    }
    return keys;
}
