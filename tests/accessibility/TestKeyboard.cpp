// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/accessibility/AccessibilityTest.h"
#include "tests/accessibility/AccessibleEvents.h"
#include "tests/accessibility/Waiting.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace {

using testing::ElementsAre;

class AccessibleKeyboard : public AccessibilityTest {
protected:
    void SetUp() override {
        start({medium("short.wav")}, 1);
        ASSERT_TRUE(waitUntil("focus in the name field", [this] {
            return toolWindow().find(ATSPI_ROLE_TEXT).hasState(ATSPI_STATE_FOCUSED);
        }));
    }

    /// Presses the keys and waits for the focus that comes of it; the name of what has it then.
    std::string focusAfter(const std::string &keys) {
        focus_.forget();
        press(keys);
        // The list is told of first, then its row.
        const auto hasCome = [this] {
            return !focus_.all().empty() && focus_.all().back().detail == 1 &&
                   focus_.all().back().source.role() != ATSPI_ROLE_TABLE;
        };
        return waitUntil("focus after " + keys, hasCome) ? focus_.all().back().name : "";
    }

    AccessibleEvents focus_{"object:state-changed:focused"};
};

TEST_F(AccessibleKeyboard, TabGoesThroughTheControlsInTheirOrder) {
    std::vector<std::string> order(8);
    std::generate(order.begin(), order.end(), [this] { return focusAfter("Tab"); });
    EXPECT_THAT(order, ElementsAre("Help", "short, 0:04", "Clear", "Burn", "Disc image (images)",
                                   "Eject", "Audio CD", "Volume name:"));
    EXPECT_EQ(focusAfter("shift+Tab"), "Audio CD");
}

TEST_F(AccessibleKeyboard, MnemonicOfALabelLeadsToWhatItLabels) {
    EXPECT_EQ(focusAfter("alt+d"), "Disc image (images)");
    EXPECT_EQ(focusAfter("alt+n"), "Volume name:");
}

TEST_F(AccessibleKeyboard, MnemonicOfAButtonPressesIt) {
    press("alt+l");
    waitUntil("empty list", [this] { return list().rowCount() == 0; });
}

TEST_F(AccessibleKeyboard, ReturnInTheNameFieldBurns) {
    press("Return");
    waitUntil("end of the burn", [this] { return !sheetButton("OK").isNull(); });
    press("Return");
    waitUntil("end of the sheet", [this] { return sheet().isNull(); });
}

} // namespace
