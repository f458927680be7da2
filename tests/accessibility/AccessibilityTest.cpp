// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/accessibility/AccessibilityTest.h"

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
        GTEST_LOG_(INFO) << readFile(folder_ / "crate.log");
    }
}

void AccessibilityTest::start(const std::vector<std::filesystem::path> &files, int rows) {
    std::vector<std::string> arguments = {CRATE_PROGRAM,        "--tool",     "CD Burner",
                                          "--image-drive",      imageFolder_, "--music",
                                          musicFolder_.string()};
    arguments.insert(arguments.end(), files.begin(), files.end());
    program_ = std::make_unique<ChildProcess>(arguments, folder_ / "crate.log");
    waitUntil("the tool's window", [this] { return !toolWindow().isNull(); });
    waitUntil("the name field", [this] { return !toolWindow().find(ATSPI_ROLE_TEXT).isNull(); });
    waitUntil("the list", [this, rows] { return list().rowCount() == rows; });
}

Accessible AccessibilityTest::windowNamed(const std::string &title) const {
    for (const Accessible &program : Accessible::desktop().children()) {
        if (program.process() != program_->process()) {
            continue;
        }
        for (const Accessible &window : program.children()) {
            if (window.name() == title && window.isShowing() &&
                window.role() != ATSPI_ROLE_DIALOG) {
                return window;
            }
        }
    }
    return {};
}

void AccessibilityTest::press(const std::string &keys) {
    EXPECT_EQ(runCommand({"xdotool", "key", "--clearmodifiers", keys}).exitCode, 0);
}
