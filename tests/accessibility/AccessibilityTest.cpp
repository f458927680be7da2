// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/accessibility/AccessibilityTest.h"

#include "tests/accessibility/Keyboard.h"
#include "tests/accessibility/Waiting.h"
#include "tests/support/CommandResult.h"

std::filesystem::path medium(const char *name) {
    return std::filesystem::path(TEST_MEDIA_DIR) / name;
}

AccessibilityTest::AccessibilityTest()
    : imageFolder_(folder_ / "images"), musicFolder_(folder_ / "music") {
    std::filesystem::create_directory(imageFolder_);
    std::filesystem::create_directory(musicFolder_);
}

AccessibilityTest::~AccessibilityTest() {
    if (HasFailure()) {
        for (const Accessible &program : Accessible::desktop().children()) {
            GTEST_LOG_(INFO) << program.tree();
        }
        GTEST_LOG_(INFO) << "the keyboard is with "
                         << runCommand({"xdotool", "getwindowfocus", "getwindowname"}).output
                         << "the active window is "
                         << runCommand({"xdotool", "getactivewindow", "getwindowname"}).output
                         << runCommand({"xwininfo", "-root", "-tree"}).output;
        GTEST_LOG_(INFO) << readFile(folder_ / "crate.log");
    }
}

void AccessibilityTest::start(const std::vector<std::filesystem::path> &files, int rows) {
    std::vector<std::string> arguments = {"--tool", "CD Burner", "--image-drive", imageFolder_};
    arguments.insert(arguments.end(), files.begin(), files.end());
    startHost(arguments);
    waitUntil("the tool's window", [this] { return !toolWindow().isNull(); });
    waitUntil("the name field", [this] { return !toolWindow().find(ATSPI_ROLE_TEXT).isNull(); });
    waitUntil("the list", [this, rows] { return list().rowCount() == rows && sheet().isNull(); });
}

void AccessibilityTest::startHost(const std::vector<std::string> &arguments) {
    std::vector<std::string> words = {"env"};
    words.insert(words.end(), environment_.begin(), environment_.end());
    words.insert(words.end(), {CRATE_PROGRAM, "--music", musicFolder_});
    words.insert(words.end(), arguments.begin(), arguments.end());
    program_ = std::make_unique<ChildProcess>(words, folder_ / "crate.log");
    waitUntil("the host's window", [this] { return !hostWindow().isNull(); });
}

Accessible
AccessibilityTest::window(const std::function<bool(const Accessible &)> &isWanted) const {
    for (const Accessible &program : Accessible::desktop().children()) {
        if (program.process() != program_->process()) {
            continue;
        }
        for (const Accessible &window : program.children()) {
            if (window.isShowing() && isWanted(window)) {
                return window;
            }
        }
    }
    return {};
}

Accessible AccessibilityTest::windowNamed(const std::string &title) const {
    return window([&title](const Accessible &window) {
        return window.role() == ATSPI_ROLE_FRAME && window.name() == title;
    });
}

Accessible AccessibilityTest::windowOfRole(AtspiRole role) const {
    return window([role](const Accessible &window) { return window.role() == role; });
}

Accessible AccessibilityTest::sheetButton(const std::string &name) const {
    const Accessible shown = sheet();
    return shown.isNull() ? shown : shown.find(ATSPI_ROLE_PUSH_BUTTON, name);
}

std::filesystem::path AccessibilityTest::silentSong(unsigned minutes) const {
    constexpr std::uint32_t bytesPerSecond = 44'100 * 4;
    const std::uint32_t dataBytes = minutes * 60 * bytesPerSecond;
    const auto littleEndian = [](std::uint32_t value) {
        std::string bytes;
        for (unsigned shift = 0; shift < 32; shift += 8) {
            bytes += static_cast<char>(value >> shift & 0xffU);
        }
        return bytes;
    };
    // Format: PCM, two channels, four bytes a frame of 16 bits.
    const std::string format = std::string("\1\0\2\0", 4) + littleEndian(44'100) +
                               littleEndian(bytesPerSecond) + std::string("\4\0\x10\0", 4);
    const std::string header = "RIFF" + littleEndian(dataBytes + 36) + "WAVEfmt " +
                               littleEndian(16) + format + "data" + littleEndian(dataBytes);
    std::filesystem::path file = folder_.write("silence.wav", header);
    std::filesystem::resize_file(file, header.size() + dataBytes);
    return file;
}

void AccessibilityTest::press(const std::string &keys) {
    waitUntilKeysArrive();
    EXPECT_EQ(runCommand({"xdotool", "key", "--clearmodifiers", keys}).exitCode, 0);
}

void AccessibilityTest::activate(const std::string &title) {
    EXPECT_EQ(runCommand({"xdotool", "search", "--onlyvisible", "--name", "^" + title + "$",
                          "windowactivate"})
                  .exitCode,
              0);
}
