// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/accessibility/AccessibilityTest.h"
#include "tests/accessibility/AccessibleEvents.h"
#include "tests/accessibility/Waiting.h"

#include <gmock/gmock.h>

#include <cstdlib>

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class AccessibleWindow : public AccessibilityTest {
protected:
    /// The names of what is seen of one role in a window, in its order.
    static std::vector<std::string> names(const Accessible &window, AtspiRole role) {
        std::vector<std::string> names;
        for (const Accessible &object : window.all([role](const Accessible &object) {
                 return object.role() == role && object.isShowing();
             })) {
            names.push_back(object.name());
        }
        return names;
    }

    /// What a person can do something with, or is shown something by, and that has no name.
    static std::vector<std::string> nameless(const Accessible &window) {
        std::vector<std::string> found;
        for (const Accessible &object : window.all([](const Accessible &object) {
                 return object.isShowing() && object.name().empty() &&
                        object.role() != ATSPI_ROLE_FILLER && object.role() != ATSPI_ROLE_FRAME &&
                        object.role() != ATSPI_ROLE_LAYERED_PANE &&
                        object.role() != ATSPI_ROLE_MENU_BAR;
             })) {
            found.push_back(object.roleName());
        }
        return found;
    }
};

TEST_F(AccessibleWindow, ControlsHaveTheirRolesAndNames) {
    start({medium("short.wav")}, 1);
    const Accessible window = toolWindow();
    EXPECT_EQ(window.role(), ATSPI_ROLE_FRAME);
    EXPECT_THAT(names(window, ATSPI_ROLE_PUSH_BUTTON),
                ElementsAre("Eject", "Help", "Clear", "Burn"));
    EXPECT_THAT(names(window, ATSPI_ROLE_COMBO_BOX),
                ElementsAre("Disc image (images)", "Audio CD"));
    EXPECT_THAT(names(window, ATSPI_ROLE_TEXT), ElementsAre("Volume name:"));
    EXPECT_THAT(names(window, ATSPI_ROLE_TABLE), ElementsAre("Burn list"));
    EXPECT_THAT(names(window, ATSPI_ROLE_PROGRESS_BAR), ElementsAre("Used capacity"));
    EXPECT_EQ(window.find(ATSPI_ROLE_TEXT).text(), "Untitled");
    EXPECT_THAT(nameless(window), IsEmpty());
}

TEST_F(AccessibleWindow, PopupsAreLabelled) {
    start();
    const Accessible window = toolWindow();
    EXPECT_THAT(window.find(ATSPI_ROLE_COMBO_BOX, "Disc image (images)").labels(),
                ElementsAre("Disc drive:"));
    EXPECT_THAT(window.find(ATSPI_ROLE_COMBO_BOX, "Audio CD").labels(), ElementsAre("Disc type"));
}

TEST_F(AccessibleWindow, EmptyListSaysWhatToDropThere) {
    start();
    EXPECT_FALSE(toolWindow().find(ATSPI_ROLE_IMAGE, "Drag music files here").isNull());
    EXPECT_FALSE(toolWindow().find(ATSPI_ROLE_LABEL, "Drag music files here").isNull());
    EXPECT_THAT(nameless(toolWindow()), IsEmpty());
}

TEST_F(AccessibleWindow, CapacityIsReadAsTextAndAsAPercentage) {
    // Sixteen minutes of an 80 minute disc.
    start({silentSong(16)}, 1);
    EXPECT_THAT(names(toolWindow(), ATSPI_ROLE_LABEL), Contains("Used Time: 16:00"));
    EXPECT_THAT(names(toolWindow(), ATSPI_ROLE_LABEL), Contains(HasSubstr("Remaining Time: 6")));
    const Accessible bar = toolWindow().find(ATSPI_ROLE_PROGRESS_BAR, "Used capacity");
    EXPECT_EQ(bar.value(), 20.0);
    EXPECT_EQ(bar.maximumValue(), 100.0);
}

TEST_F(AccessibleWindow, MissingDriveIsSaidAsSoonAsItIsKnown) {
    const AccessibleEvents shown("object:state-changed:showing");
    startHost({"--tool", "CD Burner"});
    waitUntil("the tool's window", [this] { return !toolWindow().isNull(); });
    waitUntil("the tip", [&shown] {
        const auto names = shown.names(ATSPI_ROLE_NOTIFICATION);
        return !names.empty() && names.back() == "You should connect a disc drive!";
    });
    EXPECT_FALSE(toolWindow().find(ATSPI_ROLE_LABEL, "Not found a disc drive.").isNull());
    EXPECT_FALSE(toolWindow().find(ATSPI_ROLE_PUSH_BUTTON, "Help").isNull());
}

TEST_F(AccessibleWindow, HelpIsReadWhenItOpens) {
    start();
    const AccessibleEvents shown("object:state-changed:showing");
    EXPECT_TRUE(button("Help").act("Press"));
    waitUntil("the bubble's text", [&shown] {
        const auto names = shown.names(ATSPI_ROLE_NOTIFICATION);
        return !names.empty() && names.back().find("Plays in CD players") != std::string::npos;
    });
    const Accessible bubble = shown.all().back().source;
    EXPECT_THAT(bubble.name(), testing::Not(HasSubstr("<")));
    waitUntil("the bubble", [&bubble] { return bubble.isShowing(); });
    press("a");
    waitUntil("its end", [&bubble] { return !bubble.isShowing(); });
    EXPECT_EQ(toolWindow().find(ATSPI_ROLE_TEXT).text(), "Untitled");
}

TEST_F(AccessibleWindow, HostsControlsHaveTheirRolesAndNames) {
    std::filesystem::copy(medium("song.wav"), musicFolder_ / "a.wav");
    start();
    const Accessible window = hostWindow();
    EXPECT_EQ(window.role(), ATSPI_ROLE_FRAME);
    waitUntil("the library",
              [&window] { return window.find(ATSPI_ROLE_TREE, "Songs").rowCount() == 1; });
    EXPECT_THAT(names(window, ATSPI_ROLE_PUSH_BUTTON),
                ElementsAre("Send to CD Burner", "CD Burner"));
    EXPECT_THAT(names(window, ATSPI_ROLE_TEXT), ElementsAre("Search songs"));
    EXPECT_THAT(names(window, ATSPI_ROLE_MENU_ITEM),
                ElementsAre("File", "Edit", "Songs", "Tools", "Help"));
    EXPECT_THAT(nameless(window), IsEmpty());
    activate("Crate");
    waitUntil("the host's turn", [&window] { return window.hasState(ATSPI_STATE_ACTIVE); });
    press("ctrl+f");
    press("a");
    waitUntil("the search",
              [&window] { return window.find(ATSPI_ROLE_TEXT, "Search songs").text() == "a"; });
    EXPECT_THAT(nameless(window), IsEmpty());
}

TEST_F(AccessibleWindow, NamesAreInThePersonsLanguageInBothWindows) {
    setenv("LC_ALL", "de_DE.UTF-8", 1); // NOLINT(concurrency-mt-unsafe): no other thread
    startHost({"--tool", "CD Burner", "--image-drive", imageFolder_, medium("short.wav")});
    waitUntil("the tool's window", [this] { return !windowNamed("CD-Brenner").isNull(); });
    const Accessible window = windowNamed("CD-Brenner");
    waitUntil("the row", [&window] {
        return window.find(ATSPI_ROLE_TABLE, "Brennliste").cellName(0, 0) == "short, 0:04";
    });
    EXPECT_FALSE(window.find(ATSPI_ROLE_PUSH_BUTTON, "Brennen").isNull());
    EXPECT_FALSE(hostWindow().find(ATSPI_ROLE_MENU_ITEM, "Bearbeiten").isNull());
    EXPECT_FALSE(hostWindow().find(ATSPI_ROLE_TEXT, "Titel suchen").isNull());
    setenv("LC_ALL", "C.UTF-8", 1); // NOLINT(concurrency-mt-unsafe)
}

TEST_F(AccessibleWindow, MessageOfTheHostIsANotification) {
    startHost({"--tool", "Toaster"});
    waitUntil("the message", [this] {
        return !hostWindow()
                    .find(ATSPI_ROLE_NOTIFICATION, "There is no tool named “Toaster”.")
                    .isNull();
    });
}

} // namespace
