// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/window/Hand.h"

#include "tests/support/CommandResult.h"
#include "tests/window/Desktop.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace {

std::vector<std::string> motion(const QPoint &place) {
    return {"mousemove", std::to_string(place.x()), std::to_string(place.y())};
}

} // namespace

void Hand::run(std::vector<std::string> words) {
    words.insert(words.begin(), "xdotool");
    const CommandResult result = runCommand(words);
    EXPECT_EQ(result.exitCode, 0) << words[1] << ": " << result.output;
}

void Hand::moveTo(const QPoint &place) {
    run(motion(place));
}

void Hand::press(int button) {
    run({"mousedown", std::to_string(button)});
    Desktop::waitForWindowManager();
}

void Hand::release(int button) {
    run({"mouseup", std::to_string(button)});
}

void Hand::clickAt(const QPoint &place, int button) {
    moveTo(place);
    press(button);
    release(button);
}

void Hand::wheel(int notches) {
    constexpr int up = 4;
    constexpr int down = 5;
    run({"click", "--repeat", std::to_string(std::abs(notches)), "--delay", "1",
         std::to_string(notches > 0 ? down : up)});
}

void Hand::keys(const std::vector<std::string> &names) {
    std::vector<std::string> words{"key", "--delay", "1"};
    words.insert(words.end(), names.begin(), names.end());
    run(words);
}

void Hand::keyDown(const std::string &name) {
    run({"keydown", name});
}

void Hand::keyUp(const std::string &name) {
    run({"keyup", name});
}

void Hand::type(const std::string &text) {
    run({"type", "--delay", "1", text});
}
