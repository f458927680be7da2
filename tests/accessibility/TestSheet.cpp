// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/accessibility/AccessibilityTest.h"
#include "tests/accessibility/AccessibleEvents.h"
#include "tests/accessibility/Waiting.h"
#include "tests/support/HeldImages.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace {

using testing::IsSupersetOf;
using testing::SizeIs;

class AccessibleSheet : public AccessibilityTest {
protected:
    void burnFromButton() {
        ASSERT_TRUE(button("Burn").act("Press"));
        waitUntil("the sheet", [this] { return !sheet().isNull(); });
    }
    Accessible alert() const { return windowOfRole(ATSPI_ROLE_ALERT); }

    /// A burn that goes on until it is let.
    void startHeldBurn(const HeldImages &held) {
        environment_ = held.environment();
        start({silentSong(70)}, 1);
        burnFromButton();
    }
};

TEST_F(AccessibleSheet, BurnIsAnnouncedStepByStep) {
    start({silentSong(40)}, 1);
    const AccessibleEvents names("object:property-change:accessible-name");
    const AccessibleEvents shown("object:state-changed:showing");
    burnFromButton();
    waitUntil("the last step", [&shown] {
        const auto spoken = shown.names(ATSPI_ROLE_NOTIFICATION);
        return !spoken.empty() && spoken.back() == "Eject CD";
    });
    // Steps that are over at once may have given way to the next one before they are asked for.
    EXPECT_THAT(names.names(ATSPI_ROLE_NOTIFICATION),
                IsSupersetOf({"Burning 'Untitled'", "Verifying CD", "Finish burning", "Eject CD"}));
    EXPECT_THAT(shown.names(ATSPI_ROLE_NOTIFICATION),
                IsSupersetOf({"Burning 'Untitled'", "Verifying CD", "Finish burning", "Eject CD"}));
    EXPECT_FALSE(sheetButton("OK").isNull());
}

TEST_F(AccessibleSheet, TimeLeftIsAnnouncedByTenthsOfTheWay) {
    start({silentSong(60)}, 1);
    const AccessibleEvents names("object:property-change:accessible-name");
    const AccessibleEvents values("object:property-change:accessible-value");
    burnFromButton();
    waitUntil("the end of the burn", [this] { return !sheetButton("OK").isNull(); });
    std::vector<std::string> times = names.names(ATSPI_ROLE_NOTIFICATION);
    std::erase_if(times, [](const std::string &text) { return text.rfind("Left time", 0) != 0; });
    EXPECT_THAT(times, SizeIs(testing::Le(11U)));
    const auto bars = std::count_if(
        values.all().begin(), values.all().end(),
        [](const AccessibleEvents::Event &event) { return event.name == "Progress"; });
    EXPECT_GE(bars, 1);
    EXPECT_LE(bars, 11);
}

TEST_F(AccessibleSheet, SheetHasItsTextsItsBarAndItsButton) {
    const HeldImages held(imageFolder_);
    startHeldBurn(held);
    EXPECT_EQ(sheet().name(), "CD Burner");
    EXPECT_FALSE(sheet().find(ATSPI_ROLE_NOTIFICATION, "Burning 'Untitled'").isNull());
    const Accessible bar = sheet().find(ATSPI_ROLE_PROGRESS_BAR, "Progress");
    EXPECT_EQ(bar.maximumValue(), 100.0);
    EXPECT_TRUE(sheetButton("Cancel").hasState(ATSPI_STATE_ENABLED));
    waitUntil("focus on the button",
              [this] { return sheetButton("Cancel").hasState(ATSPI_STATE_FOCUSED); });
}

TEST_F(AccessibleSheet, CancelAsksAndEscapeMeansNo) {
    const HeldImages held(imageFolder_);
    startHeldBurn(held);
    sheetButton("Cancel").act("Press");
    waitUntil("the question", [this] { return !alert().isNull(); });
    const std::string question =
        "The disc may not be usable anymore. Are you sure you want to cancel?";
    EXPECT_FALSE(alert().find(ATSPI_ROLE_LABEL, question).isNull());
    EXPECT_FALSE(alert().find(ATSPI_ROLE_PUSH_BUTTON, "Yes").isNull());
    press("Escape");
    waitUntil("the question's end", [this] { return alert().isNull(); });
    waitUntil("the sheet's button",
              [this] { return sheetButton("Cancel").hasState(ATSPI_STATE_ENABLED); });
}

TEST_F(AccessibleSheet, ReturnMeansYesAndTheBurnIsCancelled) {
    const HeldImages held(imageFolder_);
    startHeldBurn(held);
    press("Escape"); // On the sheet it is its button.
    waitUntil("the question", [this] {
        return alert().find(ATSPI_ROLE_PUSH_BUTTON, "Yes").hasState(ATSPI_STATE_FOCUSED);
    });
    press("Return");
    waitUntil("the question's end", [this] { return alert().isNull(); });
    held.release();
    waitUntil("the sheet's end", [this] { return sheet().isNull(); });
    EXPECT_EQ(list().rowCount(), 1);
    EXPECT_TRUE(std::filesystem::is_empty(imageFolder_));
}

TEST_F(AccessibleSheet, ErrorIsAnAlertWithItsText) {
    start({medium("short.wav")}, 1);
    std::filesystem::remove(imageFolder_);
    ASSERT_TRUE(button("Burn").act("Press"));
    waitUntil("the alert", [this] { return !alert().isNull(); });
    EXPECT_FALSE(alert().find(ATSPI_ROLE_LABEL, "Error").isNull());
    press("Return");
    waitUntil("the alert's end", [this] { return alert().isNull(); });
    EXPECT_EQ(list().rowCount(), 1);
}

} // namespace
