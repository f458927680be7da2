// SPDX-License-Identifier: GPL-2.0-or-later
// Files dragged from another program (XDND between two processes).
#include "tests/window/WindowTest.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

constexpr const char *addresses = "text/uri-list";

class Dropping : public WindowTest {};

TEST_F(Dropping, FileOnTheEmptyPictureIsAdded) {
    start();
    startNeighbour();
    offer({{addresses, address(song("one"))}});
    EXPECT_EQ(dropOn(middleOf("_dragImageView")), "copy");
    waitForList({"one"});
    EXPECT_FALSE(isVisible("_dragImageView"));
}

} // namespace
